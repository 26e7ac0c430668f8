// Fandrel's scoring values with their defaults.
#pragma once

#include <cstdint>

namespace games::fandrel {

inline constexpr std::int32_t StandardBonusScore = 5000000;
inline constexpr std::int32_t StandardDeckCompleteBonus = 50000;
inline constexpr std::int32_t StandardTimeBonus = 100;
inline constexpr std::int16_t StandardTimeLimit = 90;

struct Values {
  std::int32_t BonusScore = StandardBonusScore;                ///< earns the bonus round
  std::int32_t DeckCompleteBonus = StandardDeckCompleteBonus;  ///< for using the whole deck
};

}  // namespace games::fandrel
