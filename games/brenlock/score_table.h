// The table of what the sums of the columns are worth, as it stands on the board.
#pragma once

#include <memory>
#include <vector>

#include "ui/controls.h"

namespace games::brenlock {

/// A frame with a row for all that is worth nothing, and one for each sum that scores.
class ScoreTable {
 public:
  explicit ScoreTable(ui::Window* window);

  ui::Frame frmScore;
  static constexpr ui::Size Extent{106, 166};

  /// Marks the row of a sum. A sum above the highest has none.
  void Mark(int cardTotal);

 private:
  struct Row {
    std::unique_ptr<ui::Label> total;
    std::unique_ptr<ui::Label> value;
  };
  void AddRow(const std::string& totalName, const std::string& total, const std::string& valueName,
              int value);

  std::vector<Row> rows_;
};

}  // namespace games::brenlock
