// The end of an Ostrel round: its bonuses, and what comes next.
#include "games/ostrel/window.h"

namespace games::ostrel {
namespace {

constexpr int SorryPause = 3000;
constexpr int RoundFlashes = 11;
constexpr int GameOverPause = 2000;

}  // namespace

void frmOstrel::TakeScore() {
  if (shared.ScoringBusy) return;
  shared.ScoringBusy = true;
  ShutTable();
  ++shared.RoundNumber;
  Message.TextColor = ui::Red;
  Message.Visible = true;
  SpeedScore();
  TowerScore();
  HighRunScore();
  GoOnAfterRound();
  lblScoring.Visible = false;
  Hourglass = false;
}

void frmOstrel::ShutTable() {
  StopClock();
  EnableCommands(false);
  rules_.CurrentRun = 0;
  ClearPointers();
  Hourglass = true;
  ShowCards(false);
  imgBackGround.Visible = false;
  StopMusic();
}

void frmOstrel::SpeedScore() {
  if (shared.SecondsLeft() <= 0) return;
  if (rules_.TowersDone > 0) {
    bonuses_.AwardSpeedBonus(shared.TimeBonusPerSecond);
    return;
  }
  Message.Text = "Sorry, you must complete at least\r\none tower to receive the time bonus!";
  Wave("Slide.wav");
  Wait(SorryPause);
}

void frmOstrel::TowerScore() {
  if (const int towers = rules_.TakeTowers(); towers > 0) {
    bonuses_.AwardBonus(towers, scoring_.TowerBonus, "Tower Bonus");
  }
}

void frmOstrel::HighRunScore() {
  if (rules_.TakeNewHighRun()) {
    bonuses_.AwardBonus(rules_.HighRun, scoring_.HighRunBonus, "Highest Run Bonus");
  }
}

void frmOstrel::GoOnAfterRound() {
  switch (rules_.Following(shared.RoundNumber, shared.CurrentScore)) {
    case AfterRound::RoundTwo:
      PrepareForRound("Prepare for Round Two!");
      break;
    case AfterRound::BonusRound:
      Wave("Applause.wav");
      PrepareForRound("Prepare for Bonus Round!");
      break;
    case AfterRound::GameOver:
      GameOver();
  }
}

void frmOstrel::PrepareForRound(const std::string& title) {
  FlashTitle(title, RoundFlashes);
  StartRound();
}

void frmOstrel::GameOver() {
  FinishGame();
  imgBackGround.Visible = false;
  ShowGameOver(GameOverPause);
  ServeAndDrop();
  shared.ScoringBusy = false;
}

}  // namespace games::ostrel
