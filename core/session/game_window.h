// The frame: what the ten game windows do alike around their own rules.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/halloffame/table_owner.h"
#include "core/help/rules_text.h"
#include "core/session/counter_box.h"
#include "core/session/game_menu.h"
#include "core/session/round_clock.h"
#include "core/session/title_panel.h"
#include "core/settings/settings_file.h"
#include "core/suite/suite.h"
#include "ui/window.h"

namespace core {

/// How a game names and words what all games have.
struct Vocabulary {
  std::string window;        ///< "frmQuindle"
  std::string settingsFile;  ///< "Quindle.Ini"

  std::string exit = "cmdExit";
  std::string exitCaption = "E&xit";
  std::string exitTip = {};
  std::string endGame = "&End Game";
  std::string endGameTip = "Ends the game in progress";
  bool playMenuFollows = true;  ///< mnuPlay reads what cmdPlay reads
  std::string pause = "Pau&se";
  std::string pauseMenuAtFirst = "Pau&se";
  std::string pauseTip = "Pauses the current game";

  std::string message = "lblMessage";  ///< the label of the big messages
  std::string score = "lblCurrentScore";
  std::string highScorePrefix = "Current High Score: ";
  std::string welcomeEnd = "  ";  ///< after the title, in the welcome

  std::string wallClock = "Timer3";
  std::string titleTimer = "Timer4";
  int titleInterval = 200;
  int splashPictures = 5;
  std::string splashFace = {};  ///< empty for random cards

  ui::Size openingSize{9540, 7200};
  ui::Size smallestSize{0, 0};          ///< 0 for none
  std::string maximizedWidth = "9540";  ///< what the settings file says while maximized
  std::string maximizedHeight = "7200";

  std::vector<TimeEntry> timeEntries = {};
  /// The usual numbers of the designs.
  std::vector<DeckEntry> deckEntries{{"mnuPalm", "&Palm Tree", Design::Palm, 1},
                                     {"mnuMagic", "&Magic Hands", Design::Magic, 2},
                                     {"mnuNight", "&Night Castle", Design::Night, 3},
                                     {"mnuHot", "&Hot Cards", Design::Hot, 4}};
  /// Entries that are disabled while a game runs, besides those of limit, scoring and music file.
  std::vector<std::string> fixedInGame = {};
};

/// One value that counts for default scoring.
struct ScoringValue {
  std::int64_t now;
  std::int64_t standard;
};

/// Base of the game windows. A game supplies the operations of the first group below and its table
/// of menus; the rest it changes only where it differs.
class GameWindow : public ui::Window, public TableOwner {
 public:
  GameWindow(Suite& suite, const GameEntry& entry, Vocabulary vocabulary);

  // --- what a game supplies -----------------------------------------------------------------

  /// Starts a game, or, while one runs, asks and ends it.
  virtual void Play() = 0;
  /// Ends the round; what the clock's expiry leads to as well.
  virtual void TakeScore() = 0;
  virtual void ShowCards(bool visible) = 0;
  virtual void ShowControls(bool visible, bool keep) = 0;
  /// The settings file as a table, in the order of writing.
  virtual std::vector<SettingsKey> Settings() = 0;
  /// Puts the game's defaults in memory; those that all games share are there already.
  virtual void SetDefaults() = 0;
  /// All that default scoring depends on, the time limit included.
  virtual std::vector<ScoringValue> ScoringValues() const = 0;
  virtual RulesText Rules() const = 0;
  /// Opens the scoring dialog.
  virtual void ShowScoringDialog() = 0;
  /// Places what stands on the board; the frame has placed panel and buttons.
  virtual void PlaceBoard(ui::Size inner) = 0;

  // --- the operations of a window ------------------------------------------------------------

  virtual void PauseGame();
  void ReadSettingsINI(const std::string& path);
  void WriteSettings();
  virtual void CheckForCustom();

  const GameEntry& Entry() const override { return entry_; }
  void ShowTopScore(std::int32_t score) override;

 protected:
  // --- differences that a game can tell ---------------------------------------------------------

  virtual bool GameRunning() const { return shared.GameActive; }
  /// Timers that stand still with the clock while the game is paused or the window minimized.
  virtual std::vector<ui::Timer*> GameTimers() { return {&Timer1}; }
  /// The game stands still while the window is minimized.
  virtual bool StopsWhenMinimized() const { return true; }
  /// A round is being played, or paused: not while one is scored, nor at the end of a game.
  virtual bool InRound() const;
  virtual ui::Button* TakeScoreButton() { return nullptr; }
  /// At the end of loading, with the settings read.
  virtual void Loaded() {}
  virtual void PauseBoard() { ShowCards(false); }
  virtual void ResumeBoard() { ShowCards(true); }
  virtual void ShowSecondsLeft() { Clock.WriteTime(); }
  virtual void WarnOfTime();
  /// Hides what the game hides before the "Times Up!" message flashes.
  virtual void HideAtExpiry() {}
  virtual void TimeIsUp();
  virtual void PlayMenu_Click() { cmdPlay_Click(); }
  virtual void TimeLimitChosen() {}
  virtual void DeckChosen() {}
  /// The cards that a paused game shows face down get the new back.
  virtual void RedrawPausedCards() {}
  /// After Yes to closing, when the settings have been written.
  virtual void Closing() {}
  /// After a test has found default scoring.
  virtual void AtDefaultScoring() { shared.PlayerNameBare = shared.StripCustomMark(); }

  // --- what the frame offers -----------------------------------------------------------------

  /// Makes the menus; the shared commands get the frame's handlers.
  void BuildMenu(std::vector<MenuRow> rows);
  std::vector<MenuRow> TimeRows();
  std::vector<MenuRow> DeckRows();

  SettingsKey SoundsKey();
  SettingsKey MusicKey();
  SettingsKey CountDownKey(const std::string& key);
  SettingsKey TimeBonusKey(const std::string& key);
  SettingsKey StateKey();
  SettingsKey WidthKey();
  SettingsKey HeightKey();
  /// A number without a design is ignored, or stands for `otherwise` if that is not 0.
  SettingsKey DeckKey(int otherwise = 0);
  SettingsKey TimeKey();

  /// Sets CustomScoring by these values, with the notice if they are not the standard ones.
  void TestForCustom(const std::vector<ScoringValue>& values);

  void ChooseTimeLimit(int seconds);
  bool ChooseDeck(int number);
  void SetTimeLimitMark();

  /// What every start of a game begins with: score 0, round 1, no message, no title panel.
  void BeginGame();
  static void Show(bool visible, std::initializer_list<ui::Control*> controls);
  /// Captions, tips and menus of a game that runs, or of an idle window.
  void ShowRunningCommands();
  void ShowIdleCommands();
  void OfferNewGame();  ///< the same, but Play and Exit may still be off
  void EnablePlayAndExit();
  void EnableFixedMenus(bool enabled);
  /// All of a game's commands, as while a round is scored they are off.
  void EnableCommands(bool enabled);
  void EnableRoundCommands(bool enabled);  ///< Play, Exit and Take Score, with their entries
  void ShowCaptionOfPlay(bool running);
  void ShowCaptionOfPause(bool paused);

  /// ElapsedSeconds 0, the empty clock, its label, its timer on, its group shown.
  void StartClock();
  void StopClock() { Timer1.Enabled = false; }
  bool StandsStill() const;  ///< minimized, in a game that stops then

  /// Shows `text` as the big message.
  void ShowMessage(const std::string& text, ui::Color color);
  void HideMessage();
  /// Swaps the label between red and black so many times, with a wait after each.
  void Flash(ui::Label& label, int times, int milliseconds = 250);
  /// A title in the colour that the message has, until it has flashed.
  void FlashTitle(const std::string& title, int times);
  void WriteScore();
  /// Adds to the score and shows it.
  void AddPoints(std::int64_t points);

  /// Serves what the player did while a round was scored, without effect.
  void ServeAndDrop();
  /// Serves what is pending, with effect; ends the handler if the window was closed by it.
  void ServeEvents();
  void Wait(int milliseconds) { suite.platform.Wait(milliseconds); }
  void Wave(const std::string& file) { suite.PlayWave(file); }
  void StartMusic();
  void StopMusic();
  /// Asks a question with Yes and No; ends the handler if the window was closed behind it.
  bool Ask(const std::string& question);

  bool PlayingNow() const;  ///< a game runs and could be paused
  bool Paused() const;
  /// Pauses a playing game for a dialog; true if it has to be resumed after it.
  bool PauseForDialog();
  void ResumeAfterDialog(bool paused);

  /// The common end of a game.
  void FinishGame();
  /// Enters the score and shows the top of the table; says so if that fails.
  void UpdateTable();
  void CreateTableIfMissing();
  void ShowTableTop();
  /// "Game Over" for a while, then the title panel.
  void ShowGameOver(int milliseconds, ui::Color color = ui::Red);
  void ShowTitle(bool visible);

  /// "Make " and a score, then `ending`, on the first panel.
  void ShowGoal(std::int64_t score, const std::string& ending);

  Suite& suite;
  Shared& shared;

 public:
  // The controls that every game has, named as the game names them.
  ui::Timer Timer1;
  ui::Timer Timer2;
  ui::Timer WallClock;
  ui::Timer TitleTimer;
  ui::Button cmdPlay;
  ui::Button cmdPause;
  ui::Button cmdExit;
  RoundClock Clock;
  CounterBox Score;
  ui::Label lblHighScore;
  ui::Array<ui::Panel> StatusBar1;
  TitlePanel Title;
  ui::Label Message;
  GameMenu Menus;

  void ShowTimerGroup(bool visible) { Clock.ShowTimerGroup(visible); }
  void ShowScoreGroup(bool visible);

  void cmdPlay_Click();
  void cmdPause_Click();
  void cmdTakeScore_Click();
  void cmdExit_Click();

 protected:
  virtual void Timer1_Timer();

 private:
  void Load() override;
  void Resized() override;
  bool QueryClose() override;
  void Unloading() override;

  void Pause();
  void Resume();
  void StopOrGoOnMinimized();
  bool BelowSmallest() const;
  void PlaceFrame(ui::Size inner);
  ui::Handler HandlerOf(Command command);
  void Bind(std::vector<MenuRow>& rows);

  void Timer2_Timer() { Clock.Flash(); }
  void WallClock_Timer();
  void TitleTimer_Timer() { Title.Step(); }

  void mnuMusic_Click();
  void mnuSounds_Click();
  void mnuViewHiScore_Click();
  void mnuClear_Click();
  void mnuRules_Click();
  void mnuReadme_Click();
  void mnuAbout_Click();

  const GameEntry& entry_;
  const Vocabulary words_;
};

}  // namespace core
