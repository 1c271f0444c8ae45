// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold's board: the deal, the legal move, the clicks on the tower
// cards, the stack and the up card, the run labels, and what the board shows.
// The moves are decided on the board (modSpireholdBoard.h); the controls show
// it after each click.
#include "games/spirehold/frmSpirehold.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/roundsteps.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace spirehold;

namespace {
int PictureOf(const Place& place) {
    return place.card.empty() ? place.back : ImageList2().indexOf(CardKey(place.card));
}

void ShowPlace(Control& control, const Place& place) {
    control.setPicture(PictureOf(place));
    control.setEnabled(place.enabled);
    control.setVisible(place.onTable);
}
}  // namespace

// ---- The deal --------------------------------------------------------------------

void frmSpirehold::Deal() {
    DealBoard(Board, Deck, ImageList2().indexOf("BACK"));
    ShowBoard();
    c("CardStackPicture").setPicture(ImageList2().indexOf("FULL"));
    CardsRemaining = kCardsInStack;
    ShowCardsRemaining();
    InitTimeDial(*this);
    c("Timer1").setEnabled(true);
    c("StatusBar1").setPanel(1, "Make " + FormatScore(Scoring.BonusScore) + " for Bonus Round!   ");
    c("StatusBar1").setPanel(2, "Create runs by clicking on exposed cards!   ");
    HideTowerLabels();
    NewHighRun = false;
}

// ---- The board on the controls -------------------------------------------------------

void frmSpirehold::ShowBoard() {
    for (int i = 0; i < kTowerCards; ++i) ShowPlace(c("UpCardImage", i), Board.towers[static_cast<size_t>(i)]);
    ShowPlace(c("UpCardPicture"), Board.upCard);
    c("CardStackPicture").setVisible(Board.stackShown);
}

// ---- Clicks --------------------------------------------------------------------------

void frmSpirehold::UpCardImage_Click(int index) {
    if (TakingScore) return;
    EndingOnError([&] { TakeCardAt(index); }, [this](const RuntimeError& error) { EndOnError(error); });
}

// A face-down card (it shows the current back) is never taken.
void frmSpirehold::TakeCardAt(int index) {
    if (!TakeCard(Board, index, ImageList2().indexOf("BACK"))) {
        Wave("\\Chord.wav");
        return;
    }
    Wave("\\Markq.wav");
    ShowBoard();
    RunValue = CInt(static_cast<double>(RunValue) + Scoring.CardValue);
    AddToScore(RunValue);
    ShowScore();
    CurrentRun = CInt(CurrentRun + 1.0);
    c("lblCurrentRun").setCaption("Current Run: " + NumText(CurrentRun));

    if (const int tower = TowerOfTop(index); tower != 0) {
        Control& label = c("lblTower" + NumText(tower));
        label.setVisible(true);
        label.setCaption("Tower " + NumText(tower) + " Completed!");
        TowersCompleted += 1;
        Wave("\\HighScore.wav");
    } else {
        TurnCardsBy(Board, index);
        ShowBoard();
    }
    if (TowersCompleted == 3) cmdTakeScore_Click();
}

void frmSpirehold::lblCurrentRun_Change() {
    if (CurrentRun > HighestRun) {
        HighestRun = CurrentRun;
        c("lblHighRun").setCaption("Highest Run: " + NumText(HighestRun));
        NewHighRun = true;
    }
    c("lblNextCard").setCaption("Next card worth: " + NumText((CurrentRun + 1LL) * Scoring.CardValue) + " points");
}

// A click ends the run; past the stack's end the stack's picture stays and
// the click is refused with a chord.
void frmSpirehold::CardStackPicture_Click() {
    if (TakingScore) return;
    setMousePointer(Pointer::Hourglass);
    RunValue = 0;
    CurrentRun = 0;
    c("lblCurrentRun").setCaption("Current Run: " + NumText(CurrentRun));
    CardsRemaining = static_cast<int16_t>(CardsRemaining - 1 < 0 ? 0 : CardsRemaining - 1);
    ShowCardsRemaining();
    Wave("\\Click.wav");
    ClickStack(Board, Deck);
    ShowBoard();
    const std::string stage = StackStageKey(Board.stackIndex);
    if (stage.empty())
        Wave("\\Chord.wav");
    else
        c("CardStackPicture").setPicture(ImageList2().indexOf(stage));
    setMousePointer(Pointer::Default);
}

void frmSpirehold::UpCardPicture_Click() { Wave("\\Chord.wav"); }

// ---- What the board shows ------------------------------------------------------------

void frmSpirehold::ShowCards(bool visible, bool disable) {
    ShowCardsOnBoard(Board, visible, disable);
    ShowBoard();
}

void frmSpirehold::ShowControls(bool visible) { ShowControls(visible, visible); }

void frmSpirehold::ShowControls(bool visible, bool scoreVisible) {
    for (const char* name : {"lblScore", "ScoreRectangle", "ScoreBevelSide", "ScoreBevelBottom", "lblCurrentScore"})
        c(name).setVisible(scoreVisible);
    for (const char* name :
         {"lblCurrentRun", "lblHighRun", "lblHighScore", "lblCardCount", "lblCards", "lblTime", "Surface",
          "TimerBevelSide", "TimerRectangle", "TimerBevelBottom", "lblRound", "RoundRectangle", "RoundBevelSide",
          "RoundBevelBottom", "lblCurrentRound", "lblNextCard"})
        c(name).setVisible(visible);
}

void frmSpirehold::RefreshPlayCard() {
    const std::string stage = StackStageKey(Board.stackIndex);
    if (!stage.empty()) c("CardStackPicture").setPicture(ImageList2().indexOf(stage));
}

// Face-down cards follow a change of the back design; faces are not touched.
void frmSpirehold::RefreshFieldCards() {
    RedrawBacks(Board, ImageList2().indexOf("BACK"));
    ShowBoard();
}

void frmSpirehold::HideTowerLabels() {
    for (const char* name : {"lblTower1", "lblTower2", "lblTower3"}) c(name).setVisible(false);
}

void frmSpirehold::ShowScore() { c("lblCurrentScore").setCaption(FormatScore(CurrentScore)); }

void frmSpirehold::ShowCardsRemaining() { c("lblCards").setCaption(NumText(CardsRemaining)); }

}  // namespace ch
