// SPDX-License-Identifier: GPL-3.0-or-later
// The Spirehold window: 28 cards in three overlapping towers, an up card
// beside a stack of 24 spare cards. The player clears the towers by runs one
// rank up or down from the up card; each further card of a run is worth more.
// Two rounds and, on a high enough score, a bonus round. The window is one
// class over three files: frmSpirehold.cpp (layout, loading, closing, resize,
// settings, menus), frmSpireholdBoard.cpp (the deal, the clicks, what the
// board shows), frmSpireholdRounds.cpp (play, pause, the clock, the end of a
// round and of the game).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "games/spirehold/info.h"
#include "games/spirehold/modSpirehold.h"
#include "games/spirehold/modSpireholdBoard.h"
#include "suite/boardplaces.h"
#include "suite/gameform.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/form.h"

namespace ch {

class RuntimeError;

class frmSpirehold : public GameForm {
public:
    explicit frmSpirehold(Runtime& runtime);

    // Scoring values; the custom scoring dialog writes them (TimeBonus is shared).
    spirehold::ScoringValues Scoring;

    // CustomScoringInUse from the five scoring values.
    void CheckForCustom();

private:
    // Events.
    void Form_Load();
    void Form_Resize();
    void Form_QueryUnload(EventArgs& args);
    void cmdPlay_Click(bool fromMenu);
    void cmdPause_Click();
    void cmdTakeScore_Click();
    void UpCardImage_Click(int index);
    void CardStackPicture_Click();
    void UpCardPicture_Click();
    void lblCurrentRun_Change();
    void Timer1_Timer();
    void mnuTime_Click(const char* menu);
    void mnuDeck_Click(int design);
    void mnuClear_Click();
    void mnuClearHighRun_Click();

    // The game.
    void Play();
    void EndGame();
    void InitRound();
    void Deal();
    void TakeScore();
    void TowerScore();
    void HighRunScore();
    void GameOver();
    void EndOnError(const RuntimeError& error);
    void TakeCardAt(int index);

    // What the window shows.
    void ShowBoard();
    void ShowCards(bool visible, bool disable = true);
    void ShowControls(bool visible);
    void ShowControls(bool visible, bool scoreVisible);
    void RefreshPlayCard();
    void RefreshFieldCards();
    void HideTowerLabels();
    void ShowScore();
    void ShowCardsRemaining();
    void PlaceBoard();
    bool GameRunning() const;
    SettingsLayout SettingsSections() override;

    // The board.
    spirehold::Board Board;  // the towers, the up card, the stack and the deck's order
    int16_t CurrentRun = 0;
    int16_t HighestRun = 0;
    int16_t RunValue = 0;
    int16_t CardsRemaining = 0;
    int32_t TowersCompleted = 0;
    bool NewHighRun = false;
    int16_t CurrentRound = 1;
    BoardPlaces BoardMoves;
    BoardPlaces Buttons;  // 1320 twips in from the right edge
};


}  // namespace ch
