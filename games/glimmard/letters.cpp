// The moves of Glimmard: a letter, the six picks of the bonus round, Solve It, the letter timer.
#include "core/text/number.h"
#include "games/glimmard/window.h"

namespace games::glimmard {

void frmPhrase::cmdLetter_Click(int index) {
  if (shared.ScoringBusy) return;
  if (rules_.BonusPicking) {
    PickForBonus(index);
  } else {
    PickLetter(index);
  }
}

void frmPhrase::KeyTyped(char32_t letter) {
  const int index = LetterIndex(letter);
  if (index >= 0 && shared.GameActive && cmdLetter(index).Usable()) cmdLetter_Click(index);
}

/// False if the letter has ended the round: whatever comes next has happened then.
bool frmPhrase::PickLetter(int index) {
  Hourglass = true;
  const LetterPick pick = rules_.PickLetter(index);
  if (!pick.cells.empty()) {
    Wave("Click.wav");
  } else if (pick.lostGuess != NoGuess) {
    Wave("Chord.wav");
    ShowGuess(pick.lostGuess, "UNHAPPY");
  } else {
    Message.Text = "";
  }
  EnableLetter(index, false);
  for (int cell : pick.cells) {
    ShowCell(cell);
    shared.AddToScore(pick.value);
    WriteScore();
  }
  if (pick.opensVowels) EnableVowels(true);
  ProgressBar1.Value = 0;
  ShowEndOfRound(pick.end);
  if (!rules_.SolveMode) DrawLetterValue();
  suite.platform.SetFocus(DummyCommand);
  Hourglass = false;
  if (pick.end == RoundEnd::None) return true;
  ServeAndDrop();
  return false;
}

void frmPhrase::PickForBonus(int index) {
  const BonusPick pick = rules_.PickForBonus(index);
  if (!pick.taken) return;
  Wave("Click.wav");
  for (int letter = 0; letter < LetterCount && pick.lastOfItsKind; ++letter) {
    if (IsVowel(letter) == pick.vowel) EnableLetter(letter, false);
  }
  Message.Text = "Select " + core::Digits(pick.consonantsToGo) +
                 (pick.vowelToGo ? " consonants and 1 vowel" : " consonants and no vowels");
  EnableLetter(index, false);
  suite.platform.SetFocus(DummyCommand);
  if (pick.complete) PlayBonusPicks();
}

void frmPhrase::PlayBonusPicks() {
  HideMessage();
  const auto picks = rules_.Picks;
  for (int letter : picks) {
    if (!PickLetter(letter)) return;
  }
  EnableLetters(true);
  for (int letter : picks) EnableLetter(letter, false);
  lblLetterValue.Text = "All Letters worth:";
  lblLetterValue.Visible = txtLetterValue.Visible = true;
  rules_.EndBonusPicks();
  Timer1.Enabled = true;
}

void frmPhrase::cmdSolve_Click() {
  if (shared.ScoringBusy) return;
  Timer1.Enabled = false;
  EnableRoundCommands(false);
  cmdPause.Enabled = false;
  Menus.Enable(false, {core::Command::Pause});
  ProgressBar1.Value = 0;
  if (rules_.Solve()) EnableVowels(true);
}

/// The letter timer: a full run without a letter costs a guess, or the round.
void frmPhrase::Timer5_Timer() {
  if (ProgressBar1.Value() < ProgressBar1.Max) {
    ProgressBar1.Value = ProgressBar1.Value() + 1;
    return;
  }
  const Lapse lapse = rules_.LetterTimerLapsed(shared.RoundNumber);
  if (lapse.lostGuess == NoGuess) {
    Hourglass = true;
    HideMessage();
    Timer5.Enabled = false;
  } else {
    ShowGuess(lapse.lostGuess, "UNHAPPY");
    ProgressBar1.Value = 0;
    Wave("Chord.wav");
  }
  if (!lapse.roundLost) return;
  LoseRound();
  ServeAndDrop();
}

}  // namespace games::glimmard
