#include "games/games.h"

#include "games/duopick/frmDuopick.h"
#include "games/sumfall/frmSumfall.h"
#include "window/runtime.h"

namespace ch {

void RegisterGameForms(Runtime& runtime) {
    RegisterSumfall(runtime);
    RegisterDuopick(runtime);
}

}  // namespace ch
