// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/form.h"

#include <stdexcept>

#include "window/runtime.h"

namespace ch {

namespace {
uint64_t nextFormSerial = 1;
}  // namespace

Form::Form(Runtime& runtime, std::string name)
    : runtime_(&runtime), name_(std::move(name)), serial_(nextFormSerial++) {}

Form::~Form() = default;

Control& Form::add(const ControlSpec& spec) {
    controls_.push_back(std::make_unique<Control>(*this, spec));
    Control& control = *controls_.back();
    byName_[control.name()][control.index()] = &control;
    return control;
}

void Form::add(std::span<const ControlSpec> specs) {
    for (const ControlSpec& spec : specs) add(spec);
}

Control* Form::find(const std::string& name, int index) const {
    auto it = byName_.find(name);
    if (it == byName_.end()) return nullptr;
    auto at = it->second.find(index);
    return at == it->second.end() ? nullptr : at->second;
}

Control& Form::c(const std::string& name, int index) const {
    Control* control = find(name, index);
    if (!control)
        throw std::logic_error(name_ + " has no control " + name +
                               (index >= 0 ? "(" + std::to_string(index) + ")" : std::string()));
    return *control;
}

bool Form::has(const std::string& name) const { return byName_.count(name) != 0; }

std::vector<Control*> Form::array(const std::string& name) const {
    std::vector<Control*> out;
    auto it = byName_.find(name);
    if (it == byName_.end()) return out;
    for (const auto& [index, control] : it->second) out.push_back(control);
    return out;
}

namespace {
std::string HandlerName(const std::string& form, const std::string& control, Ev event) {
    return form + "." + (control.empty() ? std::string("(form)") : control) + " event " +
           std::to_string(static_cast<int>(event));
}
}  // namespace

void Form::on(const std::string& control, Ev event, Handler handler) {
    if (!handlers_.emplace(std::make_pair(control, event), std::move(handler)).second)
        throw std::logic_error(HandlerName(name_, control, event) + " has a handler already; say replace");
}

void Form::replace(const std::string& control, Ev event, Handler handler) {
    auto it = handlers_.find({control, event});
    if (it == handlers_.end())
        throw std::logic_error(HandlerName(name_, control, event) + " has no handler to replace");
    it->second = std::move(handler);
}

bool Form::raise(Control* control, Ev event, EventArgs& args) {
    auto it = handlers_.find({control ? control->name() : std::string(), event});
    if (it == handlers_.end()) return false;
    args.control = control;
    if (control) args.index = control->index();
    Handler handler = it->second;  // the handler may unload this form
    handler(args);
    return true;
}

void Form::touch() { runtime_->touch(); }

void Form::setCaption(const std::string& v) {
    caption_ = v;
    touch();
}

void Form::move(int left, int top) {
    left_ = left;
    top_ = top;
    touch();
}

void Form::setSize(int width, int height) {
    if (width == width_ && height == height_) return;
    width_ = width;
    height_ = height;
    touch();
    if (visible_) raise(nullptr, Ev::Resize);
}

void Form::setWindowState(int state) {
    if (state == windowState_) return;
    windowState_ = state;
    touch();
    if (visible_) raise(nullptr, Ev::Resize);
}

void Form::setMousePointer(int v) {
    mousePointer_ = v;
    touch();
}

void Form::setMouseIcon(int catalogueIndex) {
    mouseIcon_ = catalogueIndex;
    touch();
}

void Form::setBackColor(int v) {
    backColor_ = v;
    touch();
}

void Form::setEnabled(bool v) {
    enabled_ = v;
    touch();
}

void Form::setFocus(Control& control) {
    focus_ = &control;
    ++focusSerial_;
    touch();
    raise(&control, Ev::GotFocus);
}

void Form::expose(const std::string& name, VariableGetter getter) { variables_[name] = std::move(getter); }

bool Form::readVariable(const std::string& name, int index, Value& out) const {
    auto it = variables_.find(name);
    return it != variables_.end() && it->second(index, out);
}

}  // namespace ch
