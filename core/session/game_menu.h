// The menu of a game window as a table, and the commands that every game shares.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "core/cards/card_images.h"
#include "ui/controls.h"

namespace core {

/// What the frame does for a menu entry by itself, whatever the game calls the entry. Other gives
/// the entry to the game's own handler.
enum class Command {
  Other,
  Play,
  Pause,
  TakeScore,
  Exit,
  ViewHighScores,
  ClearHighScores,
  Music,
  MusicFile,
  Sounds,
  Custom,
  Time,
  Rules,
  Readme,
  About,
  Count
};

/// One row of a menu table. A row with entries is a heading.
struct MenuRow {
  std::string name;
  std::string caption;
  Command command = Command::Other;
  ui::Handler click = {};
  std::vector<MenuRow> entries = {};
};

/// A row that holds others, and does nothing itself.
inline MenuRow Heading(std::string name, std::string caption, std::vector<MenuRow> entries) {
  return {std::move(name), std::move(caption), Command::Other, {}, std::move(entries)};
}

/// The help menu of every game; the captions are not quite the same in all of them.
MenuRow HelpMenu(const std::string& rulesCaption = "&Rules",
                 const std::string& aboutCaption = "&About");

/// A time limit that the player can choose; its entry is named "mnu" and the seconds.
struct TimeEntry {
  int seconds;
  std::string caption;
};

/// A design of card backs, with the number under which this game keeps it.
struct DeckEntry {
  std::string name;
  std::string caption;
  Design design;
  int number;
};

/// The menus of a window: owns them, and finds those of the shared commands.
class GameMenu {
 public:
  explicit GameMenu(ui::Window* window) : window_(window) {}

  /// Makes the menus of a table. To be called once, from the game's constructor.
  void Build(const std::vector<MenuRow>& rows);

  /// The entry of a shared command, or null if this game has none.
  ui::Menu* Of(Command command) const { return shared_[static_cast<std::size_t>(command)]; }
  /// The entry of this name, or null.
  ui::Menu* Named(const std::string& name) const;
  void Enable(bool enabled, std::initializer_list<Command> commands);
  void SetText(Command command, const std::string& text);
  void Check(Command command, bool checked);

 private:
  void Add(const MenuRow& row, ui::Menu* parent);

  ui::Window* window_;
  std::vector<std::unique_ptr<ui::Menu>> menus_;
  std::array<ui::Menu*, static_cast<std::size_t>(Command::Count)> shared_{};
};

}  // namespace core
