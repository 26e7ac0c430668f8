// Any bytes as a high score table: at most ten rows, and rows that are written come back the same.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/scores/score_table.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto rows = core::ParseTable(std::string_view(reinterpret_cast<const char*>(data), size));
  if (rows.size() > core::scoreRows) __builtin_trap();
  const auto again = core::ParseTable(core::FormatTable(rows));
  if (again.size() != rows.size()) __builtin_trap();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (again[i].score != rows[i].score) __builtin_trap();
  }
  if (core::RankFor(rows, 1000) >= static_cast<int>(core::scoreRows)) __builtin_trap();
  return 0;
}
