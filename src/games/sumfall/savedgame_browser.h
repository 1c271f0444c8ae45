// SPDX-License-Identifier: GPL-3.0-or-later
// The drive, folder and file lists that the save and open dialogs share: the
// folder list drives the file list, a click on a file copies its name to
// txtGameName, and the path a dialog acts on is the folder plus that name.
#pragma once

#include <string>

namespace ch {
class Form;
}

namespace ch::sumfall {

class SavedGameBrowser {
public:
    // Starts at `folder` with the pattern "*.sfl"; there are no drives here,
    // so Drive1 stays hidden.
    void start(Form& dialog, const std::string& folder);
    // Dir1: a double click opens the folder chosen ("[..]" the one above).
    void openFolder(Form& dialog, int listIndex);
    // File1: a click copies the file name to txtGameName.
    void pickFile(Form& dialog, int listIndex);
    // Return in txtGameName: the file list shows what matches the text.
    void setPattern(Form& dialog, const std::string& pattern);
    // The file to save or open: the folder, a separator, and txtGameName,
    // to which ".sfl" is added when the name has no dot.
    std::string targetPath(Form& dialog);
    // False for a path whose name holds a wildcard ("*.sfl" as the dialog
    // opens): that is a pattern, never the name of a file to write.
    static bool IsFileName(const std::string& path);

    const std::string& folder() const { return folder_; }

private:
    void refresh(Form& dialog);

    std::string folder_;
    std::string pattern_ = "*.sfl";
};

}  // namespace ch::sumfall
