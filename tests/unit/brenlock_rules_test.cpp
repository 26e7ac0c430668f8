// Brenlock's rules: soft drops, busts, closed columns, what a sum is worth, and the Time Bonus.
#include "games/brenlock/rules.h"
#include "tests/check.h"
#include "tests/unit/columns_fixture.h"

namespace {

using namespace games::brenlock;

struct Fixture : ColumnsFixture {
  Values values;
  Rules rules{deck, Shared(), values};

  void Start(const std::vector<int>& ranks) {
    Stack(2, ranks);
    rules.Reset();
    rules.StartRound();
  }
  /// One word a hit: "-" nothing, "X" bust, else the column's total, with "s" for a soft one and
  /// "!" for a 21 that the card made.
  std::string Hit(int column) {
    const HitResult result = rules.Hit(column);
    if (result.outcome == Outcome::Nothing) return "- ";
    if (result.outcome == Outcome::Bust) return "X ";
    return std::to_string(rules.ColumnTotal.at(column)) + (rules.IsSoft(column) ? "s" : "") +
           (result.madeTwentyOne ? "! " : " ");
  }
  std::string Hit(std::initializer_list<int> columns) {
    std::string trace;
    for (const int column : columns) trace += Hit(column);
    return trace;
  }
  std::string Feed(const std::vector<int>& ranks) {
    Start(ranks);
    std::string trace;
    for (std::size_t i = 0; i < ranks.size(); ++i) trace += Hit(0);
    return trace;
  }
  /// Two cards on each column.
  void Fill(const std::vector<int>& pairs) {
    for (std::size_t i = 0; i < pairs.size(); ++i) Hit(static_cast<int>(i / 2));
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
  f.Start({13, 12, 10});
  CHECK_EQ(f.Hit({0, 0}), "10 20 ");
  CHECK_EQ(f.rules.CardTotal, 20);
  CHECK_EQ(f.Hit({5, -1}), "- - ");
  CHECK_EQ(f.Hit({0, 1}), "X - ");  // a bust closes all columns
  CHECK_EQ(f.rules.CardTotal, 9999);
  CHECK(!f.rules.ScoreCanBeTaken());
  f.rules.Reset();
  f.rules.StartRound();
  CHECK_EQ(f.Hit(1), "10 ");
}

TEST(BrenlockTellsWhatASumIsWorth) {
  const std::vector<int> worth = {0, 50, 100, 150, 200, 250, 300, 400, 500, 1000, 0};
  for (int sum = 96; sum <= 106; ++sum) {
    CHECK_EQ(Rules::ValueOf(sum), worth.at(static_cast<std::size_t>(sum - 96)));
  }
  CHECK_EQ(Rules::ValueOf(9999), 0);

  // 98 with a soft ace that the next card uses up: the sum falls below the table.
  Fixture f;
  const std::vector<int> cards = {10, 9, 10, 10, 10, 10, 10, 10, 1, 8, 8, 10, 2};
  f.Start(cards);
  f.Fill({cards.begin(), cards.begin() + 10});
  CHECK_EQ(f.rules.CardTotal, 98);
  CHECK_EQ(f.rules.RoundScore(), 30000);
  CHECK_EQ(f.Hit(4), "17 ");
  CHECK_EQ(f.rules.CardTotal, 96);
  CHECK(!f.rules.ScoreCanBeTaken());
  CHECK_EQ(f.rules.RoundScore(), 0);
  CHECK_EQ(f.Hit({0, 1}), "X - ");

  f.Start({1, 10, 1, 10, 1, 10, 1, 10, 1, 10});
  f.Fill(std::vector<int>(10));
  CHECK(f.rules.IsComplete() && f.rules.ScoreCanBeTaken());
  CHECK_EQ(f.rules.RoundScore(), 300000);
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
  const auto at = [&](int limit, int second) {
    f.rules.SetTimeBonusDecay(limit);
    f.rules.UpdateTimeBonus(second);
    return f.rules.CurrentTimeBonus;
  };
  CHECK_EQ(at(60, 1), 297);
  CHECK_EQ(at(60, 2), 293);
  CHECK_EQ(at(60, 4), 287);

  const std::vector<std::pair<int, int>> ranges = {{300, 100}, {10000, 1}, {145, 100}, {2, 1}};
  for (const auto& [max, min] : ranges) {
    f.values.TimeBonusMax = static_cast<std::int16_t>(max);
    f.values.TimeBonusMin = static_cast<std::int16_t>(min);
    for (const int limit : {15, 30, 45, 60, 75}) {
      for (int second = 0; second <= limit; ++second) {
        const std::int64_t lost = std::int64_t{max - min} * second;
        const bool tie = 2 * lost % (2 * limit) == limit;
        const auto exact = Quotient(std::int64_t{max} * limit - lost, limit);
        CHECK(std::abs(at(limit, second) - exact) <= (tie ? 1 : 0));
      }
      CHECK_EQ(at(limit, limit), min);
    }
  }
  // Exact halves: the stored decay lies a trace beside 5/6 and 1/6, and decides them.
  f.values = {150, 100, 0};
  CHECK_EQ(at(60, 9), 143);
  CHECK_EQ(at(60, 3), 148);
  f.values = {110, 100, 0};
  CHECK_EQ(at(60, 3), 109);
  CHECK_EQ(at(60, 9), 108);
  f.values = {32767, -32768, 0};
  CHECK_EQ(at(15, 15), -32768);
  CHECK_EQ(at(0, 5), 32767);  // no limit, no fall
}

TEST(BrenlockRoundsAndPasses) {
  Fixture f;
  f.CardsToPass = 1;
  f.Start({5, 6, 7});
  CHECK_EQ(f.rules.CurrentCard(), " 5H");
  CHECK(f.rules.Pass() && !f.rules.Pass());
  CHECK_EQ(f.Hit(0), "6 ");
  f.CardsToPass = 32767;
  f.Start({});
  while (f.rules.Pass()) {
  }
  CHECK_EQ(f.DeckIndex, 52);
  CHECK_EQ(f.Hit({0, 0}), "7 - ");  // the deck is used up

  CHECK_EQ(f.rules.RoundToPlay(3, 0), 3);
  CHECK_EQ(f.rules.RoundToPlay(4, 199999), 5);
  CHECK_EQ(f.rules.RoundToPlay(4, 200000), 4);
}
