// SPDX-License-Identifier: GPL-3.0-or-later
// The script language of cardhaven-script: one command a line, read by the
// message loop whenever it waits for input, so that a modal window opened in
// the middle of a handler is filled in by the lines that follow.
#pragma once

#include <fstream>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "window/headless.h"

namespace ch {

class Runtime;

// The home folder of a run that names none: a fresh folder under the system's
// temporary folder, removed with everything in it when the run ends.
class TemporaryHome {
public:
    explicit TemporaryHome(const std::string& prefix);  // path() empty when it can't be made
    ~TemporaryHome();
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

// Thrown after an ERROR line: the run stops with exit status 2.
struct ScriptError {};

class ScriptRunner {
public:
    ScriptRunner(Runtime& runtime, HeadlessPlatform& platform, std::istream& in, std::ostream& out);

    // Runs commands until one needs the loop: input, passing time, or the end.
    HeadlessPlatform::Step next();
    // Reports a failure found outside an expect (an unanswered message box).
    void fail(const std::string& text);
    void trace(const std::string& text);
    void setTracing(bool on) { tracing_ = on; }
    // The folder that "include FILE" reads from: the script's own.
    void setFolder(std::string folder) { folder_ = folder.empty() ? "." : std::move(folder); }
    int failures() const { return failures_; }

    // Splits a line into tokens: blanks separate, double quotes hold blanks,
    // with \" \\ \r \n as escapes; any other backslash stays as it is.
    static bool Tokenize(const std::string& line, std::vector<std::string>& tokens);

    struct Segment {
        std::string name;
        std::optional<int> index;
    };
    // "frmSumfall.FieldCardPicture(7).Picture" into its segments.
    static bool ParseReference(const std::string& text, std::vector<Segment>& segments);

private:
    struct Result {
        bool notLoaded = false;
        std::string text;
    };

    std::optional<HeadlessPlatform::Step> execute(const std::vector<std::string>& tokens);
    [[noreturn]] void error(const std::string& text);
    void failAt(const std::string& where, const std::string& text);
    // "12", or "opening.script:3" inside an included file.
    std::string where() const;
    Result evaluate(const std::string& expr);
    // A group: FORM.NAME(a..b).Prop or FORM.{NAME1,NAME2}.Prop, each value in
    // turn, separated by blanks, "-" for an empty one; nullopt for a plain reference.
    std::optional<std::string> evaluateGroup(const std::string& expr);
    // A reference's value, or a group's values.
    std::string valueOf(const std::string& expr);
    // The next line of the script, from an included file first; false at the end.
    bool readLine(std::string& text);
    // Resolves a control reference for an input command; false when its form
    // is not loaded (a FAIL already printed).
    bool target(const std::string& ref, InputEvent& event);
    std::string pictureText(int index) const;
    void print(const std::string& line);
    void readBoxes();
    void expectEqual(const std::string& what, const std::string& actual, const std::string& expected);

    Runtime& runtime_;
    HeadlessPlatform& platform_;
    std::istream& in_;
    std::ostream& out_;
    int line_ = 0;
    int failures_ = 0;
    bool tracing_ = false;
    bool ended_ = false;
    std::vector<MessageBox> unread_;
    std::string folder_ = ".";
    struct Included {
        std::unique_ptr<std::ifstream> in;
        std::string name;
        int line = 0;
    };
    std::vector<Included> included_;
};

}  // namespace ch
