// Playing Brenlock: starting and ending a game, its rounds, and the moves.
#include <stdexcept>

#include "core/text/number.h"
#include "games/brenlock/window.h"

namespace games::brenlock {
namespace {

using core::Digits;
using core::Masked;

constexpr int LostFlashes = 12;
constexpr int LostFlashPause = 150;  // milliseconds, as those that follow
constexpr int StepPause = 10;
constexpr int CountedPause = 50;
constexpr int StepsToATick = 3;

}  // namespace

void frmBrenlock::StartGame() {
  GameAbandoned = false;
  BeginGame();
  StatusBar1(2).Text = "Click on Hit buttons to create columns of 21!   ";
  ShowGoal(values_.BonusScore, " for bonus round.  ");
  ShowRunningCommands();
  SetUpRound();
  shared.GameActive = true;
  StartMusic();
  EndOnFault();
}

/// A fresh deck and an empty board, with the second card in hand, and the clock that runs.
void frmBrenlock::SetUpRound() {
  Caption = shared.GameTitle + ": Round " + Digits(shared.RoundNumber);
  WriteRound();
  ShowCards(true);
  Step([this] { suite.CreateDeck() && suite.ShuffleDeck(); });
  Step([this] { EnableControls(); });
  Step([this] { Reset(); });
  rules_.StartRound();
  ShowCurrentCard(rules_.CurrentCard());
  Board.PlayCardPicture.Show("FULL");
  Board.ShowEmptyPlaces();
  Board.cmdPass.Enabled = shared.PassesLeft > 0;
  ShowHitButtons(true);
  ShowBoard(true);
  EnablePause(true);
  UpdateCardTotalValue();
  ResetClock();
  Timer1.Enabled = !StandsStill();
}

void frmBrenlock::AskToEndGame() {
  StopMusic();
  PauseGame();
  const bool yes = Ask("You have a game in progress, are you sure you want to quit?");
  if (!shared.GameActive) return;
  GameAbandoned = yes;
  shared.GameActive = !yes;
  if (Paused()) PauseGame();
  if (!yes) return;
  Reset();
  shared.RoundNumber = AfterLastRound;
  EndRound();
}

void frmBrenlock::Reset() {
  StopClock();
  shared.ElapsedSeconds = 0;
  Message.FontSize = 18;
  rules_.Reset();
  lblTimeBonus.Text = Digits(rules_.CurrentTimeBonus);
  Board.Reset();
  for (int column = 0; column < ColumnCount; ++column) CloseColumn(column, false);
  CardTotal.Number.Text = "0";
  cmdGiveUp.Text = "&Give Up";
  ShowHitButtons(false);
  EnablePause(false);
}

void frmBrenlock::EndRound() {
  shared.ElapsedSeconds = 0;
  shared.RoundNumber = rules_.RoundToPlay(shared.RoundNumber, shared.CurrentScore);
  StopMusic();
  shared.RoundNumber <= BonusRound ? NewRound() : GameOver();
  CardTotal.Number.TextColor = ui::Red;
}

void frmBrenlock::NewRound() {
  const bool bonusRound = shared.RoundNumber == BonusRound;
  ServeAndDrop();
  StartMusic();
  Caption = shared.GameTitle + ": Round " + Digits(shared.RoundNumber);
  ShowCards(false);
  if (bonusRound) Wave("HighScore.wav");
  AnnounceForWaitPeriod(
      "Prepare for " + (bonusRound ? "Bonus Round!" : "Round " + Digits(shared.RoundNumber)),
      ui::Blue);
  ServeAndDrop();
  SetUpRound();
  shared.ScoringBusy = false;
}

void frmBrenlock::GameOver() {
  if (!GameAbandoned) EnterScore();
  Caption = shared.GameTitle + ": Game Over";
  lblRound.Text = "Round: 1";
  ShowRound(false);
  Announce("Game Over", ui::Blue);
  HideAnnouncement();
  shared.CurrentScore = 0;
  shared.RoundNumber = 0;
  GoIdle();
  ShowBoard(false);
  StatusBar1(1).Text = "Game over!  ";
  StatusBar1(2).Text = "Click on Play to start a new game.  ";
}

// --- the moves ----------------------------------------------------------------------------------

void frmBrenlock::Hit(int column) {
  const std::string card = rules_.CurrentCard();
  const HitResult hit = rules_.Hit(column);
  if (hit.outcome == Outcome::Nothing) return;
  Wave("Click.wav");
  ShowHit(column, hit, card);
  if (hit.outcome == Outcome::Bust) {
    CloseCurrentRound();
    cmdGiveUp.Text = "&Give up";
    cmdGiveUp_Click();
  } else {
    ShowSum(hit.outcome);
  }
}

void frmBrenlock::ShowHit(int column, const HitResult& hit, const std::string& card) {
  Board.ShowCard(column, hit.place, card);
  Board.ShowSoft(column, rules_.IsSoft(column));
  Board.ShowTotal(column, rules_.ColumnTotal[static_cast<std::size_t>(column)]);
  if (hit.madeTwentyOne) Wave("HighScore.wav");
  if (hit.place == columns::PlacesOfColumn - 1) CloseColumn(column);
}

/// A sum of 105 closes the round within the label's change; the board is a fresh one then, or
/// none, and what the last card brought about is no longer to be shown.
void frmBrenlock::ShowSum(Outcome outcome) {
  const std::int16_t round = shared.RoundNumber;
  CardTotal.Number.Text = Digits(rules_.CardTotal);
  if (shared.RoundNumber != round) return;
  Board.NextCardPicture.Show(rules_.CurrentCard());
  if (rules_.CardTotal >= LowestScoring) {
    CardTotal.Number.TextColor = ui::Green;
  } else if (outcome == Outcome::SoftAceUsed) {
    CardTotal.Number.TextColor = ui::Red;
    cmdGiveUp.Text = "&Give up";
  }
}

void frmBrenlock::CloseColumn(int column, bool closed) {
  Board.cmdHit(column).Enabled = !closed;
  Board.cmdHit(column).Text = closed ? "Closed" : "Hit";
}

void frmBrenlock::lblCurrentTotal_Change() {
  UpdateCardTotalValue();
  if (rules_.IsComplete()) cmdGiveUp_Click();
}

void frmBrenlock::Pass() {
  if (!rules_.Pass()) return;
  Board.NextCardPicture.Show(rules_.CurrentCard());
  Wave("Click.wav");
}

// --- the end of a round -------------------------------------------------------------------------

void frmBrenlock::ShowSecondsLeft() {
  rules_.UpdateTimeBonus(shared.ElapsedSeconds);
  lblTimeBonus.Text = Digits(rules_.CurrentTimeBonus);
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
    Pay(rules_.RoundScore());
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
    Pay(step);
    if (count % StepsToATick == 0) Wave("Tick.wav");
    Wait(StepPause);
  }
  Message.Text = "0";
  Wait(CountedPause);
  Message.TextColor = ui::Blue;
}

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
