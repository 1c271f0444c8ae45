// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/control.h"

#include <algorithm>
#include <cmath>

#include "window/form.h"
#include "window/runtime.h"

namespace ch {

const char* KindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label: return "label";
        case ControlKind::Image: return "image";
        case ControlKind::Shape: return "shape";
        case ControlKind::Line: return "line";
        case ControlKind::Button: return "button";
        case ControlKind::TextBox: return "textbox";
        case ControlKind::CheckBox: return "checkbox";
        case ControlKind::OptionButton: return "option";
        case ControlKind::Frame: return "frame";
        case ControlKind::PictureBox: return "picture";
        case ControlKind::StatusBar: return "statusbar";
        case ControlKind::ProgressBar: return "progressbar";
        case ControlKind::Timer: return "timer";
        case ControlKind::Menu: return "menu";
        case ControlKind::ListBox: return "listbox";
        case ControlKind::FileList: return "filelist";
        case ControlKind::DirList: return "dirlist";
        case ControlKind::DriveList: return "drivelist";
    }
    return "control";
}

Control::Control(Form& form, const ControlSpec& spec)
    : form_(&form),
      kind_(spec.kind),
      name_(spec.name),
      index_(spec.index),
      container_(spec.container ? spec.container : ""),
      text_(spec.caption ? spec.caption : ""),
      left_(spec.left),
      top_(spec.top),
      width_(spec.width),
      height_(spec.height) {
    if (kind_ == ControlKind::Timer) enabled_ = false;
    if (kind_ == ControlKind::Label || kind_ == ControlKind::Frame) backColor_ = 0xC0C0C0;
    z_ = form.frontZ();
}

std::string Control::displayName() const {
    return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::touch() {
    ++revision_;
    form_->touch();
}

void Control::setCaption(const std::string& value) {
    if (value == text_) return;
    text_ = value;
    touch();
    form_->raise(this, Ev::Change);
}

void Control::setVisible(bool v) {
    if (v == visible_) return;
    visible_ = v;
    touch();
}

void Control::restartTimer() {
    if (kind_ == ControlKind::Timer && enabled_ && Runtime::exists()) Runtime::current().timerStarted(*this);
}

void Control::setEnabled(bool v) {
    if (v == enabled_) return;
    enabled_ = v;
    touch();
    restartTimer();
}

void Control::setInterval(int ms) {
    interval_ = ms;
    touch();
    restartTimer();
}

#define CH_SETTER(Name, field)          \
    void Control::Name(int v) {         \
        if (v == field) return;         \
        field = v;                      \
        touch();                        \
    }
CH_SETTER(setForeColor, foreColor_)
CH_SETTER(setBackColor, backColor_)
CH_SETTER(setBorderColor, borderColor_)
CH_SETTER(setBorderStyle, borderStyle_)
CH_SETTER(setFillColor, fillColor_)
CH_SETTER(setBackStyle, backStyle_)
CH_SETTER(setPicture, picture_)
CH_SETTER(setLeft, left_)
CH_SETTER(setTop, top_)
CH_SETTER(setWidth, width_)
CH_SETTER(setHeight, height_)
CH_SETTER(setAlignment, alignment_)
CH_SETTER(setMousePointer, mousePointer_)
CH_SETTER(setMouseIcon, mouseIcon_)
#undef CH_SETTER

void Control::move(int left, int top, int width, int height) {
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    touch();
}

void Control::setToolTipText(const std::string& v) {
    if (v == toolTip_) return;
    toolTip_ = v;
    touch();
}

void Control::setChecked(bool v) {
    if (v == checked_) return;
    checked_ = v;
    touch();
}

// A check box or option button raises Click whenever its value changes, by the
// user or by code; choosing an option clears the others of its container.
void Control::setValue(int v) {
    if (v == value_) return;
    value_ = v;
    touch();
    if (kind_ == ControlKind::OptionButton && v != 0) {
        for (const auto& other : form_->controls()) {
            if (other.get() != this && other->kind_ == ControlKind::OptionButton &&
                other->container_ == container_ && other->value_ != 0) {
                other->value_ = 0;
                other->touch();
            }
        }
    }
    if (kind_ == ControlKind::CheckBox || (kind_ == ControlKind::OptionButton && v != 0)) {
        EventArgs args;
        args.index = index_;
        form_->raise(this, Ev::Click, args);
    }
}

void Control::setRange(int min, int max) {
    min_ = min;
    max_ = max;
    touch();
}

void Control::setFont(const std::string& name, double size, bool bold) {
    fontName_ = name;
    fontSize_ = size;
    fontBold_ = bold;
    touch();
}

void Control::setFontSize(double size) {
    fontSize_ = size;
    touch();
}

void Control::setFontBold(bool bold) {
    fontBold_ = bold;
    touch();
}

void Control::zOrderFront() {
    z_ = form_->frontZ();
    touch();
}

void Control::zOrderBack() {
    z_ = form_->backZ();
    touch();
}

void Control::setPanel(int number, const std::string& text) {
    std::string& panel = panels_.at(static_cast<size_t>(number - 1));
    if (panel == text) return;
    panel = text;
    touch();
}

void Control::cls() {
    drawing_.clear();
    touch();
}

void Control::drawPie(double cx, double cy, double radius, double startDeg, double endDeg, int color, int fillColor) {
    DrawItem item;
    item.kind = DrawItem::Kind::Pie;
    item.x1 = cx;
    item.y1 = cy;
    item.radius = radius;
    item.startAngle = startDeg;
    item.endAngle = endDeg;
    item.color = color;
    item.fillColor = fillColor;
    drawing_.push_back(item);
    touch();
}

void Control::drawLine(double x1, double y1, double x2, double y2, int color) {
    DrawItem item;
    item.kind = DrawItem::Kind::Line;
    item.x1 = x1;
    item.y1 = y1;
    item.x2 = x2;
    item.y2 = y2;
    item.color = color;
    drawing_.push_back(item);
    touch();
}

void Control::drawCircle(double cx, double cy, double radius, int color) {
    DrawItem item;
    item.kind = DrawItem::Kind::Circle;
    item.x1 = cx;
    item.y1 = cy;
    item.radius = radius;
    item.color = color;
    drawing_.push_back(item);
    touch();
}

std::string Control::drawingText() const {
    std::string out;
    for (const DrawItem& item : drawing_) {
        if (!out.empty()) out += ';';
        switch (item.kind) {
            case DrawItem::Kind::Pie:
                out += "pie " + std::to_string(std::lround(item.startAngle)) + " " +
                       std::to_string(std::lround(item.endAngle)) + " " + std::to_string(item.fillColor);
                break;
            case DrawItem::Kind::Line: out += "line"; break;
            case DrawItem::Kind::Circle: out += "circle"; break;
        }
    }
    return out;
}

void Control::setSelection(int start, int length) {
    const int size = static_cast<int>(text_.size());
    selStart_ = std::clamp(start, 0, size);
    selLength_ = std::clamp(length, 0, size - selStart_);
    ++selectionSerial_;
    touch();
}

void Control::setItems(std::vector<std::string> items) {
    items_ = std::move(items);
    touch();
}

}  // namespace ch
