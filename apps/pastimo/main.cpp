// The desktop program.
#include <iostream>
#include <string>

#include "apps/pastimo/program.h"
#include "ui/qt/platform.h"

namespace {

constexpr const char* Usage =
    "Usage: pastimo [SAVED-GAME]\n"
    "Ten timed games for one player. SAVED-GAME is a .qdl file that Quindle opens.\n\n"
    "  --help     shows this text\n"
    "  --version  shows the version\n\n"
    "Settings, scores and saved games are kept in $PASTIMO_HOME, else in\n"
    "$XDG_DATA_HOME/pastimo, else in ~/.local/share/pastimo.\n";

}  // namespace

int main(int argc, char** argv) {
  const std::string first = argc > 1 ? argv[1] : "";
  if (first == "--help") {
    std::cout << Usage;
    return 0;
  }
  if (first == "--version") {
    std::cout << "pastimo " PASTIMO_VERSION "\n";
    return 0;
  }
  if (!ui::qt::HasDisplay()) {
    std::cerr << "pastimo: there is no display; try: xvfb-run pastimo\n";
    return 1;
  }
  return apps::RunPastimo(argc, argv);
}
