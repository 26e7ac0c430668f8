// Playing Kestrane: games and their rounds, the moves, and the end of a round with its bonuses.
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
  ShowRunningCommands();
  lblTimeBonus.Text = core::Digits(shared.TimeLimit);
  ShowTableTop();
  shared.GameActive = true;
  Deal();
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
  Trips.Caption.Text = "Trips (" + core::Digits(values_.TripsScore) + "):";
  Runs.Caption.Text = "Runs (" + core::Digits(values_.RunsScore) + "):";
}

/// Deals a round of a new deck and lets its clock run.
void frmKestrane::Deal() {
  if (!suite.CreateDeck() || !suite.ShuffleDeck()) {
    suite.Tell(ui::Sign::Critical, "Unable to deal a round of " + shared.GameTitle);
    GameOver();
    return;
  }
  rules_.Deal();
  ++deals_;
  WriteCounts();
  ShowField();
  UpDateDeck();
  ShowGoal(values_.BonusScore, " for Bonus Round!   ");
  StatusBar1(2).Text = "Create runs and triples by moving available cards!   ";
  lblRound.Text = "Round: " + core::Digits(rules_.RoundNumber);
  ShowControls(true, true);
  ShowCards(true);
  StartClock();
  StartMusic();
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

// --- the end of a round -------------------------------------------------------------------------

void frmKestrane::TakeScore() {
  const int round = deals_;
  ServeEvents();
  // What was just served may have closed this round, or given up the game.
  if (round != deals_ || !shared.GameActive) return;
  if (Paused()) PauseGame();
  shared.ScoringBusy = true;
  EndRound();
  ServeAndDrop();
  shared.ScoringBusy = false;
}

void frmKestrane::EndRound() {
  Hourglass = true;
  ClearPointers(true);
  StopClock();
  StopMusic();
  ShowControls(false, true);
  if (rules_.DeckUsedUp()) {
    PayDeckCompletion();
    RemoveLeftOvers();
  }
  ShowCards(false);
  PaySeconds();
  rules_.EarnsNextRound(shared.CurrentScore, values_.BonusScore) ? NextRound() : GameOver();
}

void frmKestrane::PayDeckCompletion() {
  ShowDeck(false);
  ShowMessage("Deck Completion Bonus!", ui::Blue);
  lblMessage.Text = core::Masked(values_.DeckCompletion) + "!";
  lblMessage.Visible = true;
  AddPoints(values_.DeckCompletion);
  Wave("Applause.wav");
  Wait(2000);
  lblMessage.Visible = false;
  HideMessage();
}

void frmKestrane::RemoveLeftOvers() {
  if (rules_.NextLeftOver() == Spot{}) return;
  ShowMessage("Removing left over cards", ui::Blue);
  lblMessage.Text = lblFlush.Text = "-" + core::Digits(values_.LeftOverCards);
  lblMessage.Visible = true;
  Wait(1000);
  for (Spot spot = rules_.NextLeftOver(); spot != Spot{}; spot = rules_.NextLeftOver()) {
    MarkOf(spot).Visible = true;
    AddPoints(-std::int64_t{values_.LeftOverCards});
    Wave("Click.wav");
    ShowFlushMessage(spot);
    Wait(500);
    MarkOf(spot).Visible = false;
    rules_.TakeOff(spot);
    ShowField();
  }
  lblFlush.Text = "Flush!";
  lblFlush.Visible = lblMessage.Visible = false;
}

void frmKestrane::PaySeconds() {
  lblMessage.Text = "Speed Bonus!";
  if (shared.SecondsLeft() <= 0) return;
  bonuses_.AwardSpeedBonus(shared.TimeBonusPerSecond);
  lblMessage.Visible = ScoringLabelOutline.Visible = false;
}

void frmKestrane::NextRound() {
  shared.RoundNumber = ++rules_.RoundNumber;
  const bool bonus = rules_.RoundNumber == BonusRound;
  ShowMessage(
      bonus ? "Prepare For Bonus Round" : "Prepare For Round " + core::Digits(rules_.RoundNumber),
      ui::Red);
  Wait(2000);
  InitRound();
  HideMessage();
  Hourglass = false;
  Deal();
}

void frmKestrane::GameOver() {
  Hourglass = false;
  FinishGame();
  ShowTableTop();
  ShowGameOver(1000, ui::Blue);
  ScoringLabelOutline.Visible = false;
}

}  // namespace games::kestrane
