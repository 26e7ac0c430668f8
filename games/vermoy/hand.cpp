// Ranks and suits counted, and the hand decided by steps of which a later one outdoes the earlier.
#include "games/vermoy/hand.h"

#include <algorithm>
#include <bit>

#include "core/cards/card.h"

namespace games::vermoy {
namespace {

// The ranks of a line as bits, the bit of a rank at its number.
constexpr unsigned Broadway = 1u << 1 | 1u << 10 | 1u << 11 | 1u << 12 | 1u << 13;
constexpr unsigned FiveInARow = 0b11111;

bool IsStraight(unsigned ranks) {
  const int lowest = std::countr_zero(ranks);
  return ranks == Broadway || (lowest >= core::ace && ranks >> lowest == FiveInARow);
}

bool IsFlush(const Line& line) {
  return line[0].suit != Card::NoSuit &&
         std::all_of(line.begin(), line.end(),
                     [&](const Card& card) { return card.suit == line[0].suit; });
}

}  // namespace

const std::string& TextOf(Hand hand) {
  static const std::array<std::string, HandCount> texts = {
      "Nothing", "1 Pair",     "2 Pair",      "3 of a kind", "Straight",
      "Flush",   "Full House", "4 of a kind", "St. Flush",   "Royal Flush"};
  return texts[static_cast<std::size_t>(hand)];
}

Card CardOf(std::string_view key) {
  Card card;
  key = key.substr(0, key.find_last_not_of(' ') + 1);
  const int rank = core::RankOf(key);
  if (rank >= core::ace && rank <= core::king) card.rank = static_cast<std::uint8_t>(rank);
  const std::size_t suit = core::suitOrder.find(core::SuitOf(key));
  if (suit != std::string_view::npos) card.suit = static_cast<std::uint8_t>(suit);
  return card;
}

Hand EvaluateHand(const Line& line) {
  std::array<std::uint8_t, core::king + 1> ofRank{};
  unsigned ranks = 0;
  for (const Card& card : line) {
    ++ofRank[card.rank];
    ranks |= 1u << card.rank;
  }
  std::array<std::uint8_t, 6> groups{};  // how many ranks occur so many times
  for (std::size_t rank = core::ace; rank <= core::king; ++rank) ++groups[ofRank[rank]];
  const int pairs = groups[2];
  const bool trip = groups[3] == 1;
  const bool flush = IsFlush(line);
  Hand hand = Hand::Nothing;
  if (pairs == 1) hand = Hand::OnePair;
  if (pairs == 2) hand = Hand::TwoPair;
  if (trip) hand = Hand::ThreeOfAKind;
  if (flush) hand = Hand::Flush;
  if (IsStraight(ranks)) {
    hand = !flush ? Hand::Straight : ranks == Broadway ? Hand::RoyalFlush : Hand::StraightFlush;
  }
  if (trip && pairs == 1) hand = Hand::FullHouse;
  if (groups[4] == 1) hand = Hand::FourOfAKind;
  return hand;
}

}  // namespace games::vermoy
