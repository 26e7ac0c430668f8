// The rounds of a game: how large and how colourful each is, and the points that it asks for.
#pragma once

#include <cstdint>

#include "games/mozaro/settings.h"

namespace games::mozaro {

/// A game goes from round to round as long as each earns its points; it has no last round.
class Rounds {
 public:
  /// The options are the caller's, and may change between games.
  explicit Rounds(const Options& options) : options_(options) {}

  std::int16_t CurrentRound = 0;  ///< from 1; 0 before the first
  std::int16_t ColumnCount = 14;
  std::int16_t RowCount = 8;
  std::int16_t ColorCount = 3;    ///< 1 to 10
  std::int32_t RoundScore = 0;    ///< earned in this round, bonuses included
  std::int32_t PointsNeeded = 0;  ///< still to be earned in this round; never below 0
  std::int16_t JumblesUsed = 0;
  bool JumbleAvailable = true;

  void StartGame();
  /// Grid and colours of round 1 as the options have them now.
  void TakeInitialSizes();
  /// The next round. Its rows follow the columns of the round before it.
  void StartRound();
  void CalculateRows();  ///< from ColumnCount
  void Earn(std::int32_t points);
  void CountJumble();
  bool Passed() const { return RoundScore >= options_.ScoreForNextRound; }
  /// The counters of points begin anew.
  void ForgetPoints();

 private:
  void Grow(const Options& playable);

  const Options& options_;
};

}  // namespace games::mozaro
