// The desktop program.
#include <chrono>
#include <iostream>
#include <string>

#include "apps/home/home.h"
#include "core/cards/card.h"
#include "core/launcher/frm_select.h"
#include "core/suite/suite.h"
#include "games/catalogue.h"
#include "ui/qt/platform.h"

namespace {

constexpr const char* Usage =
    "Usage: pastimo [SAVED-GAME]\n"
    "Ten timed games for one player. SAVED-GAME is a .qdl file that Quindle opens.\n\n"
    "  --help     shows this text\n"
    "  --version  shows the version\n\n"
    "Settings, scores and saved games are kept in $PASTIMO_HOME, else in\n"
    "$XDG_DATA_HOME/pastimo, else in ~/.local/share/pastimo.\n";

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

int Play(int argc, char** argv) {
  const std::string data = apps::InstalledData();
  const std::string home = apps::ProgramHome();
  ui::qt::QtPlatform platform(argc, argv, {data + "pictures"});
  apps::PutMissingData(data, home);

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
  return platform.Exec();
}

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
  return Play(argc, argv);
}
