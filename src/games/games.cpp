#include "games/games.h"

#include "games/fivestack/frmFivestack.h"
#include "games/sumfall/frmSumfall.h"
#include "window/runtime.h"

namespace ch {

void RegisterGameForms(Runtime& runtime) {
    RegisterSumfall(runtime);
    RegisterFivestack(runtime);
}

}  // namespace ch
