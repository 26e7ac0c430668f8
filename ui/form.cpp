// A plain layout of a dialog's rows, for platforms that have no layouts of their own.
#include "ui/form.h"

#include <algorithm>

#include "ui/controls.h"

namespace ui {
namespace {

constexpr int Margin = 12;
constexpr int RowHeight = 24;
constexpr int LineHeight = 16;
constexpr int ButtonWidth = 96;
constexpr int CharactersPerPixelTimes100 = 16;  // about six pixels to a character

int LinesOf(const std::string& text, int width) {
  const int perLine = std::max(1, width * CharactersPerPixelTimes100 / 100);
  return 1 + static_cast<int>(text.size()) / perLine;
}

int HeightOf(const Control& control, int width) {
  if (control.GetKind() == Kind::Label) {
    const auto& label = static_cast<const Label&>(control);
    return std::max(RowHeight, LinesOf(label.Text(), width) * LineHeight);
  }
  if (control.GetKind() == Kind::Field && static_cast<const Field&>(control).Multiline) return 120;
  return RowHeight;
}

int PlaceRow(const FormRow& row, int y, int width) {
  const int count = std::max<int>(1, static_cast<int>(row.cells.size()));
  const bool buttons = row.look == FormRow::Look::Buttons;
  const int cellWidth = buttons ? ButtonWidth : (width - (count - 1) * Margin) / count;
  int x = Margin + (buttons ? (width - count * (ButtonWidth + Margin) + Margin) / 2 : 0);
  int height = RowHeight;
  for (Control* cell : row.cells) {
    height = std::max(height, HeightOf(*cell, cellWidth));
    cell->Place = Rect{x, y, cellWidth, HeightOf(*cell, cellWidth)};
    x += cellWidth + Margin;
  }
  return height;
}

}  // namespace

void Form::Row(std::initializer_list<Control*> cells, Control* group) {
  rows_.push_back({cells, group, FormRow::Look::Fields});
}

void Form::Buttons(std::initializer_list<Control*> cells) {
  rows_.push_back({cells, nullptr, FormRow::Look::Buttons});
}

int PlaceForm(const Form& form, int width) {
  int y = Margin;
  Control* group = nullptr;
  for (const FormRow& row : form.Rows()) {
    if (row.group != group) {
      group = row.group;
      if (group) {
        group->Place = Rect{0, y, width, 0};
        y += Margin;
      }
    }
    const int originY = group ? y - group->Place().y : y;
    const int height = PlaceRow(row, originY, width - 2 * Margin);
    y += height + Margin / 2;
    if (group) group->SetSize(width, y - group->Place().y + Margin / 2);
  }
  return y + Margin;
}

}  // namespace ui
