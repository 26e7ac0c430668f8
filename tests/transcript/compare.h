// What is expected beside what came, line by line.
#pragma once

#include <string>
#include <vector>

namespace transcript {

using Lines = std::vector<std::string>;

struct Comparison {
  bool same = false;
  Lines difference;  ///< for a reader: lines begin with "  ", "- " (expected) or "+ " (came)
  Lines updated;     ///< what would have been the same: each `...` stays
};

/// A line `...` of `expected` stands for any number of lines.
Comparison Compare(const Lines& expected, const Lines& came);

/// The same for an answer, whose last line must be met: an `ok` left out is added to `expected`.
Comparison CompareAnswer(const Lines& expected, const Lines& came);

}  // namespace transcript
