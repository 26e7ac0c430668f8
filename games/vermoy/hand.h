// The ten poker hands that a line of five cells can show, and the evaluator that names them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace games::vermoy {

/// In the order in which the player's list gives them.
enum class Hand {
  Nothing,
  OnePair,
  TwoPair,
  ThreeOfAKind,
  Straight,
  Flush,
  FullHouse,
  FourOfAKind,
  StraightFlush,
  RoyalFlush
};
inline constexpr std::size_t HandCount = 10;

/// The hand as the board shows it: "1 Pair", "St. Flush", "Nothing".
const std::string& TextOf(Hand hand);

/// What counts of a card in a hand. An empty cell is the default, which counts for nothing.
struct Card {
  std::uint8_t rank = 0;       ///< 1 (Ace) to 13 (King); 0 for none
  std::uint8_t suit = NoSuit;  ///< 0 to 3 in the order of the suits
  static constexpr std::uint8_t NoSuit = 4;
};

/// Takes a key in either spelling; what is no card gives a card that counts for nothing.
Card CardOf(std::string_view key);

using Line = std::array<Card, 5>;

/// The best hand of a line, finished or not: two equal ranks are a pair in a line of two cards too,
/// while straights and flushes need all five. The Ace stands low or high, never in between.
Hand EvaluateHand(const Line& line);

}  // namespace games::vermoy
