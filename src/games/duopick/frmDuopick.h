// SPDX-License-Identifier: GPL-3.0-or-later
// The Duopick window: 23 cards face up in five overlapping rows, an up card
// on its waste pile and the stack beside it. The player takes exposed cards
// away two at a time as pairs and runs; everything is paid at the end of the
// round. Two rounds and, on a high enough score, a bonus round.
//
// The class spans three files: frmDuopick.cpp the window (layout, menus,
// loading, closing, resizing, settings), frmDuopickBoard.cpp the board (the
// deal, the clicks on cards and stack, what the board shows) and
// frmDuopickRounds.cpp the rounds (Play, pause, the clock, the end of a round
// and of the game).
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "games/duopick/info.h"
#include "games/duopick/modDuopick.h"
#include "games/duopick/modDuopickBoard.h"
#include "suite/boardplaces.h"
#include "suite/gameform.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/form.h"

namespace ch {

class frmDuopick : public GameForm {
public:
    explicit frmDuopick(Runtime& runtime);

    // Scoring values; the custom scoring dialog writes them (TimeBonus is shared).
    duopick::ScoringValues Scoring;

    // CustomScoringInUse unless every scoring value has its default.
    void CheckForCustom();
    // lblPairs "Pairs x " and lblRuns "Runs x " with their values.
    void ShowBonusLabels();

private:
    // ---- The window (frmDuopick.cpp)
    void Form_Load();
    void Form_Resize();
    void Form_QueryUnload(EventArgs& args);
    void PlaceBoard();
    SettingsLayout SettingsSections() override;
    void mnuTime_Click(const char* menu);
    void mnuDeck_Click(int design);
    void mnuClear_Click();

    // ---- The board (frmDuopickBoard.cpp)
    void Deal();
    void ShowBoard();
    void ShowCards(bool visible);
    void ShowControls(bool visible, bool scoreVisible);
    void ShowControls(bool visible) { ShowControls(visible, visible); }
    void PlayCard_Click(int index);
    void CountMatch(const duopick::Step& step);
    void CardStackPicture_Click();
    void ShowStackStage();

    // ---- The rounds (frmDuopickRounds.cpp)
    void cmdPlay_Click();
    void Play();
    void InitRound();
    void cmdPause_Click();
    void cmdTakeScore_Click();
    void TakeScore();
    void EndOnError(const RuntimeError& error);
    void GameOver();
    void Timer1_Timer();
    void ShowScore();

    duopick::Board Board;  // the cards, the waste pile, the stack and the selection
    int16_t CardsRemaining = 0;
    int32_t PairsCount = 0;
    int32_t RunsCount = 0;
    bool RoundCompleted = false;
    int16_t CurrentRound = 1;
    BoardPlaces BoardMoves;   // the field and the board below it, at their design sizes
    BoardPlaces RightColumn;  // the buttons and boxes at the right edge
};

// The rules window's text from the live settings (rulestext.cpp).
std::string DuopickRulesText();

}  // namespace ch
