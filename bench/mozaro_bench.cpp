// What a removal on Mozaro's grid costs, everything after it included, without the wait.
#include <chrono>
#include <cstdio>

#include "games/mozaro/board.h"
#include "ui/headless/platform.h"
#include "ui/window.h"

namespace {

using games::mozaro::Board;
using games::mozaro::BoxColor;

/// A window with nothing but the surface, which the board draws on as in the game.
class BenchWindow : public ui::Window, public games::mozaro::BoardOwner {
 public:
  explicit BenchWindow(ui::Platform& platform) : ui::Window(platform, "frmBench") {}

  void ClearSurface() override { PlayingSurface.Clear(); }
  void DrawBox(int x, int y, int size, const BoxColor* fill, bool highlighted) override {
    const ui::Color color = fill ? ui::Color{fill->r, fill->g, fill->b} : ui::Color{};
    PlayingSurface.DrawBox(x, y, size, fill ? &color : nullptr, highlighted);
  }
  bool DropBoxes() const override { return true; }
  void ClearedAColumn() override {}
  void ShowPointer(bool overGroup) override { PlayingSurface.Pointer = overGroup ? "POINTER" : ""; }
  void ShowGridSize(const std::string& text) override { lblGridSize.Text = text; }
  bool PlaySounds() const override { return true; }
  void PlayWave(const std::string& file) override { GetPlatform().PlayWave(file); }
  void Wait(int) override {}
  void RepaintWindow() override {}

 private:
  ui::Surface PlayingSurface{this, "PlayingSurface"};
  ui::Label lblGridSize{this, "lblGridSize"};
};

/// Microseconds a removal, on average over random games.
double Measure(int columns, int rows, int colors, int removals) {
  using Clock = std::chrono::steady_clock;
  ui::HeadlessPlatform platform;
  BenchWindow window(platform);
  platform.Show(window);
  core::Chance chance;
  Board board(window, chance);
  Clock::duration spent{};
  int misses = 0;
  board.MovesAvailable = false;
  for (int done = 0; done < removals;) {
    if (!board.MovesAvailable || misses > 4 * columns * rows) {
      board.Initialize(static_cast<std::int16_t>(columns - 1), static_cast<std::int16_t>(rows - 1),
                       10, static_cast<std::int16_t>(colors), 2, 3);
      misses = 0;
    }
    const int column = core::RandomBelow(chance, columns);
    const int row = core::RandomBelow(chance, rows);
    ++misses;
    if (!board.FindBoxCollection(column, row)) continue;
    const auto begin = Clock::now();
    board.RemoveGroup(column, row);
    spent += Clock::now() - begin;
    misses = 0;
    ++done;
  }
  return std::chrono::duration<double, std::micro>(spent).count() / removals;
}

}  // namespace

int main() {
  struct Grid {
    int columns;
    int rows;
  };
  for (const int colors : {3, 10}) {
    for (const Grid grid : {Grid{14, 8}, Grid{25, 14}, Grid{44, 22}}) {
      const int cells = grid.columns * grid.rows;
      const double micros = Measure(grid.columns, grid.rows, colors, 5000);
      std::printf("%2d colours, %2d x %2d: %7.1f microseconds a removal, %5.1f ns a cell\n", colors,
                  grid.columns, grid.rows, micros, 1000 * micros / cells);
    }
  }
}
