// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/fuzz/checks.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <set>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include "games/sumfall/modSumfall.h"
#include "suite/common.h"
#include "suite/files.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {

bool EndsWith(const std::string& s, const std::string& tail) {
    if (s.size() < tail.size()) return false;
    return std::equal(tail.rbegin(), tail.rend(), s.rbegin(),
                      [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b)); });
}

// The text split at CR LF; false when a bare CR or LF stands anywhere.
bool SplitLines(const std::string& text, std::vector<std::string>& lines) {
    lines.clear();
    size_t start = 0;
    while (start < text.size()) {
        const size_t end = text.find("\r\n", start);
        if (end == std::string::npos) return false;
        std::string line = text.substr(start, end - start);
        if (line.find_first_of("\r\n") != std::string::npos) return false;
        lines.push_back(std::move(line));
        start = end + 2;
    }
    return true;
}

bool IsWholeNumber(const std::string& s) {
    size_t i = !s.empty() && s[0] == '-' ? 1 : 0;
    if (i == s.size()) return false;
    for (; i < s.size(); ++i)
        if (!std::isdigit(static_cast<unsigned char>(s[i]))) return false;
    return true;
}

std::string Quote(const std::string& s) { return "\"" + (s.size() > 60 ? s.substr(0, 60) + "..." : s) + "\""; }

}  // namespace

HomeFileKind KindOfHomeFile(const std::string& name) {
    if (name.find(".tmp") != std::string::npos) return HomeFileKind::Temporary;
    if (EndsWith(name, ".Ini")) return HomeFileKind::Settings;
    if (EndsWith(name, ".Txt")) return HomeFileKind::Table;
    if (EndsWith(name, ".sfl")) return HomeFileKind::SavedGame;
    return HomeFileKind::Other;
}

std::string SettingsFault(const std::string& text) {
    std::vector<std::string> lines;
    if (!SplitLines(text, lines)) return "a line does not end in CR LF";
    if (lines.size() % 3 != 0) return "sections are not in threes (name, value, blank line)";
    std::map<std::string, std::string> values;
    for (size_t i = 0; i < lines.size(); i += 3) {
        const std::string& name = lines[i];
        if (name.size() < 3 || name.front() != '[' || name.back() != ']') return "not a section line: " + Quote(name);
        // Duopick writes "[Play Music]" twice; the reader takes the first, so both must agree.
        if (auto [at, fresh] = values.emplace(name, lines[i + 1]); !fresh && at->second != lines[i + 1])
            return "section " + name + " written twice with different values";
        if (!lines[i + 2].empty()) return "no blank line after " + name;
        if (lines[i + 1].size() > 0 && lines[i + 1].front() == '[' && lines[i + 1].back() == ']')
            return "the value of " + name + " reads as a section line";
    }
    return "";
}

std::string TableFault(const std::string& text) {
    std::vector<std::string> lines;
    if (!SplitLines(text, lines)) return "a line does not end in CR LF";
    if (lines.empty() || !lines.back().empty()) return "the table does not end with an empty line";
    lines.pop_back();
    if (lines.size() < 10 || lines.size() > 11) return std::to_string(lines.size()) + " entries";
    long long previous = 0;
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        const size_t comma = line.find(", ");
        if (comma == std::string::npos || line.find(',') != comma) return "entry " + Quote(line) + " splits wrongly";
        std::string name = line.substr(0, comma);
        const std::string score = line.substr(comma + 2);
        long long value = 0;
        if (!IsWholeNumber(score) || !ScoreValue(score, value)) return "score " + Quote(score) + " does not read back";
        if (name.empty() || Trim(name) != name) return "name " + Quote(name) + " does not read back";
        if (i > 0 && i < 10 && value > previous) return "entry " + Quote(line) + " stands below a lower score";
        previous = value;
    }
    return "";
}

std::string SavedGameFault(const std::string& text) {
    sumfall::SavedGame game;
    return sumfall::ParseSavedGame(text, game) ? "" : "the saved game does not open";
}

std::string TableChangeFault(const std::vector<ScoreEntry>& before, const std::vector<ScoreEntry>& after, long long score) {
    auto same = [](const ScoreEntry& a, const ScoreEntry& b) { return a.name == b.name && a.score == b.score; };
    auto prefixOfBefore = [&](const std::vector<ScoreEntry>& kept) {
        if (kept.size() > before.size()) return false;
        for (size_t i = 0; i < kept.size(); ++i)
            if (!same(kept[i], before[i])) return false;
        return true;
    };
    const size_t counted = std::min<size_t>(before.size(), 10);
    if (before.empty()) return "";
    // Unchanged, or the eleventh line dropped.
    if (after.size() == counted && prefixOfBefore(after)) return "";
    // Cleared: ten equal default lines.
    if (after.size() == 10 && std::all_of(after.begin(), after.end(), [&](const ScoreEntry& e) {
            return e.name == "Quillmark" && e.score == after.front().score;
        }))
        return "";
    // One new entry: what is left is the old table, at most its last counted entry gone.
    for (size_t p = 0; p < after.size(); ++p) {
        std::vector<ScoreEntry> kept = after;
        kept.erase(kept.begin() + static_cast<long>(p));
        if (kept.size() + 1 < counted || !prefixOfBefore(kept)) continue;
        const std::string& name = after[p].name;
        if (after[p].score != NumText(score)) return "new entry " + name + ", " + after[p].score + " is not CurrentScore " + NumText(score);
        return "";
    }
    return "entries lost: " + std::to_string(before.size()) + " before, " + std::to_string(after.size()) + " after";
}

HomeWatch::HomeWatch(std::string folder) : folder_(std::move(folder)) {
    notify_ = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (notify_ >= 0 && ::inotify_add_watch(notify_, folder_.c_str(), IN_CLOSE_WRITE | IN_MOVED_TO | IN_CREATE) < 0) {
        ::close(notify_);
        notify_ = -1;
    }
}

HomeWatch::~HomeWatch() {
    if (notify_ >= 0) ::close(notify_);
}

std::string HomeWatch::look(long long score) {
    namespace fs = std::filesystem;
    std::set<std::string> names;
    if (first_ || notify_ < 0) {
        // The first look, or no inotify: every file.
        first_ = false;
        std::error_code ec;
        for (fs::directory_iterator it(folder_, ec), end; !ec && it != end; it.increment(ec))
            names.insert(it->path().filename().string());
    }
    if (notify_ >= 0) {
        alignas(inotify_event) char buffer[16384];
        for (;;) {
            const ssize_t n = ::read(notify_, buffer, sizeof buffer);
            if (n <= 0) break;
            for (ssize_t at = 0; at < n;) {
                const auto* event = reinterpret_cast<const inotify_event*>(buffer + at);
                if (event->len > 0) names.insert(event->name);
                at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        }
    }
    for (const std::string& name : names)
        if (std::string fault = lookAt(name, score); !fault.empty()) return fault;
    return "";
}

std::string HomeWatch::lookAt(const std::string& name, long long score) {
    const std::string path = folder_ + "/" + name;
    const HomeFileKind kind = KindOfHomeFile(name);
    if (kind == HomeFileKind::Other) return "";
    // Every write ends within its event: a temporary file still there is litter.
    if (kind == HomeFileKind::Temporary) return FileExists(path) ? name + ": a temporary file left behind" : "";
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return "";
    Seen& seen = seen_[name];
    const int64_t mtime = static_cast<int64_t>(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
    if (seen.size == st.st_size && seen.mtime == mtime && seen.inode == st.st_ino) return "";
    seen.size = st.st_size;
    seen.mtime = mtime;
    seen.inode = st.st_ino;
    std::string text;
    if (!ReadWholeFile(path, text)) return name + ": cannot be read back";
    std::string fault;
    switch (kind) {
        case HomeFileKind::Settings: fault = SettingsFault(text); break;
        case HomeFileKind::SavedGame: fault = SavedGameFault(text); break;
        case HomeFileKind::Table: {
            fault = TableFault(text);
            if (!fault.empty()) break;
            std::vector<ScoreEntry> entries = ParseHighScoreText(text);
            fault = TableChangeFault(seen.entries, entries, score);
            seen.entries = std::move(entries);
            break;
        }
        default: break;
    }
    return fault.empty() ? "" : name + ": " + fault;
}

std::string ShownScoreFault(Runtime& runtime, const std::string& gameForm) {
    Form* form = runtime.loaded(gameForm);
    if (!form || !GameInProgress || runtime.topModal()) return "";
    const Control* label = form->find("lblCurrentScore");
    if (!label) return "";
    const std::string expected = FormatScore(CurrentScore);
    if (label->caption() == expected) return "";
    return gameForm + ".lblCurrentScore shows " + Quote(label->caption()) + ", CurrentScore is " + NumText(CurrentScore);
}

}  // namespace ch
