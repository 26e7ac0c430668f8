// Brenlock's window: its menu, its board, and what it shows.
#include "games/brenlock/window.h"

#include <algorithm>

#include "core/text/number.h"

namespace games::brenlock {
namespace {

using core::Digits;

constexpr int ButtonColumn = 92;  // kept free at the right edge
constexpr int ColumnWidth = 104;
constexpr int LowerHeight = 169;  // of all that stands below the columns

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmBrenlock";
  words.settingsFile = "Brenlock.Ini";
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
  words.deckEntries = {{"mnuPalm", "&Palm Tree", core::Design::Palm, 4},
                       {"mnuNight", "&Night Castle", core::Design::Night, 3},
                       {"mnuMagic", "&Magic Hands", core::Design::Magic, 2},
                       {"mnuHot", "&Hot Cards", core::Design::Hot, 1}};
  return words;
}

}  // namespace

frmBrenlock::frmBrenlock(core::Suite& suite, const core::GameEntry& entry)
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
        {"mnuClearHighScores", "&Clear High Scores", Command::ClearHighScores},
        {"mnuMusic", "Play &Music  (plays during game)", Command::Music},
        {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
        {"mnuSounds", "&Play Sounds", Command::Sounds},
        {"mnuCustom", "&User Options...", Command::Custom}}},
      {"mnuTime", "&Time limit", Command::Time, {}, TimeRows()},
      {"mnuDeck", "&Deck", Command::Other, {}, DeckRows()},
      {"mnuHelp",
       "&Help",
       Command::Other,
       {},
       {{"mnuRules", "&Rules", Command::Rules},
        {"mnuReadme", "&View Readme File", Command::Readme},
        {"mnuAbout", "&About", Command::About}}},
  });
  CardTotal.Number.Text = "0";
  CardTotal.Number.TextColor = ui::Red;
  CardTotal.Number.OnChange = [this] { lblCurrentTotal_Change(); };
  cmdGiveUp.Pointer = "POINTER";
  Clock.lblTime.Text = "Time Bonus:";
  for (ui::Label* label : {&lblTimeBonus, &lblRound}) {
    label->TextColor = ui::Blue;
    label->Bold = true;
    label->FontSize = 12;
  }
  ScoringLabelRoundTotal.FontSize = Message.FontSize;
  ScoringLabelRoundTotal.Bold = ScoringLabelInfo.Bold = true;
  for (ui::Control* control : std::initializer_list<ui::Control*>{
           &ScoringLabelOutline, &ScoringLabelRoundTotal, &ScoringLabelInfo, &Message}) {
    BringToFront(*control);
  }
  ShowCards(false);
  ShowHitButtons(false);
  ShowScoringLabel(false);
  ScoringLabelOutline.Visible = false;
  ShowControls(false, false);
  lblHighScore.Visible = true;
}

void frmBrenlock::Loaded() {
  rules_.SetTimeBonusDecay(shared.TimeLimit);
  StatusBar1(1).Text = "Welcome to " + shared.GameTitle + "   ";
}

// --- the board ----------------------------------------------------------------------------------

void frmBrenlock::PlaceBoard(ui::Size inner) {
  const int middle = (inner.w - ButtonColumn) / 2;
  const int lower = inner.h - LowerHeight;
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
  Table.frmScore.Place = {middle + 168, lower, ScoreTable::Extent.w, ScoreTable::Extent.h};

  const int right = inner.w - core::RoundClock::Extent.w - 4;
  Clock.SetPlace({right, 120});
  TimeBonusFrame.SetPlace({right, 228, core::RoundClock::Extent.w, 28});
  core::CenterIn(lblTimeBonus, {right + 2, 231, core::RoundClock::Extent.w - 4, 22});
  ScoringLabelRoundTotal.Visible() ? PlaceRoundTotal() : CenterScoringLabel();
}

void frmBrenlock::CenterScoringLabel() {
  const ui::Rect outline = ScoringLabelOutline.Place();
  core::CenterIn(Message, {outline.x + 4, outline.CenterY() - 20, outline.w - 8, 40});
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
  RoundFrame.Show(visible);
  lblRound.Visible = visible;
}

void frmBrenlock::ShowHitButtons(bool visible) {
  Board.cmdHit.Show(visible);
  cmdGiveUp.Visible = visible;
}

void frmBrenlock::ShowScoringLabel(bool visible) {
  Message.Visible = visible;
  ScoringLabelInfo.Visible = visible;
  ScoringLabelRoundTotal.Visible = visible;
}

void frmBrenlock::ShowControls(bool visible, bool keep) {
  lblHighScore.Visible = visible;
  if (keep) return;
  ShowTimerGroup(visible);
  TimeBonusFrame.Show(visible);
  lblTimeBonus.Visible = visible;
  Table.frmScore.Visible = visible;
}

/// All that a round is played with.
void frmBrenlock::ShowBoard() {
  Board.ShowEmptyPlaces();
  Board.cmdPass.Enabled = shared.PassesLeft > 0;
  Board.cmdPass.Visible = true;
  ShowHitButtons(true);
  RoundFrame.Show(true);
  lblRound.Visible = true;
  CardTotal.Show(true);
  ShowControls(true, false);
  EnablePause(true);
}

void frmBrenlock::EnableControls() {
  Board.cmdHit.Enable(true);
  Board.ColumnTotal.Show(true);
  CardTotal.Number.Visible = true;
  ShowScoringLabel(false);
  ScoringLabelOutline.Visible = false;
}

void frmBrenlock::EnablePause(bool enabled) {
  cmdPause.Enabled = enabled;
  Menus.Enable(enabled, {core::Command::Pause});
}

void frmBrenlock::WriteTimeBonus() {
  lblTimeBonus.Text = Digits(rules_.CurrentTimeBonus);
}

void frmBrenlock::Announce(const std::string& text, ui::Color color) {
  CenterScoringLabel();
  ShowMessage(text, color);
  ScoringLabelOutline.Visible = true;
}

void frmBrenlock::HideAnnouncement() {
  Message.Visible = false;
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
