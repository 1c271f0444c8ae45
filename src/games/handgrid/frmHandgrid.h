// SPDX-License-Identifier: GPL-3.0-or-later
// The Handgrid window: a five by five grid filled card by card from the deck
// through the hole; every row and column is a poker hand, and a grid filled
// in time pays the value of its ten hands times the seconds left. Three rounds
// and, on a high enough score, a bonus round. The window's code is in three
// files: frmHandgrid.cpp (layout, menus, loading, closing, resizing),
// frmHandgridBoard.cpp (the grid, the deck and the labels around it) and
// frmHandgridRounds.cpp (Play, pause, the clock, the end of a round).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "games/handgrid/info.h"
#include "games/handgrid/modHandgrid.h"
#include "suite/boardplaces.h"
#include "suite/gameform.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/form.h"

namespace ch {

class frmHandgrid : public GameForm {
public:
    explicit frmHandgrid(Runtime& runtime);

    // Scoring values; the custom scoring dialog writes them.
    handgrid::ScoringValues Scoring;

    // CustomScoringInUse from the values in force.
    void CheckForCustom();
    // Status panel 1: "Make 100,000 for bonus round.  ".
    void ShowBonusGoal();

    // The end of a round: scoring, then the next round, the bonus round or
    // the end of the game. Blocks for its whole length.
    void NextRound();

private:
    // frmHandgrid.cpp: the window.
    void Form_Load();
    void Form_Resize();
    void Form_QueryUnload(EventArgs& args);
    void PlaceBoard();
    void mnuTime_Click(const char* menu);
    void mnuDeck_Click(int design);
    SettingsLayout SettingsSections() override;

    // frmHandgridBoard.cpp: the grid.
    bool Deal();
    void DrawNextCard();
    void Reset(bool EndOfGame);
    void ShowCards(bool Show);
    void ShowControls(bool RoundControls, bool FrameControls);
    void PlayCards_Click(int Index);
    void CardStackPicture_Click();
    void EvaluateLines(bool IsRows);
    void EvaluateHand(const handgrid::Line& Hand, int LineNumber, bool IsRows);
    void lblHand_Change(const char* array, int Index);
    void lblCol_Change(int Index);
    void lblOverwrites_Change();
    void lblCurrentScore_Change();
    void lblRound_Change();
    void CenterTimeBonus();
    void CenterScoringLabel();
    void ShowOverWrites();
    void ShowStackPicture(std::string key);

    // frmHandgridRounds.cpp: the rounds.
    void Play();
    void StartGame();
    void EndGameAsked();
    void cmdPause_Click();
    void Timer1_Timer();
    void GameOver();
    void EndOnError(const RuntimeError& error);
    void ResetDial();
    void ShowTimerFrame(bool visible);

    // The board.
    handgrid::Grid PlayedCards;
    std::vector<std::string> RoundDeck = std::vector<std::string>(handgrid::kDeckSlots + 1);
    std::vector<std::string> HoleCards = std::vector<std::string>(handgrid::kDeckSlots + 1);
    int16_t DeckPosition = 0;
    int16_t HoleCount = 0;
    int16_t CardsRemaining = 0;
    int16_t OverWritesUsed = 0;
    int32_t RoundPoints = 0;
    bool HandSoundPlayed = false;
    int16_t CurrentRound = 1;
    std::string StackKey = "FULL";
    BoardPlaces BoardMoves;
};

// The rules window's text for Handgrid (rulestext.cpp).
std::string HandgridRules();

}  // namespace ch
