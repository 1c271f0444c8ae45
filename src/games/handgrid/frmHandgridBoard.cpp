// SPDX-License-Identifier: GPL-3.0-or-later
// The Handgrid board: the 25 cells, the deck stack and the hole, a click on a
// cell, the evaluation of the ten hands after each placement, and the labels
// around the grid with the Change handlers that keep them centred.
#include "games/handgrid/frmHandgrid.h"

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/labels.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace handgrid;

namespace {
int Picture(const std::string& key) { return ImageList2().indexOf(CardKey(key)); }
}  // namespace

// ---- A click on a cell ---------------------------------------------------------------

void frmHandgrid::PlayCards_Click(int Index) {
    if (TakingScore) return;
    RoundPoints = 0;
    std::string& cell = PlayedCards[static_cast<size_t>(Index)];
    const bool filled = !cell.empty();
    const bool accepted = (!filled && HoleCount > 0) || (filled && OverWritesUsed < Scoring.OverWritesAllowed);
    if (!accepted) {
        Wave("\\Chord.wav");
    } else {
        if (filled) OverWritesUsed += 1;
        ShowOverWrites();
        Control& card = c("PlayCards", Index);
        card.setBorderStyle(1);
        card.setPicture(c("HoleCard").picture());
        // With the deck run out the hole is read below its bottom: an empty value.
        const bool inStack = HoleCount >= 0 && HoleCount < static_cast<int>(HoleCards.size());
        cell = inStack ? HoleCards[static_cast<size_t>(HoleCount)] : std::string();
        HoleCount -= 1;

        try {
            EvaluateLines(true);
            TransposeCards(PlayedCards);
            EvaluateLines(false);
            TransposeCards(PlayedCards);
        } catch (const RuntimeError& error) {
            EndOnError(error);
            return;
        }

        if (HoleCount > 0) {
            c("HoleCard").setPicture(Picture(HoleCards[static_cast<size_t>(HoleCount)]));
            if (!HandSoundPlayed) Wave("\\Click.wav");
        } else {
            c("HoleCard").setBorderStyle(0);
            c("HoleCard").setPicture(Picture("EMPTY"));
            DrawNextCard();
        }
    }
    c("lblCurrentScore").setCaption(FormatScore(CurrentScore));
    for (const std::string& played : PlayedCards)
        if (played.empty()) return;
    Wave("\\Wingame.wav");
    NextRound();
}

// The stack can't be clicked to pass a card: each card must be played.
void frmHandgrid::CardStackPicture_Click() { Wave("\\Chord.wav"); }

// ---- The ten hands ----------------------------------------------------------------------

void frmHandgrid::EvaluateLines(bool IsRows) {
    for (int line = 0; line < kLines; ++line) EvaluateHand(LineOf(PlayedCards, line), line + 1, IsRows);
}

void frmHandgrid::EvaluateHand(const Line& Hand, int LineNumber, bool IsRows) {
    const handgrid::Hand hand = handgrid::EvaluateHand(Hand);
    // A 32-bit sum: hand values from the settings file can carry it past its
    // range, which is the run-time error "Overflow".
    RoundPoints = CLng(static_cast<double>(RoundPoints) + Scoring.HandScores[static_cast<size_t>(hand)]);
    c("lblPointsEarned").setCaption("Points Earned: " + NumText(RoundPoints));
    Control& label = c(IsRows ? "lblRow" : "lblCol", LineNumber);
    label.setCaption(HandName(hand));
    label.setForeColor(HandColour(HandName(hand)));
}

// ---- The deck --------------------------------------------------------------------------

void frmHandgrid::DrawNextCard() {
    CardsRemaining -= 1;
    if (CardsRemaining >= 0) {
        if (!HandSoundPlayed) Wave("\\Click.wav");
        HandSoundPlayed = false;
        c("lblCards").setCaption("Cards remaining: " + NumText(CardsRemaining));
        HoleCount += 1;
        HoleCards[static_cast<size_t>(HoleCount)] = RoundDeck[static_cast<size_t>(DeckPosition)];
        Control& hole = c("HoleCard");
        hole.setPicture(Picture(HoleCards[static_cast<size_t>(HoleCount)]));
        hole.setBorderStyle(1);
    } else {
        CardsRemaining = 0;
        Wave("\\Chord.wav");
    }
    ShowStackPicture(StackPictureKey(kDeckSlots - DeckPosition));
    DeckPosition += 1;
}

void frmHandgrid::ShowStackPicture(std::string key) {
    c("CardStackPicture").setPicture(Picture(key));
    StackKey = std::move(key);
}

bool frmHandgrid::Deal() {
    c("HoleCard").setPicture(Picture("EMPTY"));
    ShowStackPicture("FULL");
    c("CardStackPicture").setVisible(true);
    for (int i = 1; i <= kDeckSlots && i <= DeckUpperBound(); ++i)
        RoundDeck[static_cast<size_t>(i)] = Deck[static_cast<size_t>(i)];
    DeckPosition = 1;
    HoleCount = 0;
    CardsRemaining = kDeckSlots;
    c("lblCards").setCaption("Cards remaining: " + NumText(CardsRemaining));
    DrawNextCard();
    for (int n = 1; n <= 5; ++n) {
        c("lblCol", n).setForeColor(kButtonTextColour);
        c("lblRow", n).setForeColor(kButtonTextColour);
        c("lblRow", n).setCaption(HandName(Nothing));
        c("lblCol", n).setCaption(HandName(Nothing));
    }
    return true;
}

// ---- Clearing and showing the board -------------------------------------------------------

void frmHandgrid::Reset(bool EndOfGame) {
    c("frmSplash").setVisible(EndOfGame);
    for (int i = 0; i < kCells; ++i) {
        PlayedCards[static_cast<size_t>(i)].clear();
        c("PlayCards", i).setPicture(Picture("EMPTY"));
    }
    if (EndOfGame) {
        c("cmdPlay").setCaption(kPlayCaption);
        c("mnuPlay").setCaption(kPlayCaption);
        // The pause entry stays live with no game running.
        c("mnuPause").setEnabled(EndOfGame);
        c("cmdPause").setEnabled(false);
        c("HoleCard").setBorderStyle(0);
        DeckPosition = 0;
        c("lblOverwrites").setCaption(OverWritesText(Scoring.OverWritesAllowed));
        OverWritesUsed = 0;
        for (int i = 0; i < kCells; ++i) c("PlayCards", i).setBorderStyle(0);
    }
    c("Timer4").setEnabled(EndOfGame);
}

// A paused game shows no cards; shown again, each cell takes back its card.
void frmHandgrid::ShowCards(bool Show) {
    for (int i = 0; i < kCells; ++i) {
        Control& card = c("PlayCards", i);
        card.setPicture(Picture("EMPTY"));
        card.setVisible(Show);
        if (!Show) continue;
        const std::string& played = PlayedCards[static_cast<size_t>(i)];
        if (played.empty())
            card.setBorderStyle(0);
        else if (card.borderStyle() == 1)
            card.setPicture(Picture(played));
    }
    c("CardStackPicture").setVisible(Show);
    c("HoleCard").setVisible(Show);
}

void frmHandgrid::ShowControls(bool RoundControls, bool FrameControls) {
    for (const char* name : {"lblPointsEarned", "lblRound", "lblCards", "lblOverwrites"})
        c(name).setVisible(RoundControls);
    for (int n = 1; n <= 5; ++n) {
        c("lblRow", n).setVisible(RoundControls);
        c("lblCol", n).setVisible(RoundControls);
    }
    for (const char* name : {"lblTimeBonus", "Surface", "lblTime", "TimerRectangle", "TimerBevelSide",
                             "TimerBevelBottom", "ScoreRectangle", "ScoreBevelBottom", "ScoreBevelSide",
                             "lblCurrentScore", "lblScore", "lblHighScore"})
        c(name).setVisible(FrameControls);
}

void frmHandgrid::ShowOverWrites() {
    c("lblOverwrites").setCaption(OverWritesText(Scoring.OverWritesAllowed - OverWritesUsed));
}

// ---- Labels that place themselves ---------------------------------------------------------

// A hand named in a row or column: "TwentyOne.wav", and no "Click.wav" for
// this placement.
void frmHandgrid::lblHand_Change(const char* array, int Index) {
    if (c(array, Index).caption() == HandName(Nothing)) return;
    Wave("\\TwentyOne.wav");
    HandSoundPlayed = true;
}

void frmHandgrid::lblCol_Change(int Index) {
    Control& label = c("lblCol", Index);
    const Control& foot = c("PlayCards", Index + 19);
    FitLabelToText(label);
    label.setLeft(foot.left() + (foot.width() - label.width()) / 2);
    lblHand_Change("lblCol", Index);
}

void frmHandgrid::lblOverwrites_Change() {
    Control& label = c("lblOverwrites");
    const Control& score = c("lblScore");
    FitLabelToText(label);
    label.setLeft(score.left() + (score.width() - label.width()) / 2);
    label.setForeColor(OverWritesColour(label.caption()));
}

void frmHandgrid::lblCurrentScore_Change() { CentreLabelIn(*this, "lblCurrentScore", "ScoreRectangle"); }

void frmHandgrid::lblRound_Change() {
    Control& label = c("lblRound");
    const Control& surface = c("Surface");
    FitLabelToText(label);
    label.setLeft(surface.left() + surface.width() / 2 - label.width() / 2);
}

// The seconds left stand a little up and left of the dial's middle.
void frmHandgrid::CenterTimeBonus() {
    Control& label = c("lblTimeBonus");
    const Control& surface = c("Surface");
    FitLabelToText(label);
    label.setLeft(static_cast<int>(surface.width() / 2.0 - label.width() / 1.3));
    label.setTop(static_cast<int>(surface.height() / 2.0 - label.height() / 1.3));
}

void frmHandgrid::CenterScoringLabel() {
    Control& scoring = c("ScoringLabel");
    const Control& outline = c("ScoringLabelOutline");
    scoring.setLeft(outline.left() + (outline.width() - scoring.width()) / 2);
    scoring.setTop(outline.top() + (outline.height() - scoring.height()) / 2);
    Control& message = c("lblMessage");
    message.setLeft(outline.left() + (outline.width() - message.width()) / 2);
    message.setTop(scoring.top() - message.height() - 100);
}

}  // namespace ch
