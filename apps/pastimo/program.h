// The desktop program from its first window to its last.
#pragma once

#include <functional>
#include <memory>

#include "ui/qt/clock.h"

namespace core {
class Chance;
}
namespace ui::qt {
class QtPlatform;
}

namespace apps {

/// Told once the launcher is shown; a test looks on from there.
using Started = std::function<void(ui::qt::QtPlatform&)>;

/// What a test puts in the place of time and chance.
struct Instead {
  std::unique_ptr<ui::qt::Clock> clock = std::make_unique<ui::qt::Clock>();
  core::Chance* chance = nullptr;  ///< null for true chance; the caller's otherwise
};

/// Runs until the launcher is closed; returns the exit status. A first argument is the path of a
/// saved game.
int RunPastimo(int argc, char** argv, const Started& started = {}, Instead instead = {});

}  // namespace apps
