// Ranks and suits counted, and the hand decided by steps of which a later one outdoes the earlier.
#include "games/vermoy/hand.h"

#include "core/cards/card.h"

namespace games::vermoy {
namespace {

// The ranks of a line as bits, the bit of a rank at its number.
constexpr unsigned Broadway = 1u << 1 | 1u << 10 | 1u << 11 | 1u << 12 | 1u << 13;
constexpr unsigned LowestRun = 0b11111u << 1;
constexpr int LastRunStart = 9;

bool IsStraight(unsigned ranks) {
  for (int start = 0; start < LastRunStart; ++start) {
    if (ranks == LowestRun << start) return true;
  }
  return ranks == Broadway;
}

/// How many cards a line has of each rank and suit.
struct Counts {
  explicit Counts(const Line& line) {
    for (const Card& card : line) {
      ++ofSuit[card.suit];
      ++ofRank[card.rank];
      ranks |= 1u << card.rank;
    }
    for (std::size_t rank = core::ace; rank <= core::king; ++rank) ++groups[ofRank[rank]];
  }
  bool Flush() const {
    return ofSuit[0] == 5 || ofSuit[1] == 5 || ofSuit[2] == 5 || ofSuit[3] == 5;
  }

  std::array<std::uint8_t, Card::NoSuit + 1> ofSuit{};
  std::array<std::uint8_t, core::king + 1> ofRank{};
  std::array<std::uint8_t, 6> groups{};  ///< how many ranks occur so many times
  unsigned ranks = 0;                    ///< bit 0 for a cell without a rank, so no run has it
};

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
  const Counts counts(line);
  const int pairs = counts.groups[2];
  const bool trip = counts.groups[3] == 1;
  const bool flush = counts.Flush();
  Hand hand = Hand::Nothing;
  if (pairs == 1) hand = Hand::OnePair;
  if (pairs == 2) hand = Hand::TwoPair;
  if (trip) hand = Hand::ThreeOfAKind;
  if (flush) hand = Hand::Flush;
  if (IsStraight(counts.ranks)) {
    hand = !flush                     ? Hand::Straight
           : counts.ranks == Broadway ? Hand::RoyalFlush
                                      : Hand::StraightFlush;
  }
  if (trip && pairs == 1) hand = Hand::FullHouse;
  if (counts.groups[4] == 1) hand = Hand::FourOfAKind;
  return hand;
}

}  // namespace games::vermoy
