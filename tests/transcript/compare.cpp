// The cheapest way from the expected lines to those that came.
#include "tests/transcript/compare.h"

#include <algorithm>

namespace transcript {
namespace {

const std::string Any = "...";

constexpr int Whole = 100;  // the cost of a line too many or too few

/// What it costs to take one line for another: less the longer they are alike from their begin.
int CostOf(const std::string& expected, const std::string& came) {
  if (expected == came) return 0;
  const std::size_t shorter = std::min(expected.size(), came.size());
  const auto differ = std::mismatch(expected.begin(), expected.begin() + shorter, came.begin());
  const auto longer = static_cast<std::ptrdiff_t>(std::max(expected.size(), came.size()));
  return Whole - static_cast<int>(Whole / 2 * (differ.first - expected.begin()) / longer);
}

/// One step on the way, by how many expected lines and how many that came it takes.
struct Step {
  int cost = 0;
  int takesExpected = 0;
  int takesCame = 0;
};

/// Costs and steps from each pair of places to the ends of both.
class Ways {
 public:
  Ways(const Lines& expected, const Lines& came)
      : expected_(expected), came_(came), steps_((expected.size() + 1) * (came.size() + 1)) {
    for (std::size_t e = expected.size() + 1; e-- > 0;) {
      for (std::size_t c = came.size() + 1; c-- > 0;) At(e, c) = Best(e, c);
    }
  }

  Step& At(std::size_t e, std::size_t c) { return steps_[e * (came_.size() + 1) + c]; }
  bool IsAny(std::size_t e) const { return e < expected_.size() && expected_[e] == Any; }

 private:
  Step Best(std::size_t e, std::size_t c) {
    const bool moreExpected = e < expected_.size(), moreCame = c < came_.size();
    if (!moreExpected && !moreCame) return {};
    Step best{1 << 30, 0, 0};
    const auto offer = [&](int cost, int takesExpected, int takesCame) {
      const auto to =
          At(e + static_cast<std::size_t>(takesExpected), c + static_cast<std::size_t>(takesCame));
      if (cost + to.cost < best.cost) best = {cost + to.cost, takesExpected, takesCame};
    };
    // A changed line is offered first, so that a `...` beside it does not swallow it.
    if (IsAny(e)) {
      offer(0, 1, 0);
      if (moreCame) offer(0, 0, 1);
    } else {
      if (moreExpected && moreCame) offer(CostOf(expected_[e], came_[c]), 1, 1);
      if (moreExpected) offer(Whole, 1, 0);
      if (moreCame) offer(Whole, 0, 1);
    }
    return best;
  }

  const Lines& expected_;
  const Lines& came_;
  std::vector<Step> steps_;
};

}  // namespace

Comparison Compare(const Lines& expected, const Lines& came) {
  Ways ways(expected, came);
  Comparison result;
  result.same = ways.At(0, 0).cost == 0;
  for (std::size_t e = 0, c = 0; e < expected.size() || c < came.size();) {
    const Step step = ways.At(e, c);
    const bool any = ways.IsAny(e);
    const bool both = step.takesExpected && step.takesCame;
    if (any && step.takesExpected) {
      result.difference.push_back("  " + Any);
      result.updated.push_back(Any);
    } else if (both && expected[e] == came[c]) {
      result.difference.push_back("  " + came[c]);
      result.updated.push_back(came[c]);
    } else if (!any) {
      if (step.takesExpected) result.difference.push_back("- " + expected[e]);
      if (step.takesCame) result.difference.push_back("+ " + came[c]);
      if (step.takesCame) result.updated.push_back(came[c]);
    }
    e += static_cast<std::size_t>(step.takesExpected);
    c += static_cast<std::size_t>(step.takesCame);
  }
  return result;
}

Comparison CompareAnswer(const Lines& expected, const Lines& came) {
  Lines meant = expected;
  const std::string last = expected.empty() ? "" : expected.back();
  const bool written = last == "ok" || last.starts_with("no:") || last == "(ended)";
  if (!written) meant.push_back("ok");
  const bool anyReason = last == "no:" && came.back().starts_with("no:");
  if (anyReason) meant.back() = came.back();
  Comparison result = Compare(meant, came);
  if (anyReason) result.updated.back() = "no:";
  if (!written && came.back() == "ok") result.updated.pop_back();
  return result;
}

}  // namespace transcript
