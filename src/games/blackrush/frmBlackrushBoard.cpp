// SPDX-License-Identifier: GPL-3.0-or-later
// The Blackrush board: Hit and Pass, aces and busts, laying a card, the 21s
// and the Five Card Gimmes that clear a column, the deck pile, and what the
// window shows of the board.
#include <algorithm>

#include "games/blackrush/frmBlackrush.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/roundsteps.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace blackrush;

namespace {
const char* const kColumnNames[kColumns] = {"Column1", "Column2", "Column3", "Column4"};
}  // namespace

// ---- Hit and Pass --------------------------------------------------------------------

// A score past its 32-bit range (a Gimme, the deck's bonus) ends the game.
void frmBlackrush::cmdHit_Click(int index) {
    if (TakingScore) return;
    EndingOnError([&] { Hit(index); }, [this](const RuntimeError& error) { EndOnError(error); });
}

void frmBlackrush::Hit(int index) {
    const int total = GetHitTotal(index);
    if (total <= 21) {
        LayCard(index, total);
        return;
    }
    if (!CheckForBust(index)) {
        // A soft ace has come down.
        LayCard(index, total - 10);
        return;
    }
    // The bust: the card stays on show, to be played elsewhere or passed.
    Control& bust = c("lblBust");
    bust.setVisible(true);
    runtime().refresh();
    Wave("\\Slide.wav");
    AddToScore(-kBustCost);
    ShowScore();
    Pause(450);
    bust.setVisible(false);
}

void frmBlackrush::cmdPass_Click() {
    // A pass count below its 16-bit range (a settings file's -32768) overflows.
    try {
        PassesLeft = CInt(PassesLeft - 1.0);
    } catch (const RuntimeError& error) {
        EndOnError(error);
        return;
    }
    DeckPosition += 1;
    c("lblCardsUsedCount").setCaption(NumText(DeckPosition - 1));
    Wave("\\Click.wav");
    ShowPile();
    if (DeckPosition == kDeckCards) {
        ShowCard(c("NextCardPicture"), Deck.at(kDeckCards));
        c("PlayCardPicture").setPicture(ImageList2().indexOf("EMPTY"));
        c("cmdPass").setEnabled(false);
    } else if (DeckPosition < kDeckCards + 1) {
        ShowCard(c("NextCardPicture"), Deck.at(static_cast<size_t>(DeckPosition)));
    }
    if (PassesLeft == 0) c("cmdPass").setEnabled(false);
}

int frmBlackrush::GetHitTotal(int index) {
    int value = CardPoints(Deck.at(static_cast<size_t>(DeckPosition)));
    if (value == 1) {
        value = CalculateAces(index);
        if (value == 11) {
            Control& soft = c("ColumnSoft", index);
            soft.setVisible(true);
            soft.setCaption("Soft");
        }
    }
    return ColumnTotalValue(index) + value;
}

int frmBlackrush::CalculateAces(int index) {
    const int worth = AceWorth(ColumnTotalValue(index));
    if (worth == 11) SoftAces[static_cast<size_t>(index)] += 1;
    return worth;
}

bool frmBlackrush::CheckForBust(int index) {
    int16_t& soft = SoftAces[static_cast<size_t>(index)];
    if (soft == 0) return true;
    ShowCard(c("NextCardPicture"), Deck.at(static_cast<size_t>(DeckPosition)));
    soft -= 1;
    if (soft == 0) {
        Control& label = c("ColumnSoft", index);
        label.setVisible(false);
        label.setCaption("");
        c("ColumnTotal", index).setCaption(NumText(ColumnTotalValue(index) - 10));
    }
    return false;
}

// Lays the card on show on a column that then totals `total`: a 21 or a
// fifth card clears the column; the last card of the deck ends the round.
void frmBlackrush::LayCard(int index, int total) {
    const size_t col = static_cast<size_t>(index);
    Control& image = ColumnImage(index, ColumnCards[col]);
    image.setBorderStyle(1);
    image.setVisible(true);
    image.setPicture(c("NextCardPicture").picture());
    ColumnCards[col] += 1;

    if (total == 21) {
        TwentyOnes += 1;
        c("lbl21s").setCaption(NumText(TwentyOnes));
        Control& bonus = c("lblBonus");
        // The label holds the bonus as a number of any size.
        bonus.setCaption(NumText(static_cast<long long>(Val(bonus.caption())) + Scoring.TwentyOneBonusValue));
        c("ColumnTotal", index).setCaption("21");
        ResetColumnImages(index);
        ColumnCards[col] = 0;
        SoftAces[col] = 0;
        c("ColumnTotal", index).setCaption("0");
        c("ColumnSoft", index).setVisible(false);
        RestartCounter();
        Wave("\\TwentyOne.wav");
    } else {
        bool gimme = false;
        if (ColumnCards[col] == kSlots) {
            total = 0;
            gimme = true;
            ColumnCards[col] = 0;
            FiveCardGimme(index);
        }
        c("ColumnTotal", index).setCaption(NumText(total));
        Wave("\\Click.wav");
        if (gimme) {
            Pause(450);
            c("lblFiveCards").setVisible(false);
            ResetColumnImages(index);
            c("ColumnSoft", index).setCaption("");
        }
    }

    DeckPosition += 1;
    c("lblCardsUsedCount").setCaption(NumText(DeckPosition - 1));
    ShowPile();
    Control& next = c("NextCardPicture");
    if (DeckPosition == kDeckCards) {
        ShowCard(next, Deck.at(kDeckCards));
        c("PlayCardPicture").setPicture(ImageList2().indexOf("EMPTY"));
        c("cmdPass").setEnabled(false);
    }
    if (DeckPosition == kDeckCards + 1) {
        // The deck is complete.
        const int empty = ImageList2().indexOf("EMPTY");
        next.setBorderStyle(0);
        next.setPicture(empty);
        c("PlayCardPicture").setPicture(empty);
        c("cmdPass").setEnabled(false);
        AddToScore(Scoring.DeckCompletionBonus);
        ClearColumns();
        Wave("\\Applause.wav");
        ShowMessage("Awesome score!", false);
        Pause(1000);
        ShowScore();
        EnableHitButtons(false);
        cmdTakeScore_Click();
    } else {
        ShowCard(next, Deck.at(static_cast<size_t>(DeckPosition)));
    }
}

void frmBlackrush::FiveCardGimme(int index) {
    for (int slot = 0; slot < kSlots; ++slot) {
        Control& image = ColumnImage(index, slot);
        image.setVisible(false);
        image.setPicture(0);
        image.setBorderStyle(0);
    }
    Control& label = c("lblFiveCards");
    const Control& column = ColumnImage(index, 0);
    label.setLeft(column.left() + column.width() / 2 - label.width() / 2);
    label.setVisible(true);
    runtime().refresh();
    AddToScore(Scoring.FiveCardGimmeBonus);
    ShowScore();
    StopCounterBack();
}

// ---- The 21 Counter --------------------------------------------------------------------

// A 21 sets the bar back and starts the counter.
void frmBlackrush::RestartCounter() {
    StopCounterBack();
    c("Timer3").setEnabled(true);
}

// The bar back to its minimum and the flash stopped; the counter itself
// runs on if it ran.
void frmBlackrush::StopCounterBack() {
    Control& bar = c("ProgressBar1");
    bar.setValue(bar.minValue());
    c("Timer5").setEnabled(false);
    c("lblTwentyoneTime").setForeColor(Colour::Blue);
}

// ---- The columns and the pile ------------------------------------------------------------

void frmBlackrush::ShowPile() {
    c("PlayCardPicture").setPicture(ImageList2().indexOf(PileKey(DeckPosition)));
}

void frmBlackrush::ClearColumns() {
    for (int i = 0; i < kColumns; ++i)
        for (int slot = 0; slot < kSlots; ++slot) {
            Control& image = ColumnImage(i, slot);
            image.setVisible(false);
            image.setPicture(0);
            image.setBorderStyle(0);
        }
}

// An emptied column: its cards gone, the empty place on slot 0.
void frmBlackrush::ResetColumnImages(int index) {
    for (int slot = 0; slot < kSlots; ++slot) {
        Control& image = ColumnImage(index, slot);
        image.setVisible(false);
        image.setPicture(0);
        image.setBorderStyle(0);
    }
    Control& first = ColumnImage(index, 0);
    first.setPicture(ImageList2().indexOf("EMPTY"));
    first.setVisible(true);
}

void frmBlackrush::EnableHitButtons(bool enable) {
    for (int i = 0; i < kColumns; ++i) c("cmdHit", i).setEnabled(enable);
}

void frmBlackrush::ShowHitButtons(bool show) {
    for (int i = 0; i < kColumns; ++i) c("cmdHit", i).setVisible(show);
}

// The cards laid and the empty places, and the "Soft" labels that have a
// caption: a label hidden with its caption kept comes back here.
void frmBlackrush::ShowCards(bool show) {
    for (int i = 0; i < kColumns; ++i) {
        for (int slot = 0; slot < kSlots; ++slot) {
            Control& image = ColumnImage(i, slot);
            if (image.picture() != 0) image.setVisible(show);
        }
        Control& soft = c("ColumnSoft", i);
        if (!soft.caption().empty()) soft.setVisible(show);
    }
}

void frmBlackrush::ShowGameBoard(bool show) {
    for (int i = 0; i < kColumns; ++i) c("ColumnTotal", i).setVisible(show);
    for (const char* name :
         {"Column1Line", "Column2Line", "Column3Line", "lblScore", "ScoreRectangle", "ScoreBevelBottom",
          "ScoreBevelSide", "lblTotalScore", "lblTwentyOnes", "lblCardsUsed", "cmdTakeScore", "frameScoreInfo",
          "lbl21s", "lblBonus", "lblCardsUsedCount", "lblRound", "lblHighScore", "PlayCardPicture",
          "NextCardPicture", "cmdPass", "Surface", "TimerRectangle", "TimerBevelSide", "TimerBevelBottom"})
        c(name).setVisible(show);
    ShowHitButtons(show);
}

// Pass stays off once the last card is on show: it can't be passed.
void frmBlackrush::EnablePlayControls(bool enable) {
    for (const char* name : {"cmdPlay", "mnuPlay", "cmdExit", "mnuExit", "cmdTakeScore"}) c(name).setEnabled(enable);
    c("cmdPass").setEnabled(enable && PassesLeft > 0 && DeckPosition < kDeckCards);
    EnableHitButtons(enable);
}

// The big message over the board; unless held it stands for WaitPeriod
// (not while the window is idle) and goes.
void frmBlackrush::ShowMessage(const std::string& text, bool hold) {
    Control& info = c("ScoringLabelInfo");
    Control& outline = c("ScoringLabelOutline");
    info.setCaption(text);
    info.setVisible(true);
    outline.setVisible(true);
    runtime().refresh();
    if (hold) return;
    setMousePointer(Pointer::Hourglass);
    if (c("cmdPlay").caption() != kPlayCaption) Pause(Scoring.WaitPeriod);
    setMousePointer(Pointer::Default);
    info.setVisible(false);
    outline.setVisible(false);
}

// ---- Small helpers ------------------------------------------------------------------------

// The score keeps its colour, below zero too.
void frmBlackrush::ShowScore() { c("lblTotalScore").setCaption(FormatScore(CurrentScore)); }

void frmBlackrush::ShowCard(Control& image, const std::string& code) {
    image.setPicture(ImageList2().indexOf(CardKey(code)));
}

// Centres a label in a frame: in the frame's own coordinates when the label
// stands inside it.
void frmBlackrush::CentreIn(Control& label, const Control& frame) {
    const int origin = label.container() == frame.name() ? 0 : frame.left();
    label.setLeft(origin + (frame.width() - label.width()) / 2);
}

// The dial stops blinking and stands empty.
void frmBlackrush::ClearDial() {
    c("Timer2").setEnabled(false);
    InitTimeDial(*this);
}

Control& frmBlackrush::ColumnImage(int index, int slot) const { return c(kColumnNames[index], slot); }

int frmBlackrush::ColumnTotalValue(int index) const { return CInt(Val(c("ColumnTotal", index).caption())); }

void frmBlackrush::Pause(int ms) { Sleep(std::max(ms, 0)); }

}  // namespace ch
