// Pellow's scoring values with their defaults.
#pragma once

#include <cstdint>

namespace games::pellow {

/// Points, but for BonusScore. The points of a second are kept with the values that all games
/// share.
struct Scoring {
  std::int32_t PairsBonus = 3000;
  std::int32_t RunsBonus = 500;
  std::int32_t CompletionBonus = 10000;
  std::int32_t RemainingCardBonus = 500;  ///< for each stack card left when the top row is cleared
  std::int32_t BonusScore = 80000;        ///< the score that earns the bonus round
};

}  // namespace games::pellow
