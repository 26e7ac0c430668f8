// Playing Kestrane: starting and giving up a game, dealing a round, and the moves.
#include "core/text/number.h"
#include "games/kestrane/window.h"

namespace games::kestrane {
namespace {

constexpr const char* Sounds[] = {"Chord.wav", "Click.wav", "Markq.wav", "Click.wav"};  // by Answer

}  // namespace

void frmKestrane::Play() {
  cmdPlay.Text == "&Play" ? StartGame() : GiveUp();
}

void frmKestrane::StartGame() {
  shared.ScoringBusy = false;
  InitRound();
  BeginGame();
  rules_.RoundNumber = 1;
  if (!Deal()) {
    suite.Tell(ui::Sign::Critical, "Unable to start a game of " + shared.GameTitle);
    ShowTitle(true);
    return;
  }
  shared.GameActive = true;
  ShowRunningCommands();
  lblTimeBonus.Text = core::Digits(shared.TimeLimit);
  ShowTableTop();
}

void frmKestrane::GiveUp() {
  const bool paused = PauseForDialog();
  const bool yes = Ask("You have a game in progress, are you sure you want to quit?");
  if (yes) shared.GameActive = false;
  ResumeAfterDialog(paused);
  if (!yes) return;
  StopClock();
  ShowIdleCommands();
  ShowCards(false);
  ShowControls(false, true);
  ShowTableTop();
  ShowTitle(true);
}

void frmKestrane::InitRound() {
  // What the player did while a round was being scored has no effect.
  shared.ScoringBusy ? ServeAndDrop() : ServeEvents();
  shared.ScoringBusy = false;
  rules_.InitRound();
  shared.ElapsedSeconds = 0;
  WriteCounts();
  Trips.Caption.Text = "Trips (" + core::Digits(values_.TripsScore) + "):";
  Runs.Caption.Text = "Runs (" + core::Digits(values_.RunsScore) + "):";
}

/// Deals a round of a new deck and lets its clock run. False if there is no deck.
bool frmKestrane::Deal() {
  if (!suite.CreateDeck() || !suite.ShuffleDeck()) return false;
  rules_.Deal();
  ++deals_;
  ShowField();
  UpDateDeck();
  ShowGoal(values_.BonusScore, " for Bonus Round!   ");
  StatusBar1(2).Text = "Create runs and triples by moving available cards!   ";
  lblRound.Text = "Round: " + core::Digits(rules_.RoundNumber);
  ShowControls(true, true);
  ShowCards(true);
  StartClock();
  StartMusic();
  return true;
}

// --- the moves ----------------------------------------------------------------------------------

void frmKestrane::ClickOn(Spot spot) {
  if (shared.ScoringBusy) return;
  const bool fromDeck = rules_.SelectedArea == Area::UpCards;
  const Answer answer = rules_.Click(spot);
  if (answer == Answer::Move) {
    ShowField();
    if (fromDeck) UpDateDeck();
  }
  Wave(Sounds[static_cast<int>(answer)]);
  ShowSelection(true);
  ClearPointers(rules_.DeckUsedUp());
  if (spot.area == Area::Field) {
    for (int column = 0; column < Columns; ++column) CheckColumn(column);
  }
  if (rules_.NoMoveLeft()) NoMovesLeft();
}

void frmKestrane::CheckColumn(int column) {
  const Made made = rules_.CheckColumn(column);
  if (made == Made::Nothing) return;
  ShowField();
  if (made == Made::Flush) {
    ShowFlushMessage({Area::Field, column});
    Wait(250);
    AddPoints(values_.FlushScore);
    lblFlush.Visible = false;
  }
  WriteCounts();
  AddPoints(made == Made::Trip ? values_.TripsScore : values_.RunsScore);
  Wave(made == Made::Flush ? "HighScore.wav" : "TwentyOne.wav");
}

void frmKestrane::NoMovesLeft() {
  ShowDeck(false);
  ShowControls(false, true);
  ShowMessage("No more legal moves left!", ui::Blue);
  Wave("Slide.wav");
  suite.platform.Repaint(*this);
  Wait(2000);
  cmdTakeScore_Click();
}

}  // namespace games::kestrane
