#include "games/games.h"

#include "games/blackrush/frmBlackrush.h"
#include "games/sumfall/frmSumfall.h"
#include "window/runtime.h"

namespace ch {

void RegisterGameForms(Runtime& runtime) {
    RegisterSumfall(runtime);
    RegisterBlackrush(runtime);
}

}  // namespace ch
