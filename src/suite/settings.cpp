#include "suite/settings.h"

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

bool WriteSettingsINI(const std::string& fileName, const SettingsLayout& layout) {
    return WriteFileAtomic(AppFile(fileName), SettingsText(layout));
}

void ReadSettingsINI(const std::string& fileName, const SettingsLayout& layout) {
    std::string text;
    if (!ReadWholeFile(AppFile(fileName), text)) {
        if (!WriteSettingsINI(fileName, layout)) return;
        if (!ReadWholeFile(AppFile(fileName), text)) return;
    }
    ApplySettingsText(text, layout);
}

}  // namespace ch
