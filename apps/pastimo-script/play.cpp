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

ui::script::ScriptOptions OptionsOf(int count, char** words) {
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
