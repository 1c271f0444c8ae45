#include "suite/settings.h"

#include <set>

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
    std::vector<std::string> lines;
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        std::string line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
        start = end + 1;
    }
    for (size_t i = 0; i < lines.size(); ++i) {
        const SettingsSection* known = nullptr;
        for (const SettingsSection& section : layout)
            if (section.apply && section.name == lines[i]) {
                known = &section;
                break;
            }
        if (!known || i + 1 >= lines.size()) continue;
        i += 1;
        // A value out of its range ("Overflow") changes nothing, like one
        // that matches no entry.
        try {
            known->apply(lines[i]);
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
