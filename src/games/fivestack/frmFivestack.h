// SPDX-License-Identifier: GPL-3.0-or-later
// The Fivestack window: five columns of up to five cards, each filled by its
// Hit button from the next card of a shuffled deck, aces 1 or 11. A Card
// Total of 97 to 105 without a bust may be scored, by the Card Total Value
// table times a Time Bonus that falls through the round. Three rounds and,
// on a high enough score, a bonus round.
//
// The class is spread over three files: frmFivestack.cpp the window (layout,
// events, load, close, resize, settings, menus), frmFivestackBoard.cpp the
// board (Hit, Pass, aces, busts, what the board shows) and
// frmFivestackRounds.cpp the rounds (Play, pause, the clock, giving up and
// taking the score, the next round and the end of the game).
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "games/fivestack/info.h"
#include "games/fivestack/modFivestack.h"
#include "suite/boardplaces.h"
#include "suite/gameform.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/form.h"

namespace ch {

class frmFivestack : public GameForm {
public:
    explicit frmFivestack(Runtime& runtime);

    // Settings the User Options dialog writes field by field.
    fivestack::ScoringValues Scoring;
    float TimeBonusDecay = 0;
    int16_t PassesLeft = fivestack::ScoringValues{}.CardsToPass;

    // CustomScoringInUse from the four scoring values.
    void CheckForCustom();
    // Panel 1 during a game and after the dialog.
    void ShowBonusGoal();

private:
    // Window events (frmFivestack.cpp).
    void Form_Load();
    void Form_Resize();
    void Form_QueryUnload(EventArgs& args);
    void mnuTime_Click(const char* menu);
    void mnuDeck_Click(int design);
    void mnuClear_Click();
    void mnuCustom_Click();
    SettingsLayout SettingsSections() override;
    void PlaceBoard();

    // The board (frmFivestackBoard.cpp).
    void cmdHit_Click(int index);
    void cmdPass_Click();
    void CalculateColumnValue(int index);
    bool CheckForBust(int index);
    void CloseColumn(int index, bool close = true);
    void CloseCurrentRound();
    void ShowColumnTotal(int index);
    void AddUpCardTotal();
    bool CardOnShow() const;
    void ShowNextCard();
    void ShowCards(bool show);
    void ShowGraphics(bool show);
    void ShowHitButtons(bool show);
    bool EnableControls();
    void ClearBoard();
    void DealFirstCard();
    void lblCurrentTotal_Change();
    void CenterCardTotal();
    void UpdateCardTotalValue();
    void ClearCardTotalRows();
    void ColumnSoft_Change(int index);
    void ResizeColumnHeaders();

    // The rounds (frmFivestackRounds.cpp).
    void cmdPlay_Click(bool fromMenu);
    void Play();
    void EndGame(bool fromMenu);
    void cmdPause_Click();
    void PauseGame();
    void Timer1_Timer();
    void cmdGiveUp_Click();
    void TakeScore();
    void CountRoundScore(int32_t roundScore);
    bool EndRound(int16_t& round);
    void GameOver();
    void StartRound();
    bool Reset();
    bool NewDeck();
    void ClearDial();
    void CenterScoringLabel();
    void CenterScoringInfo();
    void ShowScoringLabel(bool show);
    void CenterTimeBonus();
    void lblTotalScore_Change();
    void ShowScore();

    std::array<fivestack::Column, fivestack::kColumns> Columns{};
    int16_t DeckPosition = 1;
    int16_t CardTotal = 0;
    int16_t CardTotalValue = 0;
    int16_t CurrentRound = 0;
    bool QuitRequested = false;
    bool Minimised = false;  // the clock was stopped by minimising the window
    BoardPlaces BoardMoves;  // all but the buttons, the status bar, menus and timers
};

// The rules window's text of Fivestack, from the window's live settings.
void RegisterFivestackRules();

}  // namespace ch
