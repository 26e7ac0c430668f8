// What a player waits for: opening a game, a click on a card, a move over Mozaro's boxes, a
// repaint.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "apps/pastimo/program.h"
#include "ui/qt/platform.h"
#include "ui/qt/stopwatch.h"
#include "ui/window.h"

namespace {

constexpr int Clicks = 400;
constexpr int Moves = 1000;
constexpr int Repaints = 200;
constexpr int TimeToShow = 700;  // milliseconds until a window has surely been shown

using ui::qt::QtPlatform;

ui::Control& Named(const QtPlatform& platform, const char* name) {
  return *platform.ActiveWindow()->Find(name);
}

void Tell(const char* what, int times, const std::function<double(int)>& measure) {
  std::vector<double> milliseconds;
  for (int i = 0; i < times; ++i) milliseconds.push_back(measure(i));
  std::sort(milliseconds.begin(), milliseconds.end());
  const auto at = [&](int percent) {
    return milliseconds[std::size_t((times - 1) * percent / 100)];
  };
  std::printf("%s: median %.2f ms, 99th percentile %.2f ms\n", what, at(50), at(99));
}

void MeasureMozaro(const QtPlatform& platform) {
  const ui::Rect place = Named(platform, "PlayingSurface").PlaceInWindow();
  Tell("move over Mozaro's boxes", Moves, [&](int i) {
    return ui::qt::TimeOfMove("frmMozaro",
                              {place.x + i * 37 % place.w, place.y + i * 61 % place.h});
  });
  Tell("full repaint of Mozaro", Repaints, [](int) { return ui::qt::TimeOfRepaint("frmMozaro"); });
}

void MeasureQuindle(const QtPlatform& platform) {
  Tell("click on a card", Clicks, [&](int i) {
    const ui::Rect place =
        Named(platform, i % 2 ? "FieldCardPicture(20)" : "FieldCardPicture(21)").PlaceInWindow();
    return ui::qt::TimeOfClick("frmQuindle", {place.CenterX(), place.CenterY()});
  });
  Tell("full repaint of Quindle", Repaints,
       [](int) { return ui::qt::TimeOfRepaint("frmQuindle"); });
}

/// Opens a game from the launcher, starts it, and measures when all that has been shown.
void Measure(QtPlatform& platform, const std::string& game) {
  const std::string window = "frm" + game;
  const double opening = ui::qt::TimeToFirstFrame(
      window, [&] { platform.UserClick(Named(platform, ("cmd" + game).c_str())); });
  std::printf("at %.2f device pixels to a pixel:\nopening %s to its first frame: %.1f ms\n",
              ui::qt::PixelRatio(window), game.c_str(), opening);
  platform.UserClick(Named(platform, "cmdPlay"));
  ui::qt::After(TimeToShow, [&platform, game] {
    game == "Mozaro" ? MeasureMozaro(platform) : MeasureQuindle(platform);
    std::fflush(stdout);
    _exit(0);
  });
}

}  // namespace

int main(int argc, char** argv) {
  const std::string game = argc > 1 ? argv[1] : "Quindle";
  int one = 1;
  return apps::RunPastimo(one, argv, [&game](QtPlatform& platform) {
    ui::qt::After(TimeToShow, [&platform, game] { Measure(platform, game); });
  });
}
