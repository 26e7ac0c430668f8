// The program put together: its directory, its data files, its shared state and the launcher.
#include "core/launcher/program.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/cards/card.h"
#include "core/files/files.h"

namespace core {
namespace {

/// Data files that are put into the program's directory, by their folder or name in the data.
constexpr const char* DataFolders[] = {"waves", "music", "phrases"};
constexpr const char* DataFiles[] = {"pictures/Pastimo.gif", "Readme.txt"};

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string WithSlash(std::string directory) {
  if (directory.empty() || directory.back() != '/') directory += '/';
  return directory;
}

std::string InstalledData() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return "";
  return (program.parent_path().parent_path() / "share" / "pastimo").string();
}

struct Described {
  const char* key;
  const char* words;
};

constexpr Described Pictures[] = {
    {"BACK", "Card face down"},
    {"FULL", "Pile of cards face down"},
    {"HALF", "Pile of cards face down"},
    {"EMPTY", "Empty place"},
    {"Empty", "Empty place"},
    {"QDLE", "Emblem"},
    {"HAPPY", "Guess left, a sun"},
    {"UNHAPPY", "Guess lost, a cloud"},
    {"UNHAPPY2", "Guess lost, a red sign"},
    {"BLANK", "Guess paid"},
};

/// Pictures in words, for those who can't see them.
std::string DescriptionOf(const std::string& key) {
  if (const std::string card = CardName(key); !card.empty()) return card;
  for (const Described& picture : Pictures) {
    if (key == picture.key) return picture.words;
  }
  return key;
}

}  // namespace

std::string HomeDirectory(const std::string& wanted) {
  if (!wanted.empty()) return WithSlash(wanted);
  if (const auto home = Variable("PASTIMO_HOME"); !home.empty()) return WithSlash(home);
  if (const auto data = Variable("XDG_DATA_HOME"); !data.empty())
    return WithSlash(data + "/pastimo");
  return WithSlash(Variable("HOME") + "/.local/share/pastimo");
}

std::string DataDirectory() {
  if (const auto data = Variable("PASTIMO_DATA"); !data.empty()) return WithSlash(data);
  const std::string installed = InstalledData();
  if (!installed.empty() && Exists(installed + "/Readme.txt")) return WithSlash(installed);
  return WithSlash(PASTIMO_SOURCE_DATA);
}

Program::Program(ui::Desk& platform, Chance& chance, Catalogue catalogue, std::string home,
                 const std::string& savedGame)
    : suite(platform, chance, catalogue) {
  suite.shared.AppPath = std::move(home);
  if (!savedGame.empty()) suite.commandLine = savedGame;
  platform.SetArtwork([this](std::string_view key) {
    const auto position = suite.images.Find(key);
    return position ? CardImages::ArtworkAt(*position) : std::string(key);
  });
  platform.SetDescription(DescriptionOf);
}

void Program::Start() {
  MakeDirectories(suite.shared.AppPath);
  InstallData();
  launcher_ = std::make_unique<frmSelect>(suite);
  launcher_->Load();
}

void Program::InstallData() const {
  const std::string data = DataDirectory();
  for (const char* folder : DataFolders) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(data + folder, error)) {
      InstallIfMissing(entry.path().string(), suite.PathOf(entry.path().filename().string()));
    }
  }
  for (const char* file : DataFiles) {
    InstallIfMissing(data + file, suite.PathOf(FileName(file)));
  }
}

}  // namespace core
