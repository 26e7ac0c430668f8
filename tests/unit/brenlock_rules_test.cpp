// Brenlock's rules: soft drops, busts, closed columns, what a sum is worth, and the Time Bonus.
#include "games/brenlock/rules.h"
#include "tests/check.h"
#include "tests/unit/columns_fixture.h"

namespace {

using namespace games::brenlock;

const std::vector<int> TwoOnEach = {0, 0, 1, 1, 2, 2, 3, 3, 4, 4};

struct Fixture : ColumnsFixture {
  Values values;
  Rules rules{deck, Shared(), values};

  void Start(const std::vector<int>& ranks) override {
    Stack(2, ranks);
    rules.Reset();
    rules.StartRound();
  }
  /// "-" for nothing, "X" for a bust, else the column's total, with "s" for a soft one and "!" for
  /// a 21 that the card made.
  std::string Hit(int column) override {
    const HitResult result = rules.Hit(column);
    if (result.outcome == Outcome::Nothing) return "- ";
    if (result.outcome == Outcome::Bust) return "X ";
    return std::to_string(rules.ColumnTotal.at(column)) + (rules.IsSoft(column) ? "s" : "") +
           (result.madeTwentyOne ? "! " : " ");
  }
  int TimeBonus(int limit, int second) {
    rules.SetTimeBonusDecay(limit);
    rules.UpdateTimeBonus(second);
    return rules.CurrentTimeBonus;
  }
};

/// Ties to even, in whole numbers only.
std::int64_t Quotient(std::int64_t a, std::int64_t b) {
  const std::int64_t whole = a / b, rest = a % b;
  return whole + (2 * rest > b || (2 * rest == b && whole % 2 != 0));
}

}  // namespace

TEST(BrenlockCountsAcesAndEndsOnBusts) {
  const std::vector<std::pair<std::vector<int>, std::string>> cases = {
      {{1, 9, 5}, "11s 20s 15 "},
      {{1, 13, 10, 1}, "11s 21s! 21 X "},  // a 21 is not closed, and a soft one is no danger
      {{10, 11, 1, 1}, "10 20 21! X "},
      {{1, 1, 9, 10}, "11s 12s 21s! 21 "},
      {{2, 2, 2, 2, 2, 2}, "2 4 6 8 10 - "},  // the fifth card closes the column
      {{2, 2, 2, 2, 13, 2}, "2 4 6 8 18 - "},
      {{5, 5, 5, 5, 13, 2}, "5 10 15 20 X - "},
      {{1, 2, 3, 5, 10, 1}, "11s 13s 16s 21s! 21 - "},
      {{10, 5, 13, 2}, "10 15 X - "},
  };
  for (const auto& [ranks, trace] : cases) CHECK_EQ(Fixture().Feed(ranks), trace);

  Fixture f;
  CHECK_EQ(f.Feed({13, 12, 10}), "10 20 X ");
  CHECK_EQ(f.Hit(1), "- ");  // a bust closes all columns
  CHECK_EQ(f.rules.CardTotal, 9999);
  CHECK(!f.rules.ScoreCanBeTaken());
  CHECK_EQ(f.Feed({10}), "10 ");
}

TEST(BrenlockTellsWhatASumIsWorth) {
  const std::vector<int> worth = {0, 50, 100, 150, 200, 250, 300, 400, 500, 1000, 0};
  for (int sum = 96; sum <= 106; ++sum) {
    CHECK_EQ(Rules::ValueOf(sum), worth.at(static_cast<std::size_t>(sum - 96)));
  }
  CHECK_EQ(Rules::ValueOf(9999), 0);

  // 98 with a soft ace that the next card uses up: the sum falls below the table.
  Fixture f;
  f.Start({10, 9, 10, 10, 10, 10, 10, 10, 1, 8, 8});
  f.Hits(TwoOnEach);
  CHECK_EQ(f.rules.CardTotal, 98);
  CHECK_EQ(f.rules.RoundScore(), 30000);
  CHECK_EQ(f.Hit(4), "17 ");
  CHECK_EQ(f.rules.CardTotal, 96);
  CHECK_EQ(f.rules.RoundScore(), 0);

  f.Start({1, 10, 1, 10, 1, 10, 1, 10, 1, 10});
  f.Hits(TwoOnEach);
  CHECK(f.rules.IsComplete() && f.rules.ScoreCanBeTaken());
}

TEST(BrenlockStepsAddUpToTheRoundsScore) {
  Fixture f;
  for (const int bonus : {1, 77, 100, 297, 10000, 32767}) {
    for (const int value : CardTotalValues) {
      f.rules.CurrentTimeBonus = bonus;
      f.rules.CardTotalValue = static_cast<std::int16_t>(value);
      CHECK_EQ(f.rules.RoundScore(), value * bonus);
      CHECK_EQ(f.rules.ScoreStep() * (value / 2), f.rules.RoundScore());
    }
  }
  for (const int bonus : {0, -5}) {  // a settings file can say so
    f.rules.CurrentTimeBonus = bonus;
    CHECK_EQ(f.rules.ScoreStep(), 0);
  }
}

TEST(BrenlockTimeBonusFallsInSinglePrecision) {
  Fixture f;
  const Values ranges[] = {{300, 100, 0}, {10000, 1, 0}, {145, 100, 0}, {2, 1, 0}};
  for (const Values& range : ranges) {
    f.values = range;
    for (const int limit : {15, 30, 45, 60, 75}) {
      for (int second = 0; second <= limit; ++second) {
        const std::int64_t lost = std::int64_t{range.TimeBonusMax - range.TimeBonusMin} * second;
        const bool tie = 2 * lost % (2 * limit) == limit;
        const auto exact = Quotient(std::int64_t{range.TimeBonusMax} * limit - lost, limit);
        CHECK(std::abs(f.TimeBonus(limit, second) - exact) <= (tie ? 1 : 0));
      }
      CHECK_EQ(f.TimeBonus(limit, limit), range.TimeBonusMin);
    }
  }
  // Besides two at the defaults: exact halves, where the stored decay lies a trace beside 5/6 and
  // 1/6 and decides them, and what a settings file can say.
  const struct {
    Values values;
    int limit, second, bonus;
  } cases[] = {{{300, 100, 0}, 60, 1, 297},          {{300, 100, 0}, 60, 2, 293},
               {{150, 100, 0}, 60, 9, 143},          {{150, 100, 0}, 60, 3, 148},
               {{110, 100, 0}, 60, 3, 109},          {{110, 100, 0}, 60, 9, 108},
               {{32767, -32768, 0}, 15, 15, -32768}, {{32767, -32768, 0}, 0, 5, 32767}};
  for (const auto& c : cases) {
    f.values = c.values;
    CHECK_EQ(f.TimeBonus(c.limit, c.second), c.bonus);
  }
}

TEST(BrenlockRoundsAndPasses) {
  Fixture f;
  f.CardsToPass = 1;
  f.Start({5, 6, 7});
  CHECK(f.rules.Pass() && !f.rules.Pass());
  CHECK_EQ(f.Hit(0), "6 ");
  f.CardsToPass = 32767;
  f.Start({});
  while (f.rules.Pass()) {
  }
  CHECK_EQ(f.Hits({0, 0}), "7 - ");  // the deck is used up

  CHECK_EQ(f.rules.RoundToPlay(3, 0), 3);
  CHECK_EQ(f.rules.RoundToPlay(4, 199999), 5);
  CHECK_EQ(f.rules.RoundToPlay(4, 200000), 4);
}
