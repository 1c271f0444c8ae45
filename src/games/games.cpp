#include "games/games.h"

#include "window/runtime.h"

namespace ch {

void RegisterGameForms(Runtime&) {
    // Each game registers its window, dialogs and module variables here.
}

}  // namespace ch
