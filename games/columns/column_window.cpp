// The common part of the games of columns: messages, the round's number, and shared options.
#include "games/columns/column_window.h"

#include <algorithm>

#include "core/scoring/scoring_dialog.h"
#include "core/text/number.h"

namespace games::columns {
namespace {

constexpr int MillisecondsPerSecond = 1000;
constexpr int MostPasses = 10;
constexpr int MessageHeight = 40;
constexpr int GameOverPause = 2000;

const core::DeckEntry Backs[] = {{"mnuHot", "&Hot Cards", core::Design::Hot, 1},
                                 {"mnuMagic", "&Magic Hands", core::Design::Magic, 2},
                                 {"mnuNight", "&Night Castle", core::Design::Night, 3},
                                 {"mnuPalm", "&Palm Tree", core::Design::Palm, 4}};

}  // namespace

void ColumnWindow::Paint(ui::Color color, std::initializer_list<ui::Label*> labels) {
  for (ui::Label* label : labels) label->TextColor = color;
}

void ColumnWindow::StyleCounters(std::initializer_list<ui::Label*> labels) {
  Paint(ui::Blue, labels);
  for (ui::Label* label : labels) label->Bold = true;
}

ColumnWindow::ColumnWindow(core::Suite& suite, const core::GameEntry& entry, core::Vocabulary words,
                           BoardShape shape)
    : GameWindow(suite, entry, std::move(words)),
      Board(this, shape, &ColumnWindow::cmdHit_Click, &ColumnWindow::cmdPass_Click) {
  StyleCounters({&lblRound});
  ScoringLabelOutline.Visible = false;
}

void ColumnWindow::Play() {
  cmdPlay.Text == "&Play" ? StartGame() : AskToEndGame();
}

bool ColumnWindow::RoundIsOpen() const {
  return shared.GameActive && !shared.ScoringBusy && !Paused();
}

void ColumnWindow::cmdHit_Click(int column) {
  if (RoundIsOpen()) Hit(column);
}

void ColumnWindow::cmdPass_Click() {
  if (!RoundIsOpen()) return;
  Pass();
  if (shared.PassesLeft == 0) Board.cmdPass.Enabled = false;
}

void ColumnWindow::ShowControls(bool visible, bool keep) {
  if (!keep) ShowGraphics(visible);
  lblHighScore.Visible = visible;
}

std::vector<core::DeckEntry> ColumnWindow::Decks(std::initializer_list<core::Design> order) {
  std::vector<core::DeckEntry> entries;
  for (const core::Design design : order) {
    for (const core::DeckEntry& back : Backs) {
      if (back.design == design) entries.push_back(back);
    }
  }
  return entries;
}

core::MenuRow ColumnWindow::FileMenu() {
  return core::Heading("mnuFile", "&File",
                       {{"mnuPlay", "&Play", core::Command::Play},
                        {"mnuPause", "Pau&se", core::Command::Pause},
                        {"mnuExit", "E&xit", core::Command::Exit}});
}

core::MenuRow ColumnWindow::OptionsMenu(core::MenuRow clear, const std::string& musicCaption,
                                        const std::string& customName) {
  using core::Command;
  return core::Heading("mnuOptions", "&Options",
                       {{"mnuViewHighScores", "&View High Scores...", Command::ViewHighScores},
                        std::move(clear),
                        {"mnuMusic", musicCaption, Command::Music},
                        {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
                        {"mnuSounds", "&Play Sounds", Command::Sounds},
                        {customName, "&User Options...", Command::Custom}});
}

SharedValues ColumnWindow::ValuesOfColumns() {
  return {shared.DeckIndex, shared.PassesLeft, shared.CardsToPass, shared.SoftAces};
}

void ColumnWindow::ShowRound(bool visible) {
  RoundFrame.Show(visible);
  lblRound.Visible = visible;
}

void ColumnWindow::WriteRound() {
  lblRound.Text = "Round: " + core::Digits(shared.RoundNumber);
}

void ColumnWindow::EnablePause(bool enabled) {
  cmdPause.Enabled = enabled;
  Menus.Enable(enabled, {core::Command::Pause});
}

void ColumnWindow::ResetClock() {
  shared.ElapsedSeconds = 0;
  shared.TimerFaceTick = 0;
  Clock.InitTimerFace();
}

void ColumnWindow::GoIdle() {
  shared.GameActive = false;
  ShowIdleCommands();
  ResetClock();
  StopClock();
  Timer2.Enabled = false;
  ShowTitle(true);
  shared.ScoringBusy = false;
}

void ColumnWindow::ShowCurrentCard(const std::string& card) {
  Board.NextCardPicture.Show(card);
  Board.NextCardPicture.Border = true;
}

void ColumnWindow::Announce(const std::string& text, ui::Color color) {
  CenterMessage();
  ShowMessage(text, color);
  ScoringLabelOutline.Visible = true;
}

void ColumnWindow::HideAnnouncement() {
  Show(false, {&Message, &ScoringLabelOutline});
}

void ColumnWindow::AnnounceForWaitPeriod(const std::string& text, ui::Color color) {
  const bool hourglass = Hourglass();
  Announce(text, color);
  Hourglass = true;
  if (!(cmdPlay.Text == "&Play")) Wait(shared.WaitPeriod);
  Hourglass = hourglass;
  HideAnnouncement();
}

void ColumnWindow::CenterMessage() {
  const ui::Rect outline = ScoringLabelOutline.Place();
  core::CenterIn(Message, {outline.x + 4, outline.CenterY() - MessageHeight / 2, outline.w - 8,
                           MessageHeight});
}

void ColumnWindow::BringMessageToFront() {
  BringToFront(ScoringLabelOutline);
  BringToFront(Message);
}

void ColumnWindow::Pay(std::int64_t points) {
  shared.AddToScore(points);
  WriteScore();
}

void ColumnWindow::EnterScore() {
  UpdateTable();
  Announce("Game Over", ui::Red);
  Hourglass = true;
  Wait(GameOverPause);
  HideAnnouncement();
}

// --- options ------------------------------------------------------------------------------------

core::SettingsKey ColumnWindow::WaitPeriodKey(const std::string& key, std::int32_t longest) {
  core::SettingsKey item = core::Number(key, shared.WaitPeriod);
  item.read = [this, longest](const std::string& value) {
    const std::int64_t wait = std::clamp<std::int64_t>(core::WholeIn(value), 0, longest);
    shared.WaitPeriod = static_cast<std::int32_t>(wait);
  };
  return item;
}

void ColumnWindow::ShowScoringDialog() {
  core::ScoringDialog dialog(suite, ScoringTableOfDialog());
  suite.ShowModal(dialog);
}

core::ScoringTable ColumnWindow::EmptyTable(const std::string& window, int standardLimit) {
  core::ScoringTable table;
  table.window = window;
  table.frame = "frmCustomScoring";
  table.defaults = [this, standardLimit](core::ScoringDialog&) { ChooseTimeLimit(standardLimit); };
  return table;
}

core::NumberField ColumnWindow::BonusScoreField(std::int32_t& score, std::int32_t standard) {
  return core::Field(
      "txtBonus", "Score required for Bonus:", score,
      {core::Below(0, "Sorry, a minimum of 0 is required for the bonus round score."),
       core::Above(2147483647,
                   "Sorry, the maximum value for achieving a bonus round is 2147483647.")},
      standard);
}

core::NumberField ColumnWindow::PassesField(std::int16_t standard) {
  return core::Field("txtNumberOfCardsToPass",
                     "Number of cards user may pass (0 - 10):", shared.CardsToPass,
                     {core::Below(0, "Sorry, you cannot pass fewer than 0 cards."),
                      core::Above(MostPasses, "Sorry, you cannot pass more than 10 cards.")},
                     standard);
}

core::NumberField ColumnWindow::WaitField(std::int32_t longest, std::int32_t standard) {
  const std::string required = " for the waiting period between rounds.";
  const std::int32_t seconds = longest / MillisecondsPerSecond;
  core::NumberField field =
      core::Field("txtWaitPeriod", "Seconds to wait between Rounds (0 - 10):", shared.WaitPeriod,
                  {core::Below(0, "Sorry, a minimum of 0 seconds is required" + required),
                   core::Above(seconds, "Sorry, a maximum of " + core::Digits(seconds) +
                                            " seconds is allowed" + required)},
                  standard / MillisecondsPerSecond, MillisecondsPerSecond);
  field.defaultStores = false;
  return field;
}

core::CheckField ColumnWindow::CountField() {
  return {"chkCountScore", "Count down &when taking score",
          [this] { return shared.CountDownScoring; }};
}

void ColumnWindow::ApplyScoring(const core::ScoringDialog& dialog, std::int32_t bonusScore) {
  shared.CountDownScoring = dialog.Checked("chkCountScore");
  CheckForCustom();
  ShowGoal(bonusScore, " for bonus round.  ");
}

}  // namespace games::columns
