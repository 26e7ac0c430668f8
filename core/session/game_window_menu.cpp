// What the entries of a game's menu do that every game has.
#include <algorithm>

#include "core/halloffame/high_scores.h"
#include "core/help/frm_about.h"
#include "core/help/frm_rules.h"
#include "core/session/game_window.h"

namespace core {

void GameWindow::BuildMenu(std::vector<MenuRow> rows) {
  Bind(rows);
  Menus.Build(rows);
  Menus.SetText(Command::Pause, words_.pauseMenuAtFirst);
  Menus.Enable(false, {Command::Pause, Command::TakeScore});
}

void GameWindow::Bind(std::vector<MenuRow>& rows) {
  for (MenuRow& row : rows) {
    if (!row.click) row.click = HandlerOf(row.command);
    Bind(row.entries);
  }
}

ui::Handler GameWindow::HandlerOf(Command command) {
  switch (command) {
    case Command::Play:
      return [this] { PlayMenu_Click(); };
    case Command::Pause:
      return [this] { cmdPause_Click(); };
    case Command::TakeScore:
      return [this] { cmdTakeScore_Click(); };
    case Command::Exit:
      return [this] { Unload(); };
    case Command::ViewHighScores:
      return [this] { mnuViewHiScore_Click(); };
    case Command::ClearHighScores:
      return [this] { mnuClear_Click(); };
    case Command::Music:
      return [this] { mnuMusic_Click(); };
    case Command::MusicFile:
      return [this] { suite.SelectMusicFile(*this); };
    case Command::Sounds:
      return [this] { mnuSounds_Click(); };
    case Command::Custom:
      return [this] { ShowScoringDialog(); };
    case Command::Rules:
      return [this] { mnuRules_Click(); };
    case Command::Readme:
      return [this] { mnuReadme_Click(); };
    case Command::About:
      return [this] { mnuAbout_Click(); };
    default:
      return {};
  }
}

// --- time limit and card back -------------------------------------------------------------------

std::vector<MenuRow> GameWindow::TimeRows() {
  std::vector<MenuRow> rows;
  for (const TimeEntry& entry : words_.timeEntries) {
    rows.push_back({"mnu" + std::to_string(entry.seconds), entry.caption, Command::Other,
                    [this, seconds = entry.seconds] { ChooseTimeLimit(seconds); }});
  }
  return rows;
}

std::vector<MenuRow> GameWindow::DeckRows() {
  std::vector<MenuRow> rows;
  for (const DeckEntry& entry : words_.deckEntries) {
    rows.push_back({entry.name, entry.caption, Command::Other,
                    [this, number = entry.number] { ChooseDeck(number); }});
  }
  return rows;
}

void GameWindow::ChooseTimeLimit(int seconds) {
  shared.TimeLimit = static_cast<std::int16_t>(seconds);
  SetTimeLimitMark();
  TimeLimitChosen();
  ShowTableTop();
  CheckForCustom();
}

void GameWindow::SetTimeLimitMark() {
  for (const TimeEntry& entry : words_.timeEntries) {
    if (ui::Menu* menu = Menus.Named("mnu" + std::to_string(entry.seconds))) {
      menu->Checked = entry.seconds == shared.TimeLimit;
    }
  }
}

bool GameWindow::ChooseDeck(int number) {
  const auto chosen = std::find_if(words_.deckEntries.begin(), words_.deckEntries.end(),
                                   [&](const DeckEntry& entry) { return entry.number == number; });
  if (chosen == words_.deckEntries.end()) return false;
  for (const DeckEntry& entry : words_.deckEntries) {
    if (ui::Menu* menu = Menus.Named(entry.name)) menu->Checked = &entry == &*chosen;
  }
  suite.images.ChooseDesign(chosen->design);
  if (Paused()) RedrawPausedCards();
  shared.DeckStyle = static_cast<std::int16_t>(number);
  DeckChosen();
  return true;
}

// --- sound and music ----------------------------------------------------------------------------

void GameWindow::mnuMusic_Click() {
  shared.PlayMusic = !shared.PlayMusic;
  Menus.Check(Command::Music, shared.PlayMusic);
  if (!GameRunning()) return;
  shared.PlayMusic ? suite.PlayMidi() : suite.PauseMidi();
}

void GameWindow::mnuSounds_Click() {
  shared.PlaySounds = !shared.PlaySounds;
  Menus.Check(Command::Sounds, shared.PlaySounds);
}

// --- windows that pause the game ----------------------------------------------------------------

void GameWindow::mnuViewHiScore_Click() {
  const bool paused = PauseForDialog();
  ViewHighScores(suite, *this);
  ResumeAfterDialog(paused);
}

void GameWindow::mnuClear_Click() {
  if (!AskToClearHighScores(suite, *this)) return;
  ShowTableTop();
}

void GameWindow::mnuRules_Click() {
  const bool paused = PauseForDialog();
  frmRules window(suite, ComposeRules(shared.GameTitle, Rules()));
  suite.ShowModal(window);
  ResumeAfterDialog(paused);
}

void GameWindow::mnuReadme_Click() {
  if (cmdPause.Enabled() && cmdPause.Text == words_.pause) cmdPause_Click();
  suite.platform.ViewText(suite.PathOf("Readme.txt"));
}

void GameWindow::mnuAbout_Click() {
  const bool paused = PauseForDialog();
  frmAbout window(suite);
  suite.ShowModal(window);
  ResumeAfterDialog(paused);
}

}  // namespace core
