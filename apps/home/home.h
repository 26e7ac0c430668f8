// Where the program's files are: the player's directory, and the data that came with the program.
#pragma once

#include <string>

namespace apps {

/// The program's directory: $PASTIMO_HOME, else pastimo in $XDG_DATA_HOME, else in
/// ~/.local/share. Ends in a slash.
std::string ProgramHome();

/// The data installed with the program, found from the executable's own place; a program that was
/// not installed uses those it was built from. Ends in a slash.
std::string InstalledData();

/// Puts data files that are missing in the program's directory there, and makes that directory. A
/// file that is there is never touched. What fails shows later, where the file is needed.
void PutMissingData(const std::string& data, const std::string& home);

}  // namespace apps
