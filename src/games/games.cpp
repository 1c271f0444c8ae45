#include "games/games.h"

#include "games/sumfall/frmSumfall.h"
#include "games/treyshift/frmTreyshift.h"
#include "window/runtime.h"

namespace ch {

void RegisterGameForms(Runtime& runtime) {
    RegisterSumfall(runtime);
    RegisterTreyshift(runtime);
}

}  // namespace ch
