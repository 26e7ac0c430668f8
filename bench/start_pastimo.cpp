// The program's own start, ended by its first frame.
#include "apps/pastimo/program.h"
#include "bench/first_frame.h"

int main(int argc, char** argv) {
  int one = 1;
  return apps::RunPastimo(one, argv, [argc](ui::qt::QtPlatform&) { EndWithFirstFrame(argc > 1); });
}
