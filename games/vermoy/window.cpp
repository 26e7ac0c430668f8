// Vermoy's window: its menu, its board, and what it shows.
#include "games/vermoy/window.h"

#include <algorithm>

#include "core/text/number.h"

namespace games::vermoy {
namespace {

constexpr ui::Size CardSize{69, 94};
constexpr int ColumnStep = 71;
constexpr int GridWidth = (Side - 1) * ColumnStep + CardSize.w;
constexpr int HandHeight = 18;
constexpr int ClosestRows = 82, WidestRows = 98;  // in the lowest window they overlap
constexpr int LeftColumn = 122;
constexpr int ClockWidth = core::RoundClock::Extent.w;
constexpr ui::Size MessageBoard{GridWidth, 130};

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmVermoy";
  words.settingsFile = "Vermoy.Ini";
  words.exit = "cmdQuit";
  words.exitTip = "Closes Vermoy";
  words.message = "ScoringLabel";
  words.smallestSize = {9930, 8010};
  words.maximizedWidth = "9570";
  words.timeEntries = {{30, "&30 seconds"},           {45, "&45 seconds"}, {60, "&60 seconds  "},
                       {75, "&75 seconds (default)"}, {90, "&90 seconds"}, {105, "&105 seconds"},
                       {120, "&120 seconds"}};
  return words;
}

void ShowHand(ui::Label& label, Hand hand) {
  label.Text = TextOf(hand);
  label.TextColor = hand == Hand::Nothing ? ui::Black : ui::Blue;
}

}  // namespace

frmVermoy::frmVermoy(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()),
      Bonuses(*this, suite, Clock, {lblMessage, lblScoring, Score.Number},
              {[this] { return rules_.RoundPoints(); }, false, {}, {}}) {
  using core::Command;
  BuildMenu({core::Heading("mnuFile", "&Game",
                           {{"mnuPlay", "&Play", Command::Play},
                            {"mnuPause", "Pau&se", Command::Pause},
                            {"mnuExit", "E&xit", Command::Exit}}),
             core::Heading("mnuOptions", "&Options",
                           {{"mnuView", "&View High Scores...", Command::ViewHighScores},
                            {"mnuClear", "&Clear High Scores...", Command::ClearHighScores},
                            {"mnuTime", "&Time Limit", Command::Time, {}, TimeRows()},
                            {"mnuCustom", "&User Options...", Command::Custom},
                            {"mnuMusic", "Play &Music (plays during game)", Command::Music},
                            {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
                            {"mnuSounds", "&Play Sounds", Command::Sounds}}),
             core::Heading("mnuDeck", "Dec&k", DeckRows()), core::HelpMenu()});
  for (ui::Label* label : {&lblRound, &lblPointsEarned, &lblTimeBonus, &lblMessage, &lblScoring}) {
    label->TextColor = ui::Blue;
    label->Bold = true;
  }
  lblTimeBonus.FontSize = 14;
  lblMessage.FontSize = 12;
  lblScoring.FontSize = 18;
  lblOverWrites.Wrap = lblPointsEarned.Wrap = lblHighScore.Wrap = true;
  Show(false, {&lblMessage, &lblScoring, &ScoringLabelOutline, &lblTimeBonus});
  // The messages lie on the outline, which is declared after the frame's own labels.
  BringToFront(Message);
  ShowHands();
  ShowCards(false);
  ShowControls(false, true);
}

void frmVermoy::PlaceBoard(ui::Size inner) {
  const int rowStep =
      std::clamp((inner.h - CardSize.h - HandHeight - 17) / (Side - 1), ClosestRows, WidestRows);
  const int height = (Side - 1) * rowStep + CardSize.h + HandHeight;
  const int top = (inner.h - height) / 2;
  const int grid = inner.w / 2 - 197;
  PlaceGrid({grid, top}, rowStep);
  PlaceLeftColumn({inner.w / 2 - 324, top}, height);
  const int clock = inner.w - 88;
  Clock.SetPlace({clock, 124});
  Clock.Frame.SetPlace({clock, 124, ClockWidth, 128});
  core::CenterIn(Clock.lblTime, {clock + 2, 204, ClockWidth - 4, 18});
  core::CenterIn(lblTimeBonus, {clock + 2, 222, ClockWidth - 4, 26});
  const int board = (inner.h - MessageBoard.h) / 2;
  ScoringLabelOutline.Place = {grid, board, MessageBoard.w, MessageBoard.h};
  core::CenterIn(lblMessage, {grid + 4, board + 10, MessageBoard.w - 8, 26});
  core::CenterIn(Message, {grid + 4, board + 44, MessageBoard.w - 8, 42});
  core::CenterIn(lblScoring, {grid + 4, board + 90, MessageBoard.w - 8, 34});
}

void frmVermoy::PlaceGrid(ui::Point at, int rowStep) {
  PlayCards.ForEach([&](int i, ui::Picture& cell) {
    cell.Place = {at.x + i % Side * ColumnStep, at.y + i / Side * rowStep, CardSize.w, CardSize.h};
  });
  lblRow.ForEach([&](int i, ui::Label& label) {
    label.Place = {at.x + GridWidth + 10, at.y + (i - 1) * rowStep + 34, 64, HandHeight};
  });
  lblCol.ForEach([&](int i, ui::Label& label) {
    const ui::Rect bottomCard = PlayCards(Cells - Side + i - 1).Place();
    core::CenterIn(label, {bottomCard.x - 1, bottomCard.Bottom() + 1, ColumnStep, HandHeight});
  });
}

void frmVermoy::PlaceLeftColumn(ui::Point at, int height) {
  HoleCard.Place = {at.x + 26, at.y, CardSize.w, CardSize.h};
  CardStackPicture.Place = {at.x + 23, at.y + 103, 76, 98};
  const int counters = at.y + 210;
  RoundFrame.SetPlace({at.x, counters, LeftColumn, 112});
  core::CenterIn(lblRound, {at.x + 4, counters + 4, LeftColumn - 8, 18});
  core::CenterIn(lblCards, {at.x + 2, counters + 22, LeftColumn - 4, 18});
  core::CenterIn(lblOverWrites, {at.x + 4, counters + 40, LeftColumn - 8, 34});
  core::CenterIn(lblPointsEarned, {at.x + 4, counters + 74, LeftColumn - 8, 34});
  Score.SetPlace({at.x, at.y + height - 84, LeftColumn, 44});
  core::CenterIn(lblHighScore, {at.x, at.y + height - 36, LeftColumn, 34});
}

// --- what the board shows -----------------------------------------------------------------------

void frmVermoy::ShowCards(bool visible) {
  PlayCards.ForEach([&](int i, ui::Picture& cell) {
    cell.Show("EMPTY");
    cell.Visible = visible;
    if (visible) ShowCell(i);
  });
  HoleCard.Visible = visible;
  CardStackPicture.Visible = visible;
}

void frmVermoy::ShowCell(int cell) {
  const std::string& key = rules_.GridCard(cell);
  PlayCards(cell).Show(key.empty() ? "EMPTY" : key);
  PlayCards(cell).Border = !key.empty();
}

void frmVermoy::ShowControls(bool counters, bool clock) {
  Show(counters, {&lblPointsEarned, &lblRound, &lblCards, &lblOverWrites});
  RoundFrame.Show(counters);
  lblRow.Show(counters);
  lblCol.Show(counters);
  ShowTimerGroup(clock);
  Show(clock, {&lblTimeBonus, &lblHighScore});
}

void frmVermoy::ShowHands() {
  lblRow.ForEach([&](int i, ui::Label& label) { ShowHand(label, rules_.RowHand(i)); });
  lblCol.ForEach([&](int i, ui::Label& label) { ShowHand(label, rules_.ColumnHand(i)); });
  lblPointsEarned.Text = "Points Earned: " + core::Masked(rules_.RoundPoints());
}

void frmVermoy::ShowOverWrites() {
  lblOverWrites.Text = "Over Writes Remaining: " + core::Digits(rules_.OverWritesLeft());
  lblOverWrites.TextColor = rules_.OverWritesLeft() == 0 ? ui::Red : ui::Blue;
}

void frmVermoy::ShowPointers() {
  PlayCards.ForEach([&](int i, ui::Picture& cell) {
    cell.Pointer = rules_.IsLegal(i) && !rules_.GridIsFull() ? "POINTER" : "";
  });
}

void frmVermoy::PauseBoard() {
  lblRound.Visible = false;
  ShowCards(false);
  Message.TextColor = ui::Blue;
  ScoringLabelOutline.Visible = GameRunning();
}

void frmVermoy::ResumeBoard() {
  ScoringLabelOutline.Visible = false;
  if (!GameRunning()) return;
  ShowCards(true);
  ShowControls(true, true);
}

}  // namespace games::vermoy
