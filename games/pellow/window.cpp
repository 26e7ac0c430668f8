// Pellow's window: its menu, its board, and what it shows.
#include "games/pellow/window.h"

#include <algorithm>

#include "core/text/number.h"

namespace games::pellow {
namespace {

constexpr ui::Size Card{69, 94};
constexpr ui::Size SelectionFrame{71, 97};
constexpr ui::Size SmallestInner{630, 432};
constexpr int ColumnStep = 78;
constexpr int RowStep = 40;
constexpr int BackgroundMargin = 50 / ui::TwipsPerPixel;  // beyond the last card's frame

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmPellow";
  words.settingsFile = "Pellow.Ini";
  words.exitTip = "Exits the game";
  words.endGameTip = "Ends the current game";
  words.smallestSize = {9570, 7635};
  words.maximizedWidth = "9570";
  words.timeEntries = {{30, "&30 seconds"},  {45, "&45 seconds (default)"}, {60, "&60 seconds"},
                       {75, "&75 seconds"},  {90, "&90 seconds"},           {105, "&105 seconds"},
                       {120, "1&20 seconds"}};
  words.fixedInGame = {"mnuBackGround", "mnuClearBackground"};
  return words;
}

/// Where a field card stands, from the field's top left corner. A row of five and the row of four
/// in its gaps make nine positions.
ui::Point SpotOf(int position) {
  const int rest = position % 9;
  const bool inGap = rest >= TopRow;
  const int row = 2 * (position / 9) + inGap;
  const int x = inGap ? (rest - TopRow) * ColumnStep + ColumnStep / 2 : rest * ColumnStep;
  return {x, row * RowStep};
}

}  // namespace

frmPellow::frmPellow(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()) {
  using core::Command;
  using core::Heading;
  BuildMenu({
      Heading("mnuFile", "&File",
              {{"mnuPlay", "&Play", Command::Play},
               {"mnuPause", "Pau&se", Command::Pause},
               {"mnuTakeScore", "&Take Score", Command::TakeScore},
               {"mnuExit", "E&xit", Command::Exit}}),
      Heading("mnuOptions", "&Options",
              {{"mnuView", "&View High Scores...", Command::ViewHighScores},
               {"mnuClear", "&Clear High Scores...", Command::ClearHighScores},
               {"mnuMusic", "Play &Music (plays during game)", Command::Music},
               {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
               {"mnuSounds", "&Play Sounds", Command::Sounds},
               {"mnuCustom", "&User Options...", Command::Custom},
               {"mnuBackGround", "Set Background Image...", Command::Other,
                [this] { background_.Choose(); }},
               {"mnuClearBackground", "Clear Background Image...", Command::Other,
                [this] { background_.Clear(); }}}),
      {"mnuTime", "&Time Limit", Command::Time, {}, TimeRows()},
      Heading("mnuDeck", "Dec&k", DeckRows()),
      core::HelpMenu(),
  });
  CardStackPicture.OnMouseMove = [this] {
    CardStackPicture.Pointer = CardStackPicture.Key() == "EMPTY" ? "" : "POINTER";
  };
  FieldSelectionRectangle.ForEach([](int, ui::Shape& mark) { mark.LineColor = ui::Red; });
  lblScoring.FontSize = Message.FontSize();
  lblScoring.Bold = true;
  lblScoring.Visible = false;
  cmdTakeScore.Enabled = false;
  ShowCards(false);
  ShowControls(false, false);
  lblHighScore.Visible = true;
}

void frmPellow::Loaded() {
  background_.Show();
  ShowValues();
}

void frmPellow::PlaceBoard(ui::Size inner) {
  const int middle = inner.w / 2;
  const int third = std::max(0, inner.h - SmallestInner.h) / 3;
  const int top = 8 + third;
  const int lower = 276 + 2 * third;
  PlayCard.ForEach([&](int i, ui::Picture& picture) {
    const ui::Point spot = SpotOf(i);
    picture.Place = {middle - 158 + spot.x, top + spot.y, Card.w, Card.h};
  });
  PlayCard(UpPosition).MoveTo(middle + 20, lower);
  FieldSelectionRectangle.ForEach([&](int i, ui::Shape& mark) {
    const ui::Rect card = PlayCard(i).Place();
    mark.Place = {card.x - 1, card.y - 1, SelectionFrame.w, SelectionFrame.h};
  });
  CardStackPicture.Place = {middle - 74, lower, 76, 98};
  lblCardCount.Place = {middle - 92, lower + 104, 100, 18};
  lblCards.Place = {middle + 12, lower + 104, 40, 18};
  core::CenterIn(Message, {middle - 170, top + 90, 340, 40});
  core::CenterIn(lblScoring, {middle - 170, top + 134, 340, 40});
  core::CenterIn(lblHighScore, {middle - 307, inner.h - 28, 240, 20});
  PlaceCounters(middle, top);
  const ui::Rect first = FieldSelectionRectangle(0).Place();
  const ui::Rect last = FieldSelectionRectangle(FieldSize - 1).Place();
  imgBackGround.Place = {first.x, first.y, last.Right() + BackgroundMargin - first.x,
                         last.Bottom() - first.y};
}

void frmPellow::PlaceCounters(int middle, int top) {
  for (core::CounterBox* counter : {&Score, &Round, &Pairs, &Runs}) {
    counter->SetPlace({middle - 307, top, 132, 48});
    top += 52;
  }
  Clock.SetPlace({middle - 283, top + 4});
}

void frmPellow::ShowCards(bool visible) {
  PlayCard.ForEach([&](int i, ui::Picture& picture) {
    if (!rules_.HoldsCard(i)) picture.Border = false;
    if (rules_.HoldsCard(i) || i == UpPosition) picture.Visible = visible;
  });
  if (!visible) FieldSelectionRectangle.Show(false);
  CardStackPicture.Visible = visible;
  imgBackGround.Visible = visible;
}

void frmPellow::ShowControls(bool visible, bool) {
  ShowCardCounters(visible);
  ShowTimerGroup(visible);
  for (core::CounterBox* counter : {&Round, &Pairs, &Runs}) counter->Show(visible);
}

void frmPellow::ShowCardCounters(bool visible) {
  Show(visible, {&lblCards, &lblCardCount, &lblHighScore});
}

/// Cards lie in the order of their positions. An empty place lies behind them all, or it would keep
/// the clicks from the card that it has uncovered.
void frmPellow::ShowBoard() {
  PlayCard.ForEach([&](int i, ui::Picture& picture) {
    const bool held = rules_.HoldsCard(i);
    picture.Show(held ? rules_.FieldCard(i) : i == UpPosition ? "EMPTY" : "");
    picture.Border = held && !rules_.IsSelected(i);
    FieldSelectionRectangle(i).Visible = rules_.IsSelected(i);
    if (held) BringToFront(picture);
    if (rules_.IsSelected(i)) BringToFront(FieldSelectionRectangle(i));
  });
  BringToFront(Message);
  Pairs.Number.Text = core::Digits(rules_.PairCount());
  Runs.Number.Text = core::Digits(rules_.RunCount());
}

void frmPellow::ShowStack() {
  CardStackPicture.Show(rules_.StackPicture());
  lblCards.Text = core::Digits(rules_.StackCount());
}

void frmPellow::ShowValues() {
  Pairs.Caption.Text = "Pairs x " + core::Digits(scoring_.PairsBonus);
  Runs.Caption.Text = "Runs x " + core::Digits(scoring_.RunsBonus);
}

void frmPellow::HideAtExpiry() {
  rules_.ClearSelection();
  ShowBoard();
  ShowCards(false);
}

void frmPellow::PlayCard_MouseMove(int position) {
  if (!rules_.HoldsCard(position)) {
    PlayCard(position).Pointer = "";
  } else if (rules_.IsCardExposed(position)) {
    PlayCard(position).Pointer = "POINTER";
  }
}

void frmPellow::ClearMouseIcon() {
  PlayCard.ForEach([](int, ui::Picture& picture) { picture.Pointer = ""; });
  CardStackPicture.Pointer = "";
}

}  // namespace games::pellow
