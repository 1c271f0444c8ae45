// SPDX-License-Identifier: GPL-3.0-or-later
// The message loop of the one logic thread: forms and their lifetimes, timers,
// blocking sleeps, DoEvents, modal forms and message boxes as nested loops, and
// the dispatch of user input to the handlers of named controls.
//
// Timer rules: a timer fires only when the loop is idle; it is due Interval ms
// after it was enabled or last fired; when several are due the earliest fires
// first. A tick that fell due during a sleep fires once afterwards, never more.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "window/form.h"
#include "window/platform.h"
#include "window/value.h"

namespace ch {

class Runtime {
public:
    using Factory = std::function<std::unique_ptr<Form>(Runtime&)>;

    explicit Runtime(Platform& platform);
    ~Runtime();
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;

    // The runtime of the logic thread; there is one at a time.
    static Runtime& current();
    static bool exists();

    Platform& platform() const { return *platform_; }
    int64_t now() const { return platform_->now(); }

    // Forms: registered by name, loaded on demand, a fresh instance after unload.
    void registerForm(const std::string& name, Factory factory);
    // The same for a form class built from the runtime: registerForm<frmX>("frmX").
    template <typename F>
    void registerForm(const std::string& name) {
        registerForm(name, [](Runtime& rt) -> std::unique_ptr<Form> { return std::make_unique<F>(rt); });
    }
    bool isKnownForm(const std::string& name) const { return factories_.count(name) != 0; }
    std::vector<std::string> knownForms() const;
    Form* loaded(const std::string& name) const;  // null when not loaded
    Form& load(const std::string& name);          // runs Form_Load on a new instance
    template <typename T>
    T& form(const std::string& name) { return static_cast<T&>(load(name)); }
    std::vector<Form*> loadedForms() const;       // in load order
    size_t loadedCount() const { return forms_.size(); }

    // Show runs a nested loop for a modal form until it is hidden or unloaded.
    void show(Form& form, bool modal = false);
    Form& show(const std::string& name, bool modal = false);
    void hide(Form& form);
    // QueryUnload and Unload may cancel; returns false then.
    bool unload(Form& form, int unloadMode = 1);
    Form* topModal() const { return modalStack_.empty() ? nullptr : modalStack_.back(); }

    // The loop.
    void run();                                     // until StopRun
    void runUntil(const std::function<bool()>& done);
    void sleep(int ms);                             // blocks: nothing is served
    void doEvents();                                // serves what is queued and due
    void refresh() { platform_->present(*this); }   // the renderer sees the model now
    // True while events are served by a DoEvents or during a message box: a
    // handler below them still holds the thread, in the middle of its steps.
    // (A modal form is a window of its own, waited on; it does not count.)
    bool servingInsideHandler() const { return holding_ > 0; }
    MsgAnswer msgBox(const std::string& text, MsgButtons buttons, MsgIcon icon, const std::string& title);
    [[noreturn]] void end();                        // ends the program at once

    // Input from the platform, checked as a real window would: nothing happens
    // on a hidden or disabled control, menu or form, or behind a modal form.
    void dispatch(const InputEvent& event);
    bool accepts(const Form& form, const Control* control) const;

    // Shared variables the driver may read.
    void exposeGlobal(const std::string& name, VariableGetter getter);
    bool readGlobal(const std::string& name, int index, Value& out) const;
    bool hasGlobal(const std::string& name) const { return globals_.count(name) != 0; }

    // Raised by every change of the model.
    uint64_t revision() const { return revision_; }
    void touch() { ++revision_; }

    // Told of every timer tick served (for the driver's --trace).
    void setTracer(std::function<void(const std::string&)> tracer) { tracer_ = std::move(tracer); }

    // Timer bookkeeping, called by Control.
    void timerStarted(Control& timer);

private:
    void fireDueTimer();
    Control* earliestTimer() const;
    void dispatchToControl(Form& form, Control& control, const InputEvent& event);
    bool awaitingMessageBox() const;
    void pressKey(Form& form, Control& control, int key);
    void destroy(Form& form);

    Platform* platform_;
    std::map<std::string, Factory> factories_;
    std::vector<std::unique_ptr<Form>> forms_;      // loaded, in load order
    std::vector<std::unique_ptr<Form>> graveyard_;  // unloaded, freed when idle at the top
    std::vector<Form*> modalStack_;
    std::map<const Form*, size_t> boxesUnder_;  // message boxes open when each modal form was shown
    std::map<std::string, VariableGetter> globals_;
    int depth_ = 0;
    int holding_ = 0;  // DoEvents and message boxes in progress
    std::set<const Control*> runningTimers_;  // a timer does not fire inside its own handler
    // The timers of each loaded form, in the order of forms_: the loop looks
    // for the next tick at every turn, and a game window has hundreds of
    // controls and a few timers. Made anew when a form is loaded or unloaded,
    // and for one form when it gains controls.
    struct FormTimers {
        const Form* form = nullptr;
        size_t controls = 0;
        std::vector<Control*> timers;
    };
    mutable std::vector<FormTimers> timers_;
    std::vector<std::optional<MsgAnswer>> answers_;  // open message boxes, innermost last
    uint64_t revision_ = 0;
    std::function<void(const std::string&)> tracer_;
};

// The blocking calls game code makes, under the names the game steps use.
inline void Sleep(int ms) { Runtime::current().sleep(ms); }
inline void DoEvents() { Runtime::current().doEvents(); }
inline MsgAnswer MsgBox(const std::string& text, MsgButtons buttons, MsgIcon icon, const std::string& title) {
    return Runtime::current().msgBox(text, buttons, icon, title);
}

}  // namespace ch
