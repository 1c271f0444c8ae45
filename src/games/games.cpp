#include "games/games.h"

#include "games/sumfall/frmSumfall.h"
#include "games/fivestack/frmFivestack.h"
#include "games/spirehold/frmSpirehold.h"
#include "games/duopick/frmDuopick.h"
#include "games/treyshift/frmTreyshift.h"
#include "window/runtime.h"

namespace ch {

void RegisterGameForms(Runtime& runtime) {
    RegisterSumfall(runtime);
    RegisterFivestack(runtime);
    RegisterSpirehold(runtime);
    RegisterDuopick(runtime);
    RegisterTreyshift(runtime);
}

}  // namespace ch
