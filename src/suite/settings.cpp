// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/settings.h"

#include <set>
#include <string_view>

#include "suite/common.h"
#include "suite/files.h"
#include "window/basic.h"

namespace ch {

std::string SettingsText(const SettingsLayout& layout) {
    std::string text;
    for (const SettingsSection& section : layout) {
        if (!section.value) continue;
        text += section.name + "\r\n" + section.value() + "\r\n\r\n";
    }
    return text;
}

void ApplySettingsText(const std::string& text, const SettingsLayout& layout) {
    // Line by line, without copying the text: a damaged file may be large.
    size_t pos = 0;
    auto nextLine = [&text, &pos] {
        size_t end = text.find('\n', pos);
        if (end == std::string::npos) end = text.size();
        std::string_view line(text.data() + pos, end - pos);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        pos = end + 1;
        return line;
    };
    while (pos < text.size()) {
        const std::string_view line = nextLine();
        if (line.empty() || line.front() != '[') continue;
        const SettingsSection* known = nullptr;
        for (const SettingsSection& section : layout)
            if (section.apply && section.name == line) {
                known = &section;
                break;
            }
        if (!known || pos >= text.size()) continue;
        const std::string value(nextLine());
        // A value out of its range ("Overflow") changes nothing, like one
        // that matches no entry.
        try {
            known->apply(value);
        } catch (const RuntimeError&) {
        }
    }
}

namespace {
// Files found but not read at the last load: the window runs on its defaults
// and leaves them as they are, rather than writing the defaults over settings
// it never saw.
std::set<std::string>& UnreadFiles() {
    static std::set<std::string> files;
    return files;
}
}  // namespace

bool WriteSettingsINI(const std::string& fileName, const SettingsLayout& layout) {
    const std::string path = AppFile(fileName);
    if (UnreadFiles().count(path)) return false;
    return WriteFileAtomic(path, SettingsText(layout));
}

void ReadSettingsINI(const std::string& fileName, const SettingsLayout& layout) {
    const std::string path = AppFile(fileName);
    std::string text;
    ReadOutcome outcome = ReadOutcome::Read;
    UnreadFiles().erase(path);
    if (!ReadWholeFile(path, text, &outcome)) {
        if (outcome == ReadOutcome::Unreadable) {
            UnreadFiles().insert(path);
            return;
        }
        if (!WriteSettingsINI(fileName, layout)) return;
        if (!ReadWholeFile(path, text)) return;
    }
    ApplySettingsText(text, layout);
}

}  // namespace ch
