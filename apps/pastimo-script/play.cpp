// Putting the program together for a script.
#include "apps/pastimo-script/play.h"

#include <chrono>
#include <cstdlib>
#include <iostream>

#include "apps/pastimo-script/program_subject.h"
#include "core/launcher/program.h"
#include "games/catalogue.h"
#include "ui/script/interpreter.h"

namespace app {
namespace {

constexpr const char* Usage =
    "Usage: pastimo-script [--home DIR] [--fault WORDS]... [SAVED-GAME]\n"
    "The games of pastimo, played by a script on standard input; see pastimo-script(6).\n\n"
    "  --home DIR     the program's directory for this run\n"
    "  --fault WORDS  a fault before the start-up\n"
    "  --help         shows this text\n"
    "  --version      shows the version\n";

}  // namespace

ui::script::ScriptOptions OptionsOf(int count, char** words) {
  const std::string first = count > 1 ? words[1] : "";
  if (first == "--help" || first == "--version") {
    std::cout << (first == "--help" ? Usage : "pastimo-script " PASTIMO_VERSION "\n");
    std::exit(0);
  }
  auto options =
      ui::script::ScriptOptions::Parse(std::vector<std::string>(words + 1, words + count));
  if (options.error.empty()) return options;
  std::cerr << options.error << '\n';
  std::exit(2);
}

int Play(const ui::script::ScriptOptions& options, ui::Desk& desk, ui::script::Director& stage) {
  std::ios::sync_with_stdio(false);
  StagedChance chance([] {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  });
  core::Program program(desk, chance, games::AllGames(), core::HomeDirectory(options.home),
                        options.savedGame);
  stage.SetHome(program.suite.shared.AppPath);
  ProgramSubject subject(program.suite, chance);
  ui::script::Interpreter interpreter(stage, subject, std::cin, std::cout);
  try {
    for (const std::string& fault : options.faults) interpreter.SetFault(fault);
  } catch (const ui::script::Refused& refused) {
    std::cerr << refused.reason << '\n';
    return 2;
  }
  interpreter.Play([&] { program.Start(); });
  return 0;
}

}  // namespace app
