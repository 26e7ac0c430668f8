// Harvel's window: its menu, its board, and what it shows.
#include "games/harvel/window.h"

#include <algorithm>

#include "core/text/number.h"

namespace games::harvel {
namespace {

using core::Digits;

constexpr int ButtonColumn = 92;  // kept free at the right edge
constexpr int ColumnWidth = 84;
constexpr int LowerHeight = 159;  // of all that stands below the columns

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmHarvel";
  words.settingsFile = "Harvel.Ini";
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
  words.deckEntries = {{"mnuPalm", "&Palm Tree", core::Design::Palm, 4},
                       {"mnuMagic", "&Magic Hands", core::Design::Magic, 2},
                       {"mnuNight", "&Night Castle", core::Design::Night, 3},
                       {"mnuHot", "&Hot Cards", core::Design::Hot, 1}};
  return words;
}

}  // namespace

frmHarvel::frmHarvel(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()),
      rules_(suite.deck, {shared.DeckIndex, shared.PassesLeft, shared.CardsToPass, shared.SoftAces},
             values_) {
  using core::Command;
  BuildMenu({
      {"mnuFile",
       "&File",
       Command::Other,
       {},
       {{"mnuPlay", "&Play", Command::Play},
        {"mnuPause", "Pau&se", Command::Pause},
        {"mnuExit", "E&xit", Command::Exit}}},
      {"mnuOptions",
       "&Options",
       Command::Other,
       {},
       {{"mnuViewHighScores", "&View High Scores...", Command::ViewHighScores},
        {"mnuClear", "&Clear High Scores...", Command::ClearHighScores},
        {"mnuMusic", "Play &Music (plays during game)", Command::Music},
        {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
        {"mnuSounds", "&Play Sounds", Command::Sounds},
        {"mnuUserOptions", "&User Options...", Command::Custom}}},
      {"mnuDeck", "&Deck", Command::Other, {}, DeckRows()},
      {"mnuTimeLimit", "&Time limit", Command::Time, {}, TimeRows()},
      {"mnuHelp",
       "&Help",
       Command::Other,
       {},
       {{"mnuRules", "&Rules...", Command::Rules},
        {"mnuReadme", "&View Readme File", Command::Readme},
        {"mnuAbout", "&About", Command::About}}},
  });
  for (ui::Control* control : std::initializer_list<ui::Control*>{
           &lblTwentyoneTime, &ProgressBar1, &lblTwentyOnes, &lbl21s, &lbl21Bonus, &lblBonus,
           &lblRoundScore, &lblRoundScoreCount}) {
    control->SetContainer(&frameScoreInfo);
  }
  for (ui::Label* label : {&lblTwentyoneTime, &lblTwentyOnes, &lbl21s, &lbl21Bonus, &lblBonus,
                           &lblRoundScore, &lblRoundScoreCount, &CardsUsed.Caption, &lblRound}) {
    label->TextColor = ui::Blue;
    label->Bold = true;
  }
  for (ui::Label* note : {&lblBust, &lblFiveCards}) {
    note->TextColor = ui::Red;
    note->Bold = true;
    note->FontSize = 11;
    note->Visible = false;
  }
  lblRoundScore.Visible = lblRoundScoreCount.Visible = false;
  ScoringLabelOutline.Visible = false;
  BringToFront(ScoringLabelOutline);
  BringToFront(Message);
  Score.Number.OnChange = [this] {
    Score.Number.TextColor = shared.CurrentScore < 0 ? ui::Red : ui::Blue;
  };
  cmdTakeScore.Pointer = "POINTER";
  ShowCards(false);
  ShowGraphics(false);
  lblHighScore.Visible = true;
}

void frmHarvel::Loaded() {
  StatusBar1(1).Text = "Welcome to " + shared.GameTitle + "!      ";
}

// --- the board ----------------------------------------------------------------------------------

void frmHarvel::PlaceBoard(ui::Size inner) {
  const int middle = (inner.w - ButtonColumn) / 2;
  const int lower = inner.h - LowerHeight;
  const int top = std::max(4, (lower - columns::ColumnBoard::Height) / 2);
  const int left = middle - ColumnCount * ColumnWidth / 2;
  Board.PlaceColumns(left, top);
  ScoringLabelOutline.Place = {middle - 184, top + 60, 368, 64};
  core::CenterIn(Message, {middle - 180, top + 74, 360, 36});

  Board.PlacePiles(middle - 245, lower + 4);
  frameScoreInfo.Place = {middle - 77, lower, 326, 86};
  lblTwentyoneTime.Place = {10, 18, 80, 16};
  ProgressBar1.Place = {96, 19, 220, 14};
  lblTwentyOnes.Place = {10, 38, 84, 16};
  lbl21s.Place = {96, 38, 40, 16};
  lbl21Bonus.Place = {146, 38, 50, 16};
  lblBonus.Place = {200, 38, 116, 16};
  core::CenterIn(lblRoundScore, {4, 54, 318, 15});
  core::CenterIn(lblRoundScoreCount, {4, 69, 318, 15});
  Score.SetPlace({middle - 77, lower + 90, 120, 44});
  CardsUsed.SetPlace({middle + 49, lower + 90, 94, 44});
  RoundFrame.SetPlace({middle + 149, lower + 90, 100, 44});
  core::CenterIn(lblRound, {middle + 151, lower + 102, 96, 20});
  core::CenterIn(lblHighScore, {middle - 77, inner.h - 22, 326, 20});
  Clock.SetPlace({inner.w - core::RoundClock::Extent.w - 4, 160});
}

void frmHarvel::ShowCards(bool visible) {
  Board.ShowPlaces(visible);
  Board.ShowPiles(visible);
}

void frmHarvel::ShowControls(bool visible, bool keep) {
  if (!keep) ShowGraphics(visible);
  CardsUsed.Show(visible);
  lblHighScore.Visible = visible;
}

void frmHarvel::ShowGraphics(bool visible) {
  Board.ColumnTotal.Show(visible);
  Board.ShowLines(visible);
  Board.ShowPiles(visible);
  Board.cmdHit.Show(visible);
  Board.cmdPass.Visible = visible;
  CardsUsed.Show(visible);
  RoundFrame.Show(visible);
  for (ui::Control* control : std::initializer_list<ui::Control*>{
           &frameScoreInfo, &lblTwentyOnes, &lbl21s, &lblBonus, &lblRound, &lblHighScore,
           &cmdTakeScore, &Clock.Surface}) {
    control->Visible = visible;
  }
}

void frmHarvel::WriteCardsUsed() {
  CardsUsed.Number.Text = Digits(rules_.CardsUsed());
}

void frmHarvel::WriteBonus() {
  lbl21s.Text = Digits(rules_.TwentyOneCount);
  lblBonus.Text = Digits(rules_.BonusFigure);
}

void frmHarvel::WriteRound() {
  lblRound.Text = "Round: " + Digits(shared.RoundNumber);
}

void frmHarvel::EnableControls(bool enabled) {
  EnableRoundCommands(enabled);
  Board.cmdPass.Enabled = enabled && shared.PassesLeft >= 1 && shared.DeckIndex < columns::LastCard;
}

void frmHarvel::EnablePause(bool enabled) {
  cmdPause.Enabled = enabled;
  Menus.Enable(enabled, {core::Command::Pause});
}

// --- the big message ----------------------------------------------------------------------------

void frmHarvel::ShowOverBoard(const std::string& text) {
  ShowMessage(text, ui::Red);
  ScoringLabelOutline.Visible = true;
}

void frmHarvel::HideBoardMessage() {
  Message.Visible = false;
  ScoringLabelOutline.Visible = false;
}

void frmHarvel::Announce(const std::string& text) {
  ShowOverBoard(text);
  Hourglass = true;
  if (!(cmdPlay.Text == "&Play")) Wait(shared.WaitPeriod);
  Hourglass = false;
  HideBoardMessage();
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
