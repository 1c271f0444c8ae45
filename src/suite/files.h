// Reading and writing whole text files. Every file the suite writes goes
// through WriteFileAtomic: the text goes to a temporary file beside the target,
// which is then renamed over it, so a crash or a full disk never leaves a
// half-written settings file, table or saved game.
#pragma once

#include <string>
#include <vector>

namespace ch {

bool ReadWholeFile(const std::string& path, std::string& out);
bool WriteFileAtomic(const std::string& path, const std::string& content);
bool FileExists(const std::string& path);

// What the folder and file lists of the open and save dialogs show: the
// subfolders of a folder and the files matching a pattern such as "*.sfl"
// (letter case ignored), each sorted by name, hidden entries left out.
std::vector<std::string> ListFolders(const std::string& folder);
std::vector<std::string> ListFiles(const std::string& folder, const std::string& pattern);
// The folder above, or the folder itself at the root.
std::string ParentFolder(const std::string& folder);

}  // namespace ch
