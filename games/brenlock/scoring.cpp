// The round clock of Brenlock, and the end of a round: its score counted up, or the round lost.
#include <stdexcept>

#include "core/text/number.h"
#include "games/brenlock/window.h"

namespace games::brenlock {
namespace {

using core::Digits;
using core::Masked;

constexpr int LostFlashes = 12;
constexpr int LostFlashPause = 150;
constexpr int StepPause = 10;
constexpr int StepsToATick = 3;
constexpr int CountedPause = 50;

}  // namespace

void frmBrenlock::ShowSecondsLeft() {
  rules_.UpdateTimeBonus(shared.ElapsedSeconds);
  WriteTimeBonus();
  Clock.lblTime.Text = "Time Bonus:";
}

void frmBrenlock::TimeIsUp() {
  ShowCards(false);
  StopClock();
  Announce("Times Up!", ui::Red);
  Wait(shared.WaitPeriod);
  cmdGiveUp_Click();
}

void frmBrenlock::cmdGiveUp_Click() {
  if (shared.ScoringBusy || Paused() || !shared.GameActive) return;
  shared.ScoringBusy = true;
  Hourglass = true;
  ++shared.RoundNumber;
  Step([this] { cmdGiveUp.Text == "&Take score" ? TakeScore() : LoseRound(); });
  Step([this] { Reset(); });
  ServeAndDrop();
  if (shared.GameActive) EndRound();
  Hourglass = false;
  EndOnFault();
}

void frmBrenlock::LoseRound() {
  Wave("Busted.wav");
  StopMusic();
  ShowCards(false);
  if (rules_.CardTotal >= LowestScoring) {
    Announce("Busted!", ui::Red);
    Wave("Busted.wav");
  } else {
    Announce("Sorry, 97 or more needed to win!", ui::Red);
  }
  Flash(Message, LostFlashes, LostFlashPause);
  HideAnnouncement();
  StopClock();
}

void frmBrenlock::TakeScore() {
  StopClock();
  StopMusic();
  ShowCards(false);
  ShowRoundScore();
  Message.TextColor = ui::Red;
  if (shared.CountDownScoring) {
    CountRoundScore();
  } else {
    shared.AddToScore(rules_.RoundScore());
    WriteScore();
  }
  Clock.InitTimerFace();
  ShowScoringLabel(false);
  ScoringLabelOutline.Visible = false;
}

void frmBrenlock::ShowRoundScore() {
  ScoringLabelRoundTotal.Text = "Round " + Digits(shared.RoundNumber - 1) + " Total: ";
  ScoringLabelInfo.Text = "Card Total Value (" + Digits(rules_.CardTotalValue) +
                          ") X Time Bonus (" + Digits(rules_.CurrentTimeBonus) + ")";
  Announce(Masked(rules_.RoundScore()), ui::Black);
  PlaceRoundTotal();
  ShowScoringLabel(true);
  Wait(shared.WaitPeriod);
  if (rules_.CardTotalValue < CardTotalValues.back()) return;
  ScoringLabelInfo.Text = "Totally Awesome Score!";
  Wave("Applause.wav");
  Wait(shared.WaitPeriod);
  Wait(shared.WaitPeriod);
}

void frmBrenlock::CountRoundScore() {
  const std::int32_t step = rules_.ScoreStep();
  std::int32_t rest = rules_.RoundScore();
  for (int count = 0; step > 0 && rest > 0; ++count) {
    Message.Text = Masked(rest);
    rest -= step;
    shared.AddToScore(step);
    WriteScore();
    if (count % StepsToATick == 0) Wave("Tick.wav");
    Wait(StepPause);
  }
  Message.Text = "0";
  Wait(CountedPause);
  Message.TextColor = ui::Blue;
}

// --- faults -------------------------------------------------------------------------------------

void frmBrenlock::Step(const std::function<void()>& step) {
  try {
    step();
  } catch (const std::exception& e) {
    if (fault_.empty()) fault_ = e.what();
  }
}

void frmBrenlock::EndOnFault() {
  if (fault_.empty()) return;
  suite.Tell(ui::Sign::Critical, fault_);
  suite.platform.Quit();
}

}  // namespace games::brenlock
