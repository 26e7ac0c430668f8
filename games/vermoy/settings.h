// The values of Vermoy that a player can set, with their defaults.
#pragma once

#include <array>
#include <cstdint>

#include "games/vermoy/hand.h"

namespace games::vermoy {

/// Points for a standing hand, by Hand.
using HandValues = std::array<std::int32_t, HandCount>;
inline constexpr HandValues DefaultValues = {0, 50, 70, 80, 90, 100, 200, 300, 400, 500};

struct Settings {
  HandValues values = DefaultValues;
  std::int32_t OverWrites = 3;       ///< filled cells that may be covered in a round
  std::int32_t BonusScore = 100000;  ///< score after round three that earns the bonus round

  std::int32_t& ValueOf(Hand hand) { return values[static_cast<std::size_t>(hand)]; }
  std::int32_t ValueOf(Hand hand) const { return values[static_cast<std::size_t>(hand)]; }
};

}  // namespace games::vermoy
