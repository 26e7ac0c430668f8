// Glimmard's rules: a hidden phrase is uncovered letter by letter, until it stands or no guess is
// left.
#include "games/glimmard/rules.h"

#include <algorithm>

namespace games::glimmard {
namespace {

constexpr int ValueStep = 250;
constexpr std::int16_t PhrasesToSolve = 2;  // for the bonus round

}  // namespace

bool IsVowel(int letter) {
  return std::find(Vowels.begin(), Vowels.end(), letter) != Vowels.end();
}

void Rules::StartRound(std::int16_t GuessCount) {
  GuessesLeft = static_cast<std::int16_t>(std::clamp<int>(GuessCount, 1, MostGuesses) - 1);
  PhraseSolved = SolveMode = LetterHit = VowelsOpen = false;
  PickedVowel = NoLetter;
  PickedConsonants = 0;
  PickCount = 0;
  Picks.fill(NoLetter);
}

void Rules::DrawLetterValue(core::Chance& chance) {
  LetterValue = core::RandomBetween(chance, 1, std::max(1, phrase_.LetterValueLimit)) * ValueStep;
}

bool Rules::IsShown(int cell) const {
  const auto n = static_cast<std::size_t>(cell);
  return n < phrase_.text.size() && phrase_.text[n] != U' ';
}

char32_t Rules::Face(int cell) const {
  if (!IsShown(cell)) return 0;
  const auto n = static_cast<std::size_t>(cell);
  const bool hidden = LetterIndex(phrase_.text[n]) >= 0 && !open_[n];
  return hidden ? 0 : Capital(phrase_.text[n]);
}

bool Rules::PhraseComplete() const {
  for (int cell = 0; cell < BoardCells; ++cell) {
    if (IsShown(cell) && Face(cell) == 0) return false;
  }
  return true;
}

int Rules::LoseGuess() {
  if (GuessesLeft < 0) return NoGuess;
  return GuessesLeft--;
}

LetterPick Rules::PickLetter(int letter) {
  LetterPick pick;
  pick.value = LetterValue;
  for (std::size_t n = 0; n < phrase_.text.size(); ++n) {
    if (LetterIndex(phrase_.text[n]) != letter || letter < 0) continue;
    open_[n] = true;
    pick.cells.push_back(static_cast<int>(n));
  }
  if (!pick.cells.empty()) {
    pick.opensVowels = !LetterHit && !SolveMode;
    LetterHit = true;
    if (pick.opensVowels) VowelsOpen = true;
  } else if (SolveMode) {
    GuessesLeft = NoGuess;
  } else {
    pick.lostGuess = LoseGuess();
  }
  if (GuessesLeft < 0) {
    pick.end = RoundEnd::Lost;
  } else if (PhraseComplete()) {
    pick.end = RoundEnd::Solved;
    PhraseSolved = true;
    ++RoundsSolved;
  }
  return pick;
}

BonusPick Rules::PickForBonus(int letter) {
  BonusPick pick;
  pick.vowel = IsVowel(letter);
  const bool open = pick.vowel ? PickedVowel == NoLetter : PickedConsonants < BonusConsonants;
  if (!open || std::count(Picks.begin(), Picks.end(), letter) > 0) return pick;
  pick.taken = true;
  if (pick.vowel) {
    PickedVowel = static_cast<std::int16_t>(letter);
  } else {
    ++PickedConsonants;
  }
  pick.lastOfItsKind = pick.vowel || PickedConsonants == BonusConsonants;
  pick.vowelToGo = PickedVowel == NoLetter;
  pick.consonantsToGo = BonusConsonants - PickCount - (pick.vowelToGo ? 1 : 0);
  Picks[static_cast<std::size_t>(PickCount)] = static_cast<std::int16_t>(letter);
  ++PickCount;
  pick.complete = PickCount == BonusPicks;
  if (pick.complete) BonusPicking = false;
  return pick;
}

void Rules::EndBonusPicks() {
  SolveMode = true;
  GuessesLeft = 0;
  PickCount = 0;
}

bool Rules::Solve() {
  SolveMode = true;
  const bool opensVowels = !VowelsOpen;
  VowelsOpen = true;
  return opensVowels;
}

Lapse Rules::LetterTimerLapsed(std::int16_t RoundNumber) {
  Lapse lapse;
  if (SolveMode || RoundNumber >= BonusRound) {
    GuessesLeft = NoGuess;
  } else {
    lapse.lostGuess = LoseGuess();
  }
  lapse.roundLost = GuessesLeft < 0;
  return lapse;
}

Next NextAfter(std::int16_t RoundNumber, std::int32_t CurrentScore, std::int32_t BonusScore,
               std::int16_t RoundsSolved) {
  if (RoundNumber < BonusRound) return Next::RoundTwo;
  const bool earned = CurrentScore >= BonusScore && RoundsSolved >= PhrasesToSolve;
  return RoundNumber == BonusRound && earned ? Next::BonusRound : Next::GameOver;
}

}  // namespace games::glimmard
