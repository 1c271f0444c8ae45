// SPDX-License-Identifier: GPL-3.0-or-later
// Where a resized game window puts its board. The cards keep their size: the
// controls that make up the board keep their design places moved by one
// offset (most games keep the board centred), the buttons keep their
// distance from the right edge and the status bar spans the bottom of the
// client area.
//
// A game window uses it so:
//   constructor:  after add(Layout()), Board.add(c(name, index)) for each
//                 control that moves with the board
//   PlaceBoard:   const Offset at = CentredOffset(*this, kDesignWidth, kDesignHeight);
//                 Board.shift(at.dx, at.dy);
//                 KeepAtRightEdge(*this, {"cmdPlay", "cmdPause", "cmdQuit"});
//                 PlaceStatusBar(*this);
#pragma once

#include <initializer_list>
#include <vector>

namespace ch {

class Control;
class Form;

class BoardPlaces {
public:
    // The control's place as it stands: taken while the window has its design size.
    void add(Control& control);
    // A design place and size given outright, relative to the offset shift() is given.
    void add(Control& control, int left, int top, int width, int height);
    // The control's place and size as they stand: shift() gives it its design
    // size again, undoing what fitting a caption did to it.
    void addWithSize(Control& control);
    // Each control at its design place moved by (dx, dy).
    void shift(int dx, int dy) const;
    // Each control at its design left moved by dx; the tops stay as they are.
    void shiftAcross(int dx) const;

private:
    struct Place {
        Control* control;
        int left, top;
        int width = -1, height = -1;  // -1: the size stays as it is
    };
    std::vector<Place> places_;
};

// How far a board of the design size moves to stay centred: half the growth.
struct Offset {
    int dx, dy;
};
Offset CentredOffset(const Form& window, int designWidth, int designHeight);

// The buttons stand 1320 twips in from the window's right edge.
void KeepAtRightEdge(Form& window, std::initializer_list<const char*> buttons);

// StatusBar1 along the bottom of the client area, 330 twips high; the
// window's borders, title and menu take `frameHeight` of its height.
void PlaceStatusBar(Form& window, int frameHeight = 660);

}  // namespace ch
