// Putting the desktop program together.
#include "apps/pastimo/program.h"

#include <chrono>
#include <string>

#include "core/launcher/program.h"
#include "games/catalogue.h"
#include "ui/qt/platform.h"

namespace apps {
namespace {

std::uint64_t Nanoseconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(
      std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
}

}  // namespace

int RunPastimo(int argc, char** argv, const Started& started, Instead instead) {
  const std::string data = core::DataDirectory();
  const std::string home = core::HomeDirectory("");
  ui::qt::QtPlatform platform(argc, argv, {data + "pictures", data + "icons", home + "Desktop.Ini"},
                              std::move(instead.clock));
  core::Chance chance(Nanoseconds);
  core::Program program(platform, instead.chance ? *instead.chance : chance, games::AllGames(),
                        home, argc > 1 ? argv[1] : "");
  program.Start();
  if (started) started(platform);
  return platform.Exec();
}

}  // namespace apps
