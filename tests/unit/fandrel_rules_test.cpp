// Fandrel's rules: how a move is judged, spot values that rise, the end of the deck.
#include "core/cards/card.h"
#include "games/fandrel/rules.h"
#include "tests/check.h"

using namespace games::fandrel;

namespace {

/// The first keys come first from the deck, which is dealt from its end.
Rules Dealt(std::vector<std::string> keys, std::size_t size = 52) {
  keys.resize(size, "13D");
  core::Deck deck;
  deck.Assign(std::vector<std::string>(keys.rbegin(), keys.rend()));
  Rules rules;
  rules.ResetSpotValues();
  rules.Deal(deck);
  return rules;
}

}  // namespace

TEST(a_move_is_judged_in_order) {
  Rules rules = Dealt({"12C", "12H", " 2H", "8S", "9H", "8D", "4C", "3D"});
  CHECK_EQ(rules.CardsRemaining, 47);
  CHECK(rules.CheckForMoves() == Board::MovesLeft);
  CHECK(rules.MoveCard(1, 1) == Match::Vacant);
  CHECK_EQ(rules.SpotValue(1), 500);
  CHECK(rules.MoveCard(2, 1) == Match::Rank);
  CHECK_EQ(rules.SpotValue(1), 1000);
  CHECK(rules.MoveCard(3, 1) == Match::Suit);
  CHECK_EQ(rules.SpotValue(1), 1000);
  CHECK(rules.MoveCard(4, 2) == Match::Eight);
  CHECK_EQ(rules.SpotValue(2), 400);
  CHECK(rules.CheckMove(1, 2) == Match::Eight);
  CHECK(rules.MoveCard(2, 2) == Match::Suit);
  CHECK_EQ(rules.SpotValue(2), 400);
  CHECK_EQ(rules.UpperCard(2), "4C");
  CHECK(rules.MoveCard(3, 1) == Match::None);
  CHECK_EQ(rules.PlayCard(3), "3D");
  CHECK(rules.CheckMove(9, 1) == Match::None);
}

TEST(no_move_is_told_from_a_finished_deck) {
  Rules stuck = Dealt({"2S", "3H", "4C", "5D", "6D", "7D", "9D", "10D"});
  for (int spot = 1; spot <= 3; ++spot) CHECK(stuck.MoveCard(spot, spot) == Match::Vacant);
  CHECK(stuck.CheckForMoves() == Board::NoMove);

  Rules all = Dealt({}, 52);
  int moves = 0;
  for (int lower = 1; all.CheckForMoves() == Board::MovesLeft; lower = lower % LowerSpots + 1) {
    if (all.MoveCard(lower, moves % UpperSpots + 1) != Match::None) ++moves;
  }
  CHECK_EQ(moves, 52);
  CHECK_EQ(all.CardsRemaining, 0);
  CHECK(all.CheckForMoves() == Board::AllUsed);
  // Three cards lay on vacant spots; all others raised their spot by its step.
  CHECK_EQ(all.SpotValue(1), 500 * 18);
  CHECK_EQ(all.SpotValue(3), 100 * 17);
}
