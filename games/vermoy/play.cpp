// Playing Vermoy: starting and ending a game, laying a card, and the end of a round.
#include "core/text/number.h"
#include "games/vermoy/window.h"

namespace games::vermoy {
namespace {

constexpr int MessageSize = 18, ProductSize = 20;  // points
constexpr int MessagePause = 2000;
constexpr int RoundFlashes = 10;

}  // namespace

void frmVermoy::Play() {
  GameRunning() ? AskToEndGame() : StartGame();
}

void frmVermoy::StartGame() {
  BeginGame();
  lblRound.Text = "Round: 1";
  shared.SkipHighScoreUpdate = false;
  ShowBonusGoal();
  StatusBar1(2).Text = "Click on cards to get the best Poker hand!   ";
  ShowRunningCommands();
  if (!suite.CreateDeck()) return suite.platform.Quit();
  StartRound();
  shared.GameActive = true;
}

void frmVermoy::AskToEndGame() {
  StopMusic();
  PauseGame();
  if (!Ask("You have a game in progress, are you sure you want to quit?")) return PauseGame();
  shared.SkipHighScoreUpdate = true;
  shared.GameActive = false;
  PauseGame();
  ShowCards(false);
  ShowControls(false, true);
  Reset(true);
  Clock.InitTimerFace();
  StopClock();
  Timer2.Enabled = false;
}

/// Shuffles the deck as it lies, deals, and sets the clock going.
void frmVermoy::StartRound() {
  if (!suite.ShuffleDeck()) return suite.platform.Quit();
  ShowDrawn(rules_.Deal(suite.deck));
  ShowHands();
  ShowOverWrites();
  ShowPointers();
  ShowCards(true);
  ShowControls(true, true);
  shared.ElapsedSeconds = shared.TimerFaceTick = 0;
  ShowSecondsLeft();
  Clock.InitTimerFace();
  Timer1.Enabled = true;
  StartMusic();
}

void frmVermoy::Reset(bool endOfGame) {
  rules_.Reset();
  PlayCards.ForEach([&](int i, ui::Picture&) { ShowCell(i); });
  ShowTitle(endOfGame);
  if (!endOfGame) return;
  ShowIdleCommands();
  HoleCard.Border = false;
  ShowOverWrites();
}

void frmVermoy::PlayCards_Click(int cell) {
  if (shared.ScoringBusy) return;
  const Placed placed = rules_.Place(cell);
  if (placed.legal) {
    ShowOverWrites();
    ShowCell(cell);
    ShowHands();
    for (int i = 0; i < placed.handsMade; ++i) Wave("TwentyOne.wav");
    ShowDrawn(placed.drawn);
  } else {
    Wave("Chord.wav");
  }
  WriteScore();
  ShowPointers();
  if (!rules_.GridIsFull()) return;
  Wave("Wingame.wav");
  NextRound();
}

void frmVermoy::ShowDrawn(Drawn drawn) {
  const bool exposed = drawn != Drawn::Nothing;
  HoleCard.Show(exposed ? rules_.HoleCard() : "EMPTY");
  HoleCard.Border = exposed;
  ShowStack();
  if (!exposed) return Wave("Chord.wav");
  if (drawn == Drawn::Sounding) Wave("Click.wav");
  lblCards.Text = "Cards remaining: " + core::Digits(rules_.CardsRemaining());
}

// --- the end of a round -------------------------------------------------------------------------

void frmVermoy::TimeIsUp() {
  Message.Text = "Times Up!";
  NextRound();
}

/// Pays the round and goes on. ScoringBusy is left set: the launcher's tick clears it.
void frmVermoy::NextRound() {
  shared.ScoringBusy = true;
  Hourglass = true;
  StopMusic();
  ++shared.RoundNumber;
  ShowCards(false);
  ShowControls(false, true);
  Message.TextColor = ui::Red;
  StopClock();
  if (Message.Text == "Times Up!") {
    ShowBigMessage(true);
    Wave("Slide.wav");
    Wait(MessagePause);
  } else if (shared.SecondsLeft() > 0) {
    PayRound();
  }
  Message.FontSize = MessageSize;
  rules_.RoundFollows(shared.RoundNumber, shared.CurrentScore) ? AnnounceRound() : EndGame();
  Hourglass = false;
}

void frmVermoy::PayRound() {
  Message.FontSize = ProductSize;
  Message.Text =
      core::Masked(rules_.RoundPoints()) + " X " + core::Digits(shared.SecondsLeft()) + " =";
  ShowBigMessage(true);
  Bonuses.AwardSpeedBonus(shared.TimeBonusPerSecond);
  lblMessage.Visible = false;
}

void frmVermoy::AnnounceRound() {
  const bool bonus = shared.RoundNumber >= BonusRound;
  const std::string number = core::Digits(shared.RoundNumber);
  lblRound.Text = bonus ? "Bonus Round" : "Round: " + number;
  Message.Text = bonus ? "Bonus round!" : "Prepare for round " + number + "!";
  ShowBigMessage(true);
  if (bonus) Wave("HighScore.wav");
  Flash(Message, RoundFlashes);
  ServeAndDrop();
  Reset(false);
  ShowBigMessage(false);
  StartRound();
}

void frmVermoy::EndGame() {
  Message.Text = "Game Over";
  FinishGame();
  ShowControls(false, true);
  ScoringLabelOutline.Visible = true;
  ShowGameOver(MessagePause);
  ScoringLabelOutline.Visible = false;
  Reset(true);
}

}  // namespace games::vermoy
