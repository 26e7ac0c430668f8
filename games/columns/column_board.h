// The part of the board that the games of columns have alike: columns, their buttons, the two
// piles.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "games/columns/columns.h"
#include "ui/controls.h"

namespace games::columns {

/// What differs between the boards.
struct BoardShape {
  int columns;
  int lines;  ///< dividers, each on the right of its column
  int width;  ///< logical pixels of a column with the room beside it
  bool softOverTotal;
};

/// Owns its controls, which belong to the window and never outlive it.
class ColumnBoard {
 public:
  static constexpr ui::Size Card{69, 94};
  static constexpr int Height = 244;  ///< of a column with its total and its button

  template <class W>
  ColumnBoard(W* window, BoardShape shape, void (W::*hit)(int), void (W::*pass)())
      : ColumnTotal(window, "ColumnTotal", 0, shape.columns - 1),
        ColumnSoft(window, "ColumnSoft", 0, shape.columns - 1),
        cmdHit(window, "cmdHit", 0, shape.columns - 1, hit),
        NextCardPicture(window, "NextCardPicture"),
        PlayCardPicture(window, "PlayCardPicture"),
        cmdPass(window, "cmdPass", "&Pass", "", pass),
        shape_(shape) {
    MakeColumns(window);
  }

  ui::Array<ui::Label> ColumnTotal;
  ui::Array<ui::Label> ColumnSoft;
  ui::Array<ui::Button> cmdHit;
  ui::Picture NextCardPicture;  ///< the current card
  ui::Picture PlayCardPicture;  ///< the draw pile
  ui::Button cmdPass;

  /// Lays a card, by its key, on a place of a column.
  void ShowCard(int column, int place, const std::string& key);
  void ShowTotal(int column, int total);
  void ShowSoft(int column, bool soft);
  /// Drops all cards; no place is shown.
  void ClearColumns();
  void ClearColumn(int column);
  /// ClearColumns, and no column has a total.
  void Reset();
  /// Shows the first place of a column as an empty one.
  void ShowEmptyPlace(int column);
  void ShowEmptyPlaces();

  /// Every place, and each "Soft" that has text, follow `visible`.
  void ShowPlaces(bool visible);
  void ShowLines(bool visible);
  void ShowPiles(bool visible);

  void PlaceColumns(int left, int top);
  void PlacePiles(int left, int top);
  /// Shows a label centred over the cards of a column.
  void ShowOverColumn(ui::Label& label, int column);

 private:
  void MakeColumns(ui::Window* window);
  ui::Array<ui::Picture>& Column(int column);
  void PlaceColumn(int column, int left, int top);

  BoardShape shape_;
  std::vector<std::unique_ptr<ui::Array<ui::Picture>>> columns_;
  std::vector<std::unique_ptr<ui::Line>> lines_;
};

}  // namespace games::columns
