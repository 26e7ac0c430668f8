// Playing Mozaro: starting and ending a game, setting up a round, and the moves.
#include <algorithm>

#include "core/text/number.h"
#include "games/mozaro/window.h"

namespace games::mozaro {
namespace {

constexpr int AnnouncePause = 1000;  // milliseconds
constexpr int NoMovesPause = 2000;
constexpr int ExpiryFlashes = 10;
constexpr const char* PanelEnd = "   ";

}  // namespace

// --- a game -------------------------------------------------------------------------------------

void frmMozaro::Play() {
  if (!(cmdPlay.Text == "&Play")) {
    AskToEnd();
    return;
  }
  BeginGame();
  rounds_.StartGame();
  GameInProgress = true;
  BeginPoints();
  StatusBar1(2).Text = std::string("Remove boxes to make points!") + PanelEnd;
  StartMusic();
  InitRound();
}

void frmMozaro::AskToEnd() {
  PauseGame();
  const bool ended = Ask("You have a game in progress, are you sure you want to quit?");
  PauseGame();
  ScoringLabelOutline.Visible = false;
  if (ended) EndGame();
}

void frmMozaro::EndGame() {
  GameInProgress = false;
  PlayingSurface.Clear();
  EnableRoundCommands(true);
  ShowIdleCommands();
  EnableJumble(false);
  ShowGameControls(false);
  ShowScoreGroup(true);
  Score.Number.Visible = true;
  ScoringLabelOutline.Visible = Message.Visible = false;
  Timer1.Enabled = false;
  ShowTitle(true);
  StatusBar1(1).Text = "Welcome to " + shared.GameTitle + PanelEnd;
  StatusBar1(2).Text = "";
  StopMusic();
}

void frmMozaro::PauseBoard() {
  ShowCards(false);
  ScoringLabelOutline.Visible = true;
  EnableJumble(false);
}

void frmMozaro::ResumeBoard() {
  ShowCards(true);
  ScoringLabelOutline.Visible = false;
  EnableJumble(rounds_.JumbleAvailable);
  lblGridSize.Visible = lblGroupValue.Visible = true;
}

// --- a round ------------------------------------------------------------------------------------

void frmMozaro::InitRound() {
  shared.ElapsedSeconds = shared.TimerFaceTick = 0;
  rounds_.StartRound();
  lblScoreForNextRound.TextColor = ui::Red;
  Clock.InitTimerFace();
  Clock.WriteTime();
  if (rounds_.CurrentRound != 1) AnnounceRound();
  InitBoard();
  LoadBackground();
  PlaceBoard(InnerSize());
  ShowRunningCommands();
  EnableJumble(true);
  ShowGridSize("Grid Size: " + core::Digits(rounds_.ColumnCount) + " X " +
               core::Digits(rounds_.RowCount) + ", Percent Complete: 0%");
  Round.Number.Text = core::Digits(rounds_.CurrentRound);
  ShowGameControls(true);
  ShowScoreGroup(true);
  Timer1.Enabled = true;
}

void frmMozaro::AnnounceRound() {
  ShowCards(false);
  ScoringLabelOutline.Visible = true;
  Wave("HighScore.wav");
  ShowMessage("Prepare for Round " + core::Digits(rounds_.CurrentRound), ui::Blue);
  Wait(AnnouncePause);
  ScoringLabelOutline.Visible = Message.Visible = false;
}

void frmMozaro::InitBoard() {
  const auto last = [](int count) { return static_cast<std::int16_t>(count - 1); };
  board_.Initialize(last(rounds_.ColumnCount), last(rounds_.RowCount),
                    static_cast<std::int16_t>(BoxEdge()), rounds_.ColorCount, Spacing,
                    Playable(options_).GroupSize);
  board_.DrawBoard();
}

void frmMozaro::TimeIsUp() {
  Timer1.Enabled = false;
  StatusBar1(2).Text = "Time has expired!";
  Clock.lblTime.Text = "Time:";
  Flash(Message, ExpiryFlashes);
  TakeScore();
  if (!(Message.Text == "Game Over")) Message.Visible = false;
}

void frmMozaro::AddToScore(std::int32_t points) {
  shared.AddToScore(points);
  WriteScore();
  rounds_.Earn(points);
  ShowPointsNeeded();
}

void frmMozaro::ShowPointsNeeded() {
  lblScoreForNextRound.Text = "Points Needed For Next Round: " + core::Masked(rounds_.PointsNeeded);
  StatusBar1(1).Text = lblScoreForNextRound.Text() + PanelEnd;
}

void frmMozaro::BeginPoints() {
  rounds_.ForgetPoints();
  lblScoreForNextRound.TextColor = ui::Red;
  ShowPointsNeeded();
}

// --- the moves ----------------------------------------------------------------------------------

Board::Cell frmMozaro::CellAt(int x, int y) const {
  const int step = std::max(1, Spacing + static_cast<int>(core::RoundToEven(board_.BoxSize())));
  return {x / step, y / step};
}

void frmMozaro::PlayingSurface_MouseDown(int x, int y) {
  if (shared.ScoringBusy || !GameInProgress) return;
  const Board::Cell cell = CellAt(x, y);
  if (!board_.Holds(cell.column, cell.row)) return;
  Hourglass = true;
  AddToScore(board_.RemoveGroup(cell.column, cell.row));
  if (rounds_.PointsNeeded == 0 && lblScoreForNextRound.TextColor == ui::Red) {
    Wave("Wingame.wav");
    lblScoreForNextRound.TextColor = ui::Blue;
  }
  while (!board_.MovesAvailable) LookForMoves();
  ShowGroupValue(GroupValue);
  Hourglass = false;
}

// With no group left: a jumble, or the end of the round.
void frmMozaro::LookForMoves() {
  const bool complete = board_.PercentComplete == 100.0F;
  const bool tooFew = board_.BoxesRemaining() < Playable(options_).GroupSize;
  if (!complete && rounds_.JumbleAvailable && !tooFew) {
    lblInfo.Text = "Auto Jumble Taken";
    lblInfo.Visible = true;
    Timer4.Enabled = true;
    JumbleBoard();
    return;
  }
  if (!complete) {
    Hourglass = true;
    lblInfo.Text = "No valid moves remain!";
    lblInfo.Visible = true;
    Wait(NoMovesPause);
    lblInfo.Visible = false;
  }
  TakeScore();
  board_.MovesAvailable = true;
}

void frmMozaro::PlayingSurface_MouseMove(int x, int y) {
  if (!GameInProgress) return;
  const Board::Cell cell = CellAt(x, y);
  const auto column = core::ClampTo<std::int16_t>(cell.column);
  const auto row = core::ClampTo<std::int16_t>(cell.row);
  if (column != LastColumn || row != LastRow) {
    LastColumn = column;
    LastRow = row;
    if (board_.Holds(column, row)) {
      board_.FindBoxCollection(column, row);
    } else {
      board_.ClearSelection();
      board_.DrawBoard();
    }
  }
  ShowGroupValue(GroupValue);
}

void frmMozaro::MouseMove() {
  board_.ClearSelection();
  board_.DrawBoard();
  ShowGroupValue(0);
}

void frmMozaro::ShowGroupValue(std::int32_t value) {
  lblGroupValue.Text = "Group Value: " + core::Masked(value);
}

void frmMozaro::cmdJumble_Click() {
  if (GameInProgress && !shared.ScoringBusy) JumbleBoard();
}

void frmMozaro::JumbleBoard() {
  Hourglass = true;
  rounds_.CountJumble();
  board_.Jumble(rounds_.ColorCount);
  if (!rounds_.JumbleAvailable) EnableJumble(false);
  Hourglass = false;
}

void frmMozaro::EnableJumble(bool enabled) {
  cmdJumble.Enabled = enabled;
  Menus.Named("mnuJumble")->Enabled = enabled;
}

void frmMozaro::Timer4_Timer() {
  lblInfo.Visible = false;
  Timer4.Enabled = false;
}

}  // namespace games::mozaro
