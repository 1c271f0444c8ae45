// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/sumfall/savedgame_browser.h"

#include "suite/files.h"
#include "window/form.h"

namespace ch::sumfall {

namespace {
constexpr const char* kUp = "[..]";
}

void SavedGameBrowser::start(Form& dialog, const std::string& folder) {
    folder_ = folder;
    dialog.c("Drive1").setVisible(false);
    refresh(dialog);
}

void SavedGameBrowser::refresh(Form& dialog) {
    std::vector<std::string> folders;
    if (ParentFolder(folder_) != folder_) folders.push_back(kUp);
    for (const std::string& name : ListFolders(folder_)) folders.push_back(name);
    Control& dir = dialog.c("Dir1");
    dir.setItems(folders);
    dir.setCaption(folder_);
    Control& files = dialog.c("File1");
    files.setItems(ListFiles(folder_, pattern_));
    files.setValue(-1);
}

void SavedGameBrowser::openFolder(Form& dialog, int listIndex) {
    const auto& items = dialog.c("Dir1").items();
    if (listIndex < 0 || listIndex >= static_cast<int>(items.size())) return;
    const std::string& name = items[static_cast<size_t>(listIndex)];
    folder_ = name == kUp ? ParentFolder(folder_) : (folder_ == "/" ? "/" : folder_ + "/") + name;
    refresh(dialog);
}

void SavedGameBrowser::pickFile(Form& dialog, int listIndex) {
    const auto& items = dialog.c("File1").items();
    if (listIndex < 0 || listIndex >= static_cast<int>(items.size())) return;
    dialog.c("txtGameName").setText(items[static_cast<size_t>(listIndex)]);
}

void SavedGameBrowser::setPattern(Form& dialog, const std::string& pattern) {
    pattern_ = pattern;
    refresh(dialog);
}

std::string SavedGameBrowser::targetPath(Form& dialog) {
    Control& nameBox = dialog.c("txtGameName");
    if (nameBox.text().find('.') == std::string::npos) nameBox.setText(nameBox.text() + ".sfl");
    const std::string& name = nameBox.text();
    if (!name.empty() && name[0] == '/') return name;
    std::string path = folder_;
    if (path.empty() || path.back() != '/') path += '/';
    return path + name;
}

bool SavedGameBrowser::IsFileName(const std::string& path) {
    const size_t slash = path.rfind('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    return !name.empty() && name.find_first_of("*?") == std::string::npos;
}

}  // namespace ch::sumfall
