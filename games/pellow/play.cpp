// Playing Pellow: starting and giving up a game, dealing a round, and the moves.
#include "games/pellow/window.h"

namespace games::pellow {
namespace {

const char* WaveOf(Click click) {
  constexpr const char* waves[] = {"", "Chord.wav", "Markq.wav", "Tick.wav", "TwentyOne.wav"};
  return waves[static_cast<int>(click)];
}

}  // namespace

void frmPellow::Play() {
  if (shared.ScoringBusy) return;
  if (cmdPlay.Text == "&Play") {
    StartGame();
  } else if (Ask("You have a game in progress, are you sure you want to quit?")) {
    GiveUp();
  }
}

void frmPellow::StartGame() {
  BeginGame();
  shared.GameActive = true;
  InitRound();
}

/// The clock runs on behind the question, and may have ended the game by itself: then all this is
/// done already, and doing it again changes nothing.
void frmPellow::GiveUp() {
  ShowIdleCommands();
  shared.GameActive = false;
  rules_.ClearSelection();
  ShowCards(false);
  ShowControls(false, true);
  StopClock();
  ShowTitle(true);
  StopMusic();
}

void frmPellow::InitRound() {
  shared.ScoringBusy ? ServeAndDrop() : ServeEvents();
  // A player who was served may have given up the game that was about to begin.
  if (!shared.GameActive) return;
  const bool shuffled = suite.CreateDeck() && suite.ShuffleDeck();
  shared.ScoringBusy = false;
  if (!shuffled) {
    suite.Tell(ui::Sign::Critical, "Without a deck " + shared.GameTitle + " can't be played.");
    GiveUp();
    return;
  }
  Deal();
  ShowRunningCommands();
  Round.Number.Text = std::to_string(shared.RoundNumber);
  StartMusic();
}

void frmPellow::Deal() {
  rules_.Deal(suite.deck);
  Message.Visible = false;
  ShowBoard();
  ShowStack();
  ShowCards(true);
  ShowControls(true, false);
  ShowTableTop();
  StartClock();
  ShowGoal(scoring_.BonusScore, " for Bonus Round!   ");
  StatusBar1(2).Text = "Create runs by clicking on exposed cards!   ";
}

void frmPellow::PlayCard_Click(int position) {
  if (shared.ScoringBusy) return;
  const ClickResult result = rules_.PlayCard_Click(position);
  if (result.click == Click::Nothing) return;
  Wave(WaveOf(result.click));
  if (result.click == Click::Refused) return;
  ShowBoard();
  if (result.stackCardTurned) ShowStack();
  result.topRowCleared ? CloseRound(true) : EndIfStuck();
}

void frmPellow::CardStackPicture_Click() {
  if (shared.ScoringBusy) return;
  Hourglass = true;
  const bool turned = rules_.CardStackPicture_Click();
  Wave(turned ? "Click.wav" : "Chord.wav");
  ShowStack();
  ShowBoard();
  if (turned) EndIfStuck();
  Hourglass = false;
}

void frmPellow::EndIfStuck() {
  if (!shared.GameActive || !rules_.Stuck()) return;
  Hourglass = true;
  ShowMessage("No legal moves remaining", ui::Red);
  StatusBar1(2).Text = Message.Text;
  Wait(1000);
  TakeScore();
}

}  // namespace games::pellow
