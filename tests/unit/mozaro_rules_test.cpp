// Tests of Mozaro's grid against a slow second one made of rows of text, and of its rounds.
#include <algorithm>
#include <set>
#include <utility>

#include "core/text/number.h"
#include "games/mozaro/board.h"
#include "games/mozaro/rounds.h"
#include "tests/check.h"
#include "tests/unit/staged_chance.h"

using namespace games::mozaro;

namespace {

using Rows = std::vector<std::string>;
using Place = std::pair<int, int>;  // column, row
using Group = std::set<Place>;

class Owner : public BoardOwner {
 public:
  bool drop = true;
  bool sounds = true;
  int bonuses = 0;
  int marked = 0;
  bool pointer = false;
  std::string log;

  bool DropBoxes() const override { return drop; }
  void ClearedAColumn() override { ++bonuses; }
  void ShowPointer(bool overGroup) override { pointer = overGroup; }
  void ShowGridSize(const std::string&) override {}
  bool PlaySounds() const override { return sounds; }
  void PlayWave(const std::string& file) override { log += file + ";"; }
  void Wait(int milliseconds) override { log += "wait " + std::to_string(milliseconds) + ";"; }
  void RepaintWindow() override { log += "repaint;"; }
  void ClearSurface() override { marked = 0; }
  void DrawBox(int, int, int, const BoxColor*, bool highlighted) override { marked += highlighted; }
};

// The rules once more, slow and plain, on rows of text: '.' is an empty cell.
struct SlowBoard {
  Rows rows;
  int least = 2;
  bool drop = true;
  int bonuses = 0;
  bool slid = false;
  std::ptrdiff_t mostEmpty = 0;

  int Columns() const { return static_cast<int>(rows[0].size()) - 1; }
  int Bottom() const { return static_cast<int>(rows.size()) - 1; }

  // What hangs together with a cell; nothing if that is too small for a group.
  Group GroupAt(int column, int row) const {
    if (rows[row][column] == '.') return {};
    Group group = {{column, row}};
    for (std::size_t before = 0; before != group.size();) {
      before = group.size();
      for (const auto& [c, r] : Group(group)) {
        for (const auto& [x, y] : {Place{c, r - 1}, {c + 1, r}, {c, r + 1}, {c - 1, r}}) {
          if (x < 0 || y < 0 || x > Columns() || y > Bottom()) continue;
          if (rows[y][x] == rows[row][column]) group.insert({x, y});
        }
      }
    }
    return std::ssize(group) < least ? Group() : group;
  }

  // The first group from the bottom right corner up, column by column.
  Group FirstGroup() const {
    for (int c = Columns(); c >= 0; --c) {
      for (int r = Bottom(); r >= 0; --r) {
        if (const Group group = GroupAt(c, r); !group.empty()) return group;
      }
    }
    return {};
  }

  void Remove(const Group& group) {
    for (const auto& [c, r] : group) rows[r][c] = '.';
    for (int c = 0; c <= Columns(); ++c) Fall(c);
    drop ? CloseColumns() : CloseRows();
  }

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
    if (!slid && rows.back()[0] == '.') NoteSlide();
  }
  void NoteSlide() {
    ++bonuses;
    slid = true;
  }
  void CloseRows() {
    for (auto& row : rows) {
      const auto holes = std::erase(row, '.');
      row.insert(0, holes, '.');
    }
    const auto empty = std::count(rows.back().begin(), rows.back().end(), '.');
    for (; mostEmpty < empty; ++mostEmpty) ++bonuses;
  }
};

// One board and its slow twin, with the same colours at the start of each game.
struct Pair {
  Pair(const Rows& rows, int colors, int least, bool drop) { Start(rows, colors, least, drop); }

  void Start(const Rows& rows, int colorCount, int least, bool drop) {
    colors = colorCount;
    slow = {rows, least, drop};
    owner.drop = drop;
    owner.bonuses = 0;
    chance.draws.clear();
    for (const auto& row : rows) {
      for (char c : row) chance.draws.push_back((c - '0' + 0.5) / colors);
    }
    board.Initialize(slow.Columns(), slow.Bottom(), 20, colors, 2, least);
    CHECK(board.MovesAvailable);  // without a look
  }

  Rows Shown(bool highlights) const {
    Rows rows = slow.rows;
    for (int r = 0; r <= board.Rows(); ++r) {
      for (int c = 0; c <= board.Columns(); ++c) {
        const Box& box = board.Boxes(c, r);
        rows[r][c] = box.Removed ? '.' : static_cast<char>('0' + box.Color);
        if (highlights && box.Selected) rows[r][c] = '*';
      }
    }
    return rows;
  }

  void CheckSame(const Group& highlighted) {
    CHECK_EQ(Shown(false), slow.rows);
    Rows expected = slow.rows;
    for (const auto& [c, r] : highlighted) expected[r][c] = '*';
    CHECK_EQ(Shown(true), expected);
    CHECK_EQ(owner.bonuses, slow.bonuses);
    CHECK_EQ(board.MovesAvailable, !slow.FirstGroup().empty());
    const auto size = static_cast<int>(highlighted.size());
    CHECK_EQ(owner.GroupValue, size * size * 50);
    CHECK_EQ(owner.pointer, size > 0);
    CHECK_EQ(owner.marked, size);
  }

  // A miss leaves nothing highlighted, a hit the first group.
  void Click(int column, int row) {
    const Group group = slow.GroupAt(column, row);
    const auto size = static_cast<int>(group.size());
    const int before = slow.bonuses;
    owner.log.clear();
    CHECK_EQ(board.RemoveGroup(column, row), size * size * 50);
    if (size > 0) slow.Remove(group);
    const std::string wave = slow.bonuses > before ? "TwentyOne.wav;" : "Click.wav;";
    CHECK_EQ(owner.log, size == 0 ? "Chord.wav;" : wave + "wait 50;");
    CheckSame(size == 0 ? group : slow.FirstGroup());
  }

  // Plays wherever chance hits till no group is left, and twice more after a jumble.
  void PlayOut() {
    core::Chance dice;
    for (int jumbles = 0; jumbles <= 2; ++jumbles) {
      do {
        const int column = core::RandomBelow(dice, board.Columns() + 1);
        Click(column, core::RandomBelow(dice, board.Rows() + 1));
        const Group first = slow.FirstGroup();
        if (!first.empty()) Click(first.begin()->first, first.begin()->second);
      } while (board.MovesAvailable);
      board.Jumble(colors);
      slow.rows = Shown(false);
      CheckSame(slow.FirstGroup());
    }
  }

  StagedChance chance;
  Owner owner;
  SlowBoard slow;
  Board board{owner, chance};
  int colors = 1;
};

}  // namespace

TEST(TheGridSettlesAsASlowOneDoes) {
  core::Chance dice;
  Pair pair({"0"}, 1, 2, true);  // one board for all games: a new grid forgets the one before
  for (int game = 0; game < 400; ++game) {
    Rows rows(core::RandomBetween(dice, 1, 9), std::string(core::RandomBetween(dice, 1, 14), '0'));
    const int colors = core::RandomBetween(dice, 1, 5);
    for (auto& row : rows) {
      for (char& c : row) c = static_cast<char>('0' + core::RandomBelow(dice, colors));
      if (game % 4 < 2) row = rows[0];  // whole columns go at once
    }
    if (game < 2) rows = Rows(22, std::string(44, '0'));
    pair.Start(rows, colors, core::RandomBetween(dice, 2, 5), game % 2 == 0);
    pair.PlayOut();
  }
}

TEST(AColumnClearedInSilenceIsHeardWithTheNextRemoval) {
  Pair pair({"12233", "12233"}, 5, 2, true);
  pair.owner.sounds = false;
  pair.board.RemoveGroup(1, 0);
  pair.owner.sounds = true;
  pair.board.RemoveGroup(4, 0);
  CHECK_EQ(pair.owner.log, "wait 50;TwentyOne.wav;wait 50;");
}

TEST(GridsAreAsLargeAsTheyMayBe) {
  Pair pair({"0"}, 1, 2, true);
  Board& board = pair.board;
  board.Initialize(254, 256, 1, 1, 2, 3);
  CHECK_EQ(board.RemoveGroup(254, 256), 2147483647);
  for (const auto& [columns, rows] : {Place{32767, 32767}, {-5, -32768}, {0, 32767}}) {
    board.Initialize(columns, rows, 32767, -3, 2, 1);
    CHECK((board.Columns() + 1) * (board.Rows() + 1) <= Board::MostCells);
    board.RemoveGroup(0, 0);
    CHECK_EQ(board.RemoveGroup(-1, 32767), 0);
  }
}

TEST(RoundsGrowAsTheOptionsSay) {
  // Columns, rows and colours, round by round.
  const std::vector<std::pair<Options, Rows>> cases = {
      {{}, {"14x8/3", "15x8/3", "16x8/3", "17x9/4", "18x9/4", "19x10/4", "20x10/5"}},
      {{.InitialColorCount = 9, .Columns = 23, .AddAColumn = 2, .AddAColor = 1},
       {"23x13/9", "24x13/10", "24x13/10", "25x13/10", "25x14/10"}},
      {{.Columns = 44, .AddAColumn = 0}, {"44x23/3", "44x23/3"}},
      // What can't be played gives way to the nearest that can.
      {{.InitialColorCount = -1, .Columns = 13, .AddAColumn = -2, .AddAColor = 0},
       {"14x8/1", "14x8/2"}},
      {{.InitialColorCount = 11, .Columns = 32767}, {"267x245/10", "267x245/10"}}};
  for (const auto& [options, sizes] : cases) {
    Rounds rounds(options);
    rounds.StartGame();
    for (const std::string& size : sizes) {
      rounds.StartRound();
      CHECK_EQ(std::to_string(rounds.ColumnCount) + "x" + std::to_string(rounds.RowCount) + "/" +
                   std::to_string(rounds.ColorCount),
               size);
    }
    for (int i = 0; i < 40000; ++i) rounds.StartRound();
    CHECK_EQ(rounds.CurrentRound, 32767);
    // It is passed with its last point.
    for (const auto& [points, needed] : {Place{39999, 1}, {1, 0}, {2147483647, 0}}) {
      rounds.Earn(points);
      CHECK_EQ(rounds.PointsNeeded, needed);
      CHECK_EQ(rounds.Passed(), needed == 0);
    }
  }
}
