// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/common.h"

#include "suite/cards.h"
#include "window/runtime.h"

namespace ch {

void ResetShared() {
    AppTitle.clear();
    TimeLimit = 0;
    ElapsedSeconds = 0;
    DialSeconds = 0;
    CurrentScore = 0;
    PreviousScore = 0;
    TakingScore = false;
    GameInProgress = false;
    PlaySounds = true;
    PlayMusic = false;
    CountDownScore = true;
    DeckDesign = 1;
    TimeBonus = 0;
    CustomScoringInUse = false;
    PlayerName.clear();
    GameStartTime = 0;
    CardGoal = 11;
    DialCenterX = 0;
    DialCenterY = 0;
    DialRadius = 0;
    DialFirstColor = 65280;
    DialSecondColor = 65535;
    DialLastColor = 0xFFFFFF;
    DialLineColor = 0xC0C0C0;
    Deck.assign(1, std::string());
    ImageList2().reset();
}

void ExposeShared(Runtime& runtime) {
    runtime.exposeGlobal("AppTitle", Expose(AppTitle));
    runtime.exposeGlobal("AppPath", Expose(AppPath));
    runtime.exposeGlobal("TimeLimit", Expose(TimeLimit));
    runtime.exposeGlobal("ElapsedSeconds", Expose(ElapsedSeconds));
    runtime.exposeGlobal("DialSeconds", Expose(DialSeconds));
    runtime.exposeGlobal("CurrentScore", Expose(CurrentScore));
    runtime.exposeGlobal("PreviousScore", Expose(PreviousScore));
    runtime.exposeGlobal("TakingScore", Expose(TakingScore));
    runtime.exposeGlobal("GameInProgress", Expose(GameInProgress));
    runtime.exposeGlobal("PlaySounds", Expose(PlaySounds));
    runtime.exposeGlobal("PlayMusic", Expose(PlayMusic));
    runtime.exposeGlobal("CountDownScore", Expose(CountDownScore));
    runtime.exposeGlobal("DeckDesign", Expose(DeckDesign));
    runtime.exposeGlobal("TimeBonus", Expose(TimeBonus));
    runtime.exposeGlobal("CustomScoringInUse", Expose(CustomScoringInUse));
    runtime.exposeGlobal("PlayerName", Expose(PlayerName));
    runtime.exposeGlobal("Deck", Expose(Deck));
    runtime.exposeGlobal("CardGoal", Expose(CardGoal));
    runtime.exposeGlobal("GameStartTime", Expose(GameStartTime));
    runtime.exposeGlobal("DialCenterX", Expose(DialCenterX));
    runtime.exposeGlobal("DialCenterY", Expose(DialCenterY));
    runtime.exposeGlobal("DialRadius", Expose(DialRadius));
    runtime.exposeGlobal("DialLastColor", Expose(DialLastColor));
}

std::string AppFile(const std::string& name) {
    std::string rest = name;
    while (!rest.empty() && (rest.front() == '\\' || rest.front() == '/')) rest.erase(0, 1);
    return AppPath + "/" + rest;
}

}  // namespace ch
