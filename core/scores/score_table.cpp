// Score tables as rows and as text.
#include "core/scores/score_table.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/text/items.h"
#include "core/text/number.h"

namespace core {
namespace {

// The text with a blank for each character that would end the item too early or too late.
std::string OneItem(std::string text, std::string_view foreign) {
  for (char& c : text) {
    if (foreign.find(c) != std::string_view::npos) c = ' ';
  }
  return text;
}

void CutToTen(std::vector<ScoreRow>& rows) {
  if (rows.size() > scoreRows) rows.resize(scoreRows);
}

}  // namespace

std::vector<ScoreRow> NewTable(std::int32_t startScore) {
  return std::vector<ScoreRow>(
      scoreRows, ScoreRow{std::string(fillerName), startScore, std::string(fillerDate)});
}

std::vector<ScoreRow> ParseTable(std::string_view text) {
  std::vector<ScoreRow> rows;
  ItemReader reader{std::string(text)};
  while (rows.size() < scoreRows) {
    reader.SkipEmptyLines();
    std::optional<std::string> name = reader.Next();
    const std::optional<std::string> score = reader.Next();
    if (!name || !score) break;
    rows.push_back({std::move(*name), ClampTo<std::int32_t>(WholeIn(*score)),
                    reader.Next().value_or(std::string())});
  }
  return rows;
}

std::string FormatTable(const std::vector<ScoreRow>& rows) {
  std::string text;
  for (std::size_t i = 0; i < std::min(rows.size(), scoreRows); ++i) {
    // A quote in a date could close one that begins the name, and so hide the score between them.
    text += OneItem(rows[i].name, ",\r\n") + ", " + Digits(rows[i].score) + ", " +
            OneItem(rows[i].date, ",\r\n\"") + "\r\n";
  }
  return text + "\r\n";
}

std::string TablePath(std::string_view appPath, std::string_view tableName, int timeLimit) {
  return std::string(appPath) + std::string(tableName) + Digits(timeLimit) + ".Txt";
}

int RankFor(const std::vector<ScoreRow>& rows, std::int32_t score) {
  const auto end = rows.begin() + static_cast<std::ptrdiff_t>(std::min(rows.size(), scoreRows));
  const auto beaten =
      std::find_if(rows.begin(), end, [score](const ScoreRow& row) { return row.score < score; });
  return beaten == end ? -1 : static_cast<int>(beaten - rows.begin());
}

std::vector<ScoreRow> Insert(std::vector<ScoreRow> rows, int rank, ScoreRow row) {
  CutToTen(rows);
  if (rank >= 0 && rank < static_cast<int>(scoreRows)) {
    const auto at = std::min(static_cast<std::size_t>(rank), rows.size());
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(at), std::move(row));
    CutToTen(rows);
  }
  return rows;
}

}  // namespace core
