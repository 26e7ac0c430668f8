// Columns of overlapping cards with their totals and buttons, and the piles beside them.
#include "games/columns/column_board.h"

#include "core/session/counter_box.h"
#include "core/text/number.h"

namespace games::columns {
namespace {

constexpr int CardStep = 22;
constexpr int CardsHeight = ColumnBoard::Card.h + (PlacesOfColumn - 1) * CardStep;
constexpr int LabelHeight = 18;
constexpr ui::Size HitSize{69, 26};
constexpr ui::Size PileSize{76, 98};
constexpr ui::Size NoteSize{124, 24};

}  // namespace

void ColumnBoard::MakeColumns(ui::Window* window) {
  for (int c = 0; c < shape_.columns; ++c) {
    const std::string name = "Column" + std::to_string(c + 1);
    columns_.push_back(
        std::make_unique<ui::Array<ui::Picture>>(window, name, 0, PlacesOfColumn - 1));
    if (c < shape_.lines) lines_.push_back(std::make_unique<ui::Line>(window, name + "Line"));
    ColumnTotal(c).Text = "0";
    ColumnTotal(c).TextColor = ui::Blue;
    ColumnTotal(c).Bold = true;
    ColumnTotal(c).FontSize = 12;
    ColumnSoft(c).TextColor = ui::Blue;
    ColumnSoft(c).Visible = false;
    cmdHit(c).Text = "Hit";
    cmdHit(c).Pointer = "POINTER";
  }
  cmdPass.Pointer = "POINTER";
}

ui::Array<ui::Picture>& ColumnBoard::Column(int column) {
  return *columns_.at(static_cast<std::size_t>(column));
}

void ColumnBoard::ShowCard(int column, int place, const std::string& key) {
  ui::Picture& picture = Column(column)(place);
  picture.Border = true;
  picture.Visible = true;
  picture.Show(key);
}

void ColumnBoard::ShowTotal(int column, int total) {
  ColumnTotal(column).Text = core::Digits(total);
}

void ColumnBoard::ShowSoft(int column, bool soft) {
  ColumnSoft(column).Text = soft ? "Soft" : "";
  ColumnSoft(column).Visible = soft;
}

void ColumnBoard::ClearColumn(int column) {
  Column(column).ForEach([](int, ui::Picture& picture) {
    picture.Visible = false;
    picture.Show("");
    picture.Border = false;
  });
}

void ColumnBoard::ClearColumns() {
  for (int c = 0; c < shape_.columns; ++c) ClearColumn(c);
}

void ColumnBoard::Reset() {
  ClearColumns();
  for (int c = 0; c < shape_.columns; ++c) {
    ShowTotal(c, 0);
    ShowSoft(c, false);
  }
}

void ColumnBoard::ShowEmptyPlace(int column) {
  ShowCard(column, 0, "EMPTY");
  Column(column)(0).Border = false;
}

void ColumnBoard::ShowEmptyPlaces() {
  for (int c = 0; c < shape_.columns; ++c) ShowEmptyPlace(c);
}

void ColumnBoard::ShowPlaces(bool visible) {
  for (auto& column : columns_) column->Show(visible);
  ColumnSoft.ForEach([&](int, ui::Label& soft) {
    if (!soft.Text().empty()) soft.Visible = visible;
  });
}

void ColumnBoard::ShowLines(bool visible) {
  for (auto& line : lines_) line->Visible = visible;
}

void ColumnBoard::ShowPiles(bool visible) {
  NextCardPicture.Visible = visible;
  PlayCardPicture.Visible = visible;
}

// --- places -------------------------------------------------------------------------------------

void ColumnBoard::PlaceColumns(int left, int top) {
  for (int c = 0; c < shape_.columns; ++c) PlaceColumn(c, left + c * shape_.width, top);
}

void ColumnBoard::PlaceColumn(int column, int left, int top) {
  const int x = left + (shape_.width - Card.w) / 2;
  Column(column).ForEach([&](int place, ui::Picture& picture) {
    picture.Place = {x, top + place * CardStep, Card.w, Card.h};
  });
  const int middle = Card.w / 2;
  int y = top + CardsHeight + 2;
  if (shape_.softOverTotal) {
    core::CenterIn(ColumnSoft(column), {x, y, Card.w, LabelHeight - 4});
    core::CenterIn(ColumnTotal(column), {x, y + LabelHeight - 4, Card.w, LabelHeight});
  } else {
    core::CenterIn(ColumnTotal(column), {x, y + 6, middle, LabelHeight});
    core::CenterIn(ColumnSoft(column), {x + middle, y + 6, middle, LabelHeight});
  }
  y = top + Height - HitSize.h;
  cmdHit(column).Place = {x, y, HitSize.w, HitSize.h};
  if (column < shape_.lines) {
    lines_[static_cast<std::size_t>(column)]->Place = {left + shape_.width, top, 1, Height};
  }
}

void ColumnBoard::PlacePiles(int left, int top) {
  NextCardPicture.Place = {left, top, Card.w, Card.h};
  PlayCardPicture.Place = {left + Card.w + 11, top, PileSize.w, PileSize.h};
  cmdPass.Place = {left + Card.w + 11, top + PileSize.h + 6, PileSize.w, HitSize.h};
}

void ColumnBoard::ShowOverColumn(ui::Label& label, int column) {
  const ui::Rect card = Column(column)(0).Place();
  core::CenterIn(label, {card.CenterX() - NoteSize.w / 2, card.y + CardsHeight / 2 - NoteSize.h / 2,
                         NoteSize.w, NoteSize.h});
  label.Visible = true;
}

}  // namespace games::columns
