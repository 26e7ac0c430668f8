// The desktop program for tests: a probe tells where its controls stand, cards and draws can be
// laid ready, and PASTIMO_PACE divides the program's waits.
#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "apps/pastimo-script/program_subject.h"
#include "core/launcher/program.h"
#include "games/catalogue.h"
#include "tests/desktop/probe.h"
#include "ui/qt/platform.h"

namespace {

class ShortWaits : public ui::qt::Clock {
 public:
  int BeginWait(int milliseconds) override { return milliseconds / pace_; }

 private:
  const char* wanted_ = std::getenv("PASTIMO_PACE");
  const int pace_ = wanted_ ? std::max(1, std::atoi(wanted_)) : 1;
};

/// "deck KEY..." is the next shuffle, "draws NUMBER..." are the next draws.
void Stage(app::StagedChance& chance, const std::string& verb, std::istream& words) {
  if (verb == "deck") {
    chance.decks.push_back({{std::istream_iterator<std::string>(words), {}}, [] {}});
  } else if (verb == "draws") {
    std::copy(std::istream_iterator<double>(words), {}, std::back_inserter(chance.draws));
  }
}

}  // namespace

int main(int argc, char** argv) {
  ui::qt::QtPlatform platform(argc, argv, {core::DataDirectory() + "pictures"},
                              std::make_unique<ShortWaits>());
  app::StagedChance chance;
  core::Program program(platform, chance, games::AllGames(), core::HomeDirectory(""),
                        argc > 1 ? argv[1] : "");
  program.Start();
  const Probe probe(
      platform, [&](const std::string& verb, std::istream& words) { Stage(chance, verb, words); });
  return platform.Exec();
}
