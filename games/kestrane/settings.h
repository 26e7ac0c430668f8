// Kestrane's scoring values with their defaults.
#pragma once

#include <cstdint>

namespace games::kestrane {

inline constexpr std::int16_t StandardTimeLimit = 120;  // seconds
inline constexpr std::int32_t StandardTimeBonus = 200;  // points for each second left

struct Values {
  std::int32_t BonusScore = 100000;     ///< score after round two that earns the bonus round
  std::int32_t TripsScore = 6000;       ///< points per trip
  std::int32_t RunsScore = 300;         ///< points per run
  std::int32_t FlushScore = 5000;       ///< what a run of one suit earns on top
  std::int32_t DeckCompletion = 15000;  ///< points for playing all 52 cards
  std::int32_t LeftOverCards = 250;     ///< points off per card left when the deck is used up

  bool operator==(const Values&) const = default;
};

inline constexpr Values Standard;

}  // namespace games::kestrane
