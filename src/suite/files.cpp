#include "suite/files.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fnmatch.h>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace ch {

bool ReadWholeFile(const std::string& path, std::string& out) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream buffer;
    buffer << in.rdbuf();
    if (in.bad()) return false;
    out = buffer.str();
    return true;
}

bool WriteFileAtomic(const std::string& path, const std::string& content) {
    const std::string temp = path + ".tmp" + std::to_string(::getpid());
    std::FILE* f = std::fopen(temp.c_str(), "wb");
    if (!f) return false;
    const bool written = std::fwrite(content.data(), 1, content.size(), f) == content.size();
    const bool flushed = std::fflush(f) == 0 && ::fsync(::fileno(f)) == 0;
    const bool closed = std::fclose(f) == 0;
    if (!written || !flushed || !closed || std::rename(temp.c_str(), path.c_str()) != 0) {
        std::remove(temp.c_str());
        return false;
    }
    return true;
}

bool FileExists(const std::string& path) {
    struct stat st {};
    return ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

namespace {
std::vector<std::string> List(const std::string& folder, bool folders, const std::string& pattern) {
    std::vector<std::string> names;
    std::error_code ec;
    for (std::filesystem::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string name = it->path().filename().string();
        if (name.empty() || name[0] == '.') continue;
        std::error_code typeError;
        if (folders ? !it->is_directory(typeError) : !it->is_regular_file(typeError)) continue;
        if (!folders && ::fnmatch(pattern.c_str(), name.c_str(), FNM_CASEFOLD) != 0) continue;
        names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}
}  // namespace

std::vector<std::string> ListFolders(const std::string& folder) { return List(folder, true, ""); }

std::vector<std::string> ListFiles(const std::string& folder, const std::string& pattern) {
    return List(folder, false, pattern.empty() ? "*" : pattern);
}

std::string ParentFolder(const std::string& folder) {
    std::filesystem::path p(folder);
    if (p.has_relative_path() && !p.has_filename()) p = p.parent_path();  // a trailing separator
    const std::filesystem::path parent = p.parent_path();
    return parent.empty() ? folder : parent.string();
}

}  // namespace ch
