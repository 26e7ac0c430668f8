// The rules of Brenlock: five columns raced to a sum of 97 to 105, and what that sum is worth.
#pragma once

#include <array>

#include "games/brenlock/settings.h"
#include "games/columns/columns.h"

namespace games::brenlock {

inline constexpr int ColumnCount = 5;
inline constexpr int BonusRound = 4;
inline constexpr int AfterLastRound = 5;

/// The sums of the five columns that score, and what each is worth before the Time Bonus.
inline constexpr int LowestScoring = 97;
inline constexpr int HighestScoring = 105;
inline constexpr std::array<std::int16_t, 9> CardTotalValues = {50,  100, 150, 200, 250,
                                                                300, 400, 500, 1000};
inline constexpr int TotalOfBust = 9999;

/// What became of the current card.
enum class Outcome {
  Nothing,  ///< no card, no such column, a closed column, or the round is over
  Placed,
  SoftAceUsed,  ///< the column would have gone over 21; its soft ace counts 1 now
  Bust          ///< the column went over 21, and the round is over
};

struct HitResult {
  Outcome outcome = Outcome::Nothing;
  int place = 0;               ///< where the card lies, 0 to 4
  bool madeTwentyOne = false;  ///< the card made exactly 21
};

class Rules : public columns::Columns {
 public:
  /// All that is given outlives the rules.
  Rules(const core::Deck& deck, columns::SharedValues shared, const Values& values);

  std::int16_t CardTotal = 0;         ///< the sum of the columns; TotalOfBust after a bust
  std::int16_t CardTotalValue = 0;    ///< what it is worth
  std::int32_t CurrentTimeBonus = 0;  ///< at the last tick of the clock
  float TimeBonusDecay = 0;           ///< Time Bonus lost in a second, in single precision

  void SetTimeBonusDecay(int timeLimit);
  /// The Time Bonus after so many seconds of the round.
  void UpdateTimeBonus(int elapsedSeconds);

  /// Empties the columns and sets the figures of a round to its start.
  void Reset();
  /// The round starts with the second card: the first is not dealt.
  void StartRound() { DeckIndex = 2; }

  HitResult Hit(int column);
  bool IsClosed(int column) const;

  bool ScoreCanBeTaken() const { return ValueOf(CardTotal) != 0; }
  bool IsComplete() const { return CardTotal == HighestScoring; }
  /// What a sum of the columns is worth; 0 if it doesn't score.
  static std::int16_t ValueOf(int cardTotal);
  std::int32_t RoundScore() const;
  /// A step of the count-up of RoundScore. All steps are equal; 0 if it can't be counted so.
  std::int32_t ScoreStep() const;

  /// The round that is next after this one: itself, or AfterLastRound.
  std::int16_t RoundToPlay(std::int16_t round, std::int32_t score) const;

 private:
  HitResult CalculateColumnValue(int column);
  Outcome CheckForBust(int column);
  void SetCardTotal(int total);
  int SumOfColumns() const;

  const Values& values_;
};

}  // namespace games::brenlock
