// Harvel's rules: aces in every order, gimmes, busts, the 21 Counter, passes and the deck's end.
#include "games/harvel/rules.h"
#include "tests/check.h"
#include "tests/unit/columns_fixture.h"

namespace {

using namespace games::harvel;

struct Fixture : ColumnsFixture {
  Values values;
  Rules rules{deck, Shared(), values};

  void Start(const std::vector<int>& ranks = {}) {
    Stack(1, ranks);
    rules.StartGame();
  }
  /// One word a hit: "-" nothing, "X" bust, else what the column shows, with "21" or "5" for a
  /// clearing and "s" behind a soft total.
  std::string Hit(int column) {
    const HitResult result = rules.Hit(column);
    switch (result.outcome) {
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
  std::string Hit(std::initializer_list<int> columns) {
    std::string trace;
    for (const int column : columns) trace += Hit(column);
    return trace;
  }
  /// All ranks on the first column.
  std::string Feed(const std::vector<int>& ranks) {
    Start(ranks);
    std::string trace;
    for (std::size_t i = 0; i < ranks.size(); ++i) trace += Hit(0);
    return trace;
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

TEST(HarvelPaysForHits) {
  Fixture f;
  f.Start({10, 10, 5, 1, 2, 2, 2, 2, 1});
  CHECK_EQ(f.Hit({0, 0}), "10 20 ");
  const HitResult bust = f.rules.Hit(0);
  CHECK_EQ(bust.points, -100);
  CHECK_EQ(f.rules.CardsUsed(), 2);
  CHECK_EQ(f.Hit({3, 0}), "5 (21) ");
  CHECK_EQ(f.Hit({1, 1, 1, 1}), "2 4 6 8 ");
  const HitResult gimme = f.rules.Hit(1);
  CHECK_EQ(gimme.points, 750);
  CHECK_EQ(gimme.place, 4);
  CHECK_EQ(f.rules.TwentyOneCount, 1);
  for (const int column : {-1, 4, 5, 99}) CHECK_EQ(f.Hit(column), "- ");
  CHECK_EQ(f.rules.CardsUsed(), 9);
}

TEST(HarvelCounterHoldsTheBonusFigureDown) {
  Fixture f;
  f.Start({1, 10, 1, 10, 1, 10, 1, 10});
  const auto make = [&](int times) {
    while (times-- > 0) f.Hit(0), f.Hit(0);
  };
  const auto ticksTo = [&](CounterTick wanted) {
    for (int ticks = 1; ticks < 1000; ++ticks) {
      if (f.rules.TickCounter() == wanted) return ticks;
    }
    return 0;
  };
  make(2);
  CHECK_EQ(ticksTo(CounterTick::HalfWay), 50);
  make(1);
  CHECK_EQ(f.rules.CounterValue, 0);
  CHECK_EQ(f.rules.TwentyOneBonus(), 9000);
  CHECK_EQ(f.rules.BonusSteps(), 9);
  CHECK_EQ(ticksTo(CounterTick::RanOut), 101);
  CHECK_EQ(f.rules.BonusFigure, 1000);
  CHECK_EQ(ticksTo(CounterTick::RanOut), 101);
  CHECK_EQ(f.rules.TwentyOneBonus(), 3000);
  make(1);
  CHECK_EQ(f.rules.TwentyOneBonus(), 8000);

  // Values that only a hand-written settings file can hold.
  for (const auto& [value, bonus] : {std::pair{0, 0}, {2000000000, 2147483647}, {-5, -5}}) {
    f.values.TwentyOneBonusValue = value;
    f.Start({1, 10});
    make(1);
    CHECK_EQ(f.rules.BonusFigure, value);
    f.rules.TwentyOneCount = value == -5 ? 1 : 3;
    CHECK_EQ(f.rules.TwentyOneBonus(), bonus);
    CHECK_EQ(f.rules.BonusSteps(), value > 0 ? 2 : 0);
  }
}

TEST(HarvelPassesAndTheDecksEnd) {
  Fixture f;
  f.Start();
  CHECK(f.rules.Pass() && f.rules.Pass() && f.rules.Pass());
  CHECK(!f.rules.Pass());
  CHECK_EQ(f.rules.CardsUsed(), 3);

  // Three sevens a column clear it: 52 cards are seventeen 21s and one card more.
  f.CardsToPass = 100;
  f.Start();
  std::string piles;
  for (; f.DeckIndex < 52; f.rules.Hit(2)) {
    if (f.DeckIndex == 16 || f.DeckIndex == 17 || f.DeckIndex == 34 || f.DeckIndex == 35) {
      piles += f.rules.DeckPicture() + std::string(" ");
    }
  }
  CHECK_EQ(piles, "FULL HALF HALF BACK ");
  CHECK(!f.rules.Pass());  // the last card
  CHECK(!f.rules.DeckFinished());
  CHECK_EQ(f.Hit(2), "7 ");
  CHECK(f.rules.DeckFinished());
  CHECK_EQ(f.rules.CardsUsed(), 52);
  CHECK_EQ(f.rules.TwentyOneCount, 17);
  CHECK_EQ(f.Hit(2), "- ");
  CHECK(!f.rules.Pass());

  f.DeckIndex = 0;  // no game
  CHECK_EQ(f.Hit(0), "- ");
  CHECK(!f.rules.Pass());
}

TEST(HarvelRoundsLeaveNothingBehind) {
  Fixture f;
  f.Start({1, 1});
  f.Hit(0), f.Hit(3);
  f.rules.Pass();
  f.rules.EndRound();
  f.rules.StartRound();
  CHECK_EQ(f.SoftAces, (std::array<std::int16_t, 5>{}));
  CHECK_EQ(f.PassesLeft, 3);
  f.Stack(1, {10, 10, 10});
  CHECK_EQ(f.Hit({0, 0, 0}), "10 20 X ");

  f.CardsToPass = 0;
  f.Start();
  f.rules.StartRound();
  CHECK(!f.rules.Pass());

  const struct {
    int round;
    std::int32_t score;
    bool played;
  } rounds[] = {{2, -500, true},   {3, 0, true},        {4, 250000, false},
                {4, 250001, true}, {5, 9999999, false}, {6, 9999999, false}};
  for (const auto& r : rounds) CHECK_EQ(f.rules.IsPlayed(r.round, r.score), r.played);
}
