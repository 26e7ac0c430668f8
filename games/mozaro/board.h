// The grid of boxes: finding and removing groups, settling, and whether a move is left.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/cards/chance.h"
#include "games/mozaro/box.h"

namespace games::mozaro {

/// What a board needs of the window that it stands in.
class BoardOwner : public BoxSurface {
 public:
  std::int32_t GroupValue = 0;  ///< points of the highlighted group, 0 for none

  virtual bool DropBoxes() const = 0;
  virtual void ClearedAColumn() = 0;  ///< pays the column bonus
  virtual void ShowPointer(bool overGroup) = 0;
  virtual void ShowGridSize(const std::string& text) = 0;
  virtual bool PlaySounds() const = 0;
  virtual void PlayWave(const std::string& file) = 0;
  virtual void Wait(int milliseconds) = 0;
  virtual void RepaintWindow() = 0;

 protected:
  ~BoardOwner() = default;
};

/// Columns count from the left and rows from the top, each from 0. Boxes fall towards the last row
/// and slide towards the last column. A cell outside of the grid holds no group.
class Board {
 public:
  static constexpr int MostCells = 65535;
  struct Cell {
    int column;
    int row;
  };

  Board(BoardOwner& owner, core::Chance& chance) : owner_(owner), chance_(chance) {}
  Board(const Board&) = delete;

  /// Set without a look when the grid is new; the first click on it looks.
  bool MovesAvailable = true;
  float PercentComplete = 0;  ///< share of the cells that are empty, 0 to 100

  /// Makes a fresh grid of random boxes. `columns` and `rows` are the last indices; what is
  /// negative counts as 0, and rows beyond MostCells cells are left out.
  void Initialize(std::int16_t columns, std::int16_t rows, std::int16_t boxSize,
                  std::int16_t colors, std::int16_t spacing, std::int16_t groupSize);
  void DrawBoard();
  /// Adds to the selection all boxes of `color` that hang together with the one at the cell.
  void FindAdjoiningBoxes(int column, int row, std::int32_t color);
  /// Highlights the group at a cell; false if what hangs together there is too small.
  bool FindBoxCollection(int column, int row);
  /// Without a grid the two are -1.
  std::int16_t Columns() const { return columns_; }  ///< the last index
  std::int16_t Rows() const { return rows_; }        ///< the last index
  float BoxSize() const { return boxSize_; }         ///< pixels
  float BoxesRemaining();
  void SetBoxSize(float size);
  void ClearSelection();
  /// Removes the group at a cell and settles the grid; the points of the group, or 0.
  std::int32_t RemoveGroup(int column, int row);
  /// Gives the boxes that stand new colours, ten times over.
  void Jumble(std::int16_t colors);

  /// The cell must lie in the grid.
  const Box& Boxes(int column, int row) const { return boxes_[IndexOf(column, row)]; }
  bool Holds(int column, int row) const {
    return column >= 0 && column <= columns_ && row >= 0 && row <= rows_;
  }

 private:
  std::size_t IndexOf(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_ + 1) +
           static_cast<std::size_t>(column);
  }
  Box& At(int column, int row) { return boxes_[IndexOf(column, row)]; }
  bool EmptyColumn(int column) const { return Boxes(column, rows_).Removed; }

  void RemoveSelection();
  void DropColumn(int column);
  void CloseColumns();
  void CopyColumn(int from, int to);
  void SlideRow(int row);
  void CountEmptyColumns();
  void NoteClearedColumn();
  void ShowProgress();
  void PlayRemoval();
  std::optional<Cell> FirstMove();
  void CheckForMoves();
  static std::int32_t GetGroupValue(std::size_t count);

  BoardOwner& owner_;
  core::Chance& chance_;
  std::vector<Box> boxes_;  // row by row
  std::vector<Box*> selection_;
  std::vector<Cell> pending_;
  float boxSize_ = 0;
  bool lookedForMoves_ = false;  // on this grid
  bool columnCleared_ = false;
  std::int16_t emptyColumnCount_ = 0;  // the highest so far; slide mode only
  std::int16_t columns_ = -1;
  bool columnSlid_ = false;  // at any time on this grid; drop mode only
  std::int16_t rows_ = -1;
  std::int16_t spacing_ = 0;
  std::int16_t groupSize_ = 0;
  std::int16_t remainingCount_ = 0;
};

}  // namespace games::mozaro
