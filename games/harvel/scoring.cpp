// The end of a Harvel round: the cards used and the 21 combinations, counted onto the score.
#include "core/text/number.h"
#include "games/harvel/window.h"

namespace games::harvel {
namespace {

using core::Digits;
using core::Masked;

constexpr int StepPause = 75;
constexpr int AtOncePause = 500;
constexpr int BonusSumPause = 750;

void SetColor(std::initializer_list<ui::Label*> labels, ui::Color color) {
  for (ui::Label* label : labels) label->TextColor = color;
}

}  // namespace

void frmHarvel::HideAtExpiry() {
  StopCounter();
  Board.ClearColumns();
  ScoringLabelOutline.Visible = true;
  Clock.lblTime.Text = "Time:";
}

void frmHarvel::TimeIsUp() {
  GameWindow::TimeIsUp();
  ScoringLabelOutline.Visible = Message.Visible();
}

void frmHarvel::TakeScore() {
  if (!shared.GameActive) return;
  shared.ScoringBusy = true;
  Hourglass = true;
  StopRound();
  ShowCounter(false);
  EnableControls(false);
  EnablePause(false);
  StopMusic();
  PayCardsUsed();
  if (rules_.TwentyOneCount != 0) PayTwentyOnes();
  rules_.ClearBonus();
  WriteBonus();
  shared.ElapsedSeconds = 0;
  shared.TimerFaceTick = 0;
  Clock.WriteTime();
  Clock.InitTimerFace();
  ShowTimerGroup(true);
  ShowCounter(true);
  ++shared.RoundNumber;
  WriteRound();
  NextRound();
  if (shared.GameActive) StartMusic();
  Hourglass = false;
}

void frmHarvel::PayCardsUsed() {
  const std::int64_t value = values_.CardsUsedBonusValue;
  const auto labels = {&CardsUsed.Caption, &CardsUsed.Number};
  SetColor(labels, ui::Red);
  int count = rules_.CardsUsed();
  if (shared.CountDownScoring) {
    while (count > 0) {
      Wait(StepPause);
      Pay(value);
      Wave("CountScore.wav");
      CardsUsed.Number.Text = Digits(--count);
    }
  } else {
    Pay(core::Product(count, value));
    CardsUsed.Number.Text = "0";
    Wait(AtOncePause);
  }
  SetColor(labels, ui::Blue);
}

void frmHarvel::PayTwentyOnes() {
  const auto labels = {&lbl21Bonus, &lblTwentyOnes, &lbl21s, &lblBonus};
  SetColor(labels, ui::Red);
  ShowBonusSum();
  const std::int64_t step = values_.TwentyOneBonusValue;
  std::int64_t rest = rules_.TwentyOneBonus();
  if (shared.CountDownScoring) {
    for (int steps = rules_.BonusSteps(); steps > 0; --steps) {
      Wait(StepPause);
      Pay(step);
      rest -= step;
      lblRoundScoreCount.Text = Digits(rest);
      Wave("CountScore.wav");
    }
  } else {
    Pay(rest);
    Wait(AtOncePause);
  }
  SetColor(labels, ui::Blue);
  lblRoundScore.Visible = lblRoundScoreCount.Visible = false;
}

void frmHarvel::ShowBonusSum() {
  const std::int32_t bonus = rules_.TwentyOneBonus();
  lblRoundScore.Text =
      Digits(rules_.TwentyOneCount) + " X " + Masked(rules_.BonusFigure) + " = " + Masked(bonus);
  lblRoundScoreCount.Text = Digits(bonus);
  lblRoundScore.Visible = lblRoundScoreCount.Visible = true;
  Wait(BonusSumPause);
}

void frmHarvel::Pay(std::int64_t points) {
  shared.AddToScore(points);
  WriteScore();
}

}  // namespace games::harvel
