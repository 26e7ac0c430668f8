// The settings file of a game window, and what counts as custom scoring.
#include <algorithm>
#include <stdexcept>

#include "core/files/files.h"
#include "core/session/game_window.h"
#include "core/suite/notices.h"
#include "core/text/number.h"
#include "core/text/text.h"

namespace core {
namespace {

constexpr std::int64_t LargestWindow = 32767 * 4;  // twips; larger than any screen

}  // namespace

void GameWindow::ReadSettingsINI(const std::string& path) {
  std::string error;
  const auto text = ReadWhole(path, &error);
  if (!text) throw std::runtime_error(error);
  ReadSettings(*text, Settings());
}

void GameWindow::WriteSettings() {
  std::string error;
  if (!WriteWhole(suite.PathOf(words_.settingsFile), FormatSettings(Settings()), &error)) {
    throw std::runtime_error(error);
  }
}

void GameWindow::CheckForCustom() {
  TestForCustom(ScoringValues());
}

void GameWindow::TestForCustom(const std::vector<ScoringValue>& values) {
  shared.CustomScoring = std::any_of(values.begin(), values.end(),
                                     [](const ScoringValue& v) { return v.now != v.standard; });
  shared.CustomScoring ? ShowCustomScoringNotice(suite, shared.GameTitle) : AtDefaultScoring();
}

// --- the keys that games share ------------------------------------------------------------------

SettingsKey GameWindow::SoundsKey() {
  SettingsKey key = Flag("[Play Sounds]", shared.PlaySounds);
  key.read = [this](const std::string& value) {
    shared.PlaySounds = FlagIn(value);
    Menus.Check(Command::Sounds, shared.PlaySounds);
  };
  return key;
}

SettingsKey GameWindow::MusicKey() {
  SettingsKey key = Flag("[Play Music]", shared.PlayMusic);
  key.read = [this](const std::string& value) {
    shared.PlayMusic = FlagIn(value);
    Menus.Check(Command::Music, shared.PlayMusic);
  };
  return key;
}

SettingsKey GameWindow::CountDownKey(const std::string& key) {
  return Flag(key, shared.CountDownScoring);
}

SettingsKey GameWindow::TimeBonusKey(const std::string& key) {
  return Number(key, shared.TimeBonusPerSecond);
}

SettingsKey GameWindow::StateKey() {
  return {"[State]", [this] { return Digits(static_cast<int>(State())); },
          [this](const std::string& value) {
            const std::int64_t state = WholeIn(value);
            if (state >= 0 && state <= 2) State = static_cast<ui::WindowState>(state);
          }};
}

SettingsKey GameWindow::WidthKey() {
  return {"[Width]",
          [this] {
            return State() == ui::WindowState::Maximized ? words_.maximizedWidth
                                                         : Digits(NormalSize().w);
          },
          [this](const std::string& value) {
            if (State() == ui::WindowState::Maximized) return;
            const auto width = std::clamp<std::int64_t>(WholeIn(value), 0, LargestWindow);
            NormalSize = ui::Size{static_cast<int>(width), NormalSize().h};
          }};
}

SettingsKey GameWindow::HeightKey() {
  return {"[Height]",
          [this] {
            return State() == ui::WindowState::Maximized ? words_.maximizedHeight
                                                         : Digits(NormalSize().h);
          },
          [this](const std::string& value) {
            if (State() == ui::WindowState::Maximized) return;
            const auto height = std::clamp<std::int64_t>(WholeIn(value), 0, LargestWindow);
            NormalSize = ui::Size{NormalSize().w, static_cast<int>(height)};
          }};
}

SettingsKey GameWindow::DeckKey(int otherwise) {
  return {"[Deck]", [this] { return Digits(shared.DeckStyle); },
          [this, otherwise](const std::string& value) {
            const auto number = ClampTo<std::int16_t>(WholeIn(value));
            if (!ChooseDeck(number) && otherwise != 0) ChooseDeck(otherwise);
          }};
}

SettingsKey GameWindow::TimeKey() {
  return {"[Time]", [this] { return Digits(shared.TimeLimit); },
          [this](const std::string& value) {
            const std::int64_t seconds = WholeIn(value);
            const bool offered =
                std::any_of(words_.timeEntries.begin(), words_.timeEntries.end(),
                            [&](const TimeEntry& entry) { return entry.seconds == seconds; });
            if (offered) ChooseTimeLimit(static_cast<int>(seconds));
          }};
}

}  // namespace core
