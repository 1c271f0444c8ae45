// SPDX-License-Identifier: GPL-3.0-or-later
// A window: caption, size and state, mouse pointer, and its controls, each found
// by name, or by name and index in a control array. Event handlers are bound by
// control name and event, so a window's file reads as its list of handlers.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "window/control.h"
#include "window/value.h"

namespace ch {

class Runtime;

enum class Ev {
    Load, Activate, Resize, QueryUnload, Unload,  // of the form
    Click, DblClick, MouseMove, KeyPress, Change, GotFocus, Timer,
};

struct EventArgs {
    Control* control = nullptr;  // null for form events
    int index = -1;              // index in a control array
    int key = 0;                 // KeyPress: the key's code
    bool cancel = false;         // QueryUnload, Unload: set to keep the form
    int unloadMode = 0;          // QueryUnload: 0 the user closed it, 1 by code
};

using Handler = std::function<void(EventArgs&)>;

class Form {
public:
    Form(Runtime& runtime, std::string name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    Runtime& runtime() const { return *runtime_; }
    const std::string& name() const { return name_; }
    // Unique to this form object for the life of the process: a form loaded again after an unload may
    // sit at the same address, but it is a new window and gets a new serial.
    uint64_t serial() const { return serial_; }

    // Controls.
    Control& add(const ControlSpec& spec);
    void add(std::span<const ControlSpec> specs);
    Control* find(const std::string& name, int index = -1) const;
    Control& c(const std::string& name, int index = -1) const;  // throws when missing
    bool has(const std::string& name) const;
    std::vector<Control*> array(const std::string& name) const;  // by rising index
    const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

    // Handlers. An empty control name binds an event of the form itself. A
    // control's event has one handler: a second `on` for it throws
    // std::logic_error, so that no handler is replaced unseen. `replace` says
    // that the new handler takes the place of the one bound before (and
    // throws when there is none).
    void on(const std::string& control, Ev event, Handler handler);
    void on(Ev event, Handler handler) { on("", event, std::move(handler)); }
    void replace(const std::string& control, Ev event, Handler handler);
    bool raise(Control* control, Ev event, EventArgs& args);
    bool raise(Control* control, Ev event) {
        EventArgs args;
        return raise(control, event, args);
    }

    // Properties of the form itself.
    const std::string& caption() const { return caption_; }
    void setCaption(const std::string& v);
    int left() const { return left_; }
    int top() const { return top_; }
    int width() const { return width_; }
    int height() const { return height_; }
    void move(int left, int top);
    void setSize(int width, int height);  // raises Resize when shown
    int windowState() const { return windowState_; }
    void setWindowState(int state);        // raises Resize when shown
    int mousePointer() const { return mousePointer_; }
    void setMousePointer(int v);           // a Pointer
    int mouseIcon() const { return mouseIcon_; }
    void setMouseIcon(int catalogueIndex);
    int backColor() const { return backColor_; }
    void setBackColor(int v);
    bool visible() const { return visible_; }
    bool enabled() const { return enabled_; }
    void setEnabled(bool v);
    bool loaded() const { return loaded_; }
    // The control with the keyboard focus; SetFocus raises its GotFocus.
    Control* focusControl() const { return focus_; }
    void setFocus(Control& control);
    // Counts every setFocus, so the renderer moves the focus when the logic does.
    uint64_t focusSerial() const { return focusSerial_; }
    bool modal() const { return modal_; }

    // Variables of the form and its game module that the driver may read.
    void expose(const std::string& name, VariableGetter getter);
    bool readVariable(const std::string& name, int index, Value& out) const;
    bool hasVariable(const std::string& name) const { return variables_.count(name) != 0; }

    // Stacking order counters used by Control::zOrderFront/Back.
    int frontZ() { return ++maxZ_; }
    int backZ() { return --minZ_; }

    void touch();

private:
    friend class Runtime;

    Runtime* runtime_;
    std::string name_;
    uint64_t serial_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::map<std::string, std::map<int, Control*>> byName_;
    std::map<std::pair<std::string, Ev>, Handler> handlers_;
    std::map<std::string, VariableGetter> variables_;

    std::string caption_;
    int left_ = 0, top_ = 0, width_ = 9600, height_ = 7200;
    int windowState_ = 0;
    int mousePointer_ = 0;
    int mouseIcon_ = 0;
    int backColor_ = 0xC0C0C0;
    bool visible_ = false;
    bool enabled_ = true;
    bool loaded_ = false;
    bool modal_ = false;
    bool shownOnce_ = false;
    Control* focus_ = nullptr;
    uint64_t focusSerial_ = 0;
    int maxZ_ = 0, minZ_ = 0;
};

}  // namespace ch
