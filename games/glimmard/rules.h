// Glimmard's rules: a hidden phrase is uncovered letter by letter, until it stands or no guess is
// left.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/cards/chance.h"
#include "games/glimmard/layout.h"

namespace games::glimmard {

inline constexpr int LetterCount = 26;
inline constexpr int MostGuesses = 8;
inline constexpr int BonusPicks = 6;
inline constexpr int BonusConsonants = 5;
inline constexpr std::int16_t BonusRound = 3;
inline constexpr std::int16_t NoLetter = -1;
inline constexpr int NoGuess = -1;

/// The letters "A" to "Z" are numbers from 0 to 25. Y is a vowel everywhere.
inline constexpr std::array<int, 6> Vowels = {0, 4, 8, 14, 20, 24};
bool IsVowel(int letter);

enum class RoundEnd { None, Lost, Solved };

/// What a letter gave.
struct LetterPick {
  std::vector<int> cells;  ///< where it stands, from the left; empty if it is not in the phrase
  std::int32_t value = 0;  ///< points for each of the cells
  bool opensVowels = false;
  int lostGuess = NoGuess;  ///< the guess that it cost, if it cost just one
  RoundEnd end = RoundEnd::None;
};

/// What one of the six picks of the bonus round gave.
struct BonusPick {
  bool taken = false;  ///< false: it can't be picked any more
  bool vowel = false;
  bool lastOfItsKind = false;  ///< no more vowels, or no more consonants, can be picked
  int consonantsToGo = 0;      ///< as the player is told
  bool vowelToGo = false;
  bool complete = false;  ///< it was the sixth
};

/// What the end of the letter timer's run gave.
struct Lapse {
  int lostGuess = NoGuess;
  bool roundLost = false;
};

/// One game's rounds. The score itself and both clocks are the owner's.
class Rules {
 public:
  std::int16_t GuessesLeft = NoGuess;  ///< index of the last unused guess, -1 for none
  std::int32_t LetterValue = 0;        ///< points for each occurrence of the next letter
  bool SolveMode = false;              ///< a wrong letter ends the round, and LetterValue stands
  bool BonusPicking = false;           ///< the six picks of the bonus round are being made
  bool PhraseSolved = false;
  std::int16_t RoundsSolved = 0;  ///< phrases solved in this game
  bool LetterHit = false;         ///< a letter has been found in this round
  bool VowelsOpen = false;
  std::int16_t PickedVowel = NoLetter;
  std::int16_t PickedConsonants = 0;
  std::array<std::int16_t, BonusPicks> Picks{};
  std::int16_t PickCount = 0;

  /// Before the phrase is drawn. Whatever was set, a round has 1 to MostGuesses guesses.
  void StartRound(std::int16_t GuessCount);
  void TakePhrase(PhraseLayout phrase) {
    phrase_ = std::move(phrase);
    open_.assign(phrase_.text.size(), false);
  }
  const std::u32string& CurrentPhrase() const { return phrase_.text; }
  /// A multiple of 250, by the length of the phrase.
  void DrawLetterValue(core::Chance& chance);

  /// What cell n shows: its character, or nothing while its letter is hidden and where it is blank.
  bool IsShown(int cell) const;
  char32_t Face(int cell) const;  ///< 0 for nothing
  /// No shown cell is empty.
  bool PhraseComplete() const;

  LetterPick PickLetter(int letter);
  BonusPick PickForBonus(int letter);
  /// The six picks are made and have been played: from here on all letters are open.
  void EndBonusPicks();
  /// Solve It. True if the vowels have to be opened.
  bool Solve();
  /// In SolveMode and in the bonus round a lapse ends the round, otherwise it costs a guess.
  Lapse LetterTimerLapsed(std::int16_t RoundNumber);

 private:
  int LoseGuess();

  PhraseLayout phrase_;
  std::vector<bool> open_;  ///< by cell: its letter has been found
};

/// What follows on a round, by the number of the next one.
enum class Next { RoundTwo, BonusRound, GameOver };
Next NextAfter(std::int16_t RoundNumber, std::int32_t CurrentScore, std::int32_t BonusScore,
               std::int16_t RoundsSolved);

}  // namespace games::glimmard
