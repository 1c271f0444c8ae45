// SPDX-License-Identifier: GPL-3.0-or-later
// High score tables: one ten-place table per game and time limit (and per
// card goal, for a game that lists card goals), each a small text file in AppPath:
//     "Quillmark, 50000" CR LF  ... ten lines ...  CR LF
// one entry a line, best first, name, comma, blank, score; a name ending in
// "*" marks a score made under customised scoring. A table can hold an
// eleventh line after an entry at the tenth place; only ten count.
//
// A game window calls:
//   Form_Load, a time limit or card goal entry:  ShowHighScore(table, *this, "50000");
//   end of game:   FinishGame (gamewindow.h), or UpdateHighScoreTable then
//                  ShowHighScore in its own order;
//   mnuClear:      CreateHighScoreFile then ShowHighScore.
// frmHighScores (the Hall of Fame) finds a game's table by AppTitle through
// GameByTitle (gameinfo.h).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ch {

class Form;

// AppPath + "\" + table name + TimeLimit [+ "_" + CardGoal when the game of
// AppTitle keeps a table per card goal] + ".Txt".
std::string HighScoreFileName(const std::string& tableName);

struct ScoreEntry {
    std::string name;   // as read, "*" included
    std::string score;  // the score's text as read
};
// The entries of a table's text, one a line, split at the first comma and
// trimmed. Blank lines carry no entry; a line without a comma is a name with
// an empty score. Reading stops after `most` entries. Never fails.
std::vector<ScoreEntry> ParseHighScoreText(const std::string& text, size_t most = SIZE_MAX);
// A table's score text as a number; false when it lies outside the 32-bit
// range of a score (a damaged table).
bool ScoreValue(const std::string& text, long long& value);
// The text of a new table: ten lines "Quillmark, " + default score.
std::string DefaultHighScoreText(const std::string& defaultScore);

// Writes the ten default lines over the table (also the clear command).
// False when the file can't be written.
bool CreateHighScoreFile(const std::string& tableName, Form& window, const std::string& defaultScore);

// lblHighScore = the game's highScoreCaption ("High Score: " unless its
// GameInfo says otherwise) + the first score, formatted "###,###,###,##0"; a missing table is created first,
// one that is there but can't be read is left alone. False, with the label
// emptied, when the table can neither be read nor made or its first score is
// out of range.
bool ShowHighScore(const std::string& tableName, Form& window, const std::string& defaultScore);

// Offers CurrentScore to the table. At the first entry whose score is lower
// (ties stay above): "\HighScore.wav" if PlaySounds, frmHiScoreName modally,
// the new line (PlayerName, "*" if CustomScoringInUse, score), then the entry
// read. Reads until ten lines are written or the file ends, writes the table
// back and, if the score got a place, shows frmHighScores modally.
// False when the table can't be read or written.
bool UpdateHighScoreTable(const std::string& tableName, Form& window);

}  // namespace ch
