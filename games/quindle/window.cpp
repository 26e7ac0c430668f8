// Quindle's window: its menu, its board, and what it shows.
#include "games/quindle/window.h"

#include <algorithm>

#include "core/text/number.h"

namespace games::quindle {
namespace {

constexpr ui::Size Card{69, 94};
constexpr ui::Size SelectionFrame{71, 97};

struct SelectionColorEntry {
  const char* name;
  const char* caption;
  ui::Color color;
};
constexpr SelectionColorEntry Colors[] = {
    {"mnuYellow", "&Yellow", ui::Yellow},    {"mnuRed", "&Red (Default)", ui::Red},
    {"mnuBlue", "&Blue", ui::Blue},          {"mnuGreen", "&Green", ui::Green},
    {"mnuPurple", "&Purple", {128, 0, 128}}, {"mnuBlack", "&Black", ui::Black}};

constexpr const char* GoalCaptions[] = {
    "Tens:", "Elevens:", "Twelves:", "Thirteens:", "Fourteens:", "Fifteens:"};

/// Where each slot stands: columns and rows in half cards from the middle of the field's top.
struct Spot {
  double column;
  int row;
};
constexpr Spot Spots[FieldSlots] = {
    {0, 0},  {-2.5, 1}, {2.5, 1},  {-0.5, 1}, {0.5, 1},  {-3, 2},  {-2, 2},  {0, 2},
    {2, 2},  {3, 2},    {-3.5, 3}, {-2.5, 3}, {-1.2, 3}, {1.2, 3}, {2.5, 3}, {3.5, 3},
    {-3, 4}, {-2, 4},   {2, 4},    {3, 4},    {-2.5, 5}, {2.5, 5}};
constexpr int RowStep = 31;
constexpr int ColumnStep = 66;

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmQuindle";
  words.settingsFile = "Quindle.Ini";
  words.exitCaption = "&Exit";
  words.exitTip = "Ends Quindle!";
  words.titleInterval = 250;
  words.splashPictures = 4;
  words.splashFace = "QDLE";
  words.smallestSize = {9645, 7620};
  words.timeEntries = {{30, "&30 Seconds"},   {60, "&60 Seconds"},   {90, "&90 Seconds (default)"},
                       {120, "1&20 Seconds"}, {150, "1&50 Seconds"}, {180, "1&80 Seconds"}};
  words.deckEntries = {{"mnuPalm", "&Palm Tree", core::Design::Palm, 1},
                       {"mnuMagic", "&Magic Hands", core::Design::Magic, 2},
                       {"mnuNight", "&Night Castle", core::Design::Night, 3},
                       {"mnuHot", "&Hot Cards", core::Design::Hot, 4}};
  words.fixedInGame = {"mnuGoal", "mnuSave", "mnuOpen"};
  return words;
}

}  // namespace

frmQuindle::frmQuindle(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()) {
  using core::Command;
  BuildMenu({
      {"mnuFile",
       "&Game",
       Command::Other,
       {},
       {{"mnuPlay", "&Play", Command::Play},
        {"mnuTakeScore", "&Take Score", Command::TakeScore, [this] { TakeScoreFromMenu(); }},
        {"mnuPause", "Pau&se", Command::Pause},
        {"mnuSave", "Sa&ve Last Game...", Command::Other, [this] { mnuSave_Click(); }},
        {"mnuOpen", "&Open Game...", Command::Other, [this] { mnuOpen_Click(); }},
        {"mnuExit", "E&xit", Command::Exit}}},
      {"mnuOptions",
       "&Options",
       Command::Other,
       {},
       {{"mnuViewHiScore", "&View High Scores...", Command::ViewHighScores},
        {"mnuClear", "&Clear High Scores...", Command::ClearHighScores},
        {"mnuTime", "&Time Limit", Command::Time, {}, TimeRows()},
        {"mnuGoal", "Card &Goal", Command::Other, {}, GoalRows()},
        {"mnuScoring", "User Options...", Command::Custom},
        {"mnuMusic", "Play &Music (plays during game)", Command::Music},
        {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
        {"mnuSounds", "&Play Sounds", Command::Sounds},
        {"mnuDrawTimer", "Count &Down when taking score", Command::Other,
         [this] { mnuDrawTimer_Click(); }},
        {"mnuColor", "&Card Selection Color", Command::Other, {}, ColorRows()}}},
      {"mnuDeck", "Dec&k", Command::Other, {}, DeckRows()},
      core::HelpMenu("&Rules...", "&About..."),
  });
  Score.Caption.Tip = Score.Number.Tip = "Displays your Current Score";
  Score.Number.OnChange = [this] { lblCurrentScore_Change(); };
  Message.OnChange = [this] { lblMessage_Change(); };
  PlayCardPicture.OnMouseMove = [this] { PlayCardPicture_MouseMove(); };
  UpCardPicture.OnMouseMove = [this] { UpCardPicture_MouseMove(); };
  cmdTakeScore.Enabled = false;
  ShowCards(false);
  ShowControls(false, false);
}

std::vector<core::MenuRow> frmQuindle::GoalRows() {
  std::vector<core::MenuRow> rows;
  for (std::int16_t goal = SmallestGoal; goal <= LargestGoal; ++goal) {
    const std::string number = std::to_string(goal);
    rows.push_back({"mnu" + number, "&" + number + (goal == 11 ? " (default)" : ""),
                    core::Command::Other, [this, goal] { ChooseGoal(goal); }});
  }
  return rows;
}

std::vector<core::MenuRow> frmQuindle::ColorRows() {
  std::vector<core::MenuRow> rows;
  for (int i = 0; i < static_cast<int>(std::size(Colors)); ++i) {
    rows.push_back({Colors[i].name, Colors[i].caption, core::Command::Other,
                    [this, i] { SelectionColor(i); }});
  }
  return rows;
}

void frmQuindle::Loaded() {
  ShowModeInCaption();
  SetCardValues(rules_.EnhancedScoring);
  SelectionColor(SelectionColorIndex);
  if (ui::Menu* mark = Menus.Named("mnuDrawTimer")) mark->Checked = shared.CountDownScoring;
  Menus.Named("mnuSave")->Enabled = false;
  Title.imgSplashImage.ForEach([](int, ui::Picture& picture) { picture.Show("QDLE"); });
  FieldCardPicture.ForEach([](int, ui::Picture& picture) { picture.Pointer = "POINTER"; });
  PlayCardPicture.Pointer = UpCardPicture.Pointer = "POINTER";
}

void frmQuindle::ShowModeInCaption() {
  const std::string mode = rules_.EnhancedScoring ? " - Enhanced Scoring" : "";
  Caption = shared.GameTitle + mode;
  Title.lblProductName.Text = shared.GameTitle + mode;
}

// --- the board ----------------------------------------------------------------------------------

void frmQuindle::PlaceBoard(ui::Size inner) {
  const int middle = (inner.w - 84) / 2;
  const int spare = std::max(0, inner.h - 433);
  const int top = std::max(6, spare / 4);
  FieldCardPicture.ForEach([&](int i, ui::Picture& picture) {
    const Spot spot = Spots[i];
    picture.Place = {middle + static_cast<int>(spot.column * ColumnStep) - Card.w / 2,
                     top + spot.row * RowStep, Card.w, Card.h};
    FieldSelectionRectangle(i).Place = {picture.Place().x - 1, picture.Place().y - 1,
                                        SelectionFrame.w, SelectionFrame.h};
  });
  const int lower = inner.h - 138 - spare / 3;
  PlayCardPicture.Place = {middle - 90, lower, 76, 98};
  UpCardPicture.Place = {middle + 14, lower, Card.w, Card.h};
  UpCardSelectionRectangle.Place = {middle + 13, lower - 1, SelectionFrame.w, SelectionFrame.h};
  core::CenterIn(lblCardCount, {middle - 110, lower + 102, 116, 20});
  Clock.SetPlace({inner.w - 92, inner.h - 196});
  Round.SetPlace({inner.w - 92, inner.h - 84, 84, 44});
  Score.SetPlace({12, inner.h - 84, 116, 44});
  Elevens.SetPlace({12, inner.h - 134, 116, 44});
  core::CenterIn(lblHighScore, {4, inner.h - 36, 240, 20});
  lblHighScore.Alignment = ui::Align::Left;
  lblHighScore.MoveTo(12, inner.h - 36);
  Total.SetPlace({middle + 110, lower + 24, 84, 44});
  lblMessage_Change();
}

void frmQuindle::lblMessage_Change() {
  const bool atPile = Message.Text == "Times Up!" || Message.Text == "Game Paused";
  const ui::Size inner = InnerSize();
  const int y = (atPile ? PlayCardPicture.Place() : Total.Frame.Rectangle.Place()).y;
  core::CenterIn(Message, {0, y, inner.w - 84, 40});
}

void frmQuindle::lblCurrentScore_Change() {
  Score.Number.TextColor = shared.CurrentScore >= 0 ? ui::Blue : ui::Red;
}

void frmQuindle::ShowCards(bool visible) {
  FieldCardPicture.ForEach(
      [&](int i, ui::Picture& picture) { picture.Visible = visible && rules_.HoldsCard(i); });
  ShowLowerCards(visible);
  if (!visible) HideSelection();
}

void frmQuindle::ShowControls(bool visible, bool) {
  ShowTimerGroup(visible);
  Round.Show(visible);
  Elevens.Show(visible);
  ShowTotalGroup(visible);
}

void frmQuindle::ShowFieldCard(int slot) {
  ui::Picture& picture = FieldCardPicture(slot);
  picture.Visible = rules_.HoldsCard(slot);
  if (!rules_.HoldsCard(slot)) return;
  picture.Show(rules_.FieldCard(slot));
  picture.Border = true;
}

void frmQuindle::TurnFieldCards(bool faceUp) {
  for (int slot = 0; slot < FieldSlots; ++slot) {
    if (!rules_.HoldsCard(slot)) continue;
    FieldCardPicture(slot).Show(faceUp ? rules_.FieldCard(slot) : "BACK");
    FieldCardPicture(slot).Border = faceUp;
  }
}

void frmQuindle::ShowUpCard() {
  UpCardPicture.Show(rules_.UpCount > 0 ? rules_.UpCard() : "EMPTY");
  UpCardPicture.Border = rules_.UpCount > 0;
}

void frmQuindle::ShowLowerCards(bool visible) {
  PlayCardPicture.Visible = visible;
  UpCardPicture.Visible = visible;
  lblCardCount.Visible = visible;
  if (!visible) UpCardSelectionRectangle.Visible = false;
}

void frmQuindle::ShowTotalGroup(bool visible) {
  Total.Show(visible);
}

void frmQuindle::HideSelection() {
  FieldSelectionRectangle.Show(false);
  UpCardSelectionRectangle.Visible = false;
}

void frmQuindle::RefreshPlayCard() {
  const int left = rules_.StockTop + 1;
  PlayCardPicture.Show(left >= 21 ? "FULL" : left >= 11 ? "HALF" : left >= 1 ? "BACK" : "EMPTY");
}

void frmQuindle::WriteCounters() {
  WriteScore();
  Elevens.Number.Text = core::Digits(rules_.ElevensCount);
  Total.Number.Text = core::Digits(rules_.CardTotal);
}

void frmQuindle::SetCardValues(bool enhanced) {
  FieldCardPicture.ForEach([&](int i, ui::Picture& picture) {
    picture.Tip = core::Digits(SlotPoints(i, enhanced)) + " points";
  });
  UpCardPicture.Tip = core::Digits(enhanced ? 0 : StandardUpCardPoints) + " points";
}

void frmQuindle::ShowUpCardWorth() {
  if (rules_.EnhancedScoring) UpCardPicture.Tip = core::Digits(rules_.UpCardWorth()) + " points";
}

std::string frmQuindle::SetsName() const {
  std::string name = Elevens.Caption.Text();
  if (!name.empty() && name.back() == ':') name.pop_back();
  return name;
}

// --- pausing ------------------------------------------------------------------------------------

void frmQuindle::PauseBoard() {
  rules_.DropSelection();
  TurnFieldCards(false);
  ShowTotalGroup(false);
  ShowLowerCards(false);
  HideSelection();
}

void frmQuindle::ResumeBoard() {
  TurnFieldCards(true);
  if (!GameInProgress) return;
  ShowTotalGroup(true);
  WriteCounters();
  ShowLowerCards(true);
}

void frmQuindle::HideAtExpiry() {
  ShowLowerCards(false);
  HideSelection();
}

/// What it leads to is a click on Take Score, after which the music plays.
void frmQuindle::TimeIsUp() {
  GameWindow::TimeIsUp();
  if (GameInProgress) StartMusic();
}

// --- the pointer --------------------------------------------------------------------------------

void frmQuindle::FieldCardPicture_MouseMove(int i) {
  if (Message.Text == "Game Over") return;
  FieldCardPicture(i).Pointer = rules_.CheckLegalFieldCardMove(i) ? "POINTER" : "";
}

void frmQuindle::PointAt(ui::Picture& place) {
  place.Pointer = place.Key() == "EMPTY" || Message.Text == "Game Over" ? "" : "POINTER";
}

// --- options ------------------------------------------------------------------------------------

void frmQuindle::ChooseGoal(std::int16_t goal) {
  rules_.CardGoal = goal;
  ShowGoalMark();
  ShowTableTop();
  StatusBar1(2).Text = "Click on exposed cards to total " + core::Digits(goal) + "!   ";
}

void frmQuindle::ShowGoalMark() {
  for (std::int16_t goal = SmallestGoal; goal <= LargestGoal; ++goal) {
    Menus.Named("mnu" + std::to_string(goal))->Checked = goal == rules_.CardGoal;
    if (goal == rules_.CardGoal) Elevens.Caption.Text = GoalCaptions[goal - SmallestGoal];
  }
}

void frmQuindle::SelectionColor(int index) {
  SelectionColorIndex = index;
  for (int i = 0; i < static_cast<int>(std::size(Colors)); ++i) {
    Menus.Named(Colors[i].name)->Checked = i == index;
  }
  const ui::Color color = Colors[index].color;
  FieldSelectionRectangle.ForEach([&](int, ui::Shape& frame) { frame.LineColor = color; });
  UpCardSelectionRectangle.LineColor = color;
}

void frmQuindle::mnuDrawTimer_Click() {
  shared.CountDownScoring = !shared.CountDownScoring;
  Menus.Named("mnuDrawTimer")->Checked = shared.CountDownScoring;
}

}  // namespace games::quindle
