// How scores reach the tables: creating a table, showing its top, entering a score, clearing.
#pragma once

#include <cstdint>

#include "core/halloffame/table_owner.h"
#include "core/suite/suite.h"

namespace core {

/// Path of the table in use: that of the owner's table name and the time limit in force.
std::string HighScorePath(const Suite& suite, const TableOwner& owner);

/// Writes a new table of ten equal rows. False, after telling the player why, if it can't be.
bool CreateHighScoreFile(Suite& suite, const TableOwner& owner, std::int32_t startScore);

/// Shows the top score on the owner's window; creates the table first if it is missing. False,
/// after telling the player why, if it can't be read.
bool ShowHighScore(Suite& suite, TableOwner& owner, std::int32_t startScore);

/// Enters CurrentScore if it qualifies: asks for the name, writes the table, shows the high score
/// window. False, after telling the player why, if the table can't be read or written.
bool UpdateHighScores(Suite& suite, TableOwner& owner);

/// Shows the high score window, creating the table first if it is missing.
void ViewHighScores(Suite& suite, TableOwner& owner);

/// Asks, and on Yes makes the table in use anew. True if it was cleared.
bool AskToClearHighScores(Suite& suite, TableOwner& owner);

}  // namespace core
