// SPDX-License-Identifier: GPL-3.0-or-later
// Writers killed at random moments leave the file old or new, whole, and the next write clears what
// they left beside it; a write failing on a full disk, a read-only folder or a sync keeps the old.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "games/sumfall/modSumfall.h"
#include "suite/common.h"
#include "suite/files.h"
#include "suite/highscores.h"
#include "suite/settings.h"
#include "window/form.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;
namespace fs = std::filesystem;

namespace {

class InterruptedWrites : public ::testing::Test {
protected:
    // In memory where there is such a folder: a sync costs nothing and the kills are many and quick.
    void SetUp() override {
        std::error_code ec;
        const fs::path base = fs::is_directory("/dev/shm", ec) ? fs::path("/dev/shm") : fs::temp_directory_path();
        std::string pattern = (base / "cardhaven-kill-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        AppPath = pattern;
        AppTitle = "Spirehold!";
        TimeLimit = 45;
    }
    void TearDown() override {
        ClearFileFaults();
        std::error_code ec;
        fs::remove_all(AppPath, ec);
    }

    static std::string Read(const std::string& path) {
        std::string text;
        return ReadWholeFile(path, text) ? text : "<missing>";
    }
    size_t Temporaries() const {
        return std::ranges::count_if(fs::directory_iterator(AppPath), [](const fs::directory_entry& entry) {
            return entry.path().filename().string().find(".tmp") != std::string::npos;
        });
    }

    // `write(0)` and `write(1)` put the two contents in `path`; a child alternates them until
    // killed, 120 times at seeded moments, and each time the file is one of them, whole.
    using Contents = std::array<std::string, 2>;
    void KillWriters(const std::string& path, const Contents& contents, const std::function<bool(int)>& write,
                     unsigned seed) {
        ASSERT_TRUE(write(0));
        // Kill moments follow the child's pace (widened after a kill before its first write, narrowed
        // after a later one) so both kinds are many; a loaded machine runs rounds until one kills mid-write.
        std::mt19937 random(seed);
        double range = 2000;  // microseconds
        int torn = 0, afterAWrite = 0, leftBehind = 0, k = 0;
        for (const int kills = 120; k < kills || (leftBehind == 0 && k < 5 * kills); ++k) {
            int ready[2];
            ASSERT_EQ(pipe(ready), 0);
            const pid_t child = fork();
            ASSERT_GE(child, 0);
            if (child == 0) {
                ::close(ready[0]);
                ::close(ready[1]);  // the parent's read returns: writing starts
                for (int i = 1;; ++i) write(i % 2);
            }
            ::close(ready[1]);
            char byte;
            ASSERT_EQ(::read(ready[0], &byte, 1), 0);
            ::close(ready[0]);
            struct stat before {}, after {};
            ::stat(path.c_str(), &before);
            usleep(static_cast<useconds_t>(std::uniform_real_distribution<double>(0, range)(random)));
            ::kill(child, SIGKILL);
            int status = 0;
            ASSERT_EQ(waitpid(child, &status, 0), child);
            ASSERT_TRUE(WIFSIGNALED(status));
            const std::string now = Read(path);
            torn += now != contents[0] && now != contents[1];
            ::stat(path.c_str(), &after);
            const bool written = after.st_ino != before.st_ino;  // each write renames a new file in
            afterAWrite += written;
            // A killed writer's temporary file is cleared by the next writer: they never pile up.
            EXPECT_LE(Temporaries(), 1u);
            leftBehind += Temporaries() > 0;
            range = std::min(range * (written ? 0.9 : 1.1), 200000.0);
        }
        EXPECT_EQ(torn, 0) << "kills that left the file neither old nor new";
        // Many kills came after a write was done (the file changed), some mid-write (a temporary left).
        EXPECT_GT(afterAWrite, k / 8);
        EXPECT_GT(leftBehind, 0);
        // The next write clears every temporary file a killed writer left.
        ASSERT_TRUE(write(1));
        EXPECT_EQ(Read(path), contents[1]);
        EXPECT_EQ(Temporaries(), 0u);
    }

    HeadlessPlatform platform;
    Runtime runtime{platform};
};

}  // namespace

// A settings file, a high score table and a saved game, each of two sizes.
TEST_F(InterruptedWrites, KilledWritersLeaveTheOldFileOrTheNew) {
    const std::string values[2] = {std::string(200000, 'a'), std::string(150000, 'b')};
    const auto writeSettings = [&](int i) {
        return WriteSettingsINI("\\Big.Ini", {{"[Big]", nullptr, [&] { return values[i]; }}});
    };
    KillWriters(AppFile("\\Big.Ini"), {"[Big]\r\n" + values[0] + "\r\n\r\n", "[Big]\r\n" + values[1] + "\r\n\r\n"},
                writeSettings, 5);

    Form window(runtime, "frmSpirehold");
    const std::string scores[2] = {std::string(20000, '1'), std::string(9000, '2')};
    KillWriters(HighScoreFileName("SpireholdHiScores"),
                {DefaultHighScoreText(scores[0]) + "\r\n", DefaultHighScoreText(scores[1]) + "\r\n"},
                [&](int i) { return CreateHighScoreFile("SpireholdHiScores", window, scores[i]); }, 6);

    sumfall::SavedGame games[2];
    for (int i = 0; i < 2; ++i) {
        games[i].userName = std::string(100000 + 50000 * i, i ? 'B' : 'A');
        games[i].round1.assign(53, i ? "7H" : "10S");
    }
    const std::string path = AppPath + "/game.sfl";
    const Contents saved = {sumfall::SavedGameText(games[0]), sumfall::SavedGameText(games[1])};
    KillWriters(path, saved, [&](int i) { return WriteFileAtomic(path, saved[i]); }, 7);
}

TEST_F(InterruptedWrites, TemporariesOfLiveWritersStay) {
    const pid_t gone = fork();
    ASSERT_GE(gone, 0);
    if (gone == 0) _exit(0);
    ASSERT_EQ(waitpid(gone, nullptr, 0), gone);
    const std::string path = AppPath + "/HiScores60.Txt", ofGone = ".tmp" + std::to_string(gone);
    const std::string ofLive = path + ".tmp" + std::to_string(getppid());
    for (const std::string& name : {path + ofGone, ofLive, AppPath + "/Other.Txt" + ofGone})
        std::ofstream(name) << "half";
    ASSERT_TRUE(WriteFileAtomic(path, "new"));
    EXPECT_FALSE(fs::exists(path + ofGone));
    EXPECT_TRUE(fs::exists(ofLive));
    EXPECT_TRUE(fs::exists(AppPath + "/Other.Txt" + ofGone));
}

TEST_F(InterruptedWrites, FailedWritesKeepTheOldFileAndReadsTellMissingFromUnreadable) {
    const std::string path = AppPath + "/Sumfall.Ini";
    ASSERT_TRUE(WriteFileAtomic(path, "old"));
    for (const FileFault fault : {FileFault::ReadOnly, FileFault::DiskFull, FileFault::SyncFails}) {
        SetFileFault(fault, fault == FileFault::ReadOnly ? AppPath : path);
        EXPECT_FALSE(WriteFileAtomic(path, std::string(100000, 'n')));
        ClearFileFaults();
        EXPECT_EQ(Read(path), "old");
        EXPECT_EQ(Temporaries(), 0u);
    }
    // A replaced file keeps its mode.
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(WriteFileAtomic(path, "old"));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_directory(AppPath + "/Folder.Ini");
    EXPECT_FALSE(WriteFileAtomic(AppPath + "/Folder.Ini", "new"));
    EXPECT_TRUE(fs::is_directory(AppPath + "/Folder.Ini"));

    SetFileFault(FileFault::Unreadable, AppPath + "/Locked");
    std::ofstream(AppPath + "/Locked.Txt") << "x";
    ASSERT_EQ(mkfifo((AppPath + "/Pipe.Ini").c_str(), 0600), 0);  // no writer: opening it must not wait
    std::ofstream(AppPath + "/Huge.Txt");
    fs::resize_file(AppPath + "/Huge.Txt", 1ull << 32);  // sparse: 4 GB on no disk at all
    const std::pair<std::string, ReadOutcome> cases[] = {
        {path, ReadOutcome::Read}, {AppPath + "/None.Ini", ReadOutcome::Missing},
        {path + "/below", ReadOutcome::Missing}, {AppPath + "/Folder.Ini", ReadOutcome::Unreadable},
        {AppPath + "/Locked.Txt", ReadOutcome::Unreadable},
        {AppPath + "/Locked.Gone", ReadOutcome::Missing}, {AppPath + "/Pipe.Ini", ReadOutcome::Unreadable},
        {AppPath + "/Huge.Txt", ReadOutcome::Unreadable},
    };
    for (const auto& [name, expected] : cases) {
        std::string text = "kept";
        ReadOutcome outcome = ReadOutcome::Read;
        EXPECT_EQ(ReadWholeFile(name, text, &outcome), expected == ReadOutcome::Read) << name;
        EXPECT_EQ(outcome, expected) << name;
        EXPECT_EQ(text, expected == ReadOutcome::Read ? "old" : "kept") << name;
    }
}
