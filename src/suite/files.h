// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and writing whole text files. Every file the suite writes goes
// through WriteFileAtomic: the text goes to a temporary file beside the target,
// is flushed to the disk, and is then renamed over it, so a crash or a full
// disk never leaves a half-written settings file, table or saved game.
#pragma once

#include <string>
#include <vector>

namespace ch {

// How a read went. A file that is not there is made anew by its reader (a
// settings file, a table); one that is there but can't be read (no
// permission, a folder or a pipe in its place, an I/O error, a size beyond
// 64 MB) is left as it is.
enum class ReadOutcome { Read, Missing, Unreadable };

// The whole file into `out`; true when it was read. `outcome`, when given,
// tells a missing file from an unreadable one.
bool ReadWholeFile(const std::string& path, std::string& out, ReadOutcome* outcome = nullptr);

// Replaces `path` with `content`: a temporary file "<path>.tmp<pid>" is
// written, flushed and synced, then renamed over the target, and the folder
// is synced. False, with the old file untouched, when the target exists but
// may not be written, or when any step fails. Temporary files that a killed
// writer left beside the target are removed first.
bool WriteFileAtomic(const std::string& path, const std::string& content);
bool FileExists(const std::string& path);

// Injected faults, so that tests and the driver's `fault` command can show
// what a player sees when the disk lets the suite down (the tests run as
// root, which no permission stops). The program itself never sets one.
enum class FileFault {
    None,
    Unreadable,  // an existing file can't be read (an I/O error); it can still be replaced
    ReadOnly,    // no file can be made or replaced: a read-only folder
    DiskFull,    // writing the temporary file stops half way (no space left)
    SyncFails,   // the temporary file is written but its sync fails
};
// Sets the fault of every path starting with `under` (all paths when empty),
// replacing the fault set for that same `under`; None removes it. The most
// recently set fault that matches a path wins.
void SetFileFault(FileFault fault, const std::string& under = "");
void ClearFileFaults();

// What the folder and file lists of the open and save dialogs show: the
// subfolders of a folder and the files matching a pattern such as "*.sfl"
// (letter case ignored), each sorted by name, hidden entries left out.
std::vector<std::string> ListFolders(const std::string& folder);
std::vector<std::string> ListFiles(const std::string& folder, const std::string& pattern);
// The folder above, or the folder itself at the root or at the top folder.
std::string ParentFolder(const std::string& folder);

// A top folder that no file is written outside of and that the dialogs'
// folder lists never climb above. The browser edition sets its home folder:
// only that folder is kept in the browser's persistent storage, so a file
// written anywhere else would be lost on reload. Empty, as it starts: no top.
void SetTopFolder(const std::string& folder);

}  // namespace ch
