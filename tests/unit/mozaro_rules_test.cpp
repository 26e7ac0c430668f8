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
  void ClearSurface() override { marked = 0; }
  void DrawBox(int, int, int, const BoxColor*, bool highlighted) override { marked += highlighted; }
};

// The rules once more, slow and plain, on rows of text: '.' is an empty cell.
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
    for (int c = 0; c <= Columns(); ++c) Fall(c);
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

 private:
  // A hole with a box above it takes that box, till no such hole is left.
  void Fall(int column) {
    for (int pass = 0; pass < Bottom(); ++pass) {
      for (int r = Bottom(); r >= 1; --r) {
        if (rows[r][column] == '.') std::swap(rows[r][column], rows[r - 1][column]);
      }
    }
  }
  void CloseColumns() {
    for (int c = Columns(); c >= 1; --c) {
      const bool boxLeft = rows.back().substr(0, c).find_first_not_of('.') != std::string::npos;
      for (; boxLeft && rows.back()[c] == '.'; NoteSlide()) {
        for (auto& row : rows) row = '.' + row.substr(0, c) + row.substr(c + 1);
      }
    }
    if (!slid_ && rows.back()[0] == '.') NoteSlide();
  }
  void NoteSlide() {
    ++bonuses;
    slid_ = true;
  }
  void CloseRows() {
    for (auto& row : rows) {
      const auto holes = std::erase(row, '.');
      row.insert(0, holes, '.');
    }
    const auto empty = std::count(rows.back().begin(), rows.back().end(), '.');
    for (; mostEmpty_ < empty; ++mostEmpty_) ++bonuses;
  }

  const int least_;
  const bool drop_;
  bool slid_ = false;
  std::ptrdiff_t mostEmpty_ = 0;
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
    CHECK_EQ(owner.marked, size);
  }

  void Click(int column, int row) {
    const bool group = slow.IsGroup(column, row);
    const auto size = static_cast<int>(slow.Group(column, row).size());
    const int before = slow.bonuses;
    owner.TakeLog();
    const int points = board.RemoveGroup(column, row);
    CHECK_EQ(points, group ? size * size * 50 : 0);
    if (!group) {
      CHECK_EQ(owner.TakeLog(), Rows{"Chord.wav"});
      return;
    }
    slow.Remove(column, row);
    const std::string wave = slow.bonuses > before ? "TwentyOne.wav" : "Click.wav";
    CHECK_EQ(owner.TakeLog(), (Rows{wave, "wait 50"}));
    CheckSame();
  }

  // Plays wherever chance hits till no group is left, and twice more after a jumble.
  void PlayOut() {
    core::Chance dice;
    for (int jumbles = 0; jumbles <= 2; ++jumbles) {
      for (Place move = slow.FirstMove(); move.first >= 0; move = slow.FirstMove()) {
        Click(move.first, move.second);
        const int column = core::RandomBelow(dice, board.Columns() + 1);
        Click(column, core::RandomBelow(dice, board.Rows() + 1));
      }
      board.Jumble(colors);
      slow.rows = Shown();
      CheckSame();
    }
  }

  StagedColors chance;
  Owner owner;
  SlowBoard slow;
  Board board;
  int colors;
};

Rows Repeated(const Rows& rows, int times) {
  Rows grid;
  for (int i = 0; i < times; ++i) grid.insert(grid.end(), rows.begin(), rows.end());
  return grid;
}

}  // namespace

TEST(TheGridSettlesAsASlowOneDoes) {
  core::Chance dice;
  for (int game = 0; game < 300; ++game) {
    Rows rows(core::RandomBetween(dice, 1, 9), std::string(core::RandomBetween(dice, 1, 14), '0'));
    const int colors = core::RandomBetween(dice, 1, 5);
    for (auto& row : rows) {
      for (char& c : row) c = static_cast<char>('0' + core::RandomBelow(dice, colors));
    }
    Pair(rows, colors, core::RandomBetween(dice, 2, 5), game % 2 == 0).PlayOut();
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
  CHECK_EQ(drop.Shown()[0], "..1334");
  for (const auto& [column, row] : {Place{2, 2}, {3, 0}, {5, 0}}) drop.Click(column, row);
  CHECK_EQ(drop.owner.bonuses, 2);
  CHECK_EQ(drop.owner.caption, "Grid Size: 6 X 3, Percent Complete: 100.%");
  drop.Click(5, 0);  // an empty cell

  // Before any slide, column 0 pays once; the same board in slide mode pays for every column. A new
  // grid forgets what was cleared before.
  Pair left({"122", "122"}, 5, 2, true);
  left.Click(0, 0);
  CHECK_EQ(left.owner.bonuses, 1);
  Pair slide({"122", "122"}, 5, 2, false);
  slide.Click(0, 0);
  slide.Click(2, 1);
  CHECK_EQ(slide.owner.bonuses, 3);
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
  muted.board.RemoveGroup(4, 0);
  CHECK_EQ(muted.owner.TakeLog(), (Rows{"wait 50", "TwentyOne.wav", "wait 50"}));
}

TEST(TheFirstClickLooksForMoves) {
  Pair none({"0101", "1010"}, 2, 2, true);
  none.Click(0, 0);
  CHECK(!none.board.MovesAvailable);
  Pair one({"0100", "1010"}, 2, 2, true);
  one.Click(0, 0);  // a miss: the group elsewhere is neither shown nor valued
  CHECK(one.board.MovesAvailable);
  CHECK_EQ(one.owner.GroupValue + one.owner.marked, 0);
}

TEST(GroupsAdjoinByTheirSides) {
  Pair pair({"0110", "0010", "0100"}, 2, 4, true);
  Board& board = pair.board;
  CHECK(board.FindBoxCollection(0, 0));
  CHECK(!board.FindBoxCollection(1, 0));  // three of its colour; the fourth adjoins by a corner
  CHECK(!board.Boxes(1, 0).Selected && !board.Boxes(0, 0).Selected);
  for (const auto& [column, row] : {Place{-1, 0}, {4, 0}, {0, 3}, {0, -1}}) {
    CHECK_EQ(board.RemoveGroup(column, row), 0);
  }

  // As many cells as there may be, in one group; then sizes that can't be.
  Owner owner;
  core::Chance chance;
  Board large(owner, chance);
  large.Initialize(254, 256, 1, 1, 2, 3);
  CHECK_EQ(large.RemoveGroup(254, 256), 2147483647);
  for (const auto& [columns, rows] : {Place{32767, 32767}, {-5, -32768}, {0, 32767}}) {
    large.Initialize(columns, rows, 32767, -3, 2, 1);
    CHECK((large.Columns() + 1) * (large.Rows() + 1) <= Board::MostCells);
    large.RemoveGroup(0, 0);
  }
}

TEST(RoundsGrowAsTheOptionsSay) {
  struct Case {
    Options options;
    Rows sizes;  // columns, rows and colours, round by round
  };
  const Case cases[] = {
      {{}, {"14x8/3", "15x8/3", "16x8/3", "17x9/4", "18x9/4", "19x10/4", "20x10/5"}},
      {{.InitialColorCount = 9, .Columns = 23, .AddAColumn = 2, .AddAColor = 1},
       {"23x13/9", "24x13/10", "24x13/10", "25x13/10", "25x14/10"}},
      {{.Columns = 44, .AddAColumn = 0}, {"44x23/3", "44x23/3"}},
      // What can't be played gives way to the nearest that can.
      {{.InitialColorCount = -1, .Columns = 13, .AddAColumn = -2, .AddAColor = 0},
       {"14x8/1", "14x8/2"}},
      {{.InitialColorCount = 11, .Columns = 32767}, {"267x245/10", "267x245/10"}}};
  for (const Case& c : cases) {
    Rounds rounds(c.options);
    rounds.StartGame();
    for (const std::string& size : c.sizes) {
      rounds.StartRound();
      CHECK_EQ(std::to_string(rounds.ColumnCount) + "x" + std::to_string(rounds.RowCount) + "/" +
                   std::to_string(rounds.ColorCount),
               size);
    }
    for (int i = 0; i < 40000; ++i) rounds.StartRound();
    CHECK_EQ(rounds.CurrentRound, 32767);
  }
}

TEST(ARoundIsPassedWithItsLastPoint) {
  const Options options;
  Rounds rounds(options);
  rounds.StartGame();
  for (const auto& [points, needed] : {Place{39999, 1}, {1, 0}, {2147483647, 0}}) {
    rounds.Earn(points);
    CHECK_EQ(rounds.PointsNeeded, needed);
    CHECK_EQ(rounds.Passed(), needed == 0);
  }
}
