// The desktop program with a probe, so that a test finds its way by the controls' own places.
#include <memory>

#include "apps/pastimo/program.h"
#include "tests/desktop/probe.h"

int main(int argc, char** argv) {
  std::unique_ptr<Probe> probe;
  return apps::RunPastimo(argc, argv, [&probe](ui::qt::QtPlatform& platform) {
    probe = std::make_unique<Probe>(platform);
  });
}
