#include "games/games.h"

#include "games/handgrid/frmHandgrid.h"
#include "games/sumfall/frmSumfall.h"
#include "window/runtime.h"

namespace ch {

void RegisterGameForms(Runtime& runtime) {
    RegisterSumfall(runtime);
    RegisterHandgrid(runtime);
}

}  // namespace ch
