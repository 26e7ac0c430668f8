// Finding and filling the program's directory.
#include "apps/home/home.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <vector>

#include "core/files/files.h"

namespace apps {
namespace {

namespace fs = std::filesystem;

/// Which of the data files stand in the player's directory, by their folder in the data.
struct Kind {
  const char* folder;
  const char* pattern;
};
constexpr Kind Kinds[] = {{"waves", "*.wav"},
                          {"music", "*.mid"},
                          {"", "*.Dat"},
                          {"", "Readme.txt"},
                          {"pictures", "*.gif"}};

std::string FromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string WithSlash(std::string path) {
  if (path.empty() || path.back() != '/') path += '/';
  return path;
}

std::vector<std::string> FilesIn(const std::string& directory, std::string_view pattern) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator it(directory, error), end; !error && it != end; it.increment(error)) {
    const std::string name = it->path().filename().string();
    if (core::WildcardMatch(pattern, name)) names.push_back(name);
  }
  return names;
}

}  // namespace

std::string ProgramHome() {
  if (const std::string home = FromEnvironment("PASTIMO_HOME"); !home.empty()) {
    return WithSlash(home);
  }
  std::string data = FromEnvironment("XDG_DATA_HOME");
  if (data.empty()) data = WithSlash(FromEnvironment("HOME")) + ".local/share";
  return WithSlash(data) + "pastimo/";
}

std::string InstalledData() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  const fs::path installed = program.parent_path().parent_path() / "share" / "pastimo";
  if (!error && fs::is_directory(installed, error)) return WithSlash(installed.string());
  return WithSlash(PASTIMO_SOURCE_DATA);
}

void PutMissingData(const std::string& data, const std::string& home) {
  if (!core::MakeDirectories(home)) return;
  for (const Kind& kind : Kinds) {
    const std::string folder = WithSlash(data + kind.folder);
    for (const std::string& name : FilesIn(folder, kind.pattern)) {
      core::InstallIfMissing(folder + name, home + name);
    }
  }
}

}  // namespace apps
