// The end of a Pellow round: its bonuses, and what comes next.
#include "games/pellow/window.h"

namespace games::pellow {
namespace {

constexpr int RoundFlashes = 11;
constexpr int GameOverPause = 2000;

}  // namespace

void frmPellow::CloseRound(bool FieldCleared) {
  StopClock();
  if (shared.ScoringBusy) return;
  shared.ScoringBusy = true;
  ShutTable();
  ++shared.RoundNumber;
  Message.TextColor = ui::Red;
  for (const Award& award : rules_.Awards(scoring_, shared.SecondsLeft(), FieldCleared)) {
    Pay(award);
  }
  GoOnAfterRound();
}

void frmPellow::ShutTable() {
  ClearMouseIcon();
  PauseBoard();
  EnableCommands(false);
  Hourglass = true;
  StopMusic();
}

void frmPellow::Pay(const Award& award) {
  if (award.kind == Award::Kind::Speed) {
    bonuses_.AwardSpeedBonus(shared.TimeBonusPerSecond);
    return;
  }
  ui::Label& counter = award.kind == Award::Kind::Pairs ? Pairs.Number : Runs.Number;
  if (award.kind != Award::Kind::Completion) counter.TextColor = ui::Aqua;
  bonuses_.AwardBonus(award.count, award.value, award.title);
  counter.TextColor = ui::Blue;
}

void frmPellow::GoOnAfterRound() {
  const Next next = NextAfter(shared.RoundNumber, shared.CurrentScore, scoring_.BonusScore);
  if (next == Next::RoundTwo) PrepareFor("Prepare for Round Two!");
  if (next == Next::BonusRound) PrepareFor("Prepare for Bonus Round!", "Applause.wav");
  if (next == Next::GameOver) GameOver();
}

void frmPellow::PrepareFor(const std::string& title, const std::string& wave) {
  Message.TextColor = ui::Red;
  if (!wave.empty()) Wave(wave);
  FlashTitle(title, RoundFlashes);
  EnableRoundCommands(true);
  Hourglass = false;
  InitRound();
}

void frmPellow::GameOver() {
  Hourglass = false;
  FinishGame();
  EnablePlayAndExit();
  ShowGameOver(GameOverPause);
  ServeAndDrop();
  shared.ScoringBusy = false;
}

}  // namespace games::pellow
