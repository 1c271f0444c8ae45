// SPDX-License-Identifier: GPL-3.0-or-later
// A named control of a form: its kind and every property the logic sets.
// Setting a caption or text to a different value raises the control's Change
// event at once; setting the same text raises nothing.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace ch {

class Form;

enum class ControlKind {
    Label, Image, Shape, Line, Button, TextBox, CheckBox, OptionButton, Frame,
    PictureBox, StatusBar, ProgressBar, Timer, Menu, ListBox, FileList, DirList, DriveList,
};

const char* KindName(ControlKind kind);

// One primitive of a picture surface's display list. Angles in degrees on the
// screen: 0 is three o'clock, -90 twelve o'clock, and a pie is filled clockwise
// from startAngle to endAngle ("pie -90 0" is the top right quarter).
struct DrawItem {
    enum class Kind { Pie, Line, Circle } kind = Kind::Line;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // line ends; centre in x1, y1
    double radius = 0;
    double startAngle = 0, endAngle = 0;
    int color = 0;      // outline colour
    int fillColor = 0;  // pie fill
};

// Design-time description of a control, so that layouts are data.
// Mouse pointers of a form or control (setMousePointer).
struct Pointer {
    static constexpr int Default = 0;
    static constexpr int Hourglass = 11;
    static constexpr int Custom = 99;  // the form's MouseIcon
};

// Colours as the controls keep them: 0xBBGGRR.
struct Colour {
    static constexpr int Black = 0x000000;
    static constexpr int Red = 0x0000FF;
    static constexpr int Green = 0x00C000;
    static constexpr int Yellow = 0x00FFFF;
    static constexpr int Purple = 0x800080;
    static constexpr int Blue = 0xFF0000;
    static constexpr int Cyan = 0xFFFF00;
    static constexpr int Grey = 0xC0C0C0;
    static constexpr int White = 0xFFFFFF;
};

// A label's or text box's alignment (setAlignment).
struct Align {
    static constexpr int Left = 0;
    static constexpr int Right = 1;
    static constexpr int Center = 2;
};

struct ControlSpec {
    ControlKind kind;
    const char* name;
    int index;  // -1 for a single control
    int left, top, width, height;
    const char* caption = "";
    const char* container = "";  // frame or parent menu
};

class Control {
public:
    Control(Form& form, const ControlSpec& spec);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Form& form() const { return *form_; }
    ControlKind kind() const { return kind_; }
    const std::string& name() const { return name_; }
    int index() const { return index_; }
    // The frame that holds the control, or the menu above a menu entry.
    const std::string& container() const { return container_; }
    std::string displayName() const;  // "lblTime", "FieldCardPicture(7)"

    // Caption and Text are one property (labels, buttons, menus, text boxes).
    const std::string& caption() const { return text_; }
    const std::string& text() const { return text_; }
    void setCaption(const std::string& value);
    void setText(const std::string& value) { setCaption(value); }

    bool visible() const { return visible_; }
    void setVisible(bool v);
    bool enabled() const { return enabled_; }
    void setEnabled(bool v);  // on a timer: starts its interval anew when it was off

    int foreColor() const { return foreColor_; }
    void setForeColor(int v);
    int backColor() const { return backColor_; }
    void setBackColor(int v);
    int borderColor() const { return borderColor_; }
    void setBorderColor(int v);
    int borderStyle() const { return borderStyle_; }
    void setBorderStyle(int v);
    int fillColor() const { return fillColor_; }
    void setFillColor(int v);
    // 1 paints the background colour, 0 lets what lies behind show through.
    int backStyle() const { return backStyle_; }
    void setBackStyle(int v);

    // Catalogue index of the picture shown, 0 for none.
    int picture() const { return picture_; }
    void setPicture(int catalogueIndex);

    int left() const { return left_; }
    int top() const { return top_; }
    int width() const { return width_; }
    int height() const { return height_; }
    void setLeft(int v);
    void setTop(int v);
    void setWidth(int v);
    void setHeight(int v);
    void move(int left, int top, int width, int height);

    const std::string& toolTipText() const { return toolTip_; }
    void setToolTipText(const std::string& v);
    bool checked() const { return checked_; }
    void setChecked(bool v);
    int value() const { return value_; }
    void setValue(int v);  // check box, option button, progress bar, list index
    int minValue() const { return min_; }
    int maxValue() const { return max_; }
    void setRange(int min, int max);

    int interval() const { return interval_; }
    void setInterval(int ms);  // on a running timer: starts its interval anew

    const std::string& fontName() const { return fontName_; }
    double fontSize() const { return fontSize_; }
    bool fontBold() const { return fontBold_; }
    void setFont(const std::string& name, double size, bool bold);
    void setFontSize(double size);
    void setFontBold(bool bold);
    int alignment() const { return alignment_; }  // 0 left, 1 right, 2 centre
    void setAlignment(int v);

    int mousePointer() const { return mousePointer_; }
    void setMousePointer(int v);
    int mouseIcon() const { return mouseIcon_; }
    void setMouseIcon(int catalogueIndex);

    // Stacking order among the form's controls: higher is in front.
    int zOrder() const { return z_; }
    void zOrderFront();  // ZOrder 0
    void zOrderBack();   // ZOrder 1

    // Return and Escape press these buttons.
    bool isDefault() const { return default_; }
    void setDefault(bool v) { default_ = v; }
    bool isCancel() const { return cancel_; }
    void setCancel(bool v) { cancel_ = v; }
    // A text box holds one line unless it is multi-line.
    bool multiLine() const { return multiLine_; }
    void setMultiLine(bool v) { multiLine_ = v; }

    // Status bar panels 1 to 3.
    const std::string& panel(int number) const { return panels_.at(static_cast<size_t>(number - 1)); }
    void setPanel(int number, const std::string& text);

    // Picture surface display list.
    const std::vector<DrawItem>& drawing() const { return drawing_; }
    void cls();
    void drawPie(double cx, double cy, double radius, double startDeg, double endDeg, int color, int fillColor);
    void drawLine(double x1, double y1, double x2, double y2, int color);
    void drawCircle(double cx, double cy, double radius, int color);
    std::string drawingText() const;  // "pie -90 0 65280;line;line;circle"

    // The selected part of a text box's text. Every call counts, so that
    // selecting the same text again after the player moved the cursor shows.
    int selStart() const { return selStart_; }
    int selLength() const { return selLength_; }
    uint64_t selectionSerial() const { return selectionSerial_; }
    void setSelection(int start, int length);
    void selectAll() { setSelection(0, static_cast<int>(text_.size())); }

    // Lists (list box, file, folder and drive lists): items and the chosen one.
    const std::vector<std::string>& items() const { return items_; }
    void setItems(std::vector<std::string> items);
    int listIndex() const { return value_; }

    // Timer bookkeeping of the message loop: when the next tick is due.
    int64_t dueAt() const { return dueAt_; }
    void setDueAt(int64_t t) { dueAt_ = t; }

    // Raised whenever a property changes: the renderer batches by it.
    uint64_t revision() const { return revision_; }

private:
    void touch();
    void restartTimer();

    Form* form_;
    ControlKind kind_;
    std::string name_;
    int index_;
    std::string container_;

    std::string text_;
    bool visible_ = true;
    bool enabled_ = true;
    int foreColor_ = 0;
    int backColor_ = 0xFFFFFF;
    int borderColor_ = 0;
    int borderStyle_ = 0;
    int fillColor_ = 0;
    int backStyle_ = 1;
    int picture_ = 0;
    int left_, top_, width_, height_;
    std::string toolTip_;
    bool checked_ = false;
    int value_ = 0;
    int min_ = 0, max_ = 100;
    int interval_ = 0;
    std::string fontName_ = "MS Sans Serif";
    double fontSize_ = 8.25;
    bool fontBold_ = false;
    int alignment_ = 0;
    int mousePointer_ = 0;
    int mouseIcon_ = 0;
    int z_ = 0;
    bool default_ = false;
    bool cancel_ = false;
    bool multiLine_ = false;
    std::array<std::string, 3> panels_;
    std::vector<DrawItem> drawing_;
    std::vector<std::string> items_;
    int selStart_ = 0;
    int selLength_ = 0;
    uint64_t selectionSerial_ = 0;
    int64_t dueAt_ = 0;
    uint64_t revision_ = 0;
};

}  // namespace ch
