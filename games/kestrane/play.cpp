// Playing Kestrane: starting and giving up a game, dealing a round, and the moves.
#include "core/text/number.h"
#include "games/kestrane/window.h"

namespace games::kestrane {
namespace {

constexpr int FlushPause = 250;
constexpr int StuckPause = 2000;

const char* SoundOf(Answer answer) {
  if (answer == Answer::Refused) return "Chord.wav";
  return answer == Answer::Cancel ? "Markq.wav" : "Click.wav";
}

}  // namespace

void frmKestrane::Play() {
  cmdPlay.Text == "&Play" ? StartGame() : GiveUp();
}

void frmKestrane::StartGame() {
  shared.ScoringBusy = false;
  InitRound();
  if (!MakeDeck()) {
    suite.Tell(ui::Sign::Critical, "Unable to start a game of " + shared.GameTitle);
    return;
  }
  BeginGame();
  rules_.StartGame();
  ShowRunningCommands();
  lblTimeBonus.Text = core::Digits(shared.TimeLimit);
  ShowTableTop();
  shared.GameActive = true;
  StartRound();
}

void frmKestrane::GiveUp() {
  const bool paused = PauseForDialog();
  if (!Ask("You have a game in progress, are you sure you want to quit?")) {
    ResumeAfterDialog(paused);
    return;
  }
  if (!shared.GameActive) return;
  shared.GameActive = false;
  ResumeAfterDialog(paused);
  StopClock();
  ShowIdleCommands();
  ShowCards(false);
  ShowControls(false, true);
  ShowTableTop();
  ShowTitle(true);
}

void frmKestrane::InitRound() {
  ServePending();
  shared.ScoringBusy = false;
  rules_.InitRound();
  shared.ElapsedSeconds = 0;
  WriteCounts();
  Trips.Caption.Text = "Trips (" + core::Digits(values_.TripsScore) + "):";
  Runs.Caption.Text = "Runs (" + core::Digits(values_.RunsScore) + "):";
}

void frmKestrane::StartRound() {
  Deal();
  lblRound.Text = "Round: " + core::Digits(rules_.RoundNumber());
  ShowControls(true, true);
  ShowCards(true);
  StartClock();
  StartMusic();
  // A window that was minimized while the round before was scored goes on standing still.
  if (State() == ui::WindowState::Minimized) {
    StopClock();
    StopMusic();
  }
}

void frmKestrane::Deal() {
  rules_.Deal();
  ++deals_;
  ShowField();
  UpDateDeck();
  ShowGoal(values_.BonusScore, " for Bonus Round!   ");
  StatusBar1(2).Text = "Create runs and triples by moving available cards!   ";
}

// --- the moves ----------------------------------------------------------------------------------

void frmKestrane::UpCard_Click(int i) {
  if (!shared.ScoringBusy) ClickOn({Area::UpCards, i});
}

void frmKestrane::TempCard_Click(int i) {
  if (shared.ScoringBusy) return;
  ClickOn({Area::Storage, i});
  EndIfStuck();
}

void frmKestrane::PlayCard_Click(int i) {
  if (shared.ScoringBusy) return;
  const bool hadSelection = rules_.CardSelected();
  ClickOn({Area::Field, i});
  if (!hadSelection) return;
  for (int column = 0; column < Rules::Columns; ++column) CheckColumn(column);
  EndIfStuck();
}

void frmKestrane::ClickOn(Spot spot) {
  const bool fromDeck = rules_.Selected().area == Area::UpCards;
  const Answer answer = rules_.Click(spot);
  if (answer == Answer::Move) {
    ShowField();
    if (fromDeck) UpDateDeck();
  }
  Wave(SoundOf(answer));
  ShowSelection(true);
  ClearPointers();
}

void frmKestrane::CheckColumn(int column) {
  const Made made = rules_.CheckColumn(column);
  if (made == Made::Nothing) return;
  ShowField();
  if (made == Made::Trip) {
    WriteCounts();
    AddPoints(values_.TripsScore);
    Wave("TwentyOne.wav");
    return;
  }
  made == Made::Flush ? ShowFlushMessage(column) : Wave("TwentyOne.wav");
  WriteCounts();
  AddPoints(values_.RunsScore);
}

void frmKestrane::ShowFlushMessage(int column) {
  ShowFlushOver(PlayCard(column));
  suite.platform.Repaint(*this);
  Wait(FlushPause);
  Wave("HighScore.wav");
  AddPoints(values_.FlushScore);
  lblFlush.Visible = false;
}

void frmKestrane::EndIfStuck() {
  if (rules_.NoMoveLeft()) NoMovesLeft();
}

void frmKestrane::NoMovesLeft() {
  ShowDeck(false);
  ShowControls(false, true);
  ShowBigMessage("No more legal moves left!", ui::Blue);
  Wave("Slide.wav");
  suite.platform.Repaint(*this);
  Wait(StuckPause);
  cmdTakeScore_Click();
}

void frmKestrane::AddPoints(std::int64_t points) {
  shared.AddToScore(points);
  WriteScore();
}

}  // namespace games::kestrane
