// Playing Fandrel: starting, the moves, the end of a round and of a game.
#include <stdexcept>

#include "core/suite/deployment.h"
#include "core/text/number.h"
#include "games/fandrel/window.h"

namespace games::fandrel {
namespace {

constexpr int Flashes = 11;
constexpr int GameOverPause = 2000;
constexpr int GoodRest = 21;  // fewer cards than this left: applause

}  // namespace

void frmFandrel::Play() {
  cmdPlay.Text == "&Play" ? StartGame() : AskToEndGame();
}

void frmFandrel::StartGame() {
  BeginGame();
  shared.GameActive = true;
  StartRound();
}

void frmFandrel::StartRound() {
  ShowRunningCommands();
  lblHighScore.Visible = true;
  Round.Number.Text = shared.RoundNumber >= 3 ? "Bonus" : core::Digits(shared.RoundNumber);
  rules_.ResetSpotValues();
  ShowSpotValues();
  ShowTitle(false);
  Timer6.Enabled = !StandsStill();
  WriteScore();
  ShowControls(true, false);
  StartMusic();
  if (!suite.CreateDeck() || !suite.ShuffleDeck()) {
    suite.Tell(ui::Sign::Critical,
               "Unable to create deck and deal cards. Please report this error to " +
                   core::deployment::SupportAddress);
    return;
  }
  Deal();
  ShowGoal(values_.BonusScore, " for bonus round.  ");
  StartClock();
  playing_ = true;
}

void frmFandrel::Deal() {
  rules_.Deal(suite.deck);
  for (int i = 1; i <= LowerSpots; ++i) ShowLowerSpot(i);
  imgUpperCard.ForEach([](int, ui::Picture& spot) {
    spot.Show("EMPTY");
    spot.Border = false;
  });
  ShowCards(true);
  ShowDeck();
}

void frmFandrel::AskToEndGame() {
  const bool paused = PauseForDialog();
  const bool ended = Ask("You have a game in progress, are you sure you want to quit now?");
  if (!ended) {
    ResumeAfterDialog(paused);
    return;
  }
  for (ui::Timer* timer : GameTimers()) timer->Enabled = false;
  ProgressBar1.Value = ProgressBar1.Min;
  ShowTimerGroup(false);
  lblHighScore.Visible = false;
  shared.GameActive = false;
  HideMessage();
  ShowCaptionOfPause(false);
  ShowIdleCommands();
  ShowCards(false);
  ShowControls(false, false);
  ShowTitle(true);
}

// --- the moves ----------------------------------------------------------------------------------

int frmFandrel::SelectedSpot() const {
  for (int i = 1; i <= LowerSpots; ++i) {
    if (FieldSelectionRectangle(i).Visible()) return i;
  }
  return 0;
}

void frmFandrel::imgPlayCard_Click(int i) {
  if (rules_.PlayCard(i).empty()) return;
  const bool deselects = SelectedSpot() == i;
  FieldSelectionRectangle.Show(false);
  Timer6.Enabled = true;
  FieldSelectionRectangle(i).Visible = !deselects;
  Wave(deselects ? "Chord.wav" : "Markq.wav");
}

void frmFandrel::imgUpperCard_Click(int j) {
  const int i = SelectedSpot();
  if (i == 0) {
    Wave("Chord.wav");
    return;
  }
  const Match match = rules_.MoveCard(i, j);
  if (match == Match::None) {
    Refuse(j);
    return;
  }
  Wave("Click.wav");
  Pay(j, match);
  ShowMoved(i, j);
  const Board board = rules_.CheckForMoves();
  const bool over = RoundIsOver(board);
  ShowDeck();
  if (over) EndRound(board);
}

void frmFandrel::Refuse(int upper) {
  for (ui::Line* line : {&X1, &X2}) {
    line->Place = imgUpperCard(upper).Place();
    line->Visible = true;
  }
  Timer5.Enabled = true;
  Wave("Chord.wav");
  FieldSelectionRectangle.Show(false);
}

void frmFandrel::Pay(int upper, Match match) {
  imgUpperCard(upper).Border = true;
  ShowSpotValues();
  if (match == Match::Eight) {
    core::CenterIn(lblWild, imgUpperCard(upper).Place());
    lblWild.Visible = true;
    Timer7.Enabled = true;
  }
  shared.AddToScore(core::Product(rules_.SpotValue(upper), moveTimer_));
  WriteScore();
  ProgressBar1.Value = ProgressBar1.Min;
  Timer6.Enabled = true;
}

void frmFandrel::ShowMoved(int lower, int upper) {
  imgUpperCard(upper).Show(rules_.UpperCard(upper));
  ShowLowerSpot(lower);
  FieldSelectionRectangle.Show(false);
}

bool frmFandrel::RoundIsOver(Board board) {
  if (board == Board::MovesLeft) return false;
  playing_ = false;
  Timer1.Enabled = false;
  Timer6.Enabled = false;
  if (board == Board::AllUsed) {
    Wave("Applause.wav");
    return true;
  }
  suite.Tell(ui::Sign::Exclamation, "There are no legal moves left.");
  if (!IsOpen()) throw ui::WindowGone{};
  Wave(rules_.CardsRemaining < GoodRest ? "Applause.wav" : "Slide.wav");
  return true;
}

// --- the timers ---------------------------------------------------------------------------------

void frmFandrel::Timer5_Timer() {
  X1.Visible = X2.Visible = false;
  Timer5.Enabled = false;
}

/// The number on show changes here and nowhere else.
void frmFandrel::Timer6_Timer() {
  if (ProgressBar1.Value() >= ProgressBar1.Max) {
    Timer6.Enabled = false;
    return;
  }
  ProgressBar1.Value = ProgressBar1.Value() + 1;
  moveTimer_ = ProgressBar1.Max + ProgressBar1.Min - ProgressBar1.Value();
  lblCurrentGameTime.Text = core::Digits(moveTimer_);
}

void frmFandrel::Timer7_Timer() {
  lblWild.Visible = false;
  Timer7.Enabled = false;
}

// --- the end of a round -------------------------------------------------------------------------

void frmFandrel::EndRound(Board board) {
  ClearPointers();
  StopMusic();
  ShowControls(false, false);
  ShowCards(false);
  ShowTimerGroup(false);
  const bool endsGame = shared.RoundNumber >= 3;
  const bool earned = shared.RoundNumber != 2 || shared.CurrentScore >= values_.BonusScore;
  if (!endsGame) ++shared.RoundNumber;
  if (earned) PayBonuses(board);
  rules_.ResetSpotValues();
  ShowSpotValues();
  if (endsGame || !earned) {
    EndGame();
  } else if (shared.RoundNumber == 2) {
    Announce("Prepare for Round Two!", "HighScore.wav");
  } else {
    Announce("Prepare for Bonus Round!", "Applause.wav");
  }
}

void frmFandrel::PayBonuses(Board board) {
  Clock.InitTimerFace();
  if (shared.SecondsLeft() > 0) Bonuses.AwardSpeedBonus(shared.TimeBonusPerSecond);
  if (board == Board::AllUsed) {
    Bonuses.AwardBonus(1, values_.DeckCompleteBonus, "Deck Completion Bonus");
  }
}

void frmFandrel::Announce(const std::string& title, const std::string& wave) {
  Wave(wave);
  FlashTitle(title, Flashes);
  Message.Text = "";
  ServeAndDrop();
  StartRound();
}

void frmFandrel::EndGame() {
  ServeAndDrop();
  UpdateTable();
  lblHighScore.Visible = false;
  ShowIdleCommands();
  ShowMessage("Game Over", ui::Red);
  Wait(GameOverPause);
  StatusBar1(1).Text = "Game over!  ";
  StatusBar1(2).Text = "Click on Play to start a new game.  ";
  shared.GameActive = false;
  Message.Visible = false;
  ShowTitle(true);
}

}  // namespace games::fandrel
