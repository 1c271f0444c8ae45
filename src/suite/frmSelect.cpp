// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/frmSelect.h"

#include <algorithm>
#include <vector>

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/gameinfo.h"
#include "suite/gamewindow.h"
#include "suite/suite.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

// Design-time layout; captions are set by Form_Load. The game buttons stand
// in a column in the frame, one slot every 520 twips from the top.
const ControlSpec kFrame = {K::Frame, "frmGameChoice", -1, 97, 120, 6540, 4425, "Frame1"};
constexpr int kGameSlotTop = 240;
constexpr int kGameSlotStep = 520;
const ControlSpec kLayout[] = {
    {K::Button, "cmdLaunchBrowser", -1, 302, 4680, 2040, 420, "Command8"},
    {K::Button, "cmdClose", -1, 4430, 4680, 2040, 420, "Command9"},
    {K::Label, "lblCopyRight", -1, 97, 5160, 6540, 240, "Label1"},
    {K::Image, "imgSplashImage", 0, 2805, 495, 1065, 1440, "", "frmGameChoice"},
    {K::Image, "imgSplashImage", 1, 2340, 1170, 1065, 1440, "", "frmGameChoice"},
    {K::Image, "imgSplashImage", 2, 2805, 1920, 1065, 1440, "", "frmGameChoice"},
    {K::Image, "imgSplashImage", 3, 3510, 2190, 1065, 1440, "", "frmGameChoice"},
    {K::Image, "imgSplashImage", 4, 4155, 1920, 1065, 1440, "", "frmGameChoice"},
    {K::Image, "imgSplashImage", 5, 4665, 1170, 1065, 1440, "", "frmGameChoice"},
    {K::Image, "imgSplashImage", 6, 4155, 495, 1065, 1440, "", "frmGameChoice"},
    {K::Image, "imgSplashImage", 7, 3510, 225, 1065, 1440, "", "frmGameChoice"},
    {K::Timer, "Timer1", -1, 0, 0, 0, 0},
};

// The faces the ring shows before the animation first reaches each place.
const char* const kFirstFaces[8] = {"1S", "13H", "12C", "11D", "1H", "13S", "12D", "11C"};

// The games the selector offers, by their slot in the column.
std::vector<const GameInfo*> OfferedGames() {
    std::vector<const GameInfo*> games;
    for (const GameInfo* game : RegisteredGames())
        if (game->button) games.push_back(game);
    std::stable_sort(games.begin(), games.end(),
                     [](const GameInfo* a, const GameInfo* b) { return a->buttonSlot < b->buttonSlot; });
    return games;
}
}  // namespace

frmSelect::frmSelect(Runtime& runtime) : Form(runtime, "frmSelect") {
    setSize(6855, 5880);
    add(kFrame);
    for (const GameInfo* game : OfferedGames())
        add({K::Button, game->button, -1, 195, kGameSlotTop + game->buttonSlot * kGameSlotStep, 1320, 420, "",
             "frmGameChoice"});
    add(kLayout);
    for (int i = 0; i < 8; ++i) {
        Control& image = c("imgSplashImage", i);
        image.setPicture(ImageList2().indexOf(kFirstFaces[i]));
        image.setBorderStyle(1);
    }
    Control& timer = c("Timer1");
    timer.setInterval(250);
    timer.setEnabled(true);

    on(Ev::Load, [this](EventArgs&) { Form_Load(); });
    for (const GameInfo* game : OfferedGames())
        on(game->button, Ev::Click, [this, game](EventArgs&) { GameButton_Click(game->title, game->form); });
    on("cmdLaunchBrowser", Ev::Click, [this](EventArgs&) { cmdLaunchBrowser_Click(); });
    on("cmdClose", Ev::Click, [this](EventArgs&) { cmdClose_Click(); });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });

    expose("SplashPosition", Expose(SplashPosition));
    expose("SplashForward", Expose(SplashForward));
    expose("SplashShowBack", Expose(SplashShowBack));
    expose("SplashBackIndex", Expose(SplashBackIndex));
}

void frmSelect::Form_Load() {
    CentreOnScreen(*this);
    setCaption("Quillmark's Card Haven");
    c("frmGameChoice").setCaption("Select your game");
    for (const GameInfo* game : OfferedGames()) c(game->button).setCaption(game->buttonCaption);
    c("cmdLaunchBrowser").setCaption("&Go to Quillmark's website");
    c("cmdClose").setCaption("&Close");
    c("lblCopyRight").setCaption("Copyright (C) 2026 Quillmark. All cards, sounds and music made by Quillmark.");
}

void frmSelect::GameButton_Click(const char* title, const char* formName) {
    setMousePointer(Pointer::Hourglass);
    AppTitle = title;
    runtime().show(formName);
    setMousePointer(Pointer::Default);
    runtime().hide(*this);
}

void frmSelect::cmdLaunchBrowser_Click() { OpenWebPage(WebSiteAddress()); }

void frmSelect::cmdClose_Click() {
    runtime().unload(*this);
    runtime().end();
}

// The ring: a forward pass turns the cards one by one to backs or to random
// faces, a backward pass only restacks them. Backs run through entries 2, 5, 8.
// A tick served inside a handler's DoEvents or message box (a round change
// that still holds the thread) leaves TakingScore alone, so that no Take
// Score can start inside a running one.
void frmSelect::Timer1_Timer() {
    if (!runtime().servingInsideHandler()) TakingScore = false;
    if (SplashBackIndex == 0) SplashBackIndex = 2;
    Control& image = c("imgSplashImage", SplashPosition);
    if (SplashForward) {
        image.zOrderBack();
        if (SplashShowBack) {
            image.setPicture(SplashBackIndex);
            image.setBorderStyle(0);
        } else {
            image.setPicture(RandomInteger(ImageCatalogue::kFirstFace, ImageCatalogue::kLastFace));
            image.setBorderStyle(1);
        }
        SplashPosition += 1;
        if (SplashPosition > 7) {
            SplashForward = false;
            SplashPosition = 7;
        }
    } else {
        image.zOrderBack();
        SplashPosition -= 1;
        if (SplashPosition == -1) {
            SplashForward = true;
            SplashPosition = 0;
            if (SplashShowBack) {
                SplashShowBack = false;
                SplashBackIndex += 3;
                if (SplashBackIndex == 11) SplashBackIndex = 2;
            } else {
                SplashShowBack = true;
            }
        }
    }
}

}  // namespace ch
