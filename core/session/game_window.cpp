// Opening, resizing and closing a game window.
#include "core/session/game_window.h"

#include <stdexcept>

#include "core/files/files.h"
#include "core/halloffame/high_scores.h"
#include "core/text/number.h"

namespace core {
namespace {

constexpr int ButtonColumn = 1320 / ui::TwipsPerPixel;  // from the window's right edge
constexpr ui::Size ButtonSize{76, 30};
constexpr int ButtonStep = 36;
constexpr std::int64_t MillisecondsPerMinute = 60000;
constexpr int SoonMinutes = 5;

}  // namespace

GameWindow::GameWindow(Suite& suite, const GameEntry& entry, Vocabulary words)
    : ui::Window(suite.platform, words.window),
      suite(suite),
      shared(suite.shared),
      Timer1(this, "Timer1", 1000, ui::Timer::At::Off, &GameWindow::Timer1_Timer),
      Timer2(this, "Timer2", 200, ui::Timer::At::Off, &GameWindow::Timer2_Timer),
      WallClock(this, words.wallClock, 60000, ui::Timer::At::On, &GameWindow::WallClock_Timer),
      TitleTimer(this, words.titleTimer, words.titleInterval, ui::Timer::At::Off,
                 &GameWindow::TitleTimer_Timer),
      cmdPlay(this, "cmdPlay", "&Play", "Starts a new game", &GameWindow::cmdPlay_Click),
      cmdPause(this, "cmdPause", words.pause, words.pauseTip, &GameWindow::cmdPause_Click),
      cmdExit(this, words.exit, words.exitCaption, words.exitTip, &GameWindow::cmdExit_Click),
      Clock(this, suite, Timer2),
      Score(this, "Score", "lblScore", "Score:", words.score),
      lblHighScore(this, "lblHighScore"),
      StatusBar1(this, "StatusBar1", 1, 3),
      Title(this, suite, words.splashPictures, words.splashFace),
      Message(this, words.message),
      Menus(this),
      entry_(entry),
      words_(std::move(words)) {
  cmdPause.Enabled = false;
  Score.Number.Text = "0";
  Message.Visible = false;
  Message.FontSize = 18;
  Message.Bold = true;
  Message.Alignment = ui::Align::Center;
  lblHighScore.Alignment = ui::Align::Center;
}

void GameWindow::Load() {
  shared.ScoringBusy = shared.GameActive = shared.CustomScoring = false;
  Hourglass = true;
  shared.PlaySounds = true;
  shared.PlayMusic = false;
  shared.DeckStyle = 1;
  shared.CountDownScoring = true;
  shared.TimeBonusPerSecond = 100;
  SetDefaults();
  NormalSize = words_.openingSize;
  SetTimeLimitMark();
  Menus.Check(Command::Sounds, shared.PlaySounds);
  const std::string settings = suite.PathOf(words_.settingsFile);
  if (!Exists(settings)) WriteSettings();
  ReadSettingsINI(settings);
  Caption = shared.GameTitle;
  Title.lblProductName.Text = shared.GameTitle;
  StatusBar1(1).Text = "Welcome to " + shared.GameTitle + words_.welcomeEnd;
  WallClock_Timer();
  CreateTableIfMissing();
  ShowTableTop();
  shared.SessionStart = suite.platform.Now();
  ShowTimerGroup(false);
  ShowTitle(true);
  Loaded();
  Hourglass = false;
}

void GameWindow::ShowTopScore(std::int32_t score) {
  lblHighScore.Text = words_.highScorePrefix + Masked(score);
}

void GameWindow::ShowTableTop() {
  ShowHighScore(suite, *this, entry_.startScores.atWindow);
}

void GameWindow::Resized() {
  if (InRound() && StopsWhenMinimized()) StopOrGoOnMinimized();
  if (State() == ui::WindowState::Minimized) return;
  if (BelowSmallest()) {
    NormalSize = words_.smallestSize;
    return;
  }
  const ui::Size inner = InnerSize();
  PlaceFrame(inner);
  PlaceBoard(inner);
}

bool GameWindow::InRound() const {
  return GameRunning() && cmdPause.Enabled() && !shared.ScoringBusy;
}

void GameWindow::StopOrGoOnMinimized() {
  const bool minimized = State() == ui::WindowState::Minimized;
  if (!minimized && Paused()) return;
  minimized ? StopMusic() : StartMusic();
  for (ui::Timer* timer : GameTimers()) timer->Enabled = !minimized;
}

bool GameWindow::StandsStill() const {
  return StopsWhenMinimized() && State() == ui::WindowState::Minimized;
}

bool GameWindow::BelowSmallest() const {
  const ui::Size smallest = words_.smallestSize;
  return State() == ui::WindowState::Normal &&
         (NormalSize().w < smallest.w || NormalSize().h < smallest.h);
}

void GameWindow::PlaceFrame(ui::Size inner) {
  Title.CenterIn(inner);
  const int left = OuterSize().w / ui::TwipsPerPixel - ButtonColumn;
  int top = 8;
  for (ui::Button* button : {&cmdPlay, &cmdPause, TakeScoreButton(), &cmdExit}) {
    if (!button) continue;
    button->Place = {left, top, ButtonSize.w, ButtonSize.h};
    top += ButtonStep;
  }
}

bool GameWindow::QueryClose() {
  if (GameRunning()) {
    const bool paused = PauseForDialog();
    if (suite.Ask("You have a game in progress. Are you sure you want to quit now?")) return true;
    ResumeAfterDialog(paused);
    return false;
  }
  const std::int64_t minutes = (suite.platform.Now() - shared.SessionStart) / MillisecondsPerMinute;
  return suite.Ask(minutes < SoonMinutes
                       ? "Giving up so soon?"
                       : "Are you sure you want to quit now? Were just getting started!");
}

void GameWindow::Unloading() {
  try {
    WriteSettings();
  } catch (const std::exception& e) {
    suite.TellPlainly(e.what());
  }
  Closing();
  shared.ScoringBusy = shared.GameActive = false;
  StopMusic();
  if (suite.launcher) suite.platform.Show(*suite.launcher);
}

void GameWindow::WallClock_Timer() {
  StatusBar1(3).Text = ClockText(suite.Now());
}

}  // namespace core
