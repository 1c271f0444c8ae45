// SPDX-License-Identifier: GPL-3.0-or-later
// The Blackrush window: one deck played onto four columns against the clock.
// A column of 21 or of five cards clears itself; a card that would bust a
// column is not laid and costs 100 points. The 21 Counter takes the rising
// 21 Bonus Value back unless the next 21 comes in time. Three rounds and, on
// a high enough score, a bonus round.
//
// The class lives in three files: frmBlackrush.cpp the window (layout, menus,
// load, close, resize, settings), frmBlackrushBoard.cpp the columns and the
// cards, frmBlackrushRounds.cpp play, pause, the clocks, the round's scoring
// and the next round.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "games/blackrush/info.h"
#include "games/blackrush/modBlackrush.h"
#include "suite/boardplaces.h"
#include "suite/gameform.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/form.h"

namespace ch {

class frmBlackrush : public GameForm {
public:
    explicit frmBlackrush(Runtime& runtime);

    // The scoring values; the user options dialog writes them field by field.
    blackrush::ScoringValues Scoring;
    int16_t PassesLeft = 0;

    // CustomScoringInUse from the scoring values.
    void CheckForCustom();
    // Panel 1: "Make " + BonusScore + " for bonus round." + `tail`.
    void ShowBonusGoal(const std::string& tail);

private:
    // ---- The window (frmBlackrush.cpp) ----
    void Form_Load();
    void Form_Resize();
    void Form_QueryUnload(EventArgs& args);
    void PlaceBoard();
    void lblTime_Change();
    void mnuTime_Click(const char* menu);
    void mnuDeck_Click(int design);
    void mnuClear_Click();
    void mnuTakeScore_Click();
    SettingsLayout SettingsSections() override;

    // ---- The board (frmBlackrushBoard.cpp) ----
    void cmdHit_Click(int index);
    void Hit(int index);
    void cmdPass_Click();
    int GetHitTotal(int index);
    int CalculateAces(int index);
    bool CheckForBust(int index);
    void LayCard(int index, int total);
    void FiveCardGimme(int index);
    void ShowPile();
    void ClearColumns();
    void ResetColumnImages(int index);
    void RestartCounter();
    void StopCounterBack();
    void EnableHitButtons(bool enable);
    void ShowHitButtons(bool show);
    void ShowCards(bool show);
    void ShowGameBoard(bool show);
    void EnablePlayControls(bool enable);
    void ShowMessage(const std::string& text, bool hold);
    void ShowScore();
    void ShowCard(Control& image, const std::string& code);
    void CentreIn(Control& label, const Control& frame);
    void ClearDial();
    Control& ColumnImage(int index, int slot) const;
    int ColumnTotalValue(int index) const;

    // ---- The rounds (frmBlackrushRounds.cpp) ----
    void cmdPlay_Click();
    void Play();
    void EndGameQuestion();
    void PauseGame();
    void cmdTakeScore_Click();
    void TakeScore();
    void EndOnError(const RuntimeError& error);
    void NextRound();
    void Timer1_Timer();
    void Timer3_Timer();
    void Timer5_Timer();
    void Pause(int ms);

    // The board.
    int16_t DeckPosition = 0;
    std::array<int16_t, blackrush::kColumns> ColumnCards{};
    std::array<int16_t, blackrush::kColumns> SoftAces{};
    int16_t CurrentRound = 1;
    int16_t TwentyOnes = 0;
    bool QuitRequested = false;
    bool CounterWasRunning = false;  // Timer3 before a pause
    // The controls that move with the board on a resize.
    BoardPlaces BoardMoves;
};

// The rules text of Blackrush, from the live values of its window (rulestext.cpp).
void RegisterBlackrushRules();

}  // namespace ch
