// SPDX-License-Identifier: GPL-3.0-or-later
// The Fivestack board: Hit and Pass, the aces and the bust test, the closing
// of columns, the Card Total and its row in the Card Total Value table, and
// what the board shows.
#include <cstdint>
#include <string>

#include "games/fivestack/frmFivestack.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace fivestack;

namespace {
const char* const kTakeScore = "&Take score";
const char* const kGiveUpLost = "&Give up";
const char* const kGiveUpFresh = "&Give Up";

int PictureOf(const std::string& code) { return ImageList2().indexOf(CardKey(code)); }
}  // namespace

// ---- The player's moves ----------------------------------------------------------

void frmFivestack::cmdHit_Click(int index) {
    if (TakingScore) return;
    // Passes beyond the deck ("[Cards To Pass]" above 10 or negative) can
    // leave no card on show: the Hit is refused.
    if (!CardOnShow()) {
        Wave("\\Chord.wav");
        return;
    }
    c("NextCardPicture").setVisible(true);
    Wave("\\Click.wav");
    CalculateColumnValue(index);
    if (Columns[static_cast<size_t>(index)].total > 21) {
        if (CheckForBust(index)) {
            c("cmdGiveUp").setCaption(kGiveUpLost);
            cmdGiveUp_Click();
            return;
        }
        // A soft ace came down: the total is summed again and, below 97, the
        // score can no longer be taken. CheckForBust has shown the next card.
        AddUpCardTotal();
        if (!loaded()) return;
        if (Val(c("lblCurrentTotal").caption()) < kLowestScoringTotal) {
            c("lblCurrentTotal").setForeColor(Colour::Red);
            c("cmdGiveUp").setCaption(kGiveUpLost);
        }
        return;
    }
    AddUpCardTotal();
    if (!loaded()) return;
    if (Val(c("lblCurrentTotal").caption()) > 96) c("lblCurrentTotal").setForeColor(Colour::Green);
    ShowNextCard();
}

// The card on show is thrown away. With no card left on show the pass is
// refused. A negative allowance never reaches 0, so the passes are unlimited;
// it stops at the lowest 16-bit number rather than wrapping round.
void frmFivestack::cmdPass_Click() {
    if (!CardOnShow()) {
        Wave("\\Chord.wav");
        return;
    }
    if (PassesLeft > INT16_MIN) PassesLeft -= 1;
    DeckPosition += 1;
    ShowNextCard();
    Wave("\\Click.wav");
    if (PassesLeft == 0) c("cmdPass").setEnabled(false);
}

// The card on show goes on the column's next slot.
void frmFivestack::CalculateColumnValue(int index) {
    Column& column = Columns[static_cast<size_t>(index)];
    Control& image = c(kColumnImages[index], column.cards);
    image.setBorderStyle(1);
    image.setVisible(true);
    image.setPicture(c("NextCardPicture").picture());
    const LaidCard laid = LayCard(column, GetCardValue(Deck[static_cast<size_t>(DeckPosition)]));
    if (laid.soft) {
        c("ColumnSoft", index).setVisible(true);
        c("ColumnSoft", index).setCaption("Soft");
    }
    ShowColumnTotal(index);
    DeckPosition += 1;
    if (laid.closes) CloseColumn(index);
}

// A column over 21 with no soft ace loses the round. A soft ace goes down to
// 1 instead, and the card behind the one drawn is skipped unseen.
bool frmFivestack::CheckForBust(int index) {
    Column& column = Columns[static_cast<size_t>(index)];
    if (column.softAces == 0) {
        CloseCurrentRound();
        CardTotal = kBustTotal;
        return true;
    }
    DeckPosition += 1;
    ShowNextCard();
    SaveWithSoftAce(column);
    if (column.softAces == 0) {
        Control& soft = c("ColumnSoft", index);
        soft.setVisible(false);
        soft.setCaption("");
        ShowColumnTotal(index);
    }
    if (column.cards == kSlots) CloseColumn(index);
    return false;
}

void frmFivestack::CloseColumn(int index, bool close) {
    Control& hit = c("cmdHit", index);
    hit.setEnabled(!close);
    hit.setCaption(close ? "Closed" : "Hit");
}

void frmFivestack::CloseCurrentRound() {
    for (int i = 0; i < kColumns; ++i) c("cmdHit", i).setEnabled(false);
}

void frmFivestack::ShowColumnTotal(int index) {
    c("ColumnTotal", index).setCaption(NumText(Columns[static_cast<size_t>(index)].total));
}

// The Card Total is built in its own label, column by column: each step is a
// change of the caption, so the table flickers through the partial sums.
void frmFivestack::AddUpCardTotal() {
    Control& total = c("lblCurrentTotal");
    total.setCaption("0");
    for (int i = 0; i < kColumns && loaded(); ++i)
        total.setCaption(NumText(static_cast<long long>(Val(total.caption()) + Val(c("ColumnTotal", i).caption()))));
}

bool frmFivestack::CardOnShow() const { return DeckPosition >= 1 && DeckPosition <= DeckUpperBound(); }

// Past the deck's last card the next card is the empty place.
void frmFivestack::ShowNextCard() {
    c("NextCardPicture").setPicture(CardOnShow() ? PictureOf(Deck[static_cast<size_t>(DeckPosition)])
                                                 : ImageList2().indexOf("EMPTY"));
}

// ---- The Card Total ------------------------------------------------------------------

// A perfect 105 is scored at once, from within the Hit that made it.
void frmFivestack::lblCurrentTotal_Change() {
    CardTotal = CInt(Val(c("lblCurrentTotal").caption()));
    UpdateCardTotalValue();
    if (CardTotal == kPerfectTotal) cmdGiveUp_Click();
    if (!loaded()) return;
    CenterCardTotal();
}

// The Card Total stands over the middle of the table.
void frmFivestack::CenterCardTotal() {
    Control& total = c("lblCurrentTotal");
    const Control& table = c("frmScore");
    total.setLeft(table.left() + table.width() / 2 - total.width() / 2);
}

void frmFivestack::UpdateCardTotalValue() {
    ClearCardTotalRows();
    const int row = CardTotalRowIndex(CardTotal);
    CardTotalValue = 0;
    if (row >= 0) {
        const CardTotalRow& r = kCardTotalRows[static_cast<size_t>(row)];
        for (const char* name : {r.rowLabel, r.valueLabel}) {
            c(name).setFontBold(true);
            c(name).setForeColor(Colour::Red);
        }
        CardTotalValue = CInt(Val(c(r.valueLabel).caption()));
    }
    if (IsScoringTotal(CardTotal)) c("cmdGiveUp").setCaption(kTakeScore);
}

void frmFivestack::ClearCardTotalRows() {
    for (const CardTotalRow& r : kCardTotalRows)
        for (const char* name : {r.rowLabel, r.valueLabel}) {
            c(name).setFontBold(false);
            c(name).setForeColor(Colour::Black);
        }
}

// ---- What the board shows ------------------------------------------------------------

void frmFivestack::ShowCards(bool show) {
    for (int i = 0; i < kColumns; ++i) {
        for (int slot = 0; slot < kSlots; ++slot) c(kColumnImages[i], slot).setVisible(show);
        if (!c("ColumnSoft", i).caption().empty()) c("ColumnSoft", i).setVisible(show);
    }
    for (const char* name : {"NextCardPicture", "PlayCardPicture", "lblCurrentTotal", "lblCurrentRoundScore"})
        c(name).setVisible(show);
    ShowGraphics(show);
}

void frmFivestack::ShowGraphics(bool show) {
    for (int i = 0; i < kColumns; ++i) {
        c(kColumnLines[i]).setVisible(show);
        c("ColumnTotal", i).setVisible(show);
    }
    c("cmdPass").setVisible(show);
    c("lblRound").setVisible(show);
}

void frmFivestack::ShowHitButtons(bool show) {
    for (int i = 0; i < kColumns; ++i) c("cmdHit", i).setVisible(show);
    c("cmdGiveUp").setVisible(show);
}

// On each new deck. The first Hit button is left to Reset.
bool frmFivestack::EnableControls() {
    for (int i = 1; i < kColumns; ++i) {
        c("cmdHit", i).setEnabled(true);
        c("ColumnTotal", i).setVisible(true);
    }
    c("lblCurrentTotal").setVisible(true);
    ShowScoringLabel(false);
    c("ScoringLabelOutline").setVisible(false);
    return true;
}

// The board half of Reset: empty columns, open Hit buttons, a Card Total of 0.
void frmFivestack::ClearBoard() {
    for (int i = 0; i < kColumns; ++i) {
        for (int slot = 0; slot < kSlots; ++slot) {
            Control& image = c(kColumnImages[i], slot);
            image.setVisible(false);
            image.setBorderStyle(0);
            image.setPicture(0);
        }
        c("ColumnSoft", i).setVisible(false);
        c("ColumnSoft", i).setCaption("");
        Columns[static_cast<size_t>(i)].cards = 0;
    }
    for (int i = 0; i < kColumns; ++i) {
        Columns[static_cast<size_t>(i)].total = 0;
        ShowColumnTotal(i);
        Columns[static_cast<size_t>(i)].softAces = 0;
        CloseColumn(i, false);
    }
    c("lblCurrentTotal").setCaption("0");
    c("cmdGiveUp").setCaption(kGiveUpFresh);
    ShowHitButtons(false);
    c("cmdPause").setEnabled(false);
    c("mnuPause").setEnabled(false);
}

// The first card of a deck is never seen: the next card shows Deck(2), and
// every column's first slot holds the empty place.
void frmFivestack::DealFirstCard() {
    Control& next = c("NextCardPicture");
    next.setPicture(PictureOf(Deck[static_cast<size_t>(DeckPosition) + 1]));
    next.setVisible(true);
    DeckPosition += 1;
    for (int i = 0; i < kColumns; ++i) {
        Control& slot = c(kColumnImages[i], 0);
        slot.setPicture(ImageList2().indexOf("EMPTY"));
        slot.setBorderStyle(0);
        slot.setVisible(true);
    }
}

void frmFivestack::ColumnSoft_Change(int index) {
    Control& soft = c("ColumnSoft", index);
    const Control& total = c("ColumnTotal", index);
    soft.setLeft(total.left() + (total.width() - soft.width()) / 2);
}

// After a change of the window's size each column's total stands centred
// over the column's first card, and its "Soft" under the total.
void frmFivestack::ResizeColumnHeaders() {
    for (int i = 0; i < kColumns; ++i) {
        Control& total = c("ColumnTotal", i);
        const Control& first = c(kColumnImages[i], 0);
        total.setLeft(first.left() + (first.width() - total.width()) / 2);
        ColumnSoft_Change(i);
    }
}

}  // namespace ch
