// Fandrel's rules: cards race from five lower spots to three upper spots, and eights are wild.
#include "games/fandrel/rules.h"

#include <algorithm>

#include "core/cards/card.h"

namespace games::fandrel {
namespace {

constexpr int Steps[UpperSpots] = {500, 200, 100};
constexpr int Wild = 8;
const std::string NoCard;

}  // namespace

int SpotStep(int upper) {
  return Steps[upper - 1];
}

void Rules::Deal(const core::Deck& deck) {
  deck_ = deck.Keys();
  CardsRemaining = static_cast<std::int16_t>(deck_.size());
  UpperCards.fill("");
  for (std::string& card : PlayCards) card = NextCard();
}

void Rules::ResetSpotValues() {
  std::copy(std::begin(Steps), std::end(Steps), spotValues_.begin());
}

std::string Rules::NextCard() {
  if (CardsRemaining < 1) return "";
  --CardsRemaining;
  return deck_[static_cast<std::size_t>(CardsRemaining)];
}

const std::string& Rules::PlayCard(int lower) const {
  return lower >= 1 && lower <= LowerSpots ? PlayCards[Index(lower)] : NoCard;
}

const std::string& Rules::UpperCard(int upper) const {
  return upper >= 1 && upper <= UpperSpots ? UpperCards[Index(upper)] : NoCard;
}

Match Rules::CheckMove(int lower, int upper) const {
  const std::string& card = PlayCard(lower);
  const std::string& onto = UpperCard(upper);
  if (card.empty()) return Match::None;
  if (core::RankOf(card) == Wild) return Match::Eight;
  if (core::RankOf(onto) == Wild) return Match::Suit;
  if (onto.empty()) return Match::Vacant;
  if (core::RankOf(card) == core::RankOf(onto)) return Match::Rank;
  return core::SuitOf(card) == core::SuitOf(onto) ? Match::Suit : Match::None;
}

Board Rules::CheckForMoves() const {
  bool allUsed = true;
  for (int lower = 1; lower <= LowerSpots; ++lower) {
    if (PlayCard(lower).empty()) continue;
    allUsed = false;
    for (int upper = 1; upper <= UpperSpots; ++upper) {
      if (CheckMove(lower, upper) != Match::None) return Board::MovesLeft;
    }
  }
  return allUsed ? Board::AllUsed : Board::NoMove;
}

Match Rules::MoveCard(int lower, int upper) {
  const Match match = CheckMove(lower, upper);
  if (match == Match::None) return match;
  if (match == Match::Rank || match == Match::Eight) spotValues_[Index(upper)] += SpotStep(upper);
  UpperCards[Index(upper)] = PlayCard(lower);
  PlayCards[Index(lower)] = NextCard();
  return match;
}

}  // namespace games::fandrel
