// What the player can set in Mozaro, named as in its settings file.
#pragma once

#include <cstdint>

namespace games::mozaro {

/// Held as they were read or chosen, whatever their range; see Playable.
struct Options {
  std::int16_t InitialColorCount = 3;  ///< colours in round 1
  std::int16_t Columns = 14;           ///< columns in round 1
  bool DropBoxes = true;               ///< drop mode; otherwise slide mode
  std::int16_t GroupSize = 3;          ///< smallest group that may be removed
  std::int16_t AddAColumn = 1;         ///< rounds between added columns, 0 for never
  std::int16_t AddAColor = 3;          ///< rounds between added colours
  std::int32_t ScoreForNextRound = 40000;
  std::int32_t ClearAColumn = 500;  ///< points
  std::int16_t JumblesAllowed = 1;  ///< in a round
  std::int32_t ClearBoard = 50000;  ///< points
};

/// The options with every value that can't be played replaced by the nearest one that can.
Options Playable(Options options);

}  // namespace games::mozaro
