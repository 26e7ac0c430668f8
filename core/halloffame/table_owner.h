// What the high score tables ask of the game whose scores they hold.
#pragma once

#include <cstdint>
#include <string>

#include "core/suite/game_entry.h"

namespace core {

class TableOwner {
 public:
  virtual const GameEntry& Entry() const = 0;
  /// Start of the file name of the table in use, with its trailing blank or mark.
  virtual std::string TableName() const { return Entry().tableName; }
  /// What the high score window says over the list.
  virtual std::string TableInfo() const { return "High Scores for " + Entry().title; }
  /// Shows the top score of the table in use on the game's window.
  virtual void ShowTopScore(std::int32_t score) = 0;

 protected:
  ~TableOwner() = default;
};

}  // namespace core
