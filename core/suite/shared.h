// The values that live for the whole run of the program and that every window sees.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace core {

/// One of each exists, in the Suite. Each has its meaning from the game whose window is open.
struct Shared {
  std::string GameTitle;  ///< the running game's title with its "!", the title of message boxes
  std::string AppPath;    ///< directory of all files, ending in a separator
  std::string MidiFile;   ///< full path of the music
  std::string PlayerName = "Unknown User";  ///< can end in "*"
  std::string PlayerNameBare;               ///< without the trailing marks
  std::string PlayerHometown = "Unknown";
  std::string PlayerState = "None";
  std::string PlayerCountry = "United States";

  std::int16_t TimeLimit = 0;       ///< seconds in a round
  std::int16_t ElapsedSeconds = 0;  ///< seconds gone on the round clock
  std::int16_t TimerFaceTick = 0;   ///< the elapsed value at the clock's last tick
  std::int16_t RoundNumber = 1;
  std::int32_t CurrentScore = 0;
  std::int32_t LastScore = 0;
  std::int32_t TimeBonusPerSecond = 100;
  bool PlaySounds = true;
  bool PlayMusic = false;
  std::int16_t DeckStyle = 1;  ///< the chosen card back by the game's own numbering
  bool CustomScoring = false;
  bool CountDownScoring = true;
  bool ScoringBusy = false;
  bool GameActive = false;
  std::int16_t NewHighScoreRank = -1;  ///< row 0 to 9 of the score just entered, -1 for none
  bool SkipHighScoreUpdate = false;
  std::int64_t SessionStart = 0;  ///< when the game window was opened, as Platform::Now
  bool EnhancedScoring = true;

  // Of the two games of columns that are fed from a deck.
  std::int16_t DeckIndex = 0;
  std::int32_t WaitPeriod = 2000;  ///< milliseconds
  std::int16_t PassesLeft = 0;
  std::int16_t CardsToPass = 0;
  std::array<std::int16_t, 5> SoftAces{};

  /// Adds to the score, which stays within 32 bits.
  void AddToScore(std::int64_t points);
  /// Removes the trailing marks from PlayerName, and returns it.
  std::string StripCustomMark();
  int SecondsLeft() const { return TimeLimit - ElapsedSeconds; }
};

}  // namespace core
