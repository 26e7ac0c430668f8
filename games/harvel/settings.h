// The scoring values of Harvel that its player can change.
#pragma once

#include <cstdint>

namespace games::harvel {

struct Values {
  std::int32_t TwentyOneBonusValue = 1000;  ///< step of the round's bonus figure
  std::int32_t CardsUsedBonusValue = 100;   ///< points per card used
  std::int32_t FiveCardsBonusValue = 750;
  std::int32_t DeckCompletionBonus = 100000;
  std::int32_t BonusRoundScore = 250000;  ///< a score above it earns the bonus round
  std::int16_t TimerSpeed = 90;           ///< milliseconds for a tick of the 21 Counter
};

// Those that are kept in the values of the whole program.
inline constexpr std::int16_t StandardCardsToPass = 3;
inline constexpr std::int32_t StandardWaitPeriod = 2000;  // milliseconds
inline constexpr std::int16_t StandardTimeLimit = 90;     // seconds

}  // namespace games::harvel
