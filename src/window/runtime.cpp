// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/runtime.h"

#include <algorithm>
#include <limits>
#include <set>
#include <stdexcept>

namespace ch {

namespace {
Runtime* g_current = nullptr;

// Counts a DoEvents or message box while it serves events.
struct Holding {
    int& count;
    explicit Holding(int& c) : count(c) { ++count; }
    ~Holding() { --count; }
    Holding(const Holding&) = delete;
    Holding& operator=(const Holding&) = delete;
};

// Days since 1970-01-01 of a civil date (proleptic Gregorian).
int64_t DaysFromCivil(int64_t y, int m, int d) {
    y -= m <= 2;
    const int64_t era = (y >= 0 ? y : y - 399) / 400;
    const int64_t yoe = y - era * 400;
    const int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}
}  // namespace

int64_t ToMillis(const DateTime& t) {
    const int64_t days = DaysFromCivil(t.year, t.month, t.day);
    return ((days * 24 + t.hour) * 60 + t.minute) * 60000 + t.second * 1000 + t.millisecond;
}

DateTime FromMillis(int64_t ms) {
    int64_t days = ms / 86400000;
    int64_t rest = ms % 86400000;
    if (rest < 0) {
        rest += 86400000;
        --days;
    }
    days += 719468;
    const int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const int64_t doe = days - era * 146097;
    const int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const int64_t mp = (5 * doy + 2) / 153;
    DateTime t;
    t.day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
    t.month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    t.year = static_cast<int>(yoe + era * 400 + (t.month <= 2));
    t.hour = static_cast<int>(rest / 3600000);
    t.minute = static_cast<int>(rest / 60000 % 60);
    t.second = static_cast<int>(rest / 1000 % 60);
    t.millisecond = static_cast<int>(rest % 1000);
    return t;
}

Runtime::Runtime(Platform& platform) : platform_(&platform) {
    if (g_current) throw std::logic_error("only one runtime at a time");
    g_current = this;
}

Runtime::~Runtime() {
    graveyard_.clear();
    forms_.clear();
    g_current = nullptr;
}

Runtime& Runtime::current() {
    if (!g_current) throw std::logic_error("no runtime");
    return *g_current;
}

bool Runtime::exists() { return g_current != nullptr; }

void Runtime::registerForm(const std::string& name, Factory factory) { factories_[name] = std::move(factory); }

std::vector<std::string> Runtime::knownForms() const {
    std::vector<std::string> names;
    for (const auto& [name, factory] : factories_) names.push_back(name);
    return names;
}

Form* Runtime::loaded(const std::string& name) const {
    for (const auto& form : forms_)
        if (form->name() == name) return form.get();
    return nullptr;
}

Form& Runtime::load(const std::string& name) {
    if (Form* form = loaded(name)) return *form;
    auto it = factories_.find(name);
    if (it == factories_.end()) throw std::logic_error("unknown form " + name);
    forms_.push_back(it->second(*this));
    timers_.clear();
    Form& form = *forms_.back();
    form.loaded_ = true;
    touch();
    form.raise(nullptr, Ev::Load);
    return form;
}

std::vector<Form*> Runtime::loadedForms() const {
    std::vector<Form*> out;
    for (const auto& form : forms_) out.push_back(form.get());
    return out;
}

void Runtime::show(Form& form, bool modal) {
    if (!form.loaded_) return;
    if (!form.visible_) {
        form.visible_ = true;
        touch();
        if (!form.shownOnce_) {
            form.shownOnce_ = true;
            form.raise(nullptr, Ev::Resize);
        }
        if (!form.loaded_) return;
        form.raise(nullptr, Ev::Activate);
    }
    if (!modal || !form.loaded_ || !form.visible_) return;
    Form* below = topModal();
    form.modal_ = true;
    modalStack_.push_back(&form);
    boxesUnder_[&form] = answers_.size();
    const auto leave = [this, &form] {
        modalStack_.erase(std::find(modalStack_.begin(), modalStack_.end(), &form));
        boxesUnder_.erase(&form);
    };
    try {
        runUntil([&form] { return !form.visible_ || !form.loaded_; });
    } catch (...) {
        leave();
        throw;
    }
    leave();
    form.modal_ = false;
    if (below && below->loaded_) below->raise(nullptr, Ev::Activate);
}

Form& Runtime::show(const std::string& name, bool modal) {
    Form& form = load(name);
    show(form, modal);
    return form;
}

void Runtime::hide(Form& form) {
    if (!form.visible_) return;
    form.visible_ = false;
    touch();
}

bool Runtime::unload(Form& form, int unloadMode) {
    if (!form.loaded_) return true;
    EventArgs query;
    query.unloadMode = unloadMode;
    form.raise(nullptr, Ev::QueryUnload, query);
    if (query.cancel || !form.loaded_) return !form.loaded_;
    EventArgs unloading;
    form.raise(nullptr, Ev::Unload, unloading);
    if (unloading.cancel || !form.loaded_) return !form.loaded_;
    destroy(form);
    return true;
}

// The instance stays alive until the loop is idle at the top, since the
// handler that unloaded it may still be running.
void Runtime::destroy(Form& form) {
    form.loaded_ = false;
    form.visible_ = false;
    touch();
    auto it = std::find_if(forms_.begin(), forms_.end(), [&form](const auto& f) { return f.get() == &form; });
    if (it != forms_.end()) {
        graveyard_.push_back(std::move(*it));
        forms_.erase(it);
        timers_.clear();
    }
}

void Runtime::run() {
    runUntil([] { return false; });
}

void Runtime::runUntil(const std::function<bool()>& done) {
    struct Depth {
        int& d;
        explicit Depth(int& depth) : d(depth) { ++d; }
        ~Depth() { --d; }
    } depth(depth_);
    while (!done()) {
        if (depth_ == 1) graveyard_.clear();
        platform_->present(*this);
        Control* timer = earliestTimer();
        const int64_t deadline = timer ? timer->dueAt() : std::numeric_limits<int64_t>::max();
        InputEvent event;
        if (platform_->wait(event, deadline, false) == WaitResult::Input)
            dispatch(event);
        else
            fireDueTimer();
    }
}

Control* Runtime::earliestTimer() const {
    timers_.resize(forms_.size());
    Control* best = nullptr;
    for (size_t i = 0; i < forms_.size(); ++i) {
        const Form& form = *forms_[i];
        FormTimers& entry = timers_[i];
        if (entry.form != &form || entry.controls != form.controls().size()) {
            entry.form = &form;
            entry.controls = form.controls().size();
            entry.timers.clear();
            for (const auto& control : form.controls())
                if (control->kind() == ControlKind::Timer) entry.timers.push_back(control.get());
        }
        for (Control* timer : entry.timers) {
            if (!timer->enabled() || timer->interval() <= 0) continue;
            if (!best || timer->dueAt() < best->dueAt()) {
                if (runningTimers_.count(timer)) continue;
                best = timer;
            }
        }
    }
    return best;
}

void Runtime::fireDueTimer() {
    Control* timer = earliestTimer();
    if (!timer || timer->dueAt() > now()) return;
    timer->setDueAt(now() + timer->interval());
    runningTimers_.insert(timer);
    struct Done {
        std::set<const Control*>& running;
        Control* t;
        ~Done() { running.erase(t); }
    } done{runningTimers_, timer};
    if (tracer_) tracer_("timer " + timer->form().name() + "." + timer->displayName() + " at " + std::to_string(now()));
    EventArgs args;
    timer->form().raise(timer, Ev::Timer, args);
}

void Runtime::sleep(int ms) {
    platform_->present(*this);
    if (ms > 0) platform_->sleep(ms);
}

void Runtime::doEvents() {
    const Holding holding(holding_);
    platform_->present(*this);
    InputEvent event;
    while (platform_->wait(event, now(), true) == WaitResult::Input) dispatch(event);
    std::set<Control*> fired;
    for (;;) {
        Control* timer = earliestTimer();
        if (!timer || timer->dueAt() > now() || fired.count(timer)) break;
        fired.insert(timer);
        fireDueTimer();
    }
    platform_->present(*this);
}

MsgAnswer Runtime::msgBox(const std::string& text, MsgButtons buttons, MsgIcon icon, const std::string& title) {
    platform_->present(*this);
    MessageBox box{text, title, icon, buttons};
    answers_.push_back(std::nullopt);
    const size_t slot = answers_.size() - 1;
    const Holding holding(holding_);
    platform_->openMessageBox(box);
    try {
        runUntil([this, slot] { return answers_[slot].has_value(); });
    } catch (...) {
        answers_.pop_back();
        throw;
    }
    const MsgAnswer answer = *answers_[slot];
    answers_.pop_back();
    return answer;
}

void Runtime::end() { throw StopRun{}; }

bool Runtime::accepts(const Form& form, const Control* control) const {
    if (!form.loaded_ || !form.visible_ || !form.enabled_) return false;
    if (Form* modal = topModal(); modal && modal != &form) return false;
    if (!control) return true;
    // The control itself, then each frame or menu above it.
    const Control* at = control;
    for (int guard = 0; at && guard < 32; ++guard) {
        if (!at->visible() || !at->enabled()) return false;
        at = at->container().empty() ? nullptr : form.find(at->container());
    }
    return true;
}

void Runtime::dispatch(const InputEvent& event) {
    if (event.kind == InputKind::MessageBoxAnswer) {
        if (!answers_.empty() && !answers_.back()) answers_.back() = event.answer;
        return;
    }
    if (awaitingMessageBox()) return;  // input goes only to the open message box
    Form* form = loaded(event.form);
    if (!form) return;
    switch (event.kind) {
        case InputKind::Close:
            if (accepts(*form, nullptr)) unload(*form, 0);
            return;
        case InputKind::Resize:
            if (accepts(*form, nullptr)) form->setSize(event.width, event.height);
            return;
        case InputKind::WindowState:
            if (accepts(*form, nullptr)) form->setWindowState(event.value);
            return;
        default: break;
    }
    Control* control = form->find(event.control, event.index);
    if (!control || !accepts(*form, control)) return;
    dispatchToControl(*form, *control, event);
}

bool Runtime::awaitingMessageBox() const {
    // A modal form opened while a box stood (a timer's handler may open one)
    // lies above that box and takes input; a box opened since lies above it.
    const size_t under = modalStack_.empty() ? 0 : boxesUnder_.at(modalStack_.back());
    for (size_t i = under; i < answers_.size(); ++i)
        if (!answers_[i]) return true;
    return false;
}

void Runtime::dispatchToControl(Form& form, Control& control, const InputEvent& event) {
    switch (event.kind) {
        case InputKind::Click:
            if (control.kind() == ControlKind::CheckBox)
                control.setValue(control.value() ? 0 : 1);
            else if (control.kind() == ControlKind::OptionButton && control.value() == 0)
                control.setValue(1);
            else
                form.raise(&control, Ev::Click);
            break;
        case InputKind::DblClick:
            // A double click whose first click came as a Click of its own
            // (value 1, from a real mouse) raises only what the second adds.
            if (event.value == 0) form.raise(&control, Ev::Click);
            if (form.loaded() && accepts(form, &control)) {
                if (control.kind() == ControlKind::Button)
                    form.raise(&control, Ev::Click);
                else
                    form.raise(&control, Ev::DblClick);
            }
            break;
        case InputKind::MouseMove: form.raise(&control, Ev::MouseMove); break;
        case InputKind::Key: pressKey(form, control, event.key); break;
        case InputKind::SetText:
            // A one-line text box keeps the first line of what is typed or pasted.
            control.setText(control.multiLine() ? event.text : event.text.substr(0, event.text.find_first_of("\r\n")));
            break;
        case InputKind::Focus: form.setFocus(control); break;
        case InputKind::Check: control.setValue(event.value ? 1 : 0); break;
        case InputKind::Choose: control.setValue(1); break;
        case InputKind::ListSelect:
            control.setValue(event.value);
            form.raise(&control, Ev::Click);
            break;
        default: break;
    }
}

// Return presses the focused button or else the form's default button, Escape
// its cancel button; other keys reach the control's KeyPress.
void Runtime::pressKey(Form& form, Control& control, int key) {
    if (key == 13 || key == 27) {
        if (key == 13 && control.kind() == ControlKind::Button) {
            form.raise(&control, Ev::Click);
            return;
        }
        for (const auto& c : form.controls()) {
            if (c->kind() != ControlKind::Button) continue;
            if ((key == 13 && c->isDefault()) || (key == 27 && c->isCancel())) {
                if (accepts(form, c.get())) form.raise(c.get(), Ev::Click);
                return;
            }
        }
    }
    EventArgs args;
    args.key = key;
    form.raise(&control, Ev::KeyPress, args);
}

void Runtime::exposeGlobal(const std::string& name, VariableGetter getter) { globals_[name] = std::move(getter); }

bool Runtime::readGlobal(const std::string& name, int index, Value& out) const {
    auto it = globals_.find(name);
    return it != globals_.end() && it->second(index, out);
}

void Runtime::timerStarted(Control& timer) { timer.setDueAt(now() + timer.interval()); }

}  // namespace ch
