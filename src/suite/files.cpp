// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <fnmatch.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace ch {

namespace {

// Far beyond any settings file, table or saved game: a file this large is
// damaged past reading, and is left as it is rather than read into memory.
constexpr off_t kLargestFile = 64 << 20;

std::vector<std::pair<std::string, FileFault>>& Faults() {
    static std::vector<std::pair<std::string, FileFault>> faults;
    return faults;
}

FileFault FaultOf(const std::string& path) {
    const auto& faults = Faults();
    for (auto it = faults.rbegin(); it != faults.rend(); ++it)
        if (path.compare(0, it->first.size(), it->first) == 0) return it->second;
    return FileFault::None;
}

// Writes all of `content`; false on any error (a full disk among them).
bool WriteAll(int fd, const std::string& content, bool diskFull) {
    const size_t limit = diskFull ? content.size() / 2 : content.size();
    size_t done = 0;
    while (done < limit) {
        const ssize_t n = ::write(fd, content.data() + done, limit - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += static_cast<size_t>(n);
    }
    return !diskFull;
}

std::string FolderOf(const std::string& path) {
    const size_t slash = path.find_last_of('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

// A writer killed between writing its temporary file and renaming it leaves
// "<name>.tmp<pid>" behind; it is removed once that process is gone.
void RemoveStaleTemporaries(const std::string& path) {
    const std::string folder = FolderOf(path);
    const size_t slash = path.find_last_of('/');
    const std::string prefix = (slash == std::string::npos ? path : path.substr(slash + 1)) + ".tmp";
    DIR* dir = ::opendir(folder.c_str());
    if (!dir) return;
    while (const dirent* entry = ::readdir(dir)) {
        const std::string name = entry->d_name;
        if (name.size() <= prefix.size() || name.compare(0, prefix.size(), prefix) != 0) continue;
        const std::string digits = name.substr(prefix.size());
        if (digits.size() > 9 || !std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; }))
            continue;
        const pid_t pid = static_cast<pid_t>(std::stol(digits));
        if (pid == ::getpid() || pid <= 0) continue;
        if (::kill(pid, 0) == 0 || errno != ESRCH) continue;  // still running, or not ours to know
        ::unlink((folder + "/" + name).c_str());
    }
    ::closedir(dir);
}

std::string& TopFolder() {
    static std::string top;
    return top;
}

// The absolute path with "." and ".." resolved and no trailing separator.
std::string Normal(const std::string& path) {
    std::error_code ec;
    std::string normal = std::filesystem::absolute(path, ec).lexically_normal().string();
    while (normal.size() > 1 && normal.back() == '/') normal.pop_back();
    return normal;
}

// True when there is no top folder or `path` is the top folder or below it.
bool UnderTop(const std::string& path) {
    const std::string& top = TopFolder();
    if (top.empty()) return true;
    const std::string normal = Normal(path);
    return normal == top || (normal.size() > top.size() && normal.compare(0, top.size(), top) == 0 &&
                             (top == "/" || normal[top.size()] == '/'));
}

void SyncFolder(const std::string& path) {
    const int fd = ::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);  // some file systems refuse; the rename is done either way
    ::close(fd);
}

}  // namespace

void SetFileFault(FileFault fault, const std::string& under) {
    auto& faults = Faults();
    faults.erase(std::remove_if(faults.begin(), faults.end(), [&](const auto& f) { return f.first == under; }),
                 faults.end());
    if (fault != FileFault::None) faults.emplace_back(under, fault);
}

void ClearFileFaults() { Faults().clear(); }

bool ReadWholeFile(const std::string& path, std::string& out, ReadOutcome* outcome) {
    ReadOutcome dummy;
    ReadOutcome& result = outcome ? *outcome : dummy;
    // Not blocking: a pipe in the file's place must not hold the program.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        result = errno == ENOENT || errno == ENOTDIR ? ReadOutcome::Missing : ReadOutcome::Unreadable;
        return false;
    }
    struct stat st {};
    result = ReadOutcome::Unreadable;
    if (FaultOf(path) == FileFault::Unreadable || ::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) ||
        st.st_size > kLargestFile) {
        ::close(fd);
        return false;
    }
    std::string text;
    text.reserve(static_cast<size_t>(st.st_size));
    char buffer[65536];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            ::close(fd);
            return false;
        }
        if (n == 0) break;
        text.append(buffer, static_cast<size_t>(n));
    }
    ::close(fd);
    out = std::move(text);
    result = ReadOutcome::Read;
    return true;
}

bool WriteFileAtomic(const std::string& path, const std::string& content) {
    const FileFault fault = FaultOf(path);
    if (fault == FileFault::ReadOnly || !UnderTop(FolderOf(path))) return false;
    struct stat old {};
    const bool exists = ::stat(path.c_str(), &old) == 0;
    if (exists && ::access(path.c_str(), W_OK) != 0) return false;
    RemoveStaleTemporaries(path);
    const std::string temp = path + ".tmp" + std::to_string(::getpid());
    const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (fd < 0) return false;
    if (exists && S_ISREG(old.st_mode)) ::fchmod(fd, old.st_mode & 07777);  // the new file keeps the old one's mode
    const bool written = WriteAll(fd, content, fault == FileFault::DiskFull);
    const bool synced = written && fault != FileFault::SyncFails && ::fsync(fd) == 0;
    const bool closed = ::close(fd) == 0;
    if (!written || !synced || !closed || std::rename(temp.c_str(), path.c_str()) != 0) {
        std::remove(temp.c_str());
        return false;
    }
    SyncFolder(path);
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

void SetTopFolder(const std::string& folder) { TopFolder() = folder.empty() ? folder : Normal(folder); }

std::string ParentFolder(const std::string& folder) {
    if (!TopFolder().empty() && Normal(folder) == TopFolder()) return folder;
    std::filesystem::path p(folder);
    if (p.has_relative_path() && !p.has_filename()) p = p.parent_path();  // a trailing separator
    const std::filesystem::path parent = p.parent_path();
    return parent.empty() ? folder : parent.string();
}

}  // namespace ch
