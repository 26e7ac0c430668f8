// Playing Harvel: starting and ending a game, its rounds, the moves and the 21 Counter.
#include "core/text/number.h"
#include "games/harvel/window.h"

namespace games::harvel {
namespace {

constexpr int NotePause = 450;
constexpr int RunOutPause = 250;
constexpr int GameOverPause = 2000;
constexpr int CompletionPause = 1000;

}  // namespace

void frmHarvel::Play() {
  cmdPlay.Text == "&Play" ? StartGame() : AskToEndGame();
}

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
  if (!suite.CreateDeck() || !suite.ShuffleDeck()) {
    ReturnToTitle();
    return;
  }
  ShowCards(true);
  ShowGraphics(true);
  ShowCounter(true);
  StartClock();
  Board.NextCardPicture.Show(rules_.CurrentCard());
  Board.NextCardPicture.Border = true;
  ShowDeckPicture();
  WriteCardsUsed();
  StartMusic();
}

/// The clock runs on behind the question, so the game can be over when it is answered.
void frmHarvel::AskToEndGame() {
  StopMusic();
  const bool yes = Ask("You have a game in progress. Are you sure you want to quit?");
  if (!shared.GameActive) return;
  if (!yes) {
    StartMusic();
    return;
  }
  StopRound();
  ShowCaptionOfPlay(false);
  EnablePause(false);
  ShowTimerGroup(false);
  shared.RoundNumber = AfterLastRound;
  GameAbandoned = true;
  NextRound();
  GameAbandoned = false;
}

void frmHarvel::StopRound() {
  StopClock();
  StopCounter();
}

void frmHarvel::NextRound() {
  ServeAndDrop();
  StopMusic();
  rules_.EndRound();
  Board.ClearColumns();
  for (int column = 0; column < ColumnCount; ++column) {
    Board.ShowTotal(column, 0);
    Board.ShowSoft(column, false);
  }
  StopCounter();
  ResetCounter();
  StatusBar1(2).Text = "Create columns of 21 to increase bonus score!   ";
  rules_.IsPlayed(shared.RoundNumber, shared.CurrentScore) ? StartRound() : GameOver();
}

void frmHarvel::StartRound() {
  StartMusic();
  suite.ShuffleDeck();
  Board.PlayCardPicture.Show("FULL");
  if (rules_.IsBonusRound(shared.RoundNumber, shared.CurrentScore)) {
    Wave("HighScore.wav");
    Announce("Prepare for Bonus Round");
  } else {
    Announce("Prepare for Round " + core::Digits(shared.RoundNumber));
  }
  Board.ShowEmptyPlaces();
  Timer1.Enabled = true;
  rules_.StartRound();
  Board.NextCardPicture.Show(rules_.CurrentCard());
  ServeAndDrop();
  shared.ScoringBusy = false;
  EnableControls(true);
  EnablePause(true);
  Board.cmdHit.Enable(true);
  Board.NextCardPicture.Border = true;
}

void frmHarvel::GameOver() {
  StopRound();
  if (!GameAbandoned) EnterScore();
  ReturnToTitle();
}

void frmHarvel::EnterScore() {
  UpdateTable();
  ShowOverBoard("Game Over");
  Hourglass = true;
  Wait(GameOverPause);
  HideBoardMessage();
  ShowTimerGroup(false);
}

void frmHarvel::ReturnToTitle() {
  shared.DeckIndex = 0;
  lblRound.Text = "Game Over";
  shared.GameActive = false;
  ShowIdleCommands();
  Announce("Game Over");
  ShowTitle(true);
  Clock.InitTimerFace();
  Timer2.Enabled = false;
  ShowCards(false);
  ShowGraphics(false);
  Clock.lblTime.Text = "Time:";
  shared.ElapsedSeconds = 0;
  shared.ScoringBusy = false;
  EnableControls(true);
  StatusBar1(1).Text = "Click on Play to start a new game  ";
  StatusBar1(2).Text = "Game Over ";
}

// --- the moves ----------------------------------------------------------------------------------

void frmHarvel::cmdHit_Click(int column) {
  if (shared.ScoringBusy) return;
  const std::string card = rules_.CurrentCard();
  const HitResult hit = rules_.Hit(column);
  if (hit.outcome == Outcome::Nothing) return;
  if (hit.outcome == Outcome::Refused) {
    Refuse(column, hit.points);
    return;
  }
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
  Board.PutOverColumn(lblBust, column);
  lblBust.Visible = true;
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
  Board.PutOverColumn(lblFiveCards, column);
  lblFiveCards.Visible = true;
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
  if (rules_.DeckFinished()) {
    FinishDeck();
    return;
  }
  Board.NextCardPicture.Show(rules_.CurrentCard());
  if (shared.DeckIndex < columns::LastCard) return;
  Board.PlayCardPicture.Show("EMPTY");
  Board.cmdPass.Enabled = false;
}

void frmHarvel::FinishDeck() {
  Board.NextCardPicture.Border = false;
  Board.NextCardPicture.Show("EMPTY");
  Board.PlayCardPicture.Show("EMPTY");
  Board.cmdPass.Enabled = false;
  shared.AddToScore(values_.DeckCompletionBonus);
  Board.ClearColumns();
  Wave("Applause.wav");
  Announce("Awesome score!");
  Wait(CompletionPause);
  WriteScore();
  Board.cmdHit.Enable(false);
  cmdTakeScore_Click();
}

void frmHarvel::cmdPass_Click() {
  if (shared.ScoringBusy || !rules_.Pass()) return;
  Wave("Click.wav");
  ShowNextCard();
  if (shared.PassesLeft == 0) Board.cmdPass.Enabled = false;
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

void frmHarvel::StopCounter() {
  counterRuns_ = Timer3.Enabled = false;
}

void frmHarvel::ShowCounter(bool visible) {
  ProgressBar1.Visible = visible;
  lblTwentyoneTime.Visible = visible;
}

}  // namespace games::harvel
