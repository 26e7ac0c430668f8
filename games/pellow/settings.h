// Pellow's scoring values with their defaults.
#pragma once

#include <cstdint>

namespace games::pellow {

/// Points, all of them.
struct Scoring {
  std::int32_t PairsBonus = 3000;
  std::int32_t RunsBonus = 500;
  std::int32_t CompletionBonus = 10000;   ///< for clearing the top row
  std::int32_t RemainingCardBonus = 500;  ///< for a stack card that is left after that
  std::int32_t BonusScore = 80000;        ///< earns the bonus round
};
inline constexpr Scoring Standard;
inline constexpr std::int32_t StandardTimeBonus = 100;  ///< for a second left
inline constexpr std::int16_t StandardTimeLimit = 45;   ///< seconds

}  // namespace games::pellow
