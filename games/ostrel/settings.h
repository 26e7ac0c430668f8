// What Ostrel's player can change of its scoring, besides the time limit and the time bonus.
#pragma once

#include <cstdint>

namespace games::ostrel {

/// Points, kept in the settings file. The values here are the default scoring.
struct Scoring {
  std::int16_t CardBonus = 100;      ///< by how much each further card of a run is worth more
  std::int32_t TowerBonus = 5000;    ///< per tower completed
  std::int32_t HighRunBonus = 1000;  ///< per card of a record run
  std::int32_t BonusScore = 40000;   ///< the score that earns the bonus round
};

}  // namespace games::ostrel
