// The whole program under a script.
#pragma once

#include "ui/script/director.h"
#include "ui/script/options.h"

namespace app {

/// Reads the command line; prints what is wrong with it, and leaves the program with 2.
ui::script::ScriptOptions OptionsOf(int count, char** words);

/// Plays what stands on standard input, on the desk and stage of one platform; returns the exit
/// status.
int Play(const ui::script::ScriptOptions& options, ui::Desk& desk, ui::script::Director& stage);

}  // namespace app
