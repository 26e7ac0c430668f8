// The grid of boxes: finding and removing groups, settling, and whether a move is left.
#include "games/mozaro/board.h"

#include <algorithm>
#include <limits>

#include "core/text/number.h"

namespace games::mozaro {
namespace {

using core::ClampTo;
using core::Digits;

constexpr int RemovalPause = 50;  // milliseconds
constexpr int JumblePasses = 10;
constexpr int JumblePause = 50;
constexpr std::int64_t PointsForOne = 50;
constexpr std::int16_t MostColumns = std::numeric_limits<std::int16_t>::max() - 1;

}  // namespace

// --- the grid -----------------------------------------------------------------------------------

void Board::Initialize(std::int16_t columns, std::int16_t rows, std::int16_t boxSize,
                       std::int16_t colors, std::int16_t spacing, std::int16_t groupSize) {
  columns_ = std::clamp<std::int16_t>(columns, 0, MostColumns);
  const int rowLimit = MostCells / (columns_ + 1) - 1;
  rows_ = static_cast<std::int16_t>(std::clamp<int>(rows, 0, rowLimit));
  spacing_ = spacing;
  groupSize_ = groupSize;
  emptyColumnCount_ = 0;
  columnSlid_ = false;
  MovesAvailable = true;
  lookedForMoves_ = false;
  PercentComplete = 0;
  selection_.clear();
  boxes_.assign(IndexOf(columns_, rows_) + 1, Box());
  for (Box& box : boxes_) {
    box.Removed = false;
    box.Color = core::RandomBelow(chance_, colors);
  }
  SetBoxSize(boxSize);
}

void Board::SetBoxSize(float size) {
  boxSize_ = size;
  const double step = static_cast<double>(size) + spacing_;
  for (int row = 0; row <= rows_; ++row) {
    for (int column = 0; column <= columns_; ++column) {
      Box& box = At(column, row);
      box.Size = ClampTo<std::int16_t>(core::RoundToEven(size));
      box.X = ClampTo<std::int16_t>(core::RoundToEven(column * step));
      box.Y = ClampTo<std::int16_t>(core::RoundToEven(row * step));
    }
  }
}

void Board::DrawBoard() {
  owner_.ClearSurface();
  const int size = ClampTo<std::int16_t>(core::RoundToEven(boxSize_));
  for (const Box& box : boxes_) {
    if (!box.Removed) box.DrawMe(owner_, size);
  }
}

float Board::BoxesRemaining() {
  const auto count = std::count_if(boxes_.begin(), boxes_.end(),
                                   [](const Box& box) { return box.Color != NoColor; });
  remainingCount_ = ClampTo<std::int16_t>(count);
  return static_cast<float>(count);
}

// --- groups -------------------------------------------------------------------------------------

void Board::ClearSelection() {
  selection_.clear();
  for (Box& box : boxes_) box.Visited = box.Selected = false;
}

void Board::FindAdjoiningBoxes(int column, int row, std::int32_t color) {
  // A group can be the whole grid, too deep for calls within calls. A neighbour is marked when its
  // turn comes and not when it is put aside, which gives the order that such calls would give.
  pending_.assign(1, {column, row});
  while (!pending_.empty()) {
    const Cell at = pending_.back();
    pending_.pop_back();
    Box& box = At(at.column, at.row);
    if (box.Visited) continue;
    box.Visited = true;
    selection_.push_back(&box);
    const Cell lastFirst[] = {{at.column - 1, at.row},
                              {at.column, at.row + 1},
                              {at.column + 1, at.row},
                              {at.column, at.row - 1}};
    for (const Cell& next : lastFirst) {
      if (!Holds(next.column, next.row)) continue;
      const Box& neighbour = At(next.column, next.row);
      if (!neighbour.Removed && neighbour.Color == color && !neighbour.Visited) {
        pending_.push_back(next);
      }
    }
  }
}

bool Board::FindBoxCollection(int column, int row) {
  owner_.GroupValue = 0;
  ClearSelection();
  if (Holds(column, row)) FindAdjoiningBoxes(column, row, At(column, row).Color);
  const bool found = !selection_.empty() && std::ssize(selection_) >= groupSize_;
  owner_.ShowPointer(found);
  if (found) {
    for (Box* box : selection_) box->Selected = true;
    owner_.GroupValue = GetGroupValue(selection_.size());
  }
  DrawBoard();
  return found;
}

std::int32_t Board::GetGroupValue(std::size_t count) {
  const auto boxes = static_cast<std::int64_t>(count);
  return ClampTo<std::int32_t>(boxes * boxes * PointsForOne);
}

// From the bottom right corner upwards, column by column. What belongs to a group that has been
// found too small needs no second look, so that the whole search passes each box once. Leaves
// nothing selected.
std::optional<Board::Cell> Board::FirstMove() {
  std::optional<Cell> move;
  ClearSelection();
  for (int column = columns_; column >= 0 && !move; --column) {
    for (int row = rows_; row >= 0 && !move; --row) {
      const Box& box = At(column, row);
      if (box.Removed || box.Visited) continue;
      selection_.clear();
      FindAdjoiningBoxes(column, row, box.Color);
      if (std::ssize(selection_) >= groupSize_) move = Cell{column, row};
    }
  }
  ClearSelection();
  lookedForMoves_ = true;
  return move;
}

void Board::CheckForMoves() {
  const auto move = FirstMove();
  MovesAvailable = move.has_value();
  if (move) {
    FindBoxCollection(move->column, move->row);
    return;
  }
  owner_.GroupValue = 0;
  owner_.ShowPointer(false);
  DrawBoard();
}

// --- a removal ----------------------------------------------------------------------------------

std::int32_t Board::RemoveGroup(int column, int row) {
  if (!FindBoxCollection(column, row)) {
    if (owner_.PlaySounds()) owner_.PlayWave("Chord.wav");
    if (!lookedForMoves_) MovesAvailable = FirstMove().has_value();
    return 0;
  }
  const std::size_t count = selection_.size();
  RemoveSelection();
  for (int each = 0; each <= columns_; ++each) DropColumn(each);
  if (owner_.DropBoxes()) {
    CloseColumns();
  } else {
    for (int each = 0; each <= rows_; ++each) SlideRow(each);
    CountEmptyColumns();
  }
  ShowProgress();
  PlayRemoval();
  owner_.Wait(RemovalPause);
  CheckForMoves();
  return GetGroupValue(count);
}

void Board::RemoveSelection() {
  for (Box* box : selection_) {
    box->MakeEmpty();
    box->Selected = false;
  }
  selection_.clear();
}

void Board::DropColumn(int column) {
  int target = rows_;
  for (int row = rows_; row >= 0; --row) {
    if (At(column, row).Removed) continue;
    if (target != row) At(column, target).TakeContentOf(At(column, row));
    --target;
  }
  for (; target >= 0; --target) At(column, target).MakeEmpty();
}

void Board::SlideRow(int row) {
  int target = columns_;
  for (int column = columns_; column >= 0; --column) {
    if (At(column, row).Removed) continue;
    if (target != column) At(target, row).TakeContentOf(At(column, row));
    --target;
  }
  for (; target >= 0; --target) At(target, row).MakeEmpty();
}

void Board::CopyColumn(int from, int to) {
  for (int row = 0; row <= rows_; ++row) At(to, row).TakeContentOf(At(from, row));
}

// Moves whole columns to the right over the empty ones. Each empty column that has boxes to its
// left is closed once, and pays once.
void Board::CloseColumns() {
  int target = columns_;
  int closed = 0;
  for (int column = columns_; column >= 0; --column) {
    if (EmptyColumn(column)) continue;
    closed = target - column;
    if (closed > 0) CopyColumn(column, target);
    --target;
  }
  for (; closed > 0 && target >= 0; --target) {
    for (int row = 0; row <= rows_; ++row) At(target, row).MakeEmpty();
  }
  for (int i = 0; i < closed; ++i) NoteClearedColumn();
  columnSlid_ = columnSlid_ || closed > 0;
  if (!columnSlid_ && EmptyColumn(0)) {
    NoteClearedColumn();
    columnSlid_ = true;
  }
}

void Board::CountEmptyColumns() {
  std::int16_t count = 0;
  for (int column = 0; column <= columns_; ++column) {
    if (EmptyColumn(column)) ++count;
  }
  for (; emptyColumnCount_ < count; ++emptyColumnCount_) NoteClearedColumn();
}

void Board::NoteClearedColumn() {
  columnCleared_ = true;
  owner_.ClearedAColumn();
}

void Board::ShowProgress() {
  const int columns = columns_ + 1;
  const int rows = rows_ + 1;
  PercentComplete = 100.0F - BoxesRemaining() / static_cast<float>(columns * rows) * 100.0F;
  owner_.ShowGridSize("Grid Size: " + Digits(columns) + " X " + Digits(rows) +
                      ", Percent Complete: " + core::Percent(PercentComplete) + "%");
}

// With sounds off, a cleared column is remembered for the next removal that can be heard.
void Board::PlayRemoval() {
  if (!owner_.PlaySounds()) return;
  owner_.PlayWave(columnCleared_ ? "TwentyOne.wav" : "Click.wav");
  columnCleared_ = false;
}

void Board::Jumble(std::int16_t colors) {
  for (int pass = 0; pass < JumblePasses; ++pass) {
    for (Box& box : boxes_) {
      if (!box.Removed) box.Color = core::RandomBelow(chance_, colors);
    }
    DrawBoard();
    owner_.RepaintWindow();
    owner_.Wait(JumblePause);
  }
  CheckForMoves();
}

}  // namespace games::mozaro
