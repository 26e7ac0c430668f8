// Tests of Mozaro's grid against a slow second one made of rows of text, and of its rounds.
#include <algorithm>
#include <set>
#include <utility>

#include "core/text/number.h"
#include "games/mozaro/board.h"
#include "games/mozaro/rounds.h"
#include "tests/check.h"

using namespace games::mozaro;

namespace {

using Rows = std::vector<std::string>;
using Place = std::pair<int, int>;  // column, row

// Hands out the colours of the rows in turn, then draws of its own.
class StagedColors : public core::Chance {
 public:
  void Stage(const Rows& rows, int colors) {
    for (const auto& row : rows) {
      for (char c : row) staged_.push_back((c - '0' + 0.5) / colors);
    }
    std::reverse(staged_.begin(), staged_.end());
  }
  double Draw() override {
    if (staged_.empty()) return core::Chance::Draw();
    const double draw = staged_.back();
    staged_.pop_back();
    return draw;
  }

 private:
  std::vector<double> staged_;
};

class Owner : public BoardOwner {
 public:
  bool drop = true;
  bool sounds = true;
  int bonuses = 0;
  int clears = 0;
  int drawn = 0;
  int marked = 0;
  bool pointer = false;
  std::string caption;
  Rows log;

  Rows TakeLog() { return std::exchange(log, {}); }

  bool DropBoxes() const override { return drop; }
  void ClearedAColumn() override { ++bonuses; }
  void ShowPointer(bool overGroup) override { pointer = overGroup; }
  void ShowGridSize(const std::string& text) override { caption = text; }
  bool PlaySounds() const override { return sounds; }
  void PlayWave(const std::string& file) override { log.push_back(file); }
  void Wait(int milliseconds) override { log.push_back("wait " + std::to_string(milliseconds)); }
  void RepaintWindow() override { log.push_back("repaint"); }
  void ClearSurface() override {
    ++clears;
    drawn = marked = 0;
  }
  void DrawBox(int, int, int, const BoxColor*, bool highlighted) override {
    ++drawn;
    marked += highlighted;
  }
};

// The rules once more, sweep by sweep, on rows of text: '.' is an empty cell.
class SlowBoard {
 public:
  SlowBoard(Rows start, int least, bool drop)
      : rows(std::move(start)), least_(least), drop_(drop) {}

  Rows rows;
  int bonuses = 0;

  int Columns() const { return static_cast<int>(rows[0].size()) - 1; }
  int Bottom() const { return static_cast<int>(rows.size()) - 1; }

  std::set<Place> Group(int column, int row) const {
    std::set<Place> group = {{column, row}};
    if (rows[row][column] == '.') return group;
    for (std::size_t before = 0; before != group.size();) {
      before = group.size();
      for (const auto& [c, r] : std::set<Place>(group)) {
        for (const auto& [x, y] : {Place{c, r - 1}, {c + 1, r}, {c, r + 1}, {c - 1, r}}) {
          if (x < 0 || y < 0 || x > Columns() || y > Bottom()) continue;
          if (rows[y][x] == rows[row][column]) group.insert({x, y});
        }
      }
    }
    return group;
  }

  bool IsGroup(int column, int row) const {
    return static_cast<int>(Group(column, row).size()) >= least_;
  }

  void Remove(int column, int row) {
    for (const auto& [c, r] : Group(column, row)) rows[r][c] = '.';
    for (int r = Bottom(); r >= 0; --r) {
      while (DropOnce(r)) continue;
    }
    drop_ ? CloseColumns() : CloseRows();
  }

  // The first cell of a group from the bottom right corner up, column by column; none: (-1, -1).
  Place FirstMove() const {
    for (int c = Columns(); c >= 0; --c) {
      for (int r = Bottom(); r >= 0; --r) {
        if (rows[r][c] != '.' && IsGroup(c, r)) return {c, r};
      }
    }
    return {-1, -1};
  }

  int Standing() const {
    int count = 0;
    for (const auto& row : rows) count += static_cast<int>(row.size() - Count(row));
    return count;
  }

 private:
  static std::size_t Count(const std::string& row) {
    return static_cast<std::size_t>(std::count(row.begin(), row.end(), '.'));
  }
  bool BoxAtOrAbove(int column, int row) const {
    for (; row >= 0; --row) {
      if (rows[row][column] != '.') return true;
    }
    return false;
  }
  bool BoxInRowLeftOf(int column, int row) const {
    return rows[row].substr(0, column + 1).find_first_not_of('.') != std::string::npos;
  }
  bool DropOnce(int row) {
    bool changed = false;
    for (int c = 0; c <= Columns(); ++c) {
      if (rows[row][c] != '.' || !BoxAtOrAbove(c, row)) continue;
      for (int r = row; r >= 1; --r) rows[r][c] = rows[r - 1][c];
      rows[0][c] = '.';
      changed = true;
    }
    return changed;
  }
  void CloseColumns() {
    for (int c = Columns(); c >= 1; --c) {
      if (!BoxInRowLeftOf(c - 1, Bottom())) continue;
      while (!BoxAtOrAbove(c, Bottom())) {
        ++bonuses;
        slid_ = true;
        for (auto& row : rows) row = '.' + row.substr(0, c) + row.substr(c + 1);
      }
    }
    if (slid_ || rows[Bottom()][0] != '.') return;
    ++bonuses;
    slid_ = true;
  }
  void CloseRows() {
    int empty = 0;
    for (int c = Columns(); c >= 0; --c) {
      for (bool changed = true; changed;) {
        changed = false;
        for (int r = 0; r <= Bottom(); ++r) {
          if (rows[r][c] != '.' || !BoxInRowLeftOf(c, r)) continue;
          rows[r] = '.' + rows[r].substr(0, c) + rows[r].substr(c + 1);
          changed = true;
        }
      }
      empty += rows[Bottom()][c] == '.';
    }
    bonuses += std::max(0, empty - mostEmpty_);
    mostEmpty_ = std::max(mostEmpty_, empty);
  }

  const int least_;
  const bool drop_;
  bool slid_ = false;
  int mostEmpty_ = 0;
};

// One board and its slow twin, with the same colours at the start.
struct Pair {
  Pair(const Rows& rows, int colors, int least, bool drop)
      : slow(rows, least, drop), board(owner, chance), colors(colors) {
    owner.drop = drop;
    chance.Stage(rows, colors);
    board.Initialize(slow.Columns(), slow.Bottom(), 20, colors, 2, least);
  }

  Rows Shown() const {
    Rows rows = slow.rows;
    for (int r = 0; r <= board.Rows(); ++r) {
      for (int c = 0; c <= board.Columns(); ++c) {
        const Box& box = board.Boxes(c, r);
        CHECK_EQ(box.Removed, box.Color == NoColor);
        rows[r][c] = box.Removed ? '.' : static_cast<char>('0' + box.Color);
      }
    }
    return rows;
  }

  void CheckSame() {
    CHECK_EQ(Shown(), slow.rows);
    CHECK_EQ(owner.bonuses, slow.bonuses);
    const auto [column, row] = slow.FirstMove();
    CHECK_EQ(board.MovesAvailable, column >= 0);
    const auto group = column < 0 ? std::set<Place>() : slow.Group(column, row);
    for (int r = 0; r <= board.Rows(); ++r) {
      for (int c = 0; c <= board.Columns(); ++c) {
        CHECK_EQ(board.Boxes(c, r).Selected, group.count({c, r}) == 1);
      }
    }
    const auto size = static_cast<int>(group.size());
    CHECK_EQ(owner.GroupValue, size * size * 50);
    CHECK_EQ(owner.pointer, size > 0);
    CHECK_EQ(owner.drawn, slow.Standing());
    CHECK_EQ(owner.marked, size);
  }

  void Click(int column, int row) {
    const bool group = slow.IsGroup(column, row);
    const auto size = static_cast<int>(slow.Group(column, row).size());
    const int before = slow.bonuses;
    owner.clears = 0;
    owner.TakeLog();
    const int points = board.RemoveGroup(column, row);
    CHECK_EQ(points, group ? size * size * 50 : 0);
    CHECK_EQ(owner.clears, group ? 2 : 1);
    if (!group) {
      CHECK_EQ(owner.TakeLog(), Rows{"Chord.wav"});
      return;
    }
    slow.Remove(column, row);
    const std::string wave = slow.bonuses > before ? "TwentyOne.wav" : "Click.wav";
    CHECK_EQ(owner.TakeLog(), (Rows{wave, "wait 50"}));
    CheckSame();
  }

  // Plays till no group is left, mostly sensibly; a jumble or two on the way.
  void PlayOut() {
    core::Chance dice;
    int jumbles = 0;
    for (;;) {
      auto [column, row] = slow.FirstMove();
      if (column < 0 && jumbles++ == 2) break;
      if (column < 0) {
        board.Jumble(colors);
        slow.rows = Shown();
        CheckSame();
        continue;
      }
      for (int tries = 0; tries < 5; ++tries) {
        const int c = core::RandomBelow(dice, board.Columns() + 1);
        const int r = core::RandomBelow(dice, board.Rows() + 1);
        if (tries == 0 || slow.IsGroup(c, r)) std::tie(column, row) = Place{c, r};
      }
      Click(column, row);
    }
  }

  StagedColors chance;
  Owner owner;
  SlowBoard slow;
  Board board;
  int colors;
};

Rows RandomRows(core::Chance& dice, int columns, int rows, int colors) {
  Rows grid(rows, std::string(columns, '0'));
  for (auto& row : grid) {
    for (char& c : row) c = static_cast<char>('0' + core::RandomBelow(dice, colors));
  }
  return grid;
}

Rows Repeated(const Rows& rows, int times) {
  Rows grid;
  for (int i = 0; i < times; ++i) grid.insert(grid.end(), rows.begin(), rows.end());
  return grid;
}

}  // namespace

TEST(TheGridSettlesAsASlowOneDoes) {
  core::Chance dice;
  for (int game = 0; game < 300; ++game) {
    const int columns = core::RandomBetween(dice, 1, 14);
    const int rows = core::RandomBetween(dice, 1, 9);
    const int colors = core::RandomBetween(dice, 1, 5);
    Pair pair(RandomRows(dice, columns, rows, colors), colors, core::RandomBetween(dice, 2, 5),
              game % 2 == 0);
    pair.PlayOut();
  }
}

TEST(HardBoardsSettleToo) {
  const std::string stripes = "01010101010101";
  const std::string other = "10101010101010";
  const std::vector<Rows> boards = {Repeated({std::string(44, '3')}, 22),  // one colour
                                    Repeated({"0", "0", "1"}, 7),          // one column
                                    {"0011220011"},                        // one row
                                    {"0"},                                 // one cell
                                    Repeated({stripes}, 8),                // alternating columns
                                    Repeated({stripes, other}, 4),         // no group at all
                                    Repeated({std::string(14, '0'), std::string(14, '1')}, 4),
                                    Repeated({"00111222333444"}, 8)};  // removed as whole columns
  for (const auto& rows : boards) {
    for (const bool drop : {true, false}) {
      Pair pair(rows, 5, 2, drop);
      CHECK(pair.board.MovesAvailable);
      CHECK_EQ(pair.board.PercentComplete, 0.0F);
      pair.PlayOut();
    }
  }
}

TEST(ColumnsPayByTheModeOfSettling) {
  // Two columns go at once and have boxes to their left: two slides, two bonuses. What empties
  // later with nothing to its left pays nothing; nor does column 0 after a slide.
  Pair drop({"122334", "122334", "122334"}, 5, 3, true);
  drop.Click(1, 0);
  CHECK_EQ(drop.owner.bonuses, 2);
  CHECK_EQ(drop.Shown()[0], "..1334");
  drop.Click(2, 2);
  drop.Click(3, 0);
  drop.Click(5, 0);
  CHECK_EQ(drop.owner.bonuses, 2);
  CHECK_EQ(drop.board.PercentComplete, 100.0F);
  CHECK_EQ(drop.owner.caption, "Grid Size: 6 X 3, Percent Complete: 100.%");
  drop.Click(5, 0);  // an empty cell

  // Before any slide, column 0 pays once; the same board in slide mode pays for every column.
  Pair left({"122", "122"}, 5, 2, true);
  left.Click(0, 0);
  CHECK_EQ(left.owner.bonuses, 1);
  CHECK_EQ(left.owner.caption, "Grid Size: 3 X 2, Percent Complete: 33.33%");
  Pair slide({"122", "122"}, 5, 2, false);
  slide.Click(0, 0);
  slide.Click(2, 1);
  CHECK_EQ(slide.owner.bonuses, 3);

  // A new grid forgets what was cleared before.
  for (Pair* pair : {&left, &slide}) {
    pair->owner.bonuses = 0;
    pair->chance.Stage({"122", "122"}, 5);
    pair->board.Initialize(2, 1, 20, 5, 2, 2);
    pair->board.RemoveGroup(0, 0);
    CHECK_EQ(pair->owner.bonuses, 1);
  }

  // A column cleared in silence is heard with the next removal that is heard.
  Pair muted({"12233", "12233"}, 5, 2, true);
  muted.owner.sounds = false;
  muted.board.RemoveGroup(1, 0);
  muted.owner.sounds = true;
  muted.owner.TakeLog();
  muted.board.RemoveGroup(4, 0);
  CHECK_EQ(muted.owner.TakeLog(), (Rows{"TwentyOne.wav", "wait 50"}));
}

TEST(TheFirstClickLooksForMoves) {
  Pair none({"0101", "1010"}, 2, 2, true);
  none.Click(0, 0);
  CHECK(!none.board.MovesAvailable);
  Pair one({"0100", "1010"}, 2, 2, true);
  one.Click(0, 0);  // a miss: the group elsewhere is neither shown nor valued
  CHECK(one.board.MovesAvailable);
  CHECK_EQ(one.owner.GroupValue, 0);
  CHECK_EQ(one.owner.marked, 0);
  CHECK(!one.board.Boxes(2, 0).Selected);
}

TEST(GroupsAreFoundAndPlacesComputed) {
  Pair pair({"0110", "0010", "0100"}, 2, 4, true);
  Board& board = pair.board;
  CHECK(board.FindBoxCollection(0, 0));
  CHECK_EQ(pair.owner.GroupValue, 4 * 4 * 50);
  CHECK(!board.FindBoxCollection(1, 0));  // three of its colour; the fourth adjoins by a corner
  CHECK_EQ(pair.owner.GroupValue, 0);
  CHECK(!pair.owner.pointer);
  CHECK(!board.Boxes(1, 0).Selected && !board.Boxes(0, 0).Selected);
  for (const auto& [column, row] : {Place{-1, 0}, {4, 0}, {0, 3}, {0, -1}, {99, 99}}) {
    CHECK(!board.FindBoxCollection(column, row));
    CHECK_EQ(board.RemoveGroup(column, row), 0);
  }
  CHECK_EQ(board.Boxes(3, 2).X, 66);
  CHECK_EQ(board.Boxes(3, 2).Y, 44);
  board.SetBoxSize(2.5F);
  CHECK_EQ(board.Boxes(3, 2).X, 14);  // 13.5, to the even neighbour
  CHECK_EQ(board.Boxes(1, 2).X, 4);   // 4.5

  // As many cells as there may be, in one group; then sizes that can't be.
  Owner owner;
  core::Chance chance;
  Board large(owner, chance);
  CHECK(!large.FindBoxCollection(0, 0));
  large.Jumble(3);
  large.Initialize(254, 256, 1, 1, 2, 3);
  CHECK_EQ(large.RemoveGroup(254, 256), 2147483647);
  CHECK_EQ(large.PercentComplete, 100.0F);
  for (const auto& [columns, rows] : {Place{32767, 32767}, {-5, -32768}, {0, 32767}}) {
    large.Initialize(columns, rows, 32767, -3, 2, 1);
    CHECK((large.Columns() + 1) * (large.Rows() + 1) <= Board::MostCells);
    large.RemoveGroup(0, 0);
    large.SetBoxSize(-1e30F);
    large.DrawBoard();
  }
}

TEST(RoundsGrowAsTheOptionsSay) {
  Options options;
  Rounds rounds(options);
  const auto play = [&](int count) {
    Rows sizes;
    rounds.StartGame();
    for (int i = 0; i < count; ++i) {
      rounds.StartRound();
      sizes.push_back(std::to_string(rounds.ColumnCount) + "x" + std::to_string(rounds.RowCount) +
                      "/" + std::to_string(rounds.ColorCount));
    }
    return sizes;
  };
  CHECK_EQ(play(7), (Rows{"14x8/3", "15x8/3", "16x8/3", "17x9/4", "18x9/4", "19x10/4", "20x10/5"}));
  options.AddAColumn = 2;
  options.AddAColor = 1;
  options.InitialColorCount = 9;
  options.Columns = 23;
  CHECK_EQ(play(5), (Rows{"23x13/9", "24x13/10", "24x13/10", "25x13/10", "25x14/10"}));
  options.AddAColumn = 0;
  options.Columns = 44;
  CHECK_EQ(play(2), (Rows{"44x23/9", "44x23/10"}));

  // What can't be played gives way to the nearest that can, and stays so however long it lasts.
  options = {.InitialColorCount = -1, .Columns = 13, .AddAColumn = -2, .AddAColor = 0};
  CHECK_EQ(play(2), (Rows{"14x8/1", "14x8/2"}));
  options = {.InitialColorCount = 11, .Columns = 32767, .GroupSize = -7};
  CHECK_EQ(play(3), (Rows{"267x245/10", "267x245/10", "267x245/10"}));
  CHECK_EQ(Playable(options).GroupSize, 2);
  play(40000);
  CHECK_EQ(rounds.CurrentRound, 32767);
  for (int columns = 14; columns <= 267; ++columns) {
    rounds.ColumnCount = static_cast<std::int16_t>(columns);
    rounds.CalculateRows();
    CHECK(rounds.RowCount > 0 && columns * rounds.RowCount <= Board::MostCells);
  }
}

TEST(PointsAndJumblesOfARound) {
  Options options;
  Rounds rounds(options);
  rounds.StartGame();
  rounds.StartRound();
  rounds.Earn(39999);
  CHECK_EQ(rounds.PointsNeeded, 1);
  CHECK(!rounds.Passed());
  rounds.Earn(1);
  CHECK(rounds.Passed());
  rounds.Earn(2147483647);
  CHECK_EQ(rounds.PointsNeeded, 0);
  CHECK_EQ(rounds.RoundScore, 2147483647);
  rounds.ForgetPoints();
  CHECK_EQ(rounds.PointsNeeded, 40000);
  CHECK_EQ(rounds.RoundScore, 0);

  options.JumblesAllowed = 2;
  rounds.CountJumble();
  CHECK(rounds.JumbleAvailable);
  rounds.CountJumble();
  CHECK(!rounds.JumbleAvailable);
  rounds.StartRound();
  CHECK(rounds.JumbleAvailable);
}
