// Rows of labelled fields, groups and buttons.
#include "ui/qt/form_layout.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/controls.h"
#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr int Margin = 14;
constexpr int Gap = 8;
constexpr int ButtonWidth = 96;
constexpr int LongestLine = 64;  // characters of a caption that is not broken into lines

using MakeWidget = std::function<QWidget*(Control&, QWidget*)>;

bool IsTall(const Control& control) {
  return control.GetKind() == Kind::Field && static_cast<const Field&>(control).Multiline;
}

void AddButtons(QBoxLayout* page, const FormRow& row, QWidget* parent, const MakeWidget& make) {
  auto* line = new QHBoxLayout;
  line->setSpacing(Gap);
  line->addStretch();
  for (Control* cell : row.cells) {
    QWidget* button = make(*cell, parent);
    button->setMinimumWidth(ButtonWidth);
    line->addWidget(button);
  }
  line->addStretch();
  page->addSpacing(Gap / 2);
  page->addLayout(line);
}

/// Rows that stand in one grid, so that their fields are aligned.
class Grid {
 public:
  Grid(QWidget* parent, const MakeWidget& make, int columns)
      : parent_(parent), make_(make), columns_(columns), layout_(new QGridLayout) {
    layout_->setHorizontalSpacing(Gap + 2);
    layout_->setVerticalSpacing(Gap);
    layout_->setColumnStretch(columns - 1, 1);
  }

  void Add(const FormRow& row) {
    QLabel* caption = nullptr;
    const int count = static_cast<int>(row.cells.size());
    for (int column = 0; column < count; ++column) {
      Control& cell = *row.cells[static_cast<std::size_t>(column)];
      QWidget* widget = make_(cell, parent_);
      const bool last = column == count - 1;
      auto* label = qobject_cast<QLabel*>(widget);
      // A caption beside a tall field stands at its first line.
      const bool beside = label && !last && IsTall(*row.cells.back());
      layout_->addWidget(widget, line_, column, 1, last ? columns_ - column : 1,
                         beside ? Qt::AlignTop : Qt::Alignment());
      if (!label && caption) caption->setBuddy(widget);
      caption = label;
      if (label && (count == 1 || label->text().size() > LongestLine)) label->setWordWrap(true);
      if (IsTall(cell)) layout_->setRowStretch(line_, 1);
    }
    ++line_;
  }

  QGridLayout* Layout() const { return layout_; }

 private:
  QWidget* parent_;
  const MakeWidget& make_;
  const int columns_;
  QGridLayout* layout_;
  int line_ = 0;
};

/// Neighbouring rows of one group; buttons stand alone.
std::vector<std::vector<const FormRow*>> Blocks(const Form& form) {
  std::vector<std::vector<const FormRow*>> blocks;
  for (const FormRow& row : form.Rows()) {
    const FormRow* before = blocks.empty() ? nullptr : blocks.back().front();
    const bool joins = before && before->group == row.group && before->look == row.look &&
                       row.look == FormRow::Look::Fields;
    if (!joins) blocks.emplace_back();
    blocks.back().push_back(&row);
  }
  return blocks;
}

int ColumnsOf(const std::vector<const FormRow*>& block) {
  std::size_t columns = 1;
  for (const FormRow* row : block) columns = std::max(columns, row->cells.size());
  return static_cast<int>(columns);
}

}  // namespace

void LayOutForm(QWidget* board, const Form& form, const MakeWidget& make) {
  auto* page = new QVBoxLayout(board);
  page->setContentsMargins(Margin, Margin, Margin, Margin);
  page->setSpacing(Gap);
  for (const auto& block : Blocks(form)) {
    const FormRow& first = *block.front();
    if (first.look == FormRow::Look::Buttons) {
      AddButtons(page, first, board, make);
      continue;
    }
    QWidget* parent = first.group ? make(*first.group, board) : board;
    Grid grid(parent, make, ColumnsOf(block));
    for (const FormRow* row : block) grid.Add(*row);
    if (first.group) {
      parent->setLayout(grid.Layout());
      page->addWidget(parent);
    } else {
      page->addLayout(grid.Layout(), 1);
    }
  }
}

}  // namespace ui::qt
