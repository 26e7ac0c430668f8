// The rows of the table and the one that is marked.
#include "games/brenlock/score_table.h"

#include <algorithm>

#include "core/session/counter_box.h"
#include "games/brenlock/rules.h"

namespace games::brenlock {
namespace {

constexpr int FirstRow = 20;
constexpr int RowHeight = 14;

/// The value labels are not all spelt alike.
std::string ValueName(int total) {
  return (total < 104 ? "lblscore" : "lblScore") + std::to_string(total);
}

}  // namespace

ScoreTable::ScoreTable(ui::Window* window) : frmScore(window, "frmScore", "Card Total Value") {
  AddRow("lblNothing", "< " + std::to_string(LowestScoring), "lblScore0", 0);
  for (int total = LowestScoring; total <= HighestScoring; ++total) {
    const std::string number = std::to_string(total);
    AddRow("lbl" + number, number, ValueName(total), Rules::ValueOf(total));
  }
}

void ScoreTable::AddRow(const std::string& totalName, const std::string& total,
                        const std::string& valueName, int value) {
  ui::Window* window = &frmScore.Owner();
  const int y = FirstRow + static_cast<int>(rows_.size()) * RowHeight;
  Row row{std::make_unique<ui::Label>(window, totalName, total),
          std::make_unique<ui::Label>(window, valueName, std::to_string(value))};
  core::CenterIn(*row.total, {4, y, 48, RowHeight});
  core::CenterIn(*row.value, {54, y, 48, RowHeight});
  row.total->SetContainer(&frmScore);
  row.value->SetContainer(&frmScore);
  rows_.push_back(std::move(row));
}

void ScoreTable::Mark(int cardTotal) {
  const auto marked = static_cast<std::size_t>(std::max(0, cardTotal - LowestScoring + 1));
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    for (ui::Label* label : {rows_[i].total.get(), rows_[i].value.get()}) {
      label->TextColor = i == marked ? ui::Red : ui::Black;
      label->Bold = i == marked;
    }
  }
}

}  // namespace games::brenlock
