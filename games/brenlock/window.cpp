// Brenlock's window: its menu, its board, and what it shows.
#include "games/brenlock/window.h"

#include <algorithm>

#include "core/text/number.h"

namespace games::brenlock {
namespace {

using core::Design;

constexpr int ButtonColumn = 92;  // kept free at the right edge
constexpr int ColumnWidth = 104;
constexpr int LowerHeight = 169;     // of all that stands below the columns
constexpr int SmallestHeight = 427;  // of the window's inside
constexpr int FirstTableRow = 20;
constexpr int TableRowHeight = 14;

core::Vocabulary Words(std::vector<core::DeckEntry> decks) {
  core::Vocabulary words;
  words.window = "frmBrenlock";
  words.settingsFile = "Brenlock.Ini";
  words.welcomeEnd = "   ";
  words.exit = "cmdQuit";
  words.exitTip = "Closes Brenlock";
  words.message = "ScoringLabel";
  words.score = "lblTotalScore";
  words.smallestSize = {9615, 7560};
  words.maximizedHeight = "7305";
  words.timeEntries = {{15, "&15 Seconds"},
                       {30, "&30 Seconds"},
                       {45, "&45 Seconds"},
                       {60, "&60 Seconds (default)"},
                       {75, "&75 Seconds"}};
  words.deckEntries = std::move(decks);
  return words;
}

/// The labels of the table's values are not all spelt alike.
std::string ValueName(int total) {
  return (total < 104 ? "lblscore" : "lblScore") + std::to_string(total);
}

}  // namespace

frmBrenlock::frmBrenlock(core::Suite& suite, const core::GameEntry& entry)
    : ColumnWindow(suite, entry,
                   Words(Decks({Design::Palm, Design::Night, Design::Magic, Design::Hot})),
                   {ColumnCount, ColumnCount, ColumnWidth, true}),
      rules_(suite.deck, ValuesOfColumns(), values_) {
  using core::Command;
  BuildMenu({FileMenu(),
             OptionsMenu({"mnuClearHighScores", "&Clear High Scores", Command::ClearHighScores},
                         "Play &Music  (plays during game)", "mnuCustom"),
             {"mnuTime", "&Time limit", Command::Time, {}, TimeRows()},
             core::Heading("mnuDeck", "&Deck", DeckRows()),
             core::HelpMenu()});
  MakeTable();
  CardTotal.Number.Text = "0";
  CardTotal.Number.TextColor = ui::Red;
  CardTotal.Number.OnChange = [this] { lblCurrentTotal_Change(); };
  cmdGiveUp.Pointer = "POINTER";
  Clock.lblTime.Text = "Time Bonus:";
  StyleCounters({&lblTimeBonus});
  lblTimeBonus.FontSize = lblRound.FontSize = 12;
  ScoringLabelRoundTotal.FontSize = Message.FontSize;
  ScoringLabelRoundTotal.Bold = ScoringLabelInfo.Bold = true;
  BringMessageToFront();
  BringToFront(ScoringLabelRoundTotal);
  BringToFront(ScoringLabelInfo);
  ShowCards(false);
  ShowHitButtons(false);
  ShowScoringLabel(false);
  ShowBoard(false);
  lblHighScore.Visible = true;
}

// --- the board ----------------------------------------------------------------------------------

void frmBrenlock::PlaceBoard(ui::Size inner) {
  const int middle = (inner.w - ButtonColumn) / 2;
  const int spare = std::max(0, inner.h - SmallestHeight);
  const int lower = inner.h - LowerHeight - spare / 3;
  const int top = std::max(4, (lower - columns::ColumnBoard::Height) / 2);
  Board.PlaceColumns(middle - ColumnCount * ColumnWidth / 2, top);
  ScoringLabelOutline.Place = {middle - 262, top + 56, 524, 92};
  Board.PlacePiles(middle - 260, lower + 4);
  CardTotal.SetPlace({middle - 80, lower + 4, 110, 44});
  cmdGiveUp.Place = {middle - 80, lower + 56, 110, 30};
  RoundFrame.SetPlace({middle - 80, lower + 94, 110, 28});
  core::CenterIn(lblRound, {middle - 76, lower + 97, 102, 22});
  Score.SetPlace({middle + 38, lower + 84, 126, 44});
  core::CenterIn(lblHighScore, {middle - 80, lower + 130, 244, 20});
  frmScore.Place = {middle + 168, lower, 130, 166};
  const int right = inner.w - core::RoundClock::Extent.w - 4;
  Clock.SetPlace({right, 120});
  TimeBonusFrame.SetPlace({right, 228, core::RoundClock::Extent.w, 28});
  core::CenterIn(lblTimeBonus, {right + 2, 231, core::RoundClock::Extent.w - 4, 22});
  ScoringLabelRoundTotal.Visible() ? PlaceRoundTotal() : CenterMessage();
}

/// The round's total beside its words, and the line under both.
void frmBrenlock::PlaceRoundTotal() {
  const ui::Rect outline = ScoringLabelOutline.Place();
  const int half = outline.w / 2;
  ScoringLabelRoundTotal.Place = {outline.x + 4, outline.y + 10, half - 4, 40};
  ScoringLabelRoundTotal.Alignment = ui::Align::Right;
  Message.Place = {outline.x + half + 4, outline.y + 10, half - 8, 40};
  Message.Alignment = ui::Align::Left;
  core::CenterIn(ScoringLabelInfo, {outline.x + 4, outline.y + 56, outline.w - 8, 24});
}

void frmBrenlock::MakeTable() {
  const auto add = [this](const std::string& totalName, const std::string& total,
                          const std::string& valueName, int value) {
    const int y = FirstTableRow + static_cast<int>(table_.size()) * TableRowHeight;
    TableRow row{std::make_unique<ui::Label>(this, totalName, total),
                 std::make_unique<ui::Label>(this, valueName, std::to_string(value))};
    core::CenterIn(*row.total, {14, y, 50, TableRowHeight});
    core::CenterIn(*row.value, {66, y, 50, TableRowHeight});
    row.total->SetContainer(&frmScore);
    row.value->SetContainer(&frmScore);
    table_.push_back(std::move(row));
  };
  add("lblNothing", "< " + std::to_string(LowestScoring), "lblScore0", 0);
  for (int total = LowestScoring; total <= HighestScoring; ++total) {
    const std::string number = std::to_string(total);
    add("lbl" + number, number, ValueName(total), brenlock::Rules::ValueOf(total));
  }
}

void frmBrenlock::UpdateCardTotalValue() {
  const auto marked = static_cast<std::size_t>(std::max(0, rules_.CardTotal - LowestScoring + 1));
  for (std::size_t row = 0; row < table_.size(); ++row) {
    for (ui::Label* label : {table_[row].total.get(), table_[row].value.get()}) {
      label->TextColor = row == marked ? ui::Red : ui::Black;
      label->Bold = row == marked;
    }
  }
  if (rules_.ScoreCanBeTaken()) cmdGiveUp.Text = "&Take score";
}

void frmBrenlock::ShowCards(bool visible) {
  Board.ShowPlaces(visible);
  Board.ShowPiles(visible);
  CardTotal.Show(visible);
  ShowGraphics(visible);
}

void frmBrenlock::ShowGraphics(bool visible) {
  Board.ShowLines(visible);
  Board.ColumnTotal.Show(visible);
  Board.cmdPass.Visible = visible;
  ShowRound(visible);
}

void frmBrenlock::ShowHitButtons(bool visible) {
  Board.cmdHit.Show(visible);
  cmdGiveUp.Visible = visible;
}

void frmBrenlock::ShowScoringLabel(bool visible) {
  Show(visible, {&Message, &ScoringLabelInfo, &ScoringLabelRoundTotal});
}

void frmBrenlock::ShowBoard(bool visible) {
  ShowTimerGroup(visible);
  TimeBonusFrame.Show(visible);
  Show(visible, {&lblTimeBonus, &lblHighScore, &frmScore});
}

void frmBrenlock::EnableControls() {
  Board.cmdHit.Enable(true);
  Board.ColumnTotal.Show(true);
  CardTotal.Number.Visible = true;
  ShowScoringLabel(false);
  ScoringLabelOutline.Visible = false;
}

// --- pausing ------------------------------------------------------------------------------------

void frmBrenlock::PauseBoard() {
  ShowCards(false);
  Announce("Game Paused", ui::Blue);
}

void frmBrenlock::ResumeBoard() {
  lblRound.Visible = true;
  if (!shared.GameActive) return;
  ShowCards(true);
  ScoringLabelOutline.Visible = false;
}

}  // namespace games::brenlock
