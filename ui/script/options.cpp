// Taking the command line apart.
#include "ui/script/options.h"

namespace ui::script {

ScriptOptions ScriptOptions::Parse(const std::vector<std::string>& arguments) {
  ScriptOptions options;
  bool optionsEnded = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const bool takesValue = !optionsEnded && (argument == "--home" || argument == "--fault");
    if (takesValue && i + 1 == arguments.size()) {
      options.error = argument + " needs a value";
    } else if (takesValue && argument == "--home") {
      options.home = arguments[++i];
      if (options.home.empty()) options.error = "--home needs a directory";
    } else if (takesValue) {
      options.faults.push_back(arguments[++i]);
    } else if (!optionsEnded && argument == "--") {
      optionsEnded = true;
    } else if (!optionsEnded && argument.starts_with("--")) {
      options.error = "there is no option " + argument;
    } else {
      options.savedGame += (options.savedGame.empty() ? "" : " ") + argument;
    }
  }
  return options;
}

}  // namespace ui::script
