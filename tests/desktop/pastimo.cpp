// The desktop program for tests: a probe tells where its controls stand, cards and draws can be
// laid ready, and PASTIMO_PACE divides the program's waits.
#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "apps/pastimo-script/program_subject.h"
#include "apps/pastimo/program.h"
#include "tests/desktop/probe.h"

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
  app::StagedChance chance;
  std::unique_ptr<Probe> probe;
  const auto started = [&](ui::qt::QtPlatform& platform) {
    probe = std::make_unique<Probe>(platform, [&](const std::string& verb, std::istream& words) {
      Stage(chance, verb, words);
    });
  };
  return apps::RunPastimo(argc, argv, started, {std::make_unique<ShortWaits>(), &chance});
}
