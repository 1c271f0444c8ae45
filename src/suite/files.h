// Reading and writing whole text files. Every file the suite writes goes
// through WriteFileAtomic: the text goes to a temporary file beside the target,
// which is then renamed over it, so a crash or a full disk never leaves a
// half-written settings file, table or saved game.
#pragma once

#include <string>

namespace ch {

bool ReadWholeFile(const std::string& path, std::string& out);
bool WriteFileAtomic(const std::string& path, const std::string& content);
bool FileExists(const std::string& path);

}  // namespace ch
