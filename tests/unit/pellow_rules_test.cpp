// Tests of Pellow's rules.
#include "games/pellow/rules.h"

#include <cstdlib>
#include <map>
#include <set>

#include "core/cards/card.h"
#include "core/text/number.h"
#include "tests/check.h"

using namespace games::pellow;

namespace {

/// A round dealt from these ranks; the rest of the deck is made of fives and nines, which match
/// their like only.
Rules Dealt(std::vector<int> ranks, std::map<int, int> changed = {}) {
  while (ranks.size() < 52) ranks.push_back(ranks.size() % 2 == 0 ? 5 : 9);
  for (const auto& [position, rank] : changed) ranks.at(static_cast<std::size_t>(position)) = rank;
  core::Deck deck;
  deck.Resize(52);
  for (int i = 1; i <= 52; ++i) {
    deck.Assign(i, core::KeyFromNumber(ranks.at(static_cast<std::size_t>(i - 1)), core::hearts));
  }
  Rules round;
  round.Deal(deck);
  return round;
}

Click Clicked(Rules& round, int position) {
  return round.PlayCard_Click(position).click;
}

/// Takes two cards that match; the result of the second click.
ClickResult Take(Rules& round, int one, int other) {
  CHECK(Clicked(round, one) == Click::Selected);
  const ClickResult result = round.PlayCard_Click(other);
  CHECK(result.click == Click::Matched);
  return result;
}

int UpRank(const Rules& round) {
  return core::RankOf(round.FieldCard(UpPosition));
}

const std::vector<int> allAlike(52, 7);

}  // namespace

TEST(NeighboursGoRoundTheKing) {
  for (int a = 1; a <= 13; ++a) {
    for (int b = 1; b <= 13; ++b) {
      const int steps = (a - b + 13) % 13;
      const Match expected = steps == 0                  ? Match::Pair
                             : steps == 1 || steps == 12 ? Match::Run
                                                         : Match::None;
      CHECK(MatchOf(a, b) == expected);
    }
  }
}

TEST(ACardIsCoveredByWhatLiesOverIt) {
  // Half steps from the left edge, and rows from the top.
  const auto placeOf = [](int p) {
    const int pair = p / 9, rest = p % 9;
    return rest < 5 ? std::pair{2 * rest, 2 * pair} : std::pair{2 * (rest - 5) + 1, 2 * pair + 1};
  };
  const auto covers = [&](int upper, int lower) {
    const auto [x, row] = placeOf(lower);
    const auto [overX, overRow] = placeOf(upper);
    if (overRow == row + 1) return std::abs(overX - x) == 1;
    return overRow == row + 2 && overX == x && (x == 0 || x == 8);
  };
  // Whatever goes first: a card can be taken exactly when nothing that is left covers it.
  for (unsigned seed = 1; seed <= 200; ++seed) {
    Rules round = Dealt(allAlike);
    unsigned random = seed;
    for (int turn = 0; turn < 60; ++turn) {
      for (int p = 0; p < FieldSize; ++p) {
        int covering = 0;
        for (int q = 0; q < FieldSize; ++q) covering += round.HoldsCard(q) && covers(q, p);
        CHECK_EQ(round.IsCardExposed(p), covering == 0);
      }
      random = random * 1103515245 + 12345;
      const int position = static_cast<int>(random >> 16) % Positions;
      const bool held = round.HoldsCard(position), exposed = round.IsCardExposed(position);
      const Click click = Clicked(round, position);
      CHECK_EQ(click == Click::Nothing, !held);
      CHECK_EQ(click == Click::Refused, held && !exposed);
    }
  }
}

TEST(ASelectionMovesAndEnds) {
  Rules round = Dealt({}, {{18, 13}, {19, 1}, {20, 4}, {21, 4}, {22, 7}, {23, 8}});
  CHECK(Clicked(round, 18) == Click::Selected && round.IsSelected(18));
  CHECK(Clicked(round, 0) == Click::Refused && round.IsSelected(18));
  CHECK(Clicked(round, 18) == Click::Deselected && !round.IsSelected(18));
  CHECK(Clicked(round, 20) == Click::Selected);
  CHECK(Clicked(round, 18) == Click::Selected && !round.IsSelected(20));

  ClickResult result = round.PlayCard_Click(19);
  CHECK(result.match == Match::Run && !round.IsSelected(19) && !round.HoldsCard(18));
  CHECK_EQ(core::RankOf(round.FieldCard(18)), 13);  // its key stays behind
  CHECK(Clicked(round, 18) == Click::Nothing);
  CHECK(Take(round, 21, 20).match == Match::Pair);
  CHECK_EQ(round.StackCount(), 28);

  CHECK(Clicked(round, 22) == Click::Selected);
  CHECK(round.CardStackPicture_Click() && !round.IsSelected(22));
  CHECK_EQ(core::RankOf(round.FieldCard(18)), 8);  // the first vacant position takes the up card
  CHECK(round.HoldsCard(18) && !round.HoldsCard(19));
  CHECK_EQ(UpRank(round), 5);
  CHECK_EQ(round.PairCount(), 1);
  CHECK_EQ(round.RunCount(), 1);
  for (const int outside : {-1, 24, 51, 1000}) CHECK(Clicked(round, outside) == Click::Nothing);
}

TEST(ThePileIsRefilledFromTheStackAndRunsOut) {
  Rules round = Dealt({}, {{22, 2}, {23, 3}, {21, 6}, {24, 7}, {25, 8}, {26, 9}});
  // The only up card is taken: the next stack card comes by itself.
  CHECK(Take(round, 22, UpPosition).stackCardTurned);
  CHECK_EQ(UpRank(round), 7);
  CHECK_EQ(round.StackCount(), 27);
  // The first click fills position 22 again, the second finds no gap and buries the 8.
  CHECK(round.CardStackPicture_Click() && round.HoldsCard(22));
  CHECK_EQ(UpRank(round), 8);
  CHECK(round.CardStackPicture_Click());
  CHECK_EQ(UpRank(round), 9);
  CHECK_EQ(round.UpCount(), 2);

  Rules buried = Dealt(allAlike);
  std::multiset<std::string> shown;
  while (buried.StackCount() > 0) {
    shown.insert(buried.StackPicture());
    CHECK(buried.CardStackPicture_Click());
  }
  CHECK_EQ(shown.count("FULL"), 11u);
  CHECK_EQ(shown.count("HALF"), 7u);
  CHECK_EQ(shown.count("BACK"), 10u);
  CHECK_EQ(buried.StackPicture(), "EMPTY");
  CHECK(!buried.CardStackPicture_Click());
  CHECK_EQ(buried.UpCount(), 29);

  Rules last = Dealt(allAlike);
  for (const int p : {18, 19, 20, 21, 22, 14, 15, 16, 17}) {
    CHECK(Take(last, p, UpPosition).stackCardTurned);
  }
  while (last.CardStackPicture_Click()) {
  }
  // The nine gaps were filled again; the rest of the turned cards make the pile.
  CHECK_EQ(last.UpCount(), 11);
  for (int p = FieldSize - 1; last.UpCount() > 0; --p) {
    CHECK(!Take(last, UpPosition, p).stackCardTurned);
  }
  CHECK_EQ(last.FieldCard(UpPosition), "");
  CHECK(Clicked(last, UpPosition) == Click::Refused);
}

TEST(MovesAreLookedForAmongTheExposedCardsOnly) {
  // Lowest row and up card without a match among them, and a pair that lies covered.
  const std::map<int, int> stuck = {{14, 2}, {15, 2}, {18, 2},  {19, 4},
                                    {20, 6}, {21, 8}, {22, 10}, {23, 12}};
  CHECK(!Dealt(allAlike, stuck).LegalMovesRemain());
  CHECK(!Dealt(allAlike, stuck).Stuck());  // there is a stack yet
  using Changes = std::map<int, int>;
  const auto with = [&stuck](Changes changes) {
    changes.insert(stuck.begin(), stuck.end());
    return Dealt(allAlike, changes);
  };
  for (const Changes& changes : std::vector<Changes>{{{22, 2}}, {{22, 1}}, {{23, 9}}, {{20, 7}}}) {
    CHECK(with(changes).LegalMovesRemain());
  }
  const Changes acesAndKings{{18, 1}, {20, 9}, {21, 11}, {22, 13}, {23, 6}};
  CHECK(with(acesAndKings).LegalMovesRemain());

  // The stack is turned over to its last card, which matches nothing.
  Rules round = with({{51, 12}});
  for (int i = 0; i < 28; ++i) {
    CHECK(!round.Stuck());
    CHECK(round.CardStackPicture_Click());
  }
  CHECK(round.Stuck());
  CHECK(!Rules().LegalMovesRemain());
}

TEST(ARoundIsPaidByWhatWasMadeInIt) {
  Rules round = Dealt(allAlike);
  int pairs = 0;
  // Always the lowest row that is left against the up card; one stack click fills a gap again.
  for (bool cleared = false; !cleared;) {
    int p = FieldSize - 1;
    while (!round.HoldsCard(p)) --p;
    CHECK(!round.TopRowCleared());
    cleared = Take(round, p, UpPosition).topRowCleared;
    if (++pairs == 3) CHECK(round.CardStackPicture_Click());
  }
  CHECK_EQ(pairs, FieldSize + 1);
  CHECK_EQ(round.StackCount(), 28 - 1 - pairs);

  const auto paid = [&](int seconds, bool FieldCleared) {
    std::string text;
    for (const Award& award : round.Awards({}, seconds, FieldCleared)) {
      text += std::string(award.title) + " " + core::Digits(award.count) + "x" +
              core::Digits(award.value) + ";";
    }
    return text;
  };
  CHECK_EQ(paid(12, true),
           "Completion Bonus 1x10000;Speed Bonus 12x0;Pairs Bonus 24x3000;"
           "Cards Remaining Bonus 3x500;");
  CHECK_EQ(paid(0, false), "Pairs Bonus 24x3000;");
  while (round.CardStackPicture_Click()) {
  }
  CHECK_EQ(paid(0, true), "Completion Bonus 1x10000;Pairs Bonus 24x3000;");
  CHECK(Rules().Awards({}, 0, false).empty());

  CHECK(NextAfter(2, 0, 80000) == Next::RoundTwo);
  CHECK(NextAfter(3, 79999, 80000) == Next::GameOver);
  CHECK(NextAfter(3, 80000, 80000) == Next::BonusRound);
  CHECK(NextAfter(4, 900000, 80000) == Next::GameOver);
}

TEST(NoCardIsLostOrDoubledWhateverIsClicked) {
  core::Deck deck;
  CHECK(deck.CreateDeck());
  core::Chance chance([] { return 7; });
  Rules round;
  CHECK(Clicked(round, 0) == Click::Nothing && Clicked(round, UpPosition) == Click::Refused);
  CHECK(!round.CardStackPicture_Click());
  CHECK_EQ(round.StackPicture(), "EMPTY");
  for (int game = 0; game < 100; ++game) {
    CHECK(deck.ShuffleDeck(chance));
    round.Deal(deck);
    CHECK_EQ(round.FieldCard(UpPosition), deck(24));
    for (int turn = 0; turn < 400; ++turn) {
      const int p = core::RandomBelow(chance, Positions + 1);
      p == Positions ? (void)round.CardStackPicture_Click() : (void)round.PlayCard_Click(p);
      std::set<std::string> seen;
      int field = 0;
      for (int q = 0; q < Positions; ++q) {
        if (!round.HoldsCard(q)) continue;
        field += q != UpPosition;
        CHECK(seen.insert(round.FieldCard(q)).second);
      }
      CHECK_EQ(
          field + round.UpCount() + round.StackCount() + 2 * (round.PairCount() + round.RunCount()),
          52);
    }
  }
}
