// Watching for the first frame.
#include "bench/first_frame.h"

#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "ui/qt/stopwatch.h"

namespace {

constexpr int SettlingTime = 3000;  // milliseconds
constexpr int IdleTime = 5000;

double ProcessorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

long ProportionalKilobytes() {
  std::ifstream rollup("/proc/self/smaps_rollup");
  for (std::string line; std::getline(rollup, line);) {
    if (line.rfind("Pss:", 0) == 0) return std::stol(line.substr(4));
  }
  return -1;
}

void TellIdleFigures() {
  const double before = ProcessorSeconds();
  ui::qt::After(IdleTime, [before] {
    const double share = (ProcessorSeconds() - before) / (IdleTime / 1000.0);
    std::printf("memory %.1f MiB, idle %.2f %% of a core\n", double(ProportionalKilobytes()) / 1024,
                share * 100);
    std::fflush(stdout);
    _exit(0);
  });
}

}  // namespace

void EndWithFirstFrame(bool stay) {
  ui::qt::AfterFirstFrame([stay] {
    if (!stay) _exit(0);
    ui::qt::After(SettlingTime, TellIdleFigures);
  });
}
