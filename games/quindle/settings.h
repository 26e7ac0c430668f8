// Quindle's scoring values with their defaults.
#pragma once

#include <cstdint>

namespace games::quindle {

inline constexpr std::int32_t StandardBonusRoundScore = 80000;
inline constexpr std::int32_t StandardCompletionBonus = 10000;
inline constexpr std::int32_t StandardElevensBonus = 1500;
inline constexpr std::int32_t StandardElevensBonusES = 1000;
inline constexpr std::int32_t StandardTimeBonus = 100;
inline constexpr std::int16_t StandardCardBonus = 1000;
inline constexpr std::int16_t StandardTimeLimit = 90;

struct Values {
  std::int32_t BonusRoundScore = StandardBonusRoundScore;  ///< earns the bonus round
  std::int32_t CompletionBonus = StandardCompletionBonus;  ///< for clearing the field
  std::int32_t ElevensBonus = StandardElevensBonus;        ///< a set, in standard scoring
  std::int32_t ElevensBonusES = StandardElevensBonusES;    ///< a set, in enhanced scoring
  std::int16_t CardBonus = StandardCardBonus;  ///< a card left in the pile of a cleared field
};

}  // namespace games::quindle
