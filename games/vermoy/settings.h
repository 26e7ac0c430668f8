// Vermoy's scoring values with their defaults.
#pragma once

#include <cstdint>

#include "games/vermoy/hand.h"

namespace games::vermoy {

inline constexpr std::int32_t StandardTimeBonus = 1;
inline constexpr std::int16_t StandardTimeLimit = 75;

struct Values {
  // Points for a standing hand.
  std::int32_t Pair = 50;
  std::int32_t TwoPair = 70;
  std::int32_t Trips = 80;
  std::int32_t Straight = 90;
  std::int32_t Flush = 100;
  std::int32_t FullHouse = 200;
  std::int32_t Four = 300;
  std::int32_t StraightFlush = 400;
  std::int32_t RoyalFlush = 500;
  std::int32_t OverWrites = 3;       ///< filled cells that may be covered in a round
  std::int32_t BonusScore = 100000;  ///< earns the bonus round after round three

  std::int32_t Of(Hand hand) const {
    const std::int32_t points[HandCount] = {0,     Pair,      TwoPair, Trips,         Straight,
                                            Flush, FullHouse, Four,    StraightFlush, RoyalFlush};
    return points[static_cast<std::size_t>(hand)];
  }
};

}  // namespace games::vermoy
