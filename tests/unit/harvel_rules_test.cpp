// Harvel's rules: aces in every order, gimmes, busts, the 21 Counter, passes and the deck's end.
#include "games/harvel/rules.h"
#include "tests/check.h"
#include "tests/unit/columns_fixture.h"

namespace {

using namespace games::harvel;

struct Fixture : ColumnsFixture {
  Values values;
  Rules rules{deck, Shared(), values};

  void Start(const std::vector<int>& ranks) override {
    Stack(1, ranks);
    rules.StartGame();
  }
  /// "-" for nothing, "X" for a bust, else what the column shows, with "(21)" or "(5)" for a
  /// clearing and "s" behind a soft total.
  std::string Hit(int column) override {
    switch (rules.Hit(column).outcome) {
      case Outcome::Nothing:
        return "- ";
      case Outcome::Refused:
        return "X ";
      case Outcome::TwentyOne:
        return "(21) ";
      case Outcome::FiveCardGimme:
        return "(5) ";
      default:
        return std::to_string(rules.ColumnTotal.at(column)) + (rules.IsSoft(column) ? "s " : " ");
    }
  }
  int TicksTo(CounterTick wanted) {
    for (int ticks = 1; ticks < 1000; ++ticks) {
      if (rules.TickCounter() == wanted) return ticks;
    }
    return 0;
  }
};

}  // namespace

TEST(HarvelCountsAcesAndClearsColumns) {
  const std::vector<std::pair<std::vector<int>, std::string>> cases = {
      {{1, 13}, "11s (21) "},
      {{13, 1, 2}, "10 (21) 2 "},
      {{1, 5, 9, 6}, "11s 16s 15 (21) "},
      {{1, 1}, "11s 12s "},
      {{1, 9, 1}, "11s 20s (21) "},
      {{12, 11, 10, 2}, "10 20 X X "},  // the refused card stays the current one
      {{10, 11, 1}, "10 20 (21) "},
      {{2, 3, 2, 3, 2}, "2 5 7 10 (5) "},
      {{2, 3, 4, 5, 7}, "2 5 9 14 (21) "},
      {{1, 2, 2, 2, 2, 10, 10, 5}, "11s 13s 15s 17s (5) 10 20 X "},
      {{2, 2, 2, 3, 1, 10}, "2 4 6 9 (5) 10 "},
      {{1, 2, 3, 4, 10}, "11s 13s 16s 20s (5) "},  // fifth card and soft ace at once
  };
  for (const auto& [ranks, trace] : cases) CHECK_EQ(Fixture().Feed(ranks), trace);
}

TEST(HarvelCounterHoldsTheBonusFigureDown) {
  Fixture f;
  f.Start({1, 10, 1, 10, 1, 10, 1, 10});
  f.Hits({0, 0, 1, 1});
  CHECK_EQ(f.TicksTo(CounterTick::HalfWay), 50);
  f.Hits({0, 0});
  CHECK_EQ(f.rules.CounterValue, 0);
  CHECK_EQ(f.rules.TwentyOneBonus(), 9000);
  CHECK_EQ(f.rules.BonusSteps(), 9);
  for (int run = 0; run < 2; ++run) CHECK_EQ(f.TicksTo(CounterTick::RanOut), 101);
  CHECK_EQ(f.rules.TwentyOneBonus(), 3000);
  f.Hits({0, 0});
  CHECK_EQ(f.rules.TwentyOneBonus(), 8000);

  // Values that only a hand-written settings file can hold.
  for (const auto& [value, bonus] : {std::pair{0, 0}, {2000000000, 2147483647}, {-5, -15}}) {
    f.values.TwentyOneBonusValue = value;
    f.Start({1, 10});
    f.Hits({0, 0});
    f.rules.TwentyOneCount = 3;
    CHECK_EQ(f.rules.TwentyOneBonus(), bonus);
    CHECK_EQ(f.rules.BonusSteps(), value > 0 ? 2 : 0);
  }
}

TEST(HarvelPassesAndTheDecksEnd) {
  Fixture f;
  f.Start({});
  CHECK(f.rules.Pass() && f.rules.Pass() && f.rules.Pass());
  CHECK(!f.rules.Pass());
  CHECK_EQ(f.rules.CardsUsed(), 3);

  // Three sevens clear a column: 52 cards are seventeen 21s and one card more.
  f.CardsToPass = 100;
  f.Start({});
  std::string piles;
  for (; f.DeckIndex < 52; f.Hit(2)) piles += f.rules.DeckPicture()[0];
  CHECK_EQ(piles, std::string(16, 'F') + std::string(18, 'H') + std::string(17, 'B'));
  CHECK(!f.rules.Pass());  // the last card
  CHECK_EQ(f.Hits({2, 2}), "7 - ");
  CHECK(f.rules.DeckFinished() && !f.rules.Pass());
  CHECK_EQ(f.rules.CardsUsed(), 52);
  CHECK_EQ(f.rules.TwentyOneCount, 17);
}

TEST(HarvelRoundsLeaveNothingBehind) {
  Fixture f;
  f.Start({1, 1});
  f.Hits({0, 3});
  f.rules.Pass();
  f.rules.EndRound();
  f.rules.StartRound();
  CHECK_EQ(f.SoftAces, (std::array<std::int16_t, 5>{}));
  CHECK_EQ(f.PassesLeft, 3);
  f.Stack(1, {10, 10, 10});
  CHECK_EQ(f.Hits({0, 0, 0}), "10 20 X ");

  const struct {
    int round;
    std::int32_t score;
    bool played;
  } rounds[] = {{2, -500, true}, {4, 250000, false}, {4, 250001, true}, {5, 9999999, false}};
  for (const auto& r : rounds) CHECK_EQ(f.rules.IsPlayed(r.round, r.score), r.played);
}
