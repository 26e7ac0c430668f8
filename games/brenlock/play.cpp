// Playing Brenlock: starting and ending a game, its rounds, and the moves.
#include "core/text/number.h"
#include "games/brenlock/window.h"

namespace games::brenlock {
namespace {

using core::Digits;

constexpr int GameOverPause = 2000;

}  // namespace

void frmBrenlock::Play() {
  cmdPlay.Text == "&Play" ? StartGame() : AskToEndGame();
}

void frmBrenlock::StartGame() {
  GameAbandoned = false;
  BeginGame();
  StatusBar1(2).Text = "Click on Hit buttons to create columns of 21!   ";
  ShowGoal(values_.BonusScore, " for bonus round.  ");
  ShowRunningCommands();
  Step([this] { suite.CreateDeck() && suite.ShuffleDeck(); });
  Step([this] { EnableControls(); });
  Caption = shared.GameTitle + ": Round " + Digits(shared.RoundNumber);
  lblRound.Text = "Round: " + Digits(shared.RoundNumber);
  ShowCards(true);
  Step([this] { Reset(); });
  DealFirstCard();
  ShowBoard();
  UpdateCardTotalValue();
  StartRoundClock();
  shared.GameActive = true;
  StartMusic();
  EndOnFault();
}

void frmBrenlock::AskToEndGame() {
  StopMusic();
  PauseGame();
  const bool yes = Ask("You have a game in progress, are you sure you want to quit?");
  if (!shared.GameActive) return;
  if (yes) {
    GameAbandoned = true;
    shared.GameActive = false;
  }
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
  WriteTimeBonus();
  Board.ClearColumns();
  for (int column = 0; column < ColumnCount; ++column) {
    Board.ShowSoft(column, false);
    Board.ShowTotal(column, 0);
    CloseColumn(column, false);
  }
  CardTotal.Number.Text = "0";
  cmdGiveUp.Text = "&Give Up";
  ShowHitButtons(false);
  EnablePause(false);
}

void frmBrenlock::DealFirstCard() {
  rules_.StartRound();
  Board.NextCardPicture.Show(rules_.CurrentCard());
  Board.NextCardPicture.Border = true;
  Board.PlayCardPicture.Show("FULL");
}

void frmBrenlock::StartRoundClock() {
  shared.TimerFaceTick = 0;
  Clock.InitTimerFace();
  Timer1.Enabled = true;
}

void frmBrenlock::EndRound() {
  shared.ElapsedSeconds = 0;
  shared.RoundNumber =
      core::ClampTo<std::int16_t>(rules_.RoundToPlay(shared.RoundNumber, shared.CurrentScore));
  StopMusic();
  shared.RoundNumber <= BonusRound ? NewRound() : GameOver();
  CardTotal.Number.TextColor = ui::Red;
}

void frmBrenlock::NewRound() {
  ServeAndDrop();
  StartMusic();
  Caption = shared.GameTitle + ": Round " + Digits(shared.RoundNumber);
  lblRound.Text = "Round: " + Digits(shared.RoundNumber);
  ShowCards(false);
  if (shared.RoundNumber == BonusRound) {
    Announce("Prepare for Bonus Round!", ui::Blue);
    Wave("HighScore.wav");
  } else {
    Announce("Prepare for Round " + Digits(shared.RoundNumber), ui::Blue);
  }
  Wait(shared.WaitPeriod);
  HideAnnouncement();
  ShowCards(true);
  Step([this] { suite.CreateDeck() && suite.ShuffleDeck(); });
  Step([this] { EnableControls(); });
  Step([this] { Reset(); });
  DealFirstCard();
  ShowBoard();
  UpdateCardTotalValue();
  ServeAndDrop();
  StartRoundClock();
  shared.ScoringBusy = false;
}

void frmBrenlock::GameOver() {
  if (!GameAbandoned) EnterScore();
  shared.GameActive = false;
  Caption = shared.GameTitle + ": Game Over";
  lblRound.Text = "Round: 1";
  RoundFrame.Show(false);
  lblRound.Visible = false;
  Announce("Game Over", ui::Blue);
  HideAnnouncement();
  shared.CurrentScore = 0;
  shared.RoundNumber = 0;
  ShowIdleCommands();
  StopClock();
  Timer2.Enabled = false;
  shared.TimerFaceTick = 0;
  Clock.InitTimerFace();
  ShowControls(false, false);
  ShowTitle(true);
  shared.ScoringBusy = false;
  StatusBar1(1).Text = "Game over!  ";
  StatusBar1(2).Text = "Click on Play to start a new game.  ";
}

void frmBrenlock::EnterScore() {
  UpdateTable();
  Announce("Game Over", ui::Red);
  Hourglass = true;
  Wait(GameOverPause);
  HideAnnouncement();
}

// --- the moves ----------------------------------------------------------------------------------

void frmBrenlock::cmdHit_Click(int column) {
  if (shared.ScoringBusy || Paused()) return;
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

void frmBrenlock::UpdateCardTotalValue() {
  Table.Mark(rules_.CardTotal);
  if (rules_.ScoreCanBeTaken()) cmdGiveUp.Text = "&Take score";
}

void frmBrenlock::cmdPass_Click() {
  if (shared.ScoringBusy || Paused() || !rules_.Pass()) return;
  Board.NextCardPicture.Show(rules_.CurrentCard());
  Wave("Click.wav");
  if (shared.PassesLeft == 0) Board.cmdPass.Enabled = false;
}

}  // namespace games::brenlock
