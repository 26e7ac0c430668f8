// The whole program under a script.
#pragma once

#include "ui/script/director.h"
#include "ui/script/options.h"

namespace app {

/// Reads the command line. Leaves the program with 0 where that asks for help or the version alone,
/// and with 2, saying why, where it is wrong.
ui::script::ScriptOptions OptionsOf(int count, char** words);

/// Plays what stands on standard input, on the desk and stage of one platform; returns the exit
/// status.
int Play(const ui::script::ScriptOptions& options, ui::Desk& desk, ui::script::Director& stage);

}  // namespace app
