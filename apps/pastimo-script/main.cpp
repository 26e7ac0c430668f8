// The whole program on the headless platform, played by a script on standard input.
#include <chrono>
#include <iostream>
#include <string>
#include <vector>

#include "apps/pastimo-script/program_subject.h"
#include "core/launcher/program.h"
#include "games/catalogue.h"
#include "ui/headless/platform.h"
#include "ui/script/interpreter.h"
#include "ui/script/options.h"

namespace {

constexpr const char* Usage =
    "Usage: pastimo-script [--home DIR] [--fault WORDS]... [SAVED-GAME]\n"
    "The games of pastimo, played by a script on standard input; see pastimo-script(6).\n\n"
    "  --home DIR     the program's directory for this run\n"
    "  --fault WORDS  a fault before the start-up\n"
    "  --help         shows this text\n"
    "  --version      shows the version\n";

}  // namespace

int main(int count, char** words) {
  using ui::script::ScriptOptions;
  const std::string first = count > 1 ? words[1] : "";
  if (first == "--help" || first == "--version") {
    std::cout << (first == "--help" ? Usage : "pastimo-script " PASTIMO_VERSION "\n");
    return 0;
  }
  std::ios::sync_with_stdio(false);
  const auto options = ScriptOptions::Parse(std::vector<std::string>(words + 1, words + count));
  if (!options.error.empty()) {
    std::cerr << options.error << '\n';
    return 2;
  }
  ui::HeadlessPlatform platform;
  app::StagedChance chance([] {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  });
  core::Program program(platform, chance, games::AllGames(), core::HomeDirectory(options.home),
                        options.savedGame);
  platform.SetHome(program.suite.shared.AppPath);
  app::ProgramSubject subject(program.suite, chance);
  ui::script::Interpreter interpreter(platform, subject, std::cin, std::cout);
  try {
    for (const std::string& fault : options.faults) interpreter.SetFault(fault);
  } catch (const ui::script::Refused& refused) {
    std::cerr << refused.reason << '\n';
    return 2;
  }
  interpreter.Play([&] { program.Start(); });
}
