// The desktop program from its first window to its last.
#pragma once

#include <functional>

namespace ui::qt {
class QtPlatform;
}

namespace apps {

/// Told once the launcher is shown; a test looks on from there.
using Started = std::function<void(ui::qt::QtPlatform&)>;

/// Runs until the launcher is closed; returns the exit status. A first argument is the path of a
/// saved game.
int RunPastimo(int argc, char** argv, const Started& started = {});

}  // namespace apps
