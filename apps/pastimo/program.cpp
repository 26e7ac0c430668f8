// Putting the desktop program together.
#include "apps/pastimo/program.h"

#include <chrono>
#include <string>

#include "apps/home/home.h"
#include "core/cards/card.h"
#include "core/launcher/frm_select.h"
#include "core/suite/suite.h"
#include "games/catalogue.h"
#include "ui/qt/platform.h"

namespace apps {
namespace {

std::uint64_t Nanoseconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(
      std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
}

/// Pictures in words, for those who can't see them.
std::string DescriptionOf(const std::string& key) {
  if (const std::string card = core::CardName(key); !card.empty()) return card;
  if (key == "BACK") return "Card face down";
  if (key == "FULL" || key == "HALF") return "Pile of cards face down";
  if (key == "EMPTY" || key == "Empty") return "Empty place";
  if (key == "QDLE") return "Emblem";
  return key;
}

}  // namespace

int RunPastimo(int argc, char** argv, const Started& started) {
  const std::string data = InstalledData();
  const std::string home = ProgramHome();
  ui::qt::QtPlatform platform(argc, argv, {data + "pictures"});
  PutMissingData(data, home);

  core::Chance chance(Nanoseconds);
  core::Suite suite(platform, chance, games::AllGames());
  suite.shared.AppPath = home;
  if (argc > 1) suite.commandLine = argv[1];
  platform.SetArtwork([&suite](std::string_view key) {
    const auto position = suite.images.Find(key);
    return position ? core::CardImages::ArtworkAt(*position) : std::string();
  });
  platform.SetDescription(DescriptionOf);

  core::frmSelect launcher(suite);
  static_cast<ui::Window&>(launcher).Load();
  if (started) started(platform);
  return platform.Exec();
}

}  // namespace apps
