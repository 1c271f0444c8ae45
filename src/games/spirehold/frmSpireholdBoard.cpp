// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold's board: the deal, the legal move, the clicks on the tower
// cards, the stack and the up card, the run labels, and what the board shows.
#include <array>
#include <cstdint>

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

// ---- The deal --------------------------------------------------------------------

void frmSpirehold::Deal() {
    const int back = ImageList2().indexOf("BACK");
    for (int i = 0; i <= kLastDealtIndex; ++i) {
        DeckCards[static_cast<size_t>(i)] = Deck[static_cast<size_t>(i) + 1];
        if (i < kTopRowCards) {
            c("UpCardImage", i).setPicture(back);
        } else if (i < kTowerCards) {
            Control& card = c("UpCardImage", i);
            ShowPicture("UpCardImage", i, DeckCards[static_cast<size_t>(i)]);
            card.setEnabled(true);
            card.setVisible(true);
        } else if (i == kLastDealtIndex) {
            ShowPicture("UpCardPicture", -1, DeckCards[static_cast<size_t>(i)]);
            c("UpCardPicture").setEnabled(true);
            UpCardCode = DeckCards[static_cast<size_t>(i)];
            UpCardValue = static_cast<int16_t>(Rank(UpCardCode));
        }
    }
    StackIndex = kFirstStackIndex;
    ShowCards(true);
    c("UpCardPicture").setVisible(true);
    c("CardStackPicture").setVisible(true);
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

// ---- The legal move ----------------------------------------------------------------

// A face-down card (it shows the current back) is never legal.
bool frmSpirehold::CheckForLegalMove(int index) {
    const Control& card = c("UpCardImage", index);
    if (card.picture() == ImageList2().indexOf("BACK")) return false;
    const int rank = Rank(DeckCards[static_cast<size_t>(index)]);
    if (!IsNeighbour(rank, UpCardValue)) return false;
    UpCardValue = static_cast<int16_t>(rank);
    return true;
}

// ---- Clicks --------------------------------------------------------------------------

void frmSpirehold::UpCardImage_Click(int index) {
    if (TakingScore) return;
    EndingOnError([&] { TakeCard(index); }, [this](const RuntimeError& error) { EndOnError(error); });
}

void frmSpirehold::TakeCard(int index) {
    if (!CheckForLegalMove(index)) {
        Wave("\\Chord.wav");
        return;
    }
    Wave("\\Markq.wav");
    Control& card = c("UpCardImage", index);
    c("UpCardPicture").setPicture(card.picture());
    // The empty picture marks the card as gone.
    card.setPicture(0);
    card.setVisible(false);
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
        std::array<bool, kTowerCards> onTable{};
        for (int i = 0; i < kTowerCards; ++i) onTable[static_cast<size_t>(i)] = c("UpCardImage", i).visible();
        for (int p : CardsTurnedBy(index, onTable)) {
            ShowPicture("UpCardImage", p, DeckCards[static_cast<size_t>(p)]);
            c("UpCardImage", p).setEnabled(true);
        }
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

// Each step goes on whatever the one before did: past the end of the deck
// the up card keeps its picture and, past DeckCards(52), its value. At the
// top of its 16-bit range StackIndex can't be raised, and stays.
void frmSpirehold::CardStackPicture_Click() {
    if (TakingScore) return;
    setMousePointer(Pointer::Hourglass);
    RunValue = 0;
    CurrentRun = 0;
    c("lblCurrentRun").setCaption("Current Run: " + NumText(CurrentRun));
    CardsRemaining = static_cast<int16_t>(CardsRemaining - 1 < 0 ? 0 : CardsRemaining - 1);
    ShowCardsRemaining();
    Wave("\\Click.wav");
    if (StackIndex + 1 <= DeckUpperBound()) ShowPicture("UpCardPicture", -1, Deck[static_cast<size_t>(StackIndex) + 1]);
    if (StackIndex < INT16_MAX) StackIndex += 1;
    if (StackIndex - 1 < kDeckCardsSize) UpCardValue = static_cast<int16_t>(Rank(DeckCards[static_cast<size_t>(StackIndex) - 1]));
    const std::string stage = StackStageKey(StackIndex);
    if (stage.empty())
        Wave("\\Chord.wav");
    else
        c("CardStackPicture").setPicture(ImageList2().indexOf(stage));
    setMousePointer(Pointer::Default);
}

void frmSpirehold::UpCardPicture_Click() { Wave("\\Chord.wav"); }

// ---- What the board shows ------------------------------------------------------------

void frmSpirehold::ShowCards(bool visible, bool disable) {
    for (int i = 0; i < kTowerCards; ++i) {
        Control& card = c("UpCardImage", i);
        card.setVisible(visible);
        if (disable && i < kTopRowCards) card.setEnabled(false);
    }
    c("CardStackPicture").setVisible(visible);
    c("UpCardPicture").setVisible(visible);
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
    const std::string stage = StackStageKey(StackIndex);
    if (!stage.empty()) c("CardStackPicture").setPicture(ImageList2().indexOf(stage));
}

// Face-down cards follow a change of the back design; faces are not touched.
void frmSpirehold::RefreshFieldCards() {
    const int back = ImageList2().indexOf("BACK");
    for (int i = 0; i < kTowerCards; ++i) {
        Control& card = c("UpCardImage", i);
        if (card.visible() && !card.enabled()) card.setPicture(back);
    }
}

void frmSpirehold::HideTowerLabels() {
    for (const char* name : {"lblTower1", "lblTower2", "lblTower3"}) c(name).setVisible(false);
}

void frmSpirehold::ShowScore() { c("lblCurrentScore").setCaption(FormatScore(CurrentScore)); }

void frmSpirehold::ShowCardsRemaining() { c("lblCards").setCaption(NumText(CardsRemaining)); }

void frmSpirehold::ShowPicture(const char* name, int index, const std::string& code) {
    c(name, index).setPicture(ImageList2().indexOf(CardKey(code)));
}

}  // namespace ch
