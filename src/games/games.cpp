#include "games/games.h"

#include "games/spirehold/frmSpirehold.h"
#include "games/sumfall/frmSumfall.h"
#include "window/runtime.h"

namespace ch {

void RegisterGameForms(Runtime& runtime) {
    RegisterSumfall(runtime);
    RegisterSpirehold(runtime);
}

}  // namespace ch
