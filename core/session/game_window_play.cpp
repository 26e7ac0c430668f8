// Playing: the commands, the clock's ticks, pausing, and the end of a game.
#include <algorithm>

#include "core/files/files.h"
#include "core/halloffame/high_scores.h"
#include "core/session/game_window.h"
#include "core/text/number.h"

namespace core {
namespace {

constexpr int ExpiryFlashes = 10;

}  // namespace

void GameWindow::cmdPlay_Click() {
  if (!shared.ScoringBusy) Play();
}

void GameWindow::cmdPause_Click() {
  PauseGame();
}

void GameWindow::cmdTakeScore_Click() {
  if (!shared.ScoringBusy) TakeScore();
}

void GameWindow::cmdExit_Click() {
  if (!shared.ScoringBusy) Unload();
}

// --- captions and commands ----------------------------------------------------------------------

void GameWindow::ShowCaptionOfPlay(bool running) {
  cmdPlay.Text = running ? words_.endGame : "&Play";
  cmdPlay.Tip = running ? words_.endGameTip : "Starts a new game";
  if (words_.playMenuFollows) Menus.SetText(Command::Play, cmdPlay.Text);
}

void GameWindow::ShowCaptionOfPause(bool paused) {
  cmdPause.Text = paused ? "&Resume" : words_.pause;
  cmdPause.Tip = paused ? "Resumes the current game" : words_.pauseTip;
  Menus.SetText(Command::Pause, cmdPause.Text);
}

void GameWindow::EnableFixedMenus(bool enabled) {
  Menus.Enable(enabled, {Command::Time, Command::Custom, Command::MusicFile});
  for (const std::string& name : words_.fixedInGame) {
    if (ui::Menu* menu = Menus.Named(name)) menu->Enabled = enabled;
  }
}

void GameWindow::BeginGame() {
  shared.ScoringBusy = false;
  shared.CurrentScore = 0;
  shared.RoundNumber = 1;
  WriteScore();
  HideMessage();
  ShowTitle(false);
}

void GameWindow::ShowRunningCommands() {
  ShowCaptionOfPlay(true);
  cmdPause.Enabled = true;
  if (TakeScoreButton()) TakeScoreButton()->Enabled = true;
  Menus.Enable(true, {Command::Pause, Command::TakeScore});
  EnableFixedMenus(false);
}

void GameWindow::ShowIdleCommands() {
  OfferNewGame();
  EnablePlayAndExit();
}

void GameWindow::EnablePlayAndExit() {
  cmdPlay.Enabled = cmdExit.Enabled = true;
  Menus.Enable(true, {Command::Play, Command::Exit});
}

void GameWindow::OfferNewGame() {
  ShowCaptionOfPlay(false);
  cmdPause.Enabled = false;
  if (TakeScoreButton()) TakeScoreButton()->Enabled = false;
  Menus.Enable(false, {Command::Pause, Command::TakeScore});
  EnableFixedMenus(true);
}

void GameWindow::EnableCommands(bool enabled) {
  EnableRoundCommands(enabled);
  cmdPause.Enabled = enabled;
  Menus.Enable(enabled, {Command::Pause});
}

void GameWindow::EnableRoundCommands(bool enabled) {
  cmdPlay.Enabled = enabled;
  cmdExit.Enabled = enabled;
  if (TakeScoreButton()) TakeScoreButton()->Enabled = enabled;
  Menus.Enable(enabled, {Command::Play, Command::Exit, Command::TakeScore});
}

// --- the clock ----------------------------------------------------------------------------------

void GameWindow::StartClock() {
  shared.ElapsedSeconds = 0;
  shared.TimerFaceTick = 0;
  Clock.InitTimerFace();
  Clock.WriteTime();
  // The window may have been minimized while the round before was scored.
  Timer1.Enabled = !StandsStill();
  ShowTimerGroup(true);
}

void GameWindow::Timer1_Timer() {
  Clock.MoveTo(shared.ElapsedSeconds + 1);
  ShowSecondsLeft();
  WarnOfTime();
  if (shared.ElapsedSeconds >= shared.TimeLimit) TimeIsUp();
}

void GameWindow::WarnOfTime() {
  const int left = shared.SecondsLeft();
  if (left < RoundToEven(shared.TimeLimit / 4.0)) {
    StatusBar1(2).Text = "Better Hurry!";
  } else if (left <= RoundToEven(shared.TimeLimit / 2.0)) {
    StatusBar1(2).Text = "Times running out!";
  }
}

void GameWindow::TimeIsUp() {
  Timer1.Enabled = false;
  HideAtExpiry();
  Message.Text = "Times Up!";
  Message.Visible = true;
  StatusBar1(2).Text = "Time has expired!";
  Flash(Message, ExpiryFlashes);
  cmdTakeScore_Click();
  if (!(Message.Text == "Game Over")) Message.Visible = false;
}

// --- pausing ------------------------------------------------------------------------------------

void GameWindow::PauseGame() {
  if (shared.ScoringBusy) return;
  cmdPause.Text == "&Resume" ? Resume() : Pause();
}

void GameWindow::Pause() {
  for (ui::Timer* timer : GameTimers()) timer->Enabled = false;
  Message.Text = "Game Paused";
  Message.TextColor = ui::Red;
  Message.Visible = GameRunning();
  ShowCaptionOfPause(true);
  EnableRoundCommands(false);
  PauseBoard();
  StopMusic();
}

void GameWindow::Resume() {
  HideMessage();
  for (ui::Timer* timer : GameTimers()) timer->Enabled = !StandsStill();
  ShowCaptionOfPause(false);
  EnableRoundCommands(true);
  ResumeBoard();
  if (GameRunning()) StartMusic();
}

bool GameWindow::Paused() const {
  return Message.Text == "Game Paused";
}

bool GameWindow::PlayingNow() const {
  return cmdPause.Enabled() && !Paused() && !(Message.Text == "Game Over");
}

bool GameWindow::PauseForDialog() {
  if (!PlayingNow()) return false;
  PauseGame();
  return true;
}

void GameWindow::ResumeAfterDialog(bool paused) {
  if (paused && cmdPause.Text == "&Resume") PauseGame();
}

// --- messages, waits and events -----------------------------------------------------------------

void GameWindow::ShowMessage(const std::string& text, ui::Color color) {
  Message.Text = text;
  Message.TextColor = color;
  Message.Visible = true;
}

void GameWindow::HideMessage() {
  Message.Visible = false;
  Message.Text = "";
}

void GameWindow::Flash(ui::Label& label, int times, int milliseconds) {
  for (int i = 0; i < times; ++i) {
    label.TextColor = label.TextColor == ui::Red ? ui::Black : ui::Red;
    Wait(milliseconds);
  }
}

void GameWindow::FlashTitle(const std::string& title, int times) {
  Message.Text = title;
  Message.Visible = true;
  Flash(Message, times);
  Message.Visible = false;
}

void GameWindow::Show(bool visible, std::initializer_list<ui::Control*> controls) {
  for (ui::Control* control : controls) control->Visible = visible;
}

void GameWindow::WriteScore() {
  Score.Number.Text = Masked(shared.CurrentScore);
}

void GameWindow::AddPoints(std::int64_t points) {
  shared.AddToScore(points);
  WriteScore();
}

void GameWindow::ServeAndDrop() {
  DropsInput = true;
  suite.platform.ServeEvents();
  DropsInput = false;
}

void GameWindow::ServeEvents() {
  suite.platform.ServeEvents();
  if (!IsOpen()) throw ui::WindowGone{};
}

bool GameWindow::Ask(const std::string& question) {
  const bool yes = suite.Ask(question);
  if (!IsOpen()) throw ui::WindowGone{};
  return yes;
}

void GameWindow::StartMusic() {
  if (shared.PlayMusic && !StandsStill()) suite.PlayMidi();
}

void GameWindow::StopMusic() {
  if (shared.PlayMusic) suite.PauseMidi();
}

// --- the end of a game --------------------------------------------------------------------------

void GameWindow::UpdateTable() {
  bool done = true;
  if (shared.SkipHighScoreUpdate) {
    shared.SkipHighScoreUpdate = false;
  } else {
    done = UpdateHighScores(suite, *this);
  }
  done = ShowHighScore(suite, *this, entry_.startScores.atEnd) && done;
  if (done) return;
  suite.Tell(ui::Sign::Critical,
             "An error occured when attmpting to access the High Score Table. Please close and "
             "restart the game.");
}

void GameWindow::CreateTableIfMissing() {
  if (Exists(HighScorePath(suite, *this))) return;
  CreateHighScoreFile(suite, *this, entry_.startScores.atWindow);
}

void GameWindow::FinishGame() {
  Timer1.Enabled = false;
  shared.GameActive = false;
  OfferNewGame();
  UpdateTable();
  ShowCards(false);
  ShowControls(false, true);
  StatusBar1(2).Text = "Game Over";
}

void GameWindow::ShowGameOver(int milliseconds, ui::Color color) {
  ShowMessage("Game Over", color);
  Wait(milliseconds);
  ShowTitle(true);
  EnablePlayAndExit();
  Message.Visible = false;
}

void GameWindow::ShowTitle(bool visible) {
  Title.Show(visible);
  TitleTimer.Enabled = visible;
}

void GameWindow::ShowScoreGroup(bool visible) {
  Score.Frame.Show(visible);
  Score.Caption.Visible = visible;
  lblHighScore.Visible = visible;
}

void GameWindow::ShowGoal(std::int64_t score, const std::string& ending) {
  StatusBar1(1).Text = "Make " + Masked(score) + ending;
}

}  // namespace core
