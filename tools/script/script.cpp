// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/script/script.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <utility>

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/files.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {

bool IsNumber(const std::string& s, long long& out) {
    if (s.empty()) return false;
    size_t i = s[0] == '-' ? 1 : 0;
    if (i == s.size()) return false;
    for (size_t k = i; k < s.size(); ++k)
        if (!std::isdigit(static_cast<unsigned char>(s[k]))) return false;
    try {
        out = std::stoll(s);
    } catch (...) {
        return false;
    }
    return true;
}

std::string Bool(bool b) { return b ? "True" : "False"; }

const char* IconName(MsgIcon icon) {
    switch (icon) {
        case MsgIcon::Critical: return "critical";
        case MsgIcon::Question: return "question";
        case MsgIcon::Exclamation: return "exclamation";
        case MsgIcon::Information: return "information";
        case MsgIcon::None: break;
    }
    return "none";
}

const char* ButtonsName(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::OKCancel: return "OKCancel";
        case MsgButtons::YesNo: return "YesNo";
        case MsgButtons::OK: break;
    }
    return "OK";
}

// A message box on one line: CR and LF written as \r and \n.
std::string OneLine(const std::string& text) {
    std::string out;
    for (char c : text) {
        if (c == '\r')
            out += "\\r";
        else if (c == '\n')
            out += "\\n";
        else
            out += c;
    }
    return out;
}

}  // namespace

TemporaryHome::TemporaryHome(const std::string& prefix) {
    std::string pattern = (std::filesystem::temp_directory_path() / (prefix + "-XXXXXX")).string();
    if (::mkdtemp(pattern.data())) path_ = pattern;
}

TemporaryHome::~TemporaryHome() {
    std::error_code ec;
    if (!path_.empty()) std::filesystem::remove_all(path_, ec);
}

ScriptRunner::ScriptRunner(Runtime& runtime, HeadlessPlatform& platform, std::istream& in, std::ostream& out)
    : runtime_(runtime), platform_(platform), in_(in), out_(out) {}

bool ScriptRunner::Tokenize(const std::string& line, std::vector<std::string>& tokens) {
    tokens.clear();
    size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t' || line[i] == '\r')) ++i;
        if (i >= line.size()) break;
        std::string token;
        if (line[i] == '"') {
            ++i;
            bool closed = false;
            while (i < line.size()) {
                char c = line[i];
                if (c == '"') {
                    closed = true;
                    ++i;
                    break;
                }
                if (c == '\\' && i + 1 < line.size()) {
                    char n = line[i + 1];
                    if (n == '"' || n == '\\') {
                        token += n;
                        i += 2;
                        continue;
                    }
                    if (n == 'r' || n == 'n') {
                        token += n == 'r' ? '\r' : '\n';
                        i += 2;
                        continue;
                    }
                }
                token += c;
                ++i;
            }
            if (!closed) return false;
        } else {
            while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r') token += line[i++];
        }
        tokens.push_back(token);
    }
    return true;
}

bool ScriptRunner::ParseReference(const std::string& text, std::vector<Segment>& segments) {
    segments.clear();
    size_t i = 0;
    while (i <= text.size()) {
        Segment segment;
        while (i < text.size() && (std::isalnum(static_cast<unsigned char>(text[i])) || text[i] == '_'))
            segment.name += text[i++];
        if (segment.name.empty()) return false;
        if (i < text.size() && text[i] == '(') {
            size_t close = text.find(')', i);
            if (close == std::string::npos) return false;
            long long index = 0;
            if (!IsNumber(text.substr(i + 1, close - i - 1), index)) return false;
            segment.index = static_cast<int>(index);
            i = close + 1;
        }
        segments.push_back(segment);
        if (i == text.size()) return true;
        if (text[i] != '.') return false;
        ++i;
    }
    return false;
}

void ScriptRunner::print(const std::string& line) {
    out_ << line << '\n';
    out_.flush();
}

std::string ScriptRunner::where() const {
    if (included_.empty()) return std::to_string(line_);
    return included_.back().name + ":" + std::to_string(included_.back().line);
}

void ScriptRunner::error(const std::string& text) {
    print("ERROR " + where() + ": " + text);
    throw ScriptError{};
}

void ScriptRunner::fail(const std::string& text) { failAt(where(), text); }

void ScriptRunner::failAt(const std::string& where, const std::string& text) {
    ++failures_;
    print("FAIL " + where + ": " + text);
}

void ScriptRunner::trace(const std::string& text) {
    if (tracing_) print("# " + text);
}

void ScriptRunner::expectEqual(const std::string& what, const std::string& actual, const std::string& expected) {
    if (actual != expected) fail(what + " = " + actual + " (expected " + expected + ")");
}

std::string ScriptRunner::pictureText(int index) const {
    if (index == 0) return "";
    const std::string& key = ImageList2().key(index);
    return key.empty() ? "#" + std::to_string(index) : key;
}

namespace {
std::string ControlProperty(const Control& c, const std::string& p, const std::function<std::string(int)>& picture,
                            bool& known) {
    known = true;
    if (p == "Caption" || p == "Text") return c.caption();
    if (p == "Visible") return Bool(c.visible());
    if (p == "Enabled") return Bool(c.enabled());
    if (p == "ForeColor") return std::to_string(c.foreColor());
    if (p == "BackColor") return std::to_string(c.backColor());
    if (p == "BorderColor") return std::to_string(c.borderColor());
    if (p == "BorderStyle") return std::to_string(c.borderStyle());
    if (p == "FillColor") return std::to_string(c.fillColor());
    if (p == "BackStyle") return std::to_string(c.backStyle());
    if (p == "SelStart") return std::to_string(c.selStart());
    if (p == "SelLength") return std::to_string(c.selLength());
    if (p == "Picture") return picture(c.picture());
    if (p == "Left") return std::to_string(c.left());
    if (p == "Top") return std::to_string(c.top());
    if (p == "Width") return std::to_string(c.width());
    if (p == "Height") return std::to_string(c.height());
    if (p == "ToolTipText") return c.toolTipText();
    if (p == "Checked") return Bool(c.checked());
    if (p == "Value")
        return c.kind() == ControlKind::OptionButton ? Bool(c.value() != 0) : std::to_string(c.value());
    if (p == "ListIndex") return std::to_string(c.listIndex());
    if (p == "ListCount") return std::to_string(c.items().size());
    if (p == "Interval") return std::to_string(c.interval());
    if (p == "FontSize") return ValueText(c.fontSize());
    if (p == "FontBold") return Bool(c.fontBold());
    if (p == "FontName") return c.fontName();
    if (p == "MousePointer") return std::to_string(c.mousePointer());
    if (p == "MouseIcon") return picture(c.mouseIcon());
    if (p == "Panel1") return c.panel(1);
    if (p == "Panel2") return c.panel(2);
    if (p == "Panel3") return c.panel(3);
    if (p == "Drawing") return c.drawingText();
    if (p == "ZOrder") return std::to_string(c.zOrder());
    known = false;
    return "";
}

// What a bare control reference reads: its caption or text, a check box's
// value, an image's picture.
std::string DefaultProperty(const Control& c, const std::function<std::string(int)>& picture) {
    bool known = false;
    switch (c.kind()) {
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
        case ControlKind::ProgressBar: return ControlProperty(c, "Value", picture, known);
        case ControlKind::Image:
        case ControlKind::PictureBox: return picture(c.picture());
        case ControlKind::Timer: return Bool(c.enabled());
        default: return c.caption();
    }
}

bool FormProperty(const Form& f, const std::string& p, std::string& out) {
    if (p == "Caption") out = f.caption();
    else if (p == "Visible") out = Bool(f.visible());
    else if (p == "Loaded") out = Bool(f.loaded());
    else if (p == "Modal") out = Bool(f.modal());
    else if (p == "Enabled") out = Bool(f.enabled());
    else if (p == "MousePointer") out = std::to_string(f.mousePointer());
    else if (p == "Width") out = std::to_string(f.width());
    else if (p == "Height") out = std::to_string(f.height());
    else if (p == "Left") out = std::to_string(f.left());
    else if (p == "Top") out = std::to_string(f.top());
    else if (p == "WindowState") out = std::to_string(f.windowState());
    else if (p == "ActiveControl") out = f.focusControl() ? f.focusControl()->displayName() : "";
    else return false;
    return true;
}
}  // namespace

std::string ScriptRunner::valueOf(const std::string& expr) {
    if (std::optional<std::string> group = evaluateGroup(expr)) return *group;
    return evaluate(expr).text;
}

ScriptRunner::Result ScriptRunner::evaluate(const std::string& expr) {
    std::vector<Segment> s;
    if (!ParseReference(expr, s)) error("cannot read the reference " + expr);
    const auto picture = [this](int index) { return pictureText(index); };
    const int index0 = s[0].index.value_or(-1);

    if (s[0].name == "ImageList2") {
        if (s.size() != 2 || s[1].name != "Key" || !s[1].index) error("ImageList2 reads only as ImageList2.Key(i)");
        return {false, ImageList2().key(*s[1].index)};
    }
    if (runtime_.isKnownForm(s[0].name)) {
        if (s[0].index) error("a form has no index: " + expr);
        if (s.size() < 2 || s.size() > 3) error("cannot read the reference " + expr);
        Form* form = runtime_.loaded(s[0].name);
        if (s.size() == 2 && s[1].name == "Loaded" && !s[1].index) return {false, Bool(form != nullptr)};
        if (!form) return {true, "<not loaded>"};
        const int index1 = s[1].index.value_or(-1);
        if (Control* control = form->find(s[1].name, index1)) {
            if (s.size() == 2) return {false, DefaultProperty(*control, picture)};
            if (s[2].index) error("a property has no index: " + expr);
            bool known = false;
            std::string text = ControlProperty(*control, s[2].name, picture, known);
            if (!known) error("unknown property " + s[2].name);
            return {false, text};
        }
        if (form->has(s[1].name)) error("no element " + std::to_string(index1) + " of " + s[0].name + "." + s[1].name);
        if (s.size() == 2) {
            std::string text;
            if (!s[1].index && FormProperty(*form, s[1].name, text)) return {false, text};
            if (form->hasVariable(s[1].name)) {
                Value value;
                if (!form->readVariable(s[1].name, index1, value)) error("no element " + std::to_string(index1) + " of " + expr);
                return {false, ValueText(value)};
            }
        }
        error("unknown control or variable " + s[1].name + " of " + s[0].name);
    }
    if (s.size() == 1 && runtime_.hasGlobal(s[0].name)) {
        Value value;
        if (!runtime_.readGlobal(s[0].name, index0, value)) error("no element " + std::to_string(index0) + " of " + s[0].name);
        return {false, ValueText(value)};
    }
    error("unknown form or variable " + s[0].name);
}

bool ScriptRunner::target(const std::string& ref, InputEvent& event) {
    std::vector<Segment> s;
    if (!ParseReference(ref, s)) error("cannot read the reference " + ref);
    if (!runtime_.isKnownForm(s[0].name)) error("unknown form " + s[0].name);
    if (s.size() != 2) error("a control is FORM.NAME or FORM.NAME(i): " + ref);
    Form* form = runtime_.loaded(s[0].name);
    if (!form) {
        fail(ref + " = <not loaded>");
        return false;
    }
    event.form = s[0].name;
    event.control = s[1].name;
    event.index = s[1].index.value_or(-1);
    if (!form->find(event.control, event.index)) error("unknown control " + ref);
    return true;
}

void ScriptRunner::readBoxes() {
    for (MessageBox& box : platform_.takeMessageBoxes()) unread_.push_back(std::move(box));
}

HeadlessPlatform::Step ScriptRunner::next() {
    HeadlessPlatform::Step quit;
    quit.kind = HeadlessPlatform::Step::Kind::Quit;
    std::string text;
    while (!ended_ && readLine(text)) {
        std::string trimmed = Trim(text);
        while (!trimmed.empty() && (trimmed.back() == '\r' || trimmed.back() == '\t')) trimmed.pop_back();
        if (trimmed.empty() || trimmed[0] == '#') continue;
        std::vector<std::string> tokens;
        if (!Tokenize(trimmed, tokens)) error("a quoted text is not closed");
        if (tokens.empty()) continue;
        if (std::optional<HeadlessPlatform::Step> step = execute(tokens)) {
            if (step->kind == HeadlessPlatform::Step::Kind::Quit) ended_ = true;
            return *step;
        }
    }
    ended_ = true;
    return quit;
}

bool ScriptRunner::readLine(std::string& text) {
    while (!included_.empty()) {
        Included& top = included_.back();
        if (std::getline(*top.in, text)) {
            ++top.line;
            return true;
        }
        included_.pop_back();
    }
    if (!std::getline(in_, text)) return false;
    ++line_;
    return true;
}

std::optional<std::string> ScriptRunner::evaluateGroup(const std::string& expr) {
    // The names of the group and the text before and after them.
    std::vector<std::string> names;
    size_t from = 0;
    size_t to = 0;
    const size_t brace = expr.find('{');
    const size_t dots = expr.find("..");
    if (brace != std::string::npos) {
        to = expr.find('}', brace);
        if (to == std::string::npos) error("a group is not closed: " + expr);
        from = brace;
        std::string list = expr.substr(brace + 1, to - brace - 1);
        for (size_t start = 0;;) {
            const size_t comma = list.find(',', start);
            names.push_back(list.substr(start, comma - start));
            if (comma == std::string::npos) break;
            start = comma + 1;
        }
        ++to;
    } else if (dots != std::string::npos) {
        from = expr.rfind('(', dots);
        to = expr.find(')', dots);
        long long first = 0;
        long long last = 0;
        if (from == std::string::npos || to == std::string::npos ||
            !IsNumber(expr.substr(from + 1, dots - from - 1), first) ||
            !IsNumber(expr.substr(dots + 2, to - dots - 2), last) || last < first || last - first > 100)
            error("a range is (FIRST..LAST): " + expr);
        for (long long i = first; i <= last; ++i) names.push_back("(" + std::to_string(i) + ")");
        ++to;
    } else {
        return std::nullopt;
    }
    std::string joined;
    for (const std::string& name : names) {
        const Result one = evaluate(expr.substr(0, from) + name + expr.substr(to));
        if (!joined.empty()) joined += ' ';
        joined += one.text.empty() ? "-" : one.text;
    }
    return joined;
}

std::optional<HeadlessPlatform::Step> ScriptRunner::execute(const std::vector<std::string>& t) {
    using Step = HeadlessPlatform::Step;
    const std::string& cmd = t[0];
    const size_t n = t.size();
    auto needs = [&](size_t count) {
        if (n != count) error(cmd + " takes " + std::to_string(count - 1) + " argument(s)");
    };
    auto input = [&](InputKind kind, const std::string& ref) -> std::optional<Step> {
        Step step;
        step.kind = Step::Kind::Input;
        step.event.kind = kind;
        if (!target(ref, step.event)) return std::nullopt;
        trace(cmd + " " + ref);
        return step;
    };
    auto formEvent = [&](InputKind kind, const std::string& name) -> std::optional<Step> {
        if (!runtime_.isKnownForm(name)) error("unknown form " + name);
        if (!runtime_.loaded(name)) {
            fail(name + " = <not loaded>");
            return std::nullopt;
        }
        Step step;
        step.kind = Step::Kind::Input;
        step.event.kind = kind;
        step.event.form = name;
        trace(cmd + " " + name);
        return step;
    };
    auto number = [&](const std::string& s) {
        long long v = 0;
        if (!IsNumber(s, v)) error("not a number: " + s);
        return v;
    };

    if (cmd == "click" || cmd == "dblclick" || cmd == "move" || cmd == "focus") {
        needs(2);
        const InputKind kind = cmd == "click" ? InputKind::Click
                               : cmd == "dblclick" ? InputKind::DblClick
                               : cmd == "move" ? InputKind::MouseMove
                                               : InputKind::Focus;
        return input(kind, t[1]);
    }
    if (cmd == "queue") {
        // An input made while the next one is still being served: it waits in
        // the queue and comes before any timer that falls due meanwhile.
        if (n < 2) error("queue takes an input command");
        std::optional<Step> step = execute(std::vector<std::string>(t.begin() + 1, t.end()));
        if (step && step->kind != Step::Kind::Input) error("queue takes an input command");
        if (step) platform_.queueInput(step->event);
        return std::nullopt;
    }
    if (cmd == "type") {
        needs(3);
        auto step = input(InputKind::SetText, t[1]);
        if (step) step->event.text = t[2];
        return step;
    }
    if (cmd == "key") {
        needs(3);
        static const std::map<std::string, int> kKeys = {{"Return", 13}, {"Escape", 27}, {"Tab", 9}, {"Space", 32}, {"Backspace", 8}};
        int key = 0;
        if (auto it = kKeys.find(t[2]); it != kKeys.end())
            key = it->second;
        else if (t[2].size() == 1)
            key = static_cast<unsigned char>(t[2][0]);
        else
            error("unknown key " + t[2]);
        auto step = input(InputKind::Key, t[1]);
        if (step) step->event.key = key;
        return step;
    }
    if (cmd == "check") {
        needs(3);
        const long long v = number(t[2]);
        if (v != 0 && v != 1) error("check takes 0 or 1");
        auto step = input(InputKind::Check, t[1]);
        if (step) step->event.value = static_cast<int>(v);
        return step;
    }
    if (cmd == "choose") {
        needs(2);
        return input(InputKind::Choose, t[1]);
    }
    if (cmd == "select") {
        needs(3);
        auto step = input(InputKind::ListSelect, t[1]);
        if (step) step->event.value = static_cast<int>(number(t[2]));
        return step;
    }
    if (cmd == "close") {
        needs(2);
        return formEvent(InputKind::Close, t[1]);
    }
    if (cmd == "resize") {
        needs(4);
        auto step = formEvent(InputKind::Resize, t[1]);
        if (step) {
            step->event.width = static_cast<int>(number(t[2]));
            step->event.height = static_cast<int>(number(t[3]));
        }
        return step;
    }
    if (cmd == "windowstate") {
        needs(3);
        const long long v = number(t[2]);
        if (v < 0 || v > 2) error("windowstate takes 0, 1 or 2");
        auto step = formEvent(InputKind::WindowState, t[1]);
        if (step) step->event.value = static_cast<int>(v);
        return step;
    }
    if (cmd == "advance") {
        needs(2);
        const long long ms = number(t[1]);
        if (ms < 0) error("advance takes a time of 0 or more");
        Step step;
        step.kind = Step::Kind::Advance;
        step.ms = ms;
        return step;
    }
    if (cmd == "answer") {
        // answer BUTTON [after MS] [expect REF VALUE]...: each expect is
        // checked when the box opens, on the windows behind it.
        static const char kUsage[] = "answer takes BUTTON [after MS] [expect REF VALUE]...";
        static const std::map<std::string, MsgAnswer> kAnswers = {
            {"Yes", MsgAnswer::Yes}, {"No", MsgAnswer::No}, {"OK", MsgAnswer::OK}, {"Cancel", MsgAnswer::Cancel}};
        if (n < 2) error(kUsage);
        size_t i = 2;
        int after = 0;
        if (i < n && t[i] == "after") {
            if (i + 1 >= n) error(kUsage);
            after = static_cast<int>(number(t[i + 1]));
            i += 2;
        }
        std::vector<std::pair<std::string, std::string>> expects;
        std::vector<Segment> segments;
        for (; i < n; i += 3) {
            if (t[i] != "expect" || i + 2 >= n) error(kUsage);
            const bool group = t[i + 1].find('{') != std::string::npos || t[i + 1].find("..") != std::string::npos;
            if (!group && !ParseReference(t[i + 1], segments)) error("cannot read the reference " + t[i + 1]);
            expects.emplace_back(t[i + 1], t[i + 2]);
        }
        std::function<void()> onOpen;
        if (!expects.empty())
            onOpen = [this, expects, at = where()] {
                for (const auto& [ref, expected] : expects) {
                    const std::string actual = valueOf(ref);
                    if (actual != expected) failAt(at, ref + " = " + actual + " (expected " + expected + ")");
                }
            };
        // "first" and "second" press a button by its place, whatever the box holds.
        if (t[1] == "first" || t[1] == "second") {
            platform_.queueAnswer(t[1] == "first" ? HeadlessPlatform::Place::First : HeadlessPlatform::Place::Second,
                                  after, onOpen);
            return std::nullopt;
        }
        auto it = kAnswers.find(t[1]);
        if (it == kAnswers.end()) error("unknown answer " + t[1]);
        platform_.queueAnswer(it->second, after, onOpen);
        return std::nullopt;
    }
    if (cmd == "stack") {
        if (n < 2) error("stack takes the cards in order, or none");
        // "stack none" takes back an order that no shuffle has used yet.
        if (n == 2 && t[1] == "none") randomness::StackNextShuffle({});
        else randomness::StackNextShuffle(std::vector<std::string>(t.begin() + 1, t.end()));
        return std::nullopt;
    }
    if (cmd == "random") {
        if (n < 2) error("random takes one or more values");
        std::vector<int> values;
        for (size_t i = 1; i < n; ++i) values.push_back(static_cast<int>(number(t[i])));
        randomness::Queue(values);
        return std::nullopt;
    }
    if (cmd == "clock") {
        needs(3);
        DateTime d;
        if (std::sscanf(t[1].c_str(), "%d-%d-%d", &d.year, &d.month, &d.day) != 3 ||
            std::sscanf(t[2].c_str(), "%d:%d:%d", &d.hour, &d.minute, &d.second) != 3)
            error("clock takes YYYY-MM-DD HH:MM:SS");
        platform_.setWallClock(d);
        return std::nullopt;
    }
    if (cmd == "file") {
        // A file of the home folder, written as the suite writes its own.
        needs(3);
        if (t[1].empty() || t[1].find('/') != std::string::npos) error("file takes a name in the home folder");
        if (!WriteFileAtomic(AppPath + "/" + t[1], t[2])) fail("file " + t[1] + " cannot be written");
        return std::nullopt;
    }
    if (cmd == "print") {
        needs(2);
        print(valueOf(t[1]));
        return std::nullopt;
    }
    if (cmd == "sounds") {
        needs(1);
        std::string line;
        for (const std::string& s : platform_.takeSounds()) line += (line.empty() ? "\"" : " \"") + s + "\"";
        print(line);
        return std::nullopt;
    }
    if (cmd == "msgboxes") {
        needs(1);
        readBoxes();
        for (const MessageBox& box : unread_)
            print(box.title + "|" + IconName(box.icon) + "|" + ButtonsName(box.buttons) + "|" + OneLine(box.text));
        unread_.clear();
        return std::nullopt;
    }
    if (cmd == "forms") {
        needs(1);
        for (Form* form : runtime_.loadedForms())
            print(form->name() + " " + Bool(form->visible()) + (form->modal() ? " modal" : ""));
        return std::nullopt;
    }
    if (cmd == "expect") {
        if (n >= 2 && t[1] == "sounds") {
            std::vector<std::string> actual = platform_.takeSounds();
            std::vector<std::string> expected(t.begin() + 2, t.end());
            if (actual != expected) {
                auto join = [](const std::vector<std::string>& v) {
                    std::string s;
                    for (const std::string& x : v) s += (s.empty() ? "\"" : " \"") + x + "\"";
                    return s;
                };
                fail("sounds = " + join(actual) + " (expected " + join(expected) + ")");
            }
            return std::nullopt;
        }
        if (n >= 2 && t[1] == "msgbox") {
            needs(3);
            readBoxes();
            if (unread_.empty()) {
                fail("msgbox = <none> (expected " + OneLine(t[2]) + ")");
            } else {
                expectEqual("msgbox", OneLine(unread_.front().text), OneLine(t[2]));
                unread_.erase(unread_.begin());
            }
            return std::nullopt;
        }
        needs(3);
        expectEqual(t[1], valueOf(t[1]), t[2]);
        return std::nullopt;
    }
    if (cmd == "fault") {
        // fault none|unreadable|read-only|disk-full|sync-fails [FILE]: what the
        // disk does from now on to FILE (a name in the home folder, or an
        // absolute path), or to every file without one; "none" ends it.
        if (n != 2 && n != 3) error("fault takes a kind and an optional file");
        static const std::map<std::string, FileFault> kFaults = {{"none", FileFault::None},
                                                                 {"unreadable", FileFault::Unreadable},
                                                                 {"read-only", FileFault::ReadOnly},
                                                                 {"disk-full", FileFault::DiskFull},
                                                                 {"sync-fails", FileFault::SyncFails}};
        auto it = kFaults.find(t[1]);
        if (it == kFaults.end()) error("unknown fault " + t[1]);
        std::string under;
        if (n == 3) under = t[2][0] == '/' ? t[2] : AppPath + "/" + t[2];
        if (it->second == FileFault::None && n == 2) ClearFileFaults();
        else SetFileFault(it->second, under);
        return std::nullopt;
    }
    if (cmd == "browser") {
        // browser opens|none|fails: what opening a web page does from now on:
        // the page opens, no browser is found, or the browser found fails.
        needs(2);
        static const std::map<std::string, Platform::WebResult> kResults = {
            {"opens", Platform::WebResult::Opened},
            {"none", Platform::WebResult::NoBrowser},
            {"fails", Platform::WebResult::Failed}};
        auto it = kResults.find(t[1]);
        if (it == kResults.end()) error("browser takes opens, none or fails");
        platform_.setWebResult(it->second);
        return std::nullopt;
    }
    if (cmd == "include") {
        // include FILE: the lines of FILE (beside this script) run here, as if written in its place.
        needs(2);
        if (included_.size() >= 8) error("include goes more than 8 deep");
        Included next;
        next.name = t[1];
        next.in = std::make_unique<std::ifstream>(folder_ + "/" + t[1]);
        if (!*next.in) error("cannot read " + t[1]);
        included_.push_back(std::move(next));
        return std::nullopt;
    }
    if (cmd == "quit") {
        needs(1);
        Step step;
        step.kind = Step::Kind::Quit;
        return step;
    }
    error("unknown command " + cmd);
}

}  // namespace ch
