// The file of a saved game: the decks of a finished game, and how its player fared.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace games::quindle {

/// A round's deck as it was dealt; empty for a round that was not reached.
using RoundDeck = std::vector<std::string>;
inline constexpr int RoundDecks = 3;

struct SavedGame {
  std::int16_t CardGoal = 11;
  std::string timeLimit;  ///< as the file has it
  std::string score;      ///< as the file has it
  bool custom = false;
  std::string userName;
  std::array<RoundDeck, RoundDecks> decks;
  bool goalChosen = false;  ///< the file names a goal that can be chosen
  bool whole = false;       ///< nothing was missing or cut short
};

/// The whole text of a file.
std::string FormatSavedGame(const SavedGame& game);

/// Reads as far as the text goes. Nothing if it doesn't begin as a saved game. A goal that can't be
/// chosen leaves the decks as long as those of `current`.
std::optional<SavedGame> ParseSavedGame(std::string_view text, const SavedGame& current);

/// What is told of a saved game when it is opened, up to the question about the time limit.
std::string SavedGameMessage(const SavedGame& game);

}  // namespace games::quindle
