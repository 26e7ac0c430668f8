// Playing Harvel: starting and ending a game, its rounds, the moves and the 21 Counter.
#include "core/text/number.h"
#include "games/harvel/window.h"

namespace games::harvel {
namespace {

using core::Digits;

// Milliseconds.
constexpr int NotePause = 450;
constexpr int RunOutPause = 250;
constexpr int CompletionPause = 1000;
constexpr int StepPause = 75;
constexpr int AtOncePause = 500;
constexpr int BonusSumPause = 750;

}  // namespace

void frmHarvel::StartGame() {
  BeginGame();
  rules_.StartGame();
  WriteBonus();
  WriteRound();
  shared.GameActive = true;
  ShowRunningCommands();
  Board.cmdPass.Enabled = shared.CardsToPass != 0;
  Board.cmdHit.Enable(true);
  StatusBar1(2).Text = "Create columns of 21 to increase bonus score!";
  ShowGoal(values_.BonusRoundScore, " for bonus round.");
  Board.ShowEmptyPlaces();
  if (!suite.CreateDeck() || !suite.ShuffleDeck()) return ReturnToTitle();
  ShowCards(true);
  ShowGraphics(true);
  StartClock();
  ShowCurrentCard(rules_.CurrentCard());
  ShowDeckPicture();
  WriteCardsUsed();
  StartMusic();
}

/// The clock runs on behind the question, so the game can be over when it is answered.
void frmHarvel::AskToEndGame() {
  StopMusic();
  const bool yes = Ask("You have a game in progress. Are you sure you want to quit?");
  if (!shared.GameActive) return;
  if (!yes) return StartMusic();
  StopTimers();
  EnablePause(false);
  shared.RoundNumber = AfterLastRound;
  GameAbandoned = true;
  NextRound();
  GameAbandoned = false;
}

void frmHarvel::StopTimers() {
  StopClock();
  counterRuns_ = Timer3.Enabled = false;
}

void frmHarvel::NextRound() {
  ServeAndDrop();
  StopMusic();
  rules_.EndRound();
  Board.Reset();
  ResetCounter();
  StatusBar1(2).Text = "Create columns of 21 to increase bonus score!   ";
  if (rules_.IsPlayed(shared.RoundNumber, shared.CurrentScore)) return StartRound();
  if (!GameAbandoned) EnterScore();
  ReturnToTitle();
}

void frmHarvel::StartRound() {
  StartMusic();
  suite.ShuffleDeck();
  Board.PlayCardPicture.Show("FULL");
  const bool bonusRound = rules_.IsBonusRound(shared.RoundNumber, shared.CurrentScore);
  if (bonusRound) Wave("HighScore.wav");
  AnnounceForWaitPeriod(
      "Prepare for " + (bonusRound ? "Bonus Round" : "Round " + Digits(shared.RoundNumber)),
      ui::Red);
  Board.ShowEmptyPlaces();
  rules_.StartRound();
  ShowCurrentCard(rules_.CurrentCard());
  ServeAndDrop();
  // Only now: the window may have been minimized or restored meanwhile.
  Timer1.Enabled = !StandsStill();
  shared.ScoringBusy = false;
  EnableControls(true);
  EnablePause(true);
  Board.cmdHit.Enable(true);
}

void frmHarvel::ReturnToTitle() {
  ShowTimerGroup(false);
  shared.DeckIndex = 0;
  lblRound.Text = "Game Over";
  ShowCaptionOfPlay(false);
  AnnounceForWaitPeriod("Game Over", ui::Red);
  GoIdle();
  ShowCards(false);
  ShowGraphics(false);
  Clock.lblTime.Text = "Time:";
  EnableControls(true);
  StatusBar1(1).Text = "Click on Play to start a new game  ";
  StatusBar1(2).Text = "Game Over ";
}

// --- the moves ----------------------------------------------------------------------------------

void frmHarvel::Hit(int column) {
  const std::string card = rules_.CurrentCard();
  const HitResult hit = rules_.Hit(column);
  if (hit.outcome == Outcome::Nothing) return;
  if (hit.outcome == Outcome::Refused) return Refuse(column, hit.points);
  Board.ShowSoft(column, hit.soft);
  Board.ShowCard(column, hit.place, card);
  if (hit.outcome == Outcome::TwentyOne) {
    ShowTwentyOne(column);
  } else if (hit.outcome == Outcome::FiveCardGimme) {
    AwardFiveCardGimme(column, hit.points);
  } else {
    Board.ShowTotal(column, rules_.ColumnTotal[static_cast<std::size_t>(column)]);
    Wave("Click.wav");
  }
  ShowNextCard();
}

void frmHarvel::Refuse(int column, std::int32_t points) {
  Board.ShowOverColumn(lblBust, column);
  Wave("Slide.wav");
  Pay(points);
  Wait(NotePause);
  lblBust.Visible = false;
}

void frmHarvel::ShowTwentyOne(int column) {
  WriteBonus();
  Board.ClearColumn(column);
  Board.ShowEmptyPlace(column);
  Board.ShowTotal(column, 0);
  Board.ShowSoft(column, false);
  ResetCounter();
  counterRuns_ = Timer3.Enabled = true;
  Wave("TwentyOne.wav");
}

void frmHarvel::AwardFiveCardGimme(int column, std::int32_t points) {
  Board.ClearColumn(column);
  Board.ShowOverColumn(lblFiveCards, column);
  Pay(points);
  ResetCounter();
  Board.ShowTotal(column, 0);
  Wave("Click.wav");
  Wait(NotePause);
  lblFiveCards.Visible = false;
  Board.ShowEmptyPlace(column);
  Board.ShowSoft(column, false);
}

void frmHarvel::ShowNextCard() {
  WriteCardsUsed();
  ShowDeckPicture();
  if (shared.DeckIndex >= columns::LastCard) {
    Board.PlayCardPicture.Show("EMPTY");
    Board.cmdPass.Enabled = false;
  }
  if (rules_.DeckFinished()) return FinishDeck();
  Board.NextCardPicture.Show(rules_.CurrentCard());
}

void frmHarvel::FinishDeck() {
  Board.NextCardPicture.Border = false;
  Board.NextCardPicture.Show("EMPTY");
  shared.AddToScore(values_.DeckCompletionBonus);
  Board.ClearColumns();
  Wave("Applause.wav");
  AnnounceForWaitPeriod("Awesome score!", ui::Red);
  Wait(CompletionPause);
  WriteScore();
  Board.cmdHit.Enable(false);
  cmdTakeScore_Click();
}

void frmHarvel::Pass() {
  if (!rules_.Pass()) return;
  Wave("Click.wav");
  ShowNextCard();
}

// --- the 21 Counter -----------------------------------------------------------------------------

void frmHarvel::Timer3_Timer() {
  switch (rules_.TickCounter()) {
    case CounterTick::HalfWay:
      Timer5.Enabled = true;
      [[fallthrough]];
    case CounterTick::Counting:
      ProgressBar1.Value = rules_.CounterValue;
      break;
    case CounterTick::RanOut:
      ResetCounter();
      WriteBonus();
      lblBonus.TextColor = ui::Red;
      Wait(RunOutPause);
      lblBonus.TextColor = ui::Blue;
      break;
  }
}

void frmHarvel::Timer5_Timer() {
  lblTwentyoneTime.TextColor = lblTwentyoneTime.TextColor == ui::Red ? ui::Black : ui::Red;
}

void frmHarvel::ResetCounter() {
  ProgressBar1.Value = ProgressBar1.Min;
  Timer5.Enabled = false;
  lblTwentyoneTime.TextColor = ui::Blue;
}

// --- the end of a round -------------------------------------------------------------------------

void frmHarvel::HideAtExpiry() {
  StopTimers();
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
  StopTimers();
  ShowCounter(false);
  EnableControls(false);
  EnablePause(false);
  StopMusic();
  PayCardsUsed();
  if (rules_.TwentyOneCount != 0) PayTwentyOnes();
  rules_.ClearBonus();
  WriteBonus();
  ResetClock();
  Clock.WriteTime();
  ShowTimerGroup(true);
  ShowCounter(true);
  ++shared.RoundNumber;
  WriteRound();
  NextRound();
  if (shared.GameActive) StartMusic();
  Hourglass = false;
}

void frmHarvel::PayCardsUsed() {
  Paint(ui::Red, {&CardsUsed.Caption, &CardsUsed.Number});
  if (shared.CountDownScoring) {
    CountUp(rules_.CardsUsed(), values_.CardsUsedBonusValue, CardsUsed.Number, 1);
  } else {
    Pay(core::Product(rules_.CardsUsed(), values_.CardsUsedBonusValue));
    CardsUsed.Number.Text = "0";
    Wait(AtOncePause);
  }
  Paint(ui::Blue, {&CardsUsed.Caption, &CardsUsed.Number});
}

void frmHarvel::PayTwentyOnes() {
  const auto labels = {&lbl21Bonus, &lblTwentyOnes, &lbl21s, &lblBonus};
  const std::int32_t bonus = rules_.TwentyOneBonus();
  Paint(ui::Red, labels);
  lblRoundScore.Text = Digits(rules_.TwentyOneCount) + " X " + core::Masked(rules_.BonusFigure) +
                       " = " + core::Masked(bonus);
  lblRoundScoreCount.Text = Digits(bonus);
  Show(true, {&lblRoundScore, &lblRoundScoreCount});
  Wait(BonusSumPause);
  if (shared.CountDownScoring) {
    const std::int32_t step = values_.TwentyOneBonusValue;
    CountUp(rules_.BonusSteps(), step, lblRoundScoreCount, step);
  } else {
    Pay(bonus);
    Wait(AtOncePause);
  }
  Paint(ui::Blue, labels);
  Show(false, {&lblRoundScore, &lblRoundScoreCount});
}

/// Pays so many steps, each of which lowers the number in the label `count`.
void frmHarvel::CountUp(int steps, std::int32_t points, ui::Label& count, std::int32_t less) {
  for (; steps > 0; --steps) {
    Wait(StepPause);
    Pay(points);
    Wave("CountScore.wav");
    count.Text = Digits(core::WholeIn(count.Text()) - less);
  }
}

}  // namespace games::harvel
