// The cheapest way from the expected lines to those that came.
#include "tests/transcript/compare.h"

#include <algorithm>

namespace transcript {
namespace {

const std::string Any = "...";

constexpr int Whole = 100;  // the cost of a line too many or too few

/// What it costs to take one line for another: less the more they begin and end alike.
int CostOf(const std::string& expected, const std::string& came) {
  if (expected == came) return 0;
  const std::size_t shorter = std::min(expected.size(), came.size());
  std::size_t alike = 0;
  while (alike < shorter && expected[alike] == came[alike]) ++alike;
  std::size_t end = 0;
  while (alike + end < shorter && expected.rbegin()[end] == came.rbegin()[end]) ++end;
  const auto longer = static_cast<int>(std::max(expected.size(), came.size()));
  return Whole - Whole / 2 * static_cast<int>(alike + end) / longer;
}

/// Whether they are the same, found without looking for the cheapest way.
bool Matches(const Lines& expected, const Lines& came) {
  std::size_t e = 0, c = 0, behindAny = 0, retry = 0;
  while (c < came.size() || e < expected.size()) {
    if (e < expected.size() && expected[e] == Any) {
      behindAny = ++e;
      retry = c;
    } else if (e < expected.size() && c < came.size() && expected[e] == came[c]) {
      ++e;
      ++c;
    } else if (behindAny > 0 && retry < came.size()) {
      e = behindAny;
      c = ++retry;
    } else {
      return false;
    }
  }
  return true;
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
  if (Matches(expected, came)) return {true, {}, expected};
  Ways ways(expected, came);
  Comparison result;
  for (std::size_t e = 0, c = 0; e < expected.size() || c < came.size();) {
    const Step step = ways.At(e, c);
    const bool any = ways.IsAny(e);
    const bool equal = !any && step.takesExpected && step.takesCame && expected[e] == came[c];
    if (any && step.takesExpected) {
      result.difference.push_back("  " + Any);
      result.updated.push_back(Any);
    } else if (equal) {
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
  const auto isLast = [](const std::string& line) {
    return line == "ok" || line.starts_with("no:") || line == "(ended)";
  };
  Lines body = expected, cameBody = came;
  std::string last = "ok", cameLast;
  if (!body.empty() && isLast(body.back())) {
    last = body.back();
    body.pop_back();
  }
  if (!cameBody.empty()) {
    cameLast = cameBody.back();
    cameBody.pop_back();
  }
  Comparison result = Compare(body, cameBody);
  if (last == cameLast || (last == "no:" && cameLast.starts_with("no:"))) {
    result.difference.push_back("  " + cameLast);
    const bool written = expected.size() > body.size();
    if (written || last != "ok") result.updated.push_back(last);
  } else {
    result.same = false;
    result.difference.push_back("- " + last);
    result.difference.push_back("+ " + cameLast);
    if (cameLast != "ok") result.updated.push_back(cameLast);
  }
  return result;
}

}  // namespace transcript
