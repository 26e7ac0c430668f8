// Lets the monkey play: monkey [STEPS [SEED]]. Prints the seed, so that a run can be had again.
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "games/catalogue.h"
#include "tests/monkey/monkey.h"

namespace {

/// Memory is where its files are fastest; the flushes of a disk are not what it is after.
std::string TemporaryHome() {
  const bool memory = access("/dev/shm", W_OK) == 0;
  std::string name = std::string(memory ? "/dev/shm" : "/tmp") + "/monkey-XXXXXX";
  return std::string(mkdtemp(name.data()) ? name : ".") + "/";
}

}  // namespace

int main(int count, char** words) {
  const std::int64_t steps = count > 1 ? std::atoll(words[1]) : 10000;
  const std::uint64_t seed =
      count > 2
          ? std::strtoull(words[2], nullptr, 10)
          : static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  std::cout << "monkey: " << steps << " steps with seed " << seed << std::endl;
  const std::string home = TemporaryHome();
  const bool held = monkey::Monkey(seed, home, games::AllGames()).Play(steps);
  std::filesystem::remove_all(home);
  std::cout << (held ? "1 passed, 0 failed" : "0 passed, 1 failed") << std::endl;
  return held ? 0 : 1;
}
