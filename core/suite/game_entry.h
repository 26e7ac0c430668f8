// One row of the catalogue of games: all that the program knows of a game from outside.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace ui {
class Window;
}

namespace core {

class Suite;
struct GameEntry;

/// The top score of a table that doesn't exist yet, by who makes the table.
struct StartScores {
  std::int32_t atWindow;      ///< the game's window and its menu
  std::int32_t atEnd;         ///< the end of a game
  std::int32_t inHighScores;  ///< the high score window's own button
};

using WindowMaker = std::function<std::unique_ptr<ui::Window>(Suite&, const GameEntry&)>;

struct GameEntry {
  std::string title;      ///< with its "!"
  std::string button;     ///< name of the launcher's button
  std::string caption;    ///< of that button; its tool tip is "Play " and the title
  std::string tableName;  ///< start of the table's file name, with its trailing blank
  StartScores startScores;
  std::int32_t listedFrom;   ///< smallest score that is listed publicly
  std::int16_t listedLimit;  ///< time limit, in seconds, under which it must have been made
  WindowMaker makeWindow;
};

using Catalogue = std::span<const GameEntry>;

}  // namespace core
