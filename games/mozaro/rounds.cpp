// The rounds of a game: how large and how colourful each is, and the points that it asks for.
#include "games/mozaro/rounds.h"

#include <algorithm>

#include "core/text/number.h"
#include "games/mozaro/box.h"

namespace games::mozaro {
namespace {

using core::ClampTo;

// How many rows fewer than columns a grid has.
struct RowsLess {
  std::int16_t upToColumns;
  std::int16_t fewer;
};
constexpr RowsLess rowsLess[] = {{13, 22}, {14, 6},  {16, 7},  {18, 8},  {20, 9},  {23, 10},
                                 {25, 11}, {27, 12}, {29, 13}, {31, 14}, {32, 15}, {34, 16},
                                 {36, 17}, {38, 18}, {40, 19}, {42, 20}, {44, 21}};
constexpr std::int16_t fewerBeyond = 22;

// The fewest columns that have any rows, and the most whose cells stay within Board::MostCells.
constexpr std::int16_t LeastColumns = 14;
constexpr std::int16_t MostColumns = 267;
constexpr std::int16_t LeastGroup = 2;    // one box alone would be a group wherever one clicks
constexpr std::int16_t MostJumbles = 60;  // in vain they take half a minute, and look like a hang

}  // namespace

Options Playable(Options options) {
  options.InitialColorCount = std::clamp<std::int16_t>(options.InitialColorCount, 1, MostColors);
  options.Columns = std::clamp(options.Columns, LeastColumns, MostColumns);
  options.GroupSize = std::max(options.GroupSize, LeastGroup);
  options.AddAColumn = std::max<std::int16_t>(options.AddAColumn, 0);
  options.AddAColor = std::max<std::int16_t>(options.AddAColor, 1);
  options.JumblesAllowed = std::min(options.JumblesAllowed, MostJumbles);
  return options;
}

void Rounds::TakeInitialSizes() {
  const Options playable = Playable(options_);
  ColorCount = playable.InitialColorCount;
  ColumnCount = playable.Columns;
  CalculateRows();
}

void Rounds::StartGame() {
  TakeInitialSizes();
  ForgetPoints();
  CurrentRound = 0;
}

void Rounds::CalculateRows() {
  const auto* entry = std::find_if(std::begin(rowsLess), std::end(rowsLess),
                                   [&](const RowsLess& e) { return ColumnCount <= e.upToColumns; });
  const int fewer = entry == std::end(rowsLess) ? fewerBeyond : entry->fewer;
  RowCount = ClampTo<std::int16_t>(ColumnCount - fewer);
}

void Rounds::StartRound() {
  JumblesUsed = 0;
  JumbleAvailable = true;
  CurrentRound = ClampTo<std::int16_t>(CurrentRound + 1);
  CalculateRows();
  if (CurrentRound != 1) Grow(Playable(options_));
}

void Rounds::Grow(const Options& playable) {
  const bool addColumn = playable.AddAColumn != 0 && CurrentRound % playable.AddAColumn == 0;
  if (addColumn && ColumnCount < MostColumns) ++ColumnCount;
  if ((CurrentRound - 1) % playable.AddAColor == 0 && ColorCount < MostColors) ++ColorCount;
}

void Rounds::Earn(std::int32_t points) {
  const std::int64_t earned = points;
  RoundScore = ClampTo<std::int32_t>(RoundScore + earned);
  PointsNeeded = ClampTo<std::int32_t>(std::max<std::int64_t>(PointsNeeded - earned, 0));
}

void Rounds::ForgetPoints() {
  RoundScore = 0;
  PointsNeeded = std::max(options_.ScoreForNextRound, 0);
}

void Rounds::CountJumble() {
  JumblesUsed = ClampTo<std::int16_t>(JumblesUsed + 1);
  if (Playable(options_).JumblesAllowed <= JumblesUsed) JumbleAvailable = false;
}

}  // namespace games::mozaro
