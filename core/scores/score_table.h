// A table of the ten best scores: its file's form, and how a score moves into it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace core {

inline constexpr std::size_t scoreRows = 10;

// What a new table is filled with. A row of this date is a filler, whose date is not shown.
inline constexpr std::string_view fillerName = "Corvane";
inline constexpr std::string_view fillerDate = "Jan 01 2000 12:00 am";

struct ScoreRow {
  std::string name;  // any bytes; with the mark of custom scoring, if it has one
  std::int32_t score = 0;
  std::string date;  // in the form of TableDate

  bool operator==(const ScoreRow&) const = default;
};

// Ten filler rows.
std::vector<ScoreRow> NewTable(std::int32_t startScore);

// The rows of a table file, ten at most, fewer if the file ends before. Reads any text: what is no
// number is a score of 0, a text that ends behind a score gives its row no date, a name alone at
// the end is no row.
std::vector<ScoreRow> ParseTable(std::string_view text);

// The file's text: ten rows at most, one a line, then an empty line. A comma, a line
// end, and a quote in a date would shift what follows on reading, and are written as blanks.
std::string FormatTable(const std::vector<ScoreRow>& rows);

// The file of a table. The path of the program's directory and the table's name are joined as they
// are; the time limit is in seconds.
std::string TablePath(std::string_view appPath, std::string_view tableName, int timeLimit);

// The row, 0 to 9, at which a score enters: the first of the first ten that it beats. An equal
// score stays above. -1 if it beats none, also in a table of fewer rows or of none.
int RankFor(const std::vector<ScoreRow>& rows, std::int32_t score);

// The rows with one more at a rank from 0 to 9, ten at most; unchanged, but for that, at another.
std::vector<ScoreRow> Insert(std::vector<ScoreRow> rows, int rank, ScoreRow row);

}  // namespace core
