// Harvel's window: its menu, its board, and what it shows.
#include "games/harvel/window.h"

#include <algorithm>

namespace games::harvel {
namespace {

using core::Design;

constexpr int ButtonColumn = 92;  // kept free at the right edge
constexpr int ColumnWidth = 84;
constexpr int LowerHeight = 159;     // of all that stands below the columns
constexpr int SmallestHeight = 409;  // of the window's inside

core::Vocabulary Words(std::vector<core::DeckEntry> decks) {
  core::Vocabulary words;
  words.window = "frmHarvel";
  words.settingsFile = "Harvel.Ini";
  words.welcomeEnd = "!      ";
  words.exitTip = "Closes Harvel ";
  words.endGame = "&End game";
  words.pause = "P&ause";
  words.pauseTip = "Pauses the game in progress";
  words.message = "ScoringLabelInfo";
  words.score = "lblTotalScore";
  words.wallClock = "Timer6";
  words.smallestSize = {9150, 7290};
  words.maximizedWidth = "9060";
  words.maximizedHeight = "7155";
  words.timeEntries = {{15, "&15 Seconds (for the daring)"},
                       {30, "&30 Seconds"},
                       {60, "&60 Seconds"},
                       {90, "&90 Seconds (default)"},
                       {120, "&120 Seconds"}};
  words.deckEntries = std::move(decks);
  return words;
}

}  // namespace

frmHarvel::frmHarvel(core::Suite& suite, const core::GameEntry& entry)
    : ColumnWindow(suite, entry,
                   Words(Decks({Design::Palm, Design::Magic, Design::Night, Design::Hot})),
                   {ColumnCount, ColumnCount - 1, ColumnWidth, false}),
      rules_(suite.deck, ValuesOfColumns(), values_) {
  using core::Command;
  BuildMenu({
      FileMenu(),
      OptionsMenu({"mnuClear", "&Clear High Scores...", Command::ClearHighScores},
                  "Play &Music (plays during game)", "mnuUserOptions"),
      core::Heading("mnuDeck", "&Deck", DeckRows()),
      {"mnuTimeLimit", "&Time limit", Command::Time, {}, TimeRows()},
      core::HelpMenu("&Rules..."),
  });
  const auto inFrame = {&lblTwentyoneTime, &lblTwentyOnes,     &lbl21s, &lbl21Bonus, &lblBonus,
                        &lblRoundScore,    &lblRoundScoreCount};
  for (ui::Label* label : inFrame) label->SetContainer(&frameScoreInfo);
  ProgressBar1.SetContainer(&frameScoreInfo);
  StyleCounters(inFrame);
  StyleCounters({&CardsUsed.Caption, &lblBust, &lblFiveCards});
  Paint(ui::Red, {&lblBust, &lblFiveCards});
  Score.Number.OnChange = [this] {
    Score.Number.TextColor = shared.CurrentScore < 0 ? ui::Red : ui::Blue;
  };
  cmdTakeScore.Pointer = "POINTER";
  BringMessageToFront();
  Show(false, {&lblBust, &lblFiveCards, &lblRoundScore, &lblRoundScoreCount});
  ShowCards(false);
  ShowGraphics(false);
  lblHighScore.Visible = true;
}

// --- the board ----------------------------------------------------------------------------------

void frmHarvel::PlaceBoard(ui::Size inner) {
  const int middle = (inner.w - ButtonColumn) / 2;
  const int spare = std::max(0, inner.h - SmallestHeight);
  const int lower = inner.h - LowerHeight - spare / 3;
  const int top = std::max(4, (lower - columns::ColumnBoard::Height) / 2);
  Board.PlaceColumns(middle - ColumnCount * ColumnWidth / 2, top);
  ScoringLabelOutline.Place = {middle - 184, top + 60, 368, 64};
  CenterMessage();
  Board.PlacePiles(middle - 245, lower + 4);
  frameScoreInfo.Place = {middle - 77, lower, 326, 86};
  lblTwentyoneTime.Place = {10, 18, 80, 16};
  ProgressBar1.Place = {96, 19, 220, 14};
  lblTwentyOnes.Place = {10, 38, 84, 16};
  lbl21s.Place = {102, 38, 40, 16};
  lbl21Bonus.Place = {146, 38, 50, 16};
  lblBonus.Place = {200, 38, 116, 16};
  core::CenterIn(lblRoundScore, {4, 54, 318, 15});
  core::CenterIn(lblRoundScoreCount, {4, 69, 318, 15});
  Score.SetPlace({middle - 77, lower + 90, 126, 44});
  CardsUsed.SetPlace({middle + 55, lower + 90, 88, 44});
  RoundFrame.SetPlace({middle + 149, lower + 90, 100, 44});
  core::CenterIn(lblRound, {middle + 151, lower + 102, 96, 20});
  core::CenterIn(lblHighScore, {middle - 77, lower + LowerHeight - 22, 326, 20});
  Clock.SetPlace({inner.w - core::RoundClock::Extent.w - 4, 160});
}

void frmHarvel::ShowCards(bool visible) {
  Board.ShowPlaces(visible);
  Board.ShowPiles(visible);
}

void frmHarvel::ShowGraphics(bool visible) {
  Board.ColumnTotal.Show(visible);
  Board.ShowLines(visible);
  Board.ShowPiles(visible);
  Board.cmdHit.Show(visible);
  CardsUsed.Show(visible);
  ShowRound(visible);
  Show(visible, {&lblTwentyOnes, &cmdTakeScore, &frameScoreInfo, &lbl21s, &lblBonus, &lblHighScore,
                 &Board.cmdPass, &Clock.Surface});
}

void frmHarvel::WriteBonus() {
  lbl21s.Text = core::Digits(rules_.TwentyOneCount);
  lblBonus.Text = core::Digits(rules_.BonusFigure);
}

void frmHarvel::EnableControls(bool enabled) {
  EnableRoundCommands(enabled);
  Board.cmdPass.Enabled = enabled && shared.PassesLeft >= 1 && shared.DeckIndex < columns::LastCard;
}

// --- pausing ------------------------------------------------------------------------------------

std::vector<ui::Timer*> frmHarvel::GameTimers() {
  if (counterRuns_) return {&Timer1, &Timer3};
  return {&Timer1};
}

void frmHarvel::PauseBoard() {
  EnableControls(false);
  ShowCards(false);
  ShowGraphics(false);
  ScoringLabelOutline.Visible = true;
}

void frmHarvel::ResumeBoard() {
  EnableControls(true);
  ShowCards(true);
  ShowGraphics(true);
  ScoringLabelOutline.Visible = false;
}

}  // namespace games::harvel
