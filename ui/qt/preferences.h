// What a player wishes of the desktop program alone, whatever the game.
#pragma once

#include <optional>
#include <string>

namespace ui::qt {

/// Kept in a file of its own, which is read when it is first asked for and written when a wish
/// changes. A file that can't be read or written leaves the wishes of this run.
class Preferences {
 public:
  explicit Preferences(std::string file) : file_(std::move(file)) {}

  /// Whether coloured boxes bear signs, so that nobody needs their colours.
  bool BoxSigns();
  void SetBoxSigns(bool wanted);

 private:
  std::string file_;
  std::optional<bool> boxSigns_;
};

}  // namespace ui::qt
