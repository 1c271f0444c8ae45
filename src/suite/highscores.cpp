// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/highscores.h"

#include <cstdint>

#include "suite/common.h"
#include "suite/files.h"
#include "suite/gameinfo.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {

std::string Line(const std::string& name, const std::string& score) { return name + ", " + score + "\r\n"; }

}  // namespace

std::string HighScoreFileName(const std::string& tableName) {
    std::string name = "\\" + tableName + NumText(TimeLimit);
    const GameInfo* game = GameByTitle(AppTitle);
    if (game && !game->cardGoals.empty()) name += "_" + NumText(CardGoal);
    return AppFile(name + ".Txt");
}

std::vector<ScoreEntry> ParseHighScoreText(const std::string& text, size_t most) {
    std::vector<ScoreEntry> entries;
    size_t start = 0;
    while (start < text.size() && entries.size() < most) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        std::string line = text.substr(start, end - start);
        start = end + 1;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (Trim(line).empty()) continue;
        const size_t comma = line.find(',');
        ScoreEntry entry;
        entry.name = Trim(line.substr(0, comma));
        if (comma != std::string::npos) entry.score = Trim(line.substr(comma + 1));
        entries.push_back(entry);
    }
    return entries;
}

bool ScoreValue(const std::string& text, long long& value) {
    const double v = Val(text);
    if (v < INT32_MIN || v > INT32_MAX) return false;
    value = static_cast<long long>(v);
    return true;
}

std::string DefaultHighScoreText(const std::string& defaultScore) {
    std::string text;
    for (int i = 0; i < 10; ++i) text += Line("Quillmark", defaultScore);
    return text;
}

bool CreateHighScoreFile(const std::string& tableName, Form&, const std::string& defaultScore) {
    // The table's text and the line end that closes every write.
    return WriteFileAtomic(HighScoreFileName(tableName), DefaultHighScoreText(defaultScore) + "\r\n");
}

bool ShowHighScore(const std::string& tableName, Form& window, const std::string& defaultScore) {
    Control* label = window.find("lblHighScore");
    // A table that can't be shown leaves no score of another table standing.
    auto fail = [label] {
        if (label) label->setCaption("");
        return false;
    };
    std::string text;
    ReadOutcome outcome = ReadOutcome::Read;
    if (!ReadWholeFile(HighScoreFileName(tableName), text, &outcome)) {
        // Only a missing table is made anew; one that is there but can't be
        // read keeps its scores for the day it can.
        if (outcome != ReadOutcome::Missing) return fail();
        if (!CreateHighScoreFile(tableName, window, defaultScore)) return fail();
        if (!ReadWholeFile(HighScoreFileName(tableName), text)) return fail();
    }
    const std::vector<ScoreEntry> entries = ParseHighScoreText(text, 1);
    long long score = 0;
    if (!entries.empty() && !ScoreValue(entries.front().score, score)) return fail();
    const GameInfo* game = GameByForm(window.name());
    const std::string prefix = game ? game->highScoreCaption : "High Score: ";
    if (label) label->setCaption(prefix + FormatScore(score));
    return true;
}

bool UpdateHighScoreTable(const std::string& tableName, Form&) {
    std::string text;
    if (!ReadWholeFile(HighScoreFileName(tableName), text)) return false;
    // Ten lines are written at most, one or two for each entry read.
    const std::vector<ScoreEntry> entries = ParseHighScoreText(text, 10);

    std::string table;
    int count = 0;
    bool inserted = false;
    for (size_t i = 0; i < entries.size() && count < 10; ++i) {
        PlayerName = entries[i].name;
        const std::string& score = entries[i].score;
        if (Val(score) >= CurrentScore || inserted) {
            table += Line(PlayerName, score);
            count += 1;
            continue;
        }
        // The new score's place: the entry read moves one down.
        const ScoreEntry kept = entries[i];
        if (PlaySounds) PlayWaveFile("\\HighScore.wav");
        inserted = true;
        Runtime::current().show("frmHiScoreName", true);
        table += PlayerName + (CustomScoringInUse ? "*, " : ", ") + NumText(CurrentScore) + "\r\n";
        table += Line(kept.name, kept.score);
        count += 2;
    }
    if (!WriteFileAtomic(HighScoreFileName(tableName), table + "\r\n")) return false;
    if (inserted) Runtime::current().show("frmHighScores", true);
    return true;
}

}  // namespace ch
