// The scoring values of Brenlock that its player can change.
#pragma once

#include <cstdint>

namespace games::brenlock {

struct Values {
  std::int16_t TimeBonusMax = 300;   ///< Time Bonus at the start of a round
  std::int16_t TimeBonusMin = 100;   ///< and when the time is up
  std::int32_t BonusScore = 200000;  ///< a score of at least this earns the bonus round
};

// Those that are kept in the values of the whole program.
inline constexpr std::int16_t StandardCardsToPass = 1;
inline constexpr std::int16_t StandardWaitPeriod = 2000;  // milliseconds
inline constexpr std::int16_t StandardTimeLimit = 60;     // seconds

}  // namespace games::brenlock
