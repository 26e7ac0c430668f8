// Glimmard's scoring values with their defaults.
#pragma once

#include <cstdint>

namespace games::glimmard {

inline constexpr std::int16_t StandardGuessCount = 8;
inline constexpr std::int32_t StandardGuessBonus = 3000;
inline constexpr std::int32_t StandardCompletionBonus = 10000;
inline constexpr std::int32_t StandardTimeBonus = 100;
inline constexpr std::int32_t StandardBonusScore = 250000;
inline constexpr std::int32_t StandardShowPhraseTime = 5000;
inline constexpr std::int16_t StandardTimeLimit = 45;

struct Values {
  std::int16_t GuessCount = StandardGuessCount;            ///< wrong guesses allowed in a round
  std::int32_t GuessBonus = StandardGuessBonus;            ///< for each guess left
  std::int32_t CompletionBonus = StandardCompletionBonus;  ///< for solving the phrase
  std::int32_t BonusScore = StandardBonusScore;            ///< earns the bonus round
  /// Milliseconds for which a lost phrase stays on view.
  std::int32_t ShowPhraseTime = StandardShowPhraseTime;
};

}  // namespace games::glimmard
