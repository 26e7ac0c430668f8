// The end of a Glimmard round: the phrase in its colour, the bonuses, and what comes next.
#include <algorithm>

#include "core/text/number.h"
#include "games/glimmard/window.h"

namespace games::glimmard {
namespace {

constexpr int SolvedPause = 2000;
constexpr int GuessPause = 400;
constexpr int LongestView = 30000;  // milliseconds, as the dialog allows
constexpr int ExpiryFlashes = 10;
constexpr int RoundFlashes = 11;

}  // namespace

void frmPhrase::ShowEndOfRound(RoundEnd end) {
  if (end == RoundEnd::Lost) LoseRound();
  if (end != RoundEnd::Solved) return;
  MarkSolved();
  Wave("Applause.wav");
  Wait(SolvedPause);
  EndRoundNow();
}

void frmPhrase::LoseRound() {
  Reveal();
  EndRoundNow();
}

void frmPhrase::Reveal() {
  const std::u32string& phrase = rules_.CurrentPhrase();
  for (int n = 0; n < static_cast<int>(phrase.size()); ++n) {
    lblLetter(n).TextColor = ui::Red;
    lblLetter(n).Text = Utf8Of(Capital(phrase[static_cast<std::size_t>(n)]));
    lblLetter(n).Visible = LetterTile(n).Visible = true;
  }
  Wave("Slide.wav");
  Wait(std::clamp<int>(values_.ShowPhraseTime, 0, LongestView));
}

void frmPhrase::TimeIsUp() {
  Hourglass = true;
  Reveal();
  Timer1.Enabled = Timer5.Enabled = false;
  ShowControls(false, true);
  Message.Text = "Times Up!";
  Message.Visible = true;
  StatusBar1(2).Text = "Time has expired!";
  Flash(Message, ExpiryFlashes);
  EndRoundNow();
  if (!(Message.Text == "Game Over")) Message.Visible = false;
  Hourglass = false;
  ServeAndDrop();
}

void frmPhrase::EndRoundNow() {
  if (!shared.ScoringBusy) TakeScore();
}

void frmPhrase::TakeScore() {
  if (shared.ScoringBusy) return;
  shared.ScoringBusy = true;
  cmdPause.Enabled = cmdExit.Enabled = cmdPlay.Enabled = false;
  EnableSolve(false);
  Timer1.Enabled = Timer5.Enabled = false;
  Hourglass = true;
  StopMusic();
  ++shared.RoundNumber;
  Message.TextColor = ui::Red;
  const bool lost = rules_.GuessesLeft < 0 || shared.ElapsedSeconds >= shared.TimeLimit;
  if (lost) {
    ShowControls(false, true);
  } else {
    PayBonuses();
  }
  switch (
      NextAfter(shared.RoundNumber, shared.CurrentScore, values_.BonusScore, rules_.RoundsSolved)) {
    case Next::RoundTwo:
      StartRoundTwo();
      break;
    case Next::BonusRound:
      StartBonusRound();
      break;
    case Next::GameOver:
      GameOver();
      break;
  }
  lblScoring.Visible = false;
  Hourglass = false;
}

void frmPhrase::PayBonuses() {
  PayGuesses();
  ShowControls(false, true);
  if (rules_.PhraseSolved) {
    Bonus.AwardBonus(1, values_.CompletionBonus, "Phrase Completion Bonus");
  }
  if (shared.SecondsLeft() >= 1) Bonus.AwardSpeedBonus(shared.TimeBonusPerSecond);
}

void frmPhrase::PayGuesses() {
  Score.Number.TextColor = ui::Aqua;
  for (int i = rules_.GuessesLeft; i >= 0; --i) {
    ShowGuess(i, "BLANK");
    shared.AddToScore(values_.GuessBonus);
    WriteScore();
    Wave("Snap.wav");
    Wait(GuessPause);
  }
  Score.Number.TextColor = ui::Blue;
}

// --- what comes next ----------------------------------------------------------------------------

void frmPhrase::PrepareFor(const std::string& message) {
  Message.TextColor = ui::Red;
  FlashTitle(message, RoundFlashes);
}

void frmPhrase::StartRoundTwo() {
  cmdPause.Enabled = true;
  EnableRoundCommands(true);
  PrepareFor("Prepare for Round Two!");
  InitRound();
  Timer5.Enabled = !StandsStill();
}

void frmPhrase::StartBonusRound() {
  Wave("Applause.wav");
  PrepareFor("Prepare for Bonus Round!");
  rules_.BonusPicking = true;
  InitRound();
  Timer5.Enabled = !StandsStill();
}

void frmPhrase::GameOver() {
  FinishGame();
  StatusBar1(1).Text = "Welcome to " + shared.GameTitle;
  EnableRoundCommands(true);
  EnableSolve(false);
  ShowGameOver(2000);
  rules_.BonusPicking = false;
  shared.ScoringBusy = false;
}

}  // namespace games::glimmard
