// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/games.h"

#include "games/handgrid/frmHandgrid.h"
#include "games/sumfall/frmSumfall.h"
#include "games/fivestack/frmFivestack.h"
#include "games/blackrush/frmBlackrush.h"
#include "games/spirehold/frmSpirehold.h"
#include "games/duopick/frmDuopick.h"
#include "games/treyshift/frmTreyshift.h"
#include "window/runtime.h"

namespace ch {

void RegisterGameForms(Runtime& runtime) {
    RegisterSumfall(runtime);
    RegisterFivestack(runtime);
    RegisterBlackrush(runtime);
    RegisterSpirehold(runtime);
    RegisterDuopick(runtime);
    RegisterHandgrid(runtime);
    RegisterTreyshift(runtime);
}

}  // namespace ch
