// SPDX-License-Identifier: GPL-3.0-or-later
// The Treyshift window: a storage of three slots at the top, four columns of
// up to three cards in the middle and the deck with its fan of three up cards
// at the bottom. The player moves one card at a time by two clicks; a column
// of three that makes a Trip or a Run clears itself and pays at once. Two
// rounds and, on a high enough score, a bonus round.
//
// The class spans three files: frmTreyshift.cpp (layout, menus, loading,
// closing, resizing, settings), frmTreyshiftBoard.cpp (the deal, clicks,
// moves, column scoring, what the board shows) and frmTreyshiftRounds.cpp
// (Play, pause, the clock, the end of a round and of the game).
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "games/treyshift/info.h"
#include "games/treyshift/modTreyshift.h"
#include "games/treyshift/modTreyshiftBoard.h"
#include "suite/boardplaces.h"
#include "suite/gameform.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/form.h"

namespace ch {

class frmTreyshift : public GameForm {
public:
    explicit frmTreyshift(Runtime& runtime);

    // Scoring values; the custom scoring dialog writes them (TimeBonus is shared).
    treyshift::ScoringValues Scoring;

    void CheckForCustom();

private:
    // ---- frmTreyshift.cpp
    void Form_Load();
    void Form_Resize();
    void Form_QueryUnload(EventArgs& args);
    void PlaceBoard();
    void mnuTime_Click(const char* menu);
    void mnuDeck_Click(int design);
    void mnuClear_Click();
    SettingsLayout SettingsSections() override;

    // ---- frmTreyshiftBoard.cpp
    void ShowBoard();
    void ShowPlaces();
    void ShowStep(const treyshift::Step& step);
    void UpCard_Click(int index);
    void CardStackPicture_Click();
    void TempCard_Click(int index);
    void PlayCard_Click(int index);
    void StuckTest();
    void Deal();
    void ShowCards(bool show);
    void ShowControls(bool showBoard, bool showScore);
    void NoMovesLeft();
    void CheckColumn(int column);
    void CheckFlush(int column, bool& IsFlush);
    void ClearColumn(int column);
    void ShowFlushMessage(int column);

    // ---- frmTreyshiftRounds.cpp
    void cmdPlay_Click(bool fromMenu);
    void Play();
    void EndGame();
    void cmdPause_Click();
    void cmdTakeScore_Click();
    void Timer1_Timer();
    void EndRound();
    void GameOver();
    void EndOnError(const RuntimeError& error);
    void RemoveLeftOverCards();
    void RestoreFlushLabel();
    void InitRound();
    void ResetDial();
    void CenterScoringLabel();
    void CentreAcross(Control& label);
    void CentreIn(const char* label, const char* rectangle);
    void FitLabel(const char* label);
    void ShowScore();
    int ScaleWidth() const;

    treyshift::Board Board;
    int16_t TripCount = 0;
    int16_t RunCount = 0;
    int16_t CurrentRound = 1;
    bool EndingRound = false;  // a round is being scored
    long RoundEnds = 0;        // rounds scored since the window was made
    BoardPlaces BoardMoves;
    BoardPlaces RightColumn;
};

// The rules window's text from the live settings (rulestext.cpp).
std::string TreyshiftRules();

}  // namespace ch
