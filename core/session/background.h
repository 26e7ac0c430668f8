// The picture that a player can put behind the board.
#pragma once

#include <string>

#include "core/settings/settings_file.h"
#include "core/suite/suite.h"
#include "ui/property.h"

namespace core {

/// Keeps the path and shows the picture by a control's image. A path that can't be shown leaves the
/// board plain, and is kept for the settings file all the same.
class Background {
 public:
  Background(Suite& suite, ui::Property<std::string>& image) : suite_(suite), image_(image) {}

  void SetDefault() { path_ = suite_.PathOf("Pastimo.gif"); }
  SettingsKey Key(std::string key) { return Text(std::move(key), path_); }
  void Show();
  /// Lets the player choose a file, and says so if that can't be shown. Cancelled, all stays as it
  /// was.
  void Choose();
  void Clear();

 private:
  Suite& suite_;
  ui::Property<std::string>& image_;
  std::string path_;
};

}  // namespace core
