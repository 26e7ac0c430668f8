// The command line of the scripted program.
#pragma once

#include <string>
#include <vector>

namespace ui::script {

/// `[--home DIR] [--fault "WORDS"]... [SAVED-GAME]`
struct ScriptOptions {
  std::string home;                 ///< the program's directory as given; empty for the usual one
  std::vector<std::string> faults;  ///< the words of each fault, in order
  std::string savedGame;            ///< the text on the command line, empty for none
  std::string error;                ///< what is wrong with the command line; empty if nothing

  /// What follows `--`, and all that is no option, is the saved game's path; several words are one
  /// path with blanks.
  static ScriptOptions Parse(const std::vector<std::string>& arguments);
};

}  // namespace ui::script
