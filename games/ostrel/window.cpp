// Ostrel's window: its menu, where its board stands, and what it shows.
#include "games/ostrel/window.h"

#include "core/text/number.h"

namespace games::ostrel {
namespace {

constexpr ui::Size Card{69, 94};
constexpr ui::Size Stack{76, 98};
constexpr ui::Size BackGround{640, 360};
constexpr ui::Size Counter{116, 44};
constexpr int StackDistance = 300 / ui::TwipsPerPixel;
constexpr int MessageRise = 950 / ui::TwipsPerPixel;

/// Where each position stands, in half cards from the top left corner of the field.
struct Spot {
  int column;
  int row;
};
// clang-format off
constexpr std::array<Spot, FieldSize> Spots = {{
    {3, 0}, {9, 0}, {15, 0},
    {2, 1}, {4, 1}, {8, 1}, {10, 1}, {14, 1}, {16, 1},
    {1, 2}, {3, 2}, {5, 2}, {7, 2}, {9, 2}, {11, 2}, {13, 2}, {15, 2}, {17, 2},
    {0, 3}, {2, 3}, {4, 3}, {6, 3}, {8, 3}, {10, 3}, {12, 3}, {14, 3}, {16, 3}, {18, 3},
}};
// clang-format on
constexpr int FieldWidth = 10 * Card.w;

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmOstrel";
  words.settingsFile = "Ostrel.Ini";
  words.exitTip = "Exits the game";
  words.endGameTip = "Ends the current game";
  words.playMenuFollows = false;
  words.highScorePrefix = "High Score: ";
  words.openingSize = {9570, 7200};
  words.smallestSize = {11160, 7630};
  words.maximizedWidth = "9570";
  words.timeEntries = {{30, "&30 seconds"},
                       {45, "&45 seconds (default)"},
                       {60, "&60 seconds"},
                       {90, "&90 seconds "}};
  words.fixedInGame = {"mnuClearHighRun"};
  return words;
}

}  // namespace

frmOstrel::frmOstrel(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()) {
  using core::Command;
  BuildMenu({
      core::Heading("mnuGame", "&Game",
                    {{"mnuPlay", "&Play", Command::Play},
                     {"mnuPause", "Pau&se", Command::Pause},
                     {"mnuTakeScore", "&Take Score", Command::TakeScore},
                     {"mnuExit", "E&xit", Command::Exit}}),
      core::Heading("mnuOptions", "&Options",
                    {{"mnuViewHiScore", "&View High Scores...", Command::ViewHighScores},
                     {"mnuClearHighScores", "&Clear High Scores...", Command::ClearHighScores},
                     {"mnuClearHighRun", "Clear &High Run", Command::Other,
                      [this] { mnuClearHighRun_Click(); }},
                     {"mnuMusic", "Play &Music (plays during game)", Command::Music},
                     {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
                     {"mnuSounds", "&Play Sounds", Command::Sounds},
                     {"mnuCustom", "&User Options...", Command::Custom},
                     {"mnuTime", "&Time Limit", Command::Time, {}, TimeRows()}}),
      core::Heading("mnuDeck", "Dec&k", DeckRows()),
      core::HelpMenu(),
  });
  for (int tower = 1; tower <= Towers; ++tower) {
    TowerLabel(tower).Text = "Tower " + core::Digits(tower) + " Completed!";
    TowerLabel(tower).Bold = true;
  }
  imgBackGround.ShowArtwork("background", "");
  imgBackGround.Visible = false;
  SendToBack(imgBackGround);
  UpCardPicture.Border = true;
  lblScoring.FontSize = 18;
  lblScoring.Bold = true;
  lblScoring.Visible = false;
  cmdTakeScore.Enabled = false;
  ShowCards(false);
  ShowControls(false, true);
}

// --- the board ----------------------------------------------------------------------------------

void frmOstrel::PlaceBoard(ui::Size inner) {
  const int middle = inner.w / 2;
  const int left = middle - FieldWidth / 2;
  const int top = inner.h / 2 - 2 * Card.h;
  UpCardImage.ForEach([&](int p, ui::Picture& picture) {
    const Spot spot = Spots[static_cast<std::size_t>(p)];
    picture.Place = {left + spot.column * Card.w / 2, top + spot.row * Card.h / 2, Card.w, Card.h};
  });
  for (int peak = 0; peak < Towers; ++peak) {
    const ui::Rect place = UpCardImage(peak).Place();
    core::CenterIn(TowerLabel(peak + 1), {place.CenterX() - 80, place.y + 12, 160, 20});
  }
  imgBackGround.Place = {middle - BackGround.w / 2, inner.h / 2 - BackGround.h / 2, BackGround.w,
                         BackGround.h};
  const int lower = UpCardImage(FieldSize - 1).Place().Bottom() + StackDistance;
  CardStackPicture.Place = {middle - 8 - Stack.w, lower, Stack.w, Stack.h};
  UpCardPicture.Place = {middle + 8, lower, Card.w, Card.h};
  core::CenterIn(Message, {0, inner.h / 2 - MessageRise, inner.w, 60});
  core::CenterIn(lblScoring, {0, inner.h / 2 + 4, inner.w, 32});
  PlaceCounters(inner);
}

/// Below the towers, which reach to the right edge: the counters and the buttons.
void frmOstrel::PlaceCounters(ui::Size inner) {
  const ui::Rect stack = CardStackPicture.Place();
  core::CenterIn(lblCardCount, {stack.x - 34, stack.Bottom() + 4, 110, 20});
  lblCards.Place = {stack.x + 80, stack.Bottom() + 4, 40, 20};
  int line = stack.y;
  for (ui::Label* label : {&lblCurrentRun, &lblHighRun, &lblNextCard}) {
    label->Place = {stack.Right() + 100, line, 190, 20};
    line += 24;
  }
  const int bottom = inner.h - 8;
  Clock.SetPlace({8, bottom - core::RoundClock::Extent.h});
  Score.SetPlace({100, bottom - Counter.h, Counter.w, Counter.h});
  Round.SetPlace({100, bottom - 2 * Counter.h - 8, Counter.w, Counter.h});
  lblHighScore.Place = {8, bottom - core::RoundClock::Extent.h - 28, 230, 20};
  lblHighScore.Alignment = ui::Align::Left;
  int top = inner.h - 155;
  for (ui::Button* button : {&cmdPlay, &cmdPause, &cmdTakeScore, &cmdExit}) {
    button->MoveTo(button->Place().x, top);
    top += 36;
  }
}

void frmOstrel::ShowCards(bool visible, bool setBorders) {
  UpCardImage.Show(visible);
  for (int tower = 1; tower <= Towers; ++tower) TowerLabel(tower).Visible = visible;
  CardStackPicture.Visible = visible;
  UpCardPicture.Visible = visible;
  if (!setBorders) return;
  for (int p = 0; p < CoveredCards; ++p) UpCardImage(p).Border = false;
}

void frmOstrel::ShowControls(bool visible, bool keep) {
  ShowScoreGroup(keep);
  Show(visible,
       {&lblCurrentRun, &lblHighRun, &lblHighScore, &lblCardCount, &lblCards, &lblNextCard});
  ShowTimerGroup(visible);
  Round.Show(visible);
}

void frmOstrel::ResumeBoard() {
  imgBackGround.Visible = true;
  ShowField();
  ShowTowerLabels();
  CardStackPicture.Visible = true;
  UpCardPicture.Visible = true;
}

void frmOstrel::ShowTowerLabels() {
  for (int tower = 1; tower <= Towers; ++tower) {
    TowerLabel(tower).Visible = rules_.TowerComplete(tower);
  }
}

void frmOstrel::ShowField() {
  UpCardImage.ForEach([this](int p, ui::Picture& picture) {
    const bool faceUp = rules_.FaceUp(p);
    picture.Visible = rules_.Holds(p);
    picture.Show(rules_.Holds(p) && !faceUp ? "BACK" : rules_.CardAt(p));
    picture.Border = faceUp;
  });
}

void frmOstrel::ShowStack() {
  CardStackPicture.Show(rules_.StackPicture());
  UpCardPicture.Show(rules_.UpCard());
  lblCards.Text = core::Digits(rules_.CardsLeft);
}

/// A field that a pause hides gets the new back when it returns.
void frmOstrel::DeckChosen() {
  CardStackPicture.Show(rules_.StackPicture());
  if (CardStackPicture.Visible()) ShowField();
}

void frmOstrel::ShowRun() {
  lblCurrentRun.Text = "Current Run: " + core::Digits(rules_.CurrentRun);
  lblNextCard.Text = "Next card worth: " + core::Digits(rules_.NextCardValue()) + " points";
  ShowHighRun();
}

void frmOstrel::ShowHighRun() {
  lblHighRun.Text = "Highest Run: " + core::Digits(rules_.HighRun);
}

// --- the pointer --------------------------------------------------------------------------------

void frmOstrel::UpCardImage_MouseMove(int position) {
  if (rules_.Exposed(position) && rules_.IsNextInRun(position)) {
    UpCardImage(position).Pointer = "POINTER";
  }
}

void frmOstrel::ClearPointers() {
  UpCardImage.ForEach([](int, ui::Picture& picture) { picture.Pointer = ""; });
}

}  // namespace games::ostrel
