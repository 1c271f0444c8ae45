// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/boardplaces.h"

#include "window/form.h"

namespace ch {

void BoardPlaces::add(Control& control) { places_.push_back({&control, control.left(), control.top()}); }

void BoardPlaces::add(Control& control, int left, int top, int width, int height) {
    places_.push_back({&control, left, top, width, height});
}

void BoardPlaces::addWithSize(Control& control) {
    places_.push_back({&control, control.left(), control.top(), control.width(), control.height()});
}

void BoardPlaces::shift(int dx, int dy) const {
    for (const Place& place : places_) {
        Control& control = *place.control;
        if (place.width >= 0) {
            control.move(place.left + dx, place.top + dy, place.width, place.height);
        } else {
            control.setLeft(place.left + dx);
            control.setTop(place.top + dy);
        }
    }
}

void BoardPlaces::shiftAcross(int dx) const {
    for (const Place& place : places_) place.control->setLeft(place.left + dx);
}

Offset CentredOffset(const Form& window, int designWidth, int designHeight) {
    return {(window.width() - designWidth) / 2, (window.height() - designHeight) / 2};
}

void KeepAtRightEdge(Form& window, std::initializer_list<const char*> buttons) {
    for (const char* button : buttons) window.c(button).setLeft(window.width() - 1320);
}

void PlaceStatusBar(Form& window, int frameHeight) {
    const int clientWidth = window.width() - 120;
    const int clientHeight = window.height() - frameHeight;
    window.c("StatusBar1").move(0, clientHeight - 330, clientWidth, 330);
}

}  // namespace ch
