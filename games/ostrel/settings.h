// Ostrel's scoring values with their defaults.
#pragma once

#include <cstdint>

namespace games::ostrel {

/// Points, as the settings file has them.
struct Scoring {
  std::int16_t CardBonus = 100;      ///< by how much each further card of a run is worth more
  std::int32_t TowerBonus = 5000;    ///< per tower completed
  std::int32_t HighRunBonus = 1000;  ///< per card of a record run
  std::int32_t BonusScore = 40000;   ///< the score that earns the bonus round
};

inline constexpr Scoring Standard;
inline constexpr std::int32_t StandardTimeBonus = 100;
inline constexpr std::int16_t StandardTimeLimit = 45;

}  // namespace games::ostrel
