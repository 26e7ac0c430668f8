// What writing a settings file and entering a score cost the program, the disk's flush apart.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "core/halloffame/high_scores.h"
#include "core/launcher/program.h"
#include "core/session/game_window.h"
#include "games/catalogue.h"
#include "ui/headless/platform.h"

// In the place of the system's: the flush takes as long as the disk likes.
extern "C" int fsync(int) {
  return 0;
}

namespace {

constexpr int Times = 500;

void Measure(const char* what, const std::function<void()>& act) {
  using Clock = std::chrono::steady_clock;
  std::vector<double> milliseconds;
  for (int i = 0; i < Times; ++i) {
    const auto begin = Clock::now();
    act();
    milliseconds.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
  }
  std::sort(milliseconds.begin(), milliseconds.end());
  std::printf("%s: median %.2f ms, 99th percentile %.2f ms\n", what, milliseconds[Times / 2],
              milliseconds[Times * 99 / 100]);
}

}  // namespace

int main() {
  ui::HeadlessPlatform platform;
  core::Chance chance;
  core::Program program(platform, chance, games::AllGames(), core::HomeDirectory(""), "");
  platform.Stage().Start([&program] { program.Start(); });
  platform.UserClick(*platform.ActiveWindow()->Find("cmdQuindle"));
  auto& game = dynamic_cast<core::GameWindow&>(*platform.ActiveWindow());
  Measure("writing a settings file", [&] { game.WriteSettings(); });
  Measure("entering a score, both windows opened", [&] {
    program.suite.shared.AddToScore(1000);
    core::UpdateHighScores(program.suite, game);
  });
}
