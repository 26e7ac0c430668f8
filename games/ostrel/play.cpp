// Playing Ostrel: starting and ending a game, dealing a round, and the moves.
#include "core/text/number.h"
#include "games/ostrel/window.h"

namespace games::ostrel {
namespace {

constexpr int LastTowerPause = 1000;

}  // namespace

void frmOstrel::Play() {
  cmdPlay.Text == "&Play" ? StartGame() : EndGame();
}

void frmOstrel::StartGame() {
  BeginGame();
  rules_.NewGame();
  shared.GameActive = true;
  StartRound();
}

/// The clock runs on behind the question, and may have ended the game before it is answered.
void frmOstrel::EndGame() {
  if (!Ask("You have a game in progress, are you sure you want to quit?")) return;
  if (!GameRunning()) return;
  shared.SkipHighScoreUpdate = true;
  FinishGame();
  imgBackGround.Visible = false;
  ShowTitle(true);
  StopMusic();
}

void frmOstrel::StartRound() {
  if (InitRound()) return;
  suite.Tell(ui::Sign::Critical, "Unable to deal the cards. The game is over.");
  GameOver();
}

bool frmOstrel::InitRound() {
  // What the player did while a round was being scored has no effect.
  shared.ScoringBusy ? ServeAndDrop() : ServeEvents();
  if (!suite.CreateDeck() || !suite.ShuffleDeck()) return false;
  HideMessage();
  shared.ElapsedSeconds = 0;
  Round.Number.Text = shared.RoundNumber > 2 ? "Bonus" : core::Digits(shared.RoundNumber);
  ShowRunningCommands();
  EnableRoundCommands(true);
  ShowControls(true, true);
  imgBackGround.Visible = true;
  StartMusic();
  Deal();
  shared.ScoringBusy = false;
  return true;
}

void frmOstrel::Deal() {
  rules_.Deal(suite.deck);
  ShowCards(true);
  ShowField();
  ShowTowerLabels();
  ClearPointers();
  ShowStack();
  ShowRun();
  ShowGoal(scoring_.BonusScore, " for Bonus Round!   ");
  StatusBar1(2).Text = "Create runs by clicking on exposed cards!   ";
  ShowTableTop();
  StartClock();
}

// --- the moves ----------------------------------------------------------------------------------

void frmOstrel::UpCardImage_Click(int position) {
  if (shared.ScoringBusy) return;
  const CardPlayed played = rules_.PlayCard(position);
  if (!played.legal) {
    Wave("Chord.wav");
    return;
  }
  Wave("Markq.wav");
  UpCardPicture.Show(rules_.UpCard());
  ClearPointers();
  shared.AddToScore(played.points);
  WriteScore();
  ShowRun();
  ShowField();
  if (played.peak) {
    ShowTowerLabels();
    Wave("HighScore.wav");
  }
  if (!played.lastPeak) return;
  StopClock();
  suite.platform.Repaint(*this);
  Wait(LastTowerPause);
  cmdTakeScore_Click();
}

void frmOstrel::CardStackPicture_Click() {
  if (shared.ScoringBusy) return;
  Hourglass = true;
  const bool drawn = rules_.DrawCard();
  ShowRun();
  ShowStack();
  Wave("Click.wav");
  if (!drawn) Wave("Chord.wav");
  Hourglass = false;
}

}  // namespace games::ostrel
