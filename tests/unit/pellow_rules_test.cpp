// Tests of Pellow's rules.
#include "games/pellow/rules.h"

#include <cstdlib>
#include <map>

#include "core/cards/card.h"
#include "core/text/number.h"
#include "tests/check.h"

using namespace games::pellow;

namespace {

using Ranks = std::map<int, int>;  // by position

/// A round dealt from sevens, but for these.
Rules Dealt(const Ranks& changed = {}) {
  core::Deck deck;
  deck.Resize(52);
  for (int p = 0; p < 52; ++p) {
    const auto rank = changed.find(p);
    deck.Assign(p + 1, core::KeyFromNumber(rank == changed.end() ? 7 : rank->second, core::hearts));
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

}  // namespace

TEST(NeighboursGoRoundTheKing) {
  for (int steps = 0; steps < 13 * 13; ++steps) {
    const int a = steps / 13, b = steps % 13, apart = (a - b + 13) % 13;
    const bool run = apart == 1 || apart == 12;
    CHECK(MatchOf(a + 1, b + 1) == (a == b ? Match::Pair : run ? Match::Run : Match::None));
  }
}

TEST(ACardIsCoveredByWhatLiesOverItAndNoneIsLost) {
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
  // Whatever is clicked, a card can be taken exactly when nothing that is left covers it, and none
  // is lost.
  core::Deck deck;
  CHECK(deck.CreateDeck());
  core::Chance chance([] { return 7; });
  Rules round;
  CHECK(Clicked(round, 0) == Click::Nothing && !round.CardStackPicture_Click());
  for (int turn = 0; turn < 40000; ++turn) {
    if (turn % 400 == 0) {
      CHECK(deck.ShuffleDeck(chance));
      round.Deal(deck);
    }
    int cards = round.UpCount() + round.StackCount() + 2 * (round.PairCount() + round.RunCount());
    for (int p = 0; p < FieldSize; ++p) {
      int covering = 0;
      for (int q = 0; q < FieldSize; ++q) covering += round.HoldsCard(q) && covers(q, p);
      CHECK_EQ(round.IsCardExposed(p), covering == 0);
      cards += round.HoldsCard(p);
    }
    CHECK_EQ(cards, 52);
    const int p = core::RandomBelow(chance, Positions + 1);
    const bool held = round.HoldsCard(p), exposed = round.IsCardExposed(p);
    const Click click = Clicked(round, p);
    CHECK_EQ(click == Click::Nothing, !held && p != UpPosition);
    CHECK_EQ(click == Click::Refused, held ? !exposed : p == UpPosition);
    if (p == Positions) round.CardStackPicture_Click();
  }
}

TEST(ASelectionMovesAndEnds) {
  Rules round = Dealt({{18, 13}, {19, 1}, {20, 4}, {23, 8}});
  CHECK(Clicked(round, 20) == Click::Selected);
  CHECK(Clicked(round, 0) == Click::Refused && round.IsSelected(20));
  CHECK(Clicked(round, 18) == Click::Selected && !round.IsSelected(20));
  CHECK(round.PlayCard_Click(19).match == Match::Run && !round.IsSelected(19));
  CHECK_EQ(core::RankOf(round.FieldCard(18)), 13);  // its key stays behind

  CHECK(Clicked(round, 22) == Click::Selected);
  CHECK(round.CardStackPicture_Click() && !round.IsSelected(22));
  CHECK_EQ(core::RankOf(round.FieldCard(18)), 8);  // the first vacant position takes the up card
  CHECK(round.HoldsCard(18) && !round.HoldsCard(19));
  for (const int outside : {-1, 24, 1000}) CHECK(Clicked(round, outside) == Click::Nothing);
}

TEST(ThePileIsRefilledFromTheStackAndRunsOut) {
  Rules buried = Dealt();
  std::string shown;
  do {
    shown += buried.StackPicture()[0];
  } while (buried.CardStackPicture_Click());
  CHECK_EQ(shown, "FFFFFFFFFFFHHHHHHHBBBBBBBBBBE");
  CHECK_EQ(buried.UpCount(), 29);

  // One of two up cards is taken; then the only one each time, and the next comes by itself.
  Rules last = Dealt();
  CHECK(last.CardStackPicture_Click() && !Take(last, 18, UpPosition).stackCardTurned);
  for (const int p : {19, 20, 21, 22, 14, 15, 16, 17}) {
    CHECK(Take(last, p, UpPosition).stackCardTurned);
  }
  while (last.CardStackPicture_Click()) {
  }
  // The nine gaps were filled again; the rest of the turned cards make the pile.
  CHECK_EQ(last.UpCount(), 11);
  for (int p = FieldSize - 1; last.UpCount() > 0; --p) {
    CHECK(!Take(last, UpPosition, p).stackCardTurned);
  }
  CHECK(Clicked(last, UpPosition) == Click::Refused);
}

TEST(MovesAreLookedForAmongTheExposedCardsOnly) {
  // Lowest row and up card without a match among them, and a pair that lies covered.
  const Ranks stuck = {{14, 2}, {15, 2}, {18, 2}, {19, 4}, {20, 6}, {21, 8}, {22, 10}, {23, 12}};
  const auto with = [&stuck](Ranks changes) {
    changes.insert(stuck.begin(), stuck.end());
    return Dealt(changes);
  };
  CHECK(!with({}).LegalMovesRemain());
  const Ranks kingAndAce{{18, 1}, {20, 9}, {21, 11}, {22, 13}, {23, 6}};
  for (const Ranks& changes : {Ranks{{22, 2}}, {{22, 1}}, {{23, 9}}, kingAndAce}) {
    CHECK(with(changes).LegalMovesRemain());
  }
  // The stack is turned over to its last card, which matches nothing.
  Rules round = with({{51, 12}});
  for (int i = 0; i < 28; ++i) {
    CHECK(!round.Stuck());
    CHECK(round.CardStackPicture_Click());
  }
  CHECK(round.Stuck());
}

TEST(ARoundIsPaidByWhatWasMadeInIt) {
  Rules round = Dealt();
  // Always the lowest card that is left with the up card, till the top row is gone.
  for (int p = FieldSize - 1; p >= 0; --p) {
    CHECK_EQ(Take(round, p, UpPosition).topRowCleared, p == 0);
  }
  const auto paid = [&round](int seconds, bool FieldCleared) {
    std::string text;
    for (const Award& award : round.Awards({}, seconds, FieldCleared)) {
      text += award.title + " " + core::Digits(award.count) + "x" + core::Digits(award.value) + ";";
    }
    return text;
  };
  CHECK_EQ(paid(12, true),
           "Completion Bonus 1x10000;Speed Bonus 12x0;Pairs Bonus 23x3000;"
           "Cards Remaining Bonus 5x500;");
  while (round.CardStackPicture_Click()) {
  }
  CHECK_EQ(paid(0, true), "Completion Bonus 1x10000;Pairs Bonus 23x3000;");
  CHECK(NextAfter(3, 79999, 80000) == Next::GameOver);
  CHECK(NextAfter(3, 80000, 80000) == Next::BonusRound);
  CHECK(NextAfter(4, 900000, 80000) == Next::GameOver);
}
