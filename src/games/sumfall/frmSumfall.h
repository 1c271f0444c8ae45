// SPDX-License-Identifier: GPL-3.0-or-later
// The Sumfall window: a field of 22 cards in six tiers, an up card pile and a
// play pile. The player clicks exposed cards that total the card goal; two
// rounds and, on a high enough score, a bonus round. Each procedure here
// follows the game's description step by step. One class over three files:
// frmSumfall.cpp the window (layout, menus, load, close, resize, settings),
// frmSumfallBoard.cpp the board (deal, clicks, combinations, piles, over
// the plain board of modSumfallBoard.h, shown on the controls by ShowBoard),
// frmSumfallRounds.cpp the rounds (Play, pause, clock, take score, bonus
// round, end of game, replay, saved games); rulestext.cpp its rules text.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "games/sumfall/info.h"
#include "games/sumfall/modSumfall.h"
#include "games/sumfall/modSumfallBoard.h"
#include "suite/boardplaces.h"
#include "suite/gameform.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/form.h"

namespace ch {

class frmSumfall : public GameForm {
public:
    explicit frmSumfall(Runtime& runtime);

    // The window's fixed names, sizes and entries.
    static constexpr int kDesignWidth = 9540;
    static constexpr int kDesignHeight = 7200;
    static constexpr int kCardWidth = 1065;
    static constexpr int kCardHeight = 1455;
    static constexpr const char* kTakeScoreCaption = "&Take Score";
    static constexpr const char* kReplayCaption = "&Replay";
    static constexpr const char* kReplayTip = "Replays the last game";
    static constexpr const char* kGoalMenus[6] = {"mnu10", "mnu11", "mnu12", "mnu13", "mnu14", "mnu15"};

    // Scoring values; the custom scoring dialog writes them (TimeBonus is shared).
    sumfall::ScoringValues Scoring;

    // The deck of each round as dealt: what Replay and saved games use.
    // Before the first game they hold the empty codes of a full deck.
    std::vector<std::string> Round1Deck = EmptyDeck(), Round2Deck = EmptyDeck(), Round3Deck = EmptyDeck();
    // The card goal those decks were made for, which sets their size: a saved
    // game names it, so that it reads back even after the goal was changed.
    int DecksCardGoal = sumfall::kDefaultCardGoal;

    // Reads a saved game and starts its replay; false when it can't be read.
    bool LoadSavedGame(const std::string& path);

private:
    // Events.
    void Form_Load();
    void Form_Activate();
    void Form_Resize();
    void Form_QueryUnload(EventArgs& args);
    void cmdPlay_Click(bool fromMenu);
    void cmdPause_Click();
    void cmdTakeScore_Click(bool fromMenu);
    void FieldCardPicture_Click(int index);
    void FieldCardPicture_MouseMove(int index);
    void UpCardPicture_Click();
    void UpCardPicture_MouseMove();
    void PlayCardPicture_Click();
    void PlayCardPicture_MouseMove();
    void Timer1_Timer();
    void lblCurrentScore_Change();
    void lblMessage_Change();
    void mnuTime_Click(const char* menu);
    void mnuGoal_Click(int goal);
    void mnuColor_Click(int index);
    void mnuDeck_Click(int design);
    void mnuDrawTimer_Click();
    void mnuClear_Click();

    // The game.
    bool CreateSumfallDeck();
    bool Deal(bool newGame = false);
    void Play();
    void TakeScore();
    void GameOver();
    void CloseScoring();
    void EndOnError(const RuntimeError& error);
    void EndGame();
    void CheckTotal();

    // What the window shows.
    void ShowBoard();
    void ShowTotal();
    void CardTotalVisible(bool flag);
    void ShowLowerCards(bool flag);
    void DisableCommandButtons(bool flag);
    void ShowTimerRect();
    void SelectionColor(int index);
    void ClearColorCheck();
    void ShowScore();
    void PlaceBoard();
    SettingsLayout SettingsSections() override;

    // The picture of a card code; a code with no picture (an empty slot of a
    // damaged saved game) is an error, as the catalogue's lookup always was.
    static int PictureOf(const std::string& code);
    // Each deck a replay will deal has a picture for every code; false for a
    // saved game that names a card the catalogue doesn't have.
    bool ReplayDecksHavePictures() const;
    static std::vector<std::string> EmptyDeck() {
        return std::vector<std::string>(static_cast<size_t>(sumfall::DeckSize(sumfall::kDefaultCardGoal)) + 1);
    }

    // The board.
    sumfall::Board Board;
    int32_t CombinationCount = 0;
    int16_t CurrentRound = 1;
    bool UpCardUsed = false;
    int16_t SelectionColorIndex = sumfall::kDefaultSelectionColour;
    bool ReplayPending = false;
    // Sumfall counts its scores visibly by a switch of its own, not the shared one.
    bool CountDownScore = true;
    BoardPlaces BoardMoves;  // relative to the point the window's size gives
};

// The rules window's text, from the open window's live values.
std::string SumfallRules();

}  // namespace ch
