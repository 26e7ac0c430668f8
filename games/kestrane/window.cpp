// Kestrane's window: its menu, where its board stands, and what it shows.
#include "games/kestrane/window.h"

#include "core/text/number.h"

namespace games::kestrane {
namespace {

constexpr ui::Size Card{69, 94};
constexpr ui::Size Mark{71, 97};
constexpr int SmallestHeight = 410;  // of the inner area
constexpr int ButtonsWidth = 84;
constexpr int RowStep = 26;
constexpr int TitleOffset = 100 / ui::TwipsPerPixel;  // of the speed bonus, from its amount

/// Where the first card of an area stands, and how far the next one is from it.
struct Row {
  int x, y, step;
};

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmKestrane";
  words.settingsFile = "Kestrane.Ini";
  words.exit = "cmdQuit";
  words.exitTip = "Closes Kestrane";
  words.message = "lblScoring";
  words.smallestSize = {9540, 7305};
  words.maximizedHeight = "7305";
  words.timeEntries = {{60, "&60 seconds"},
                       {75, "&75 seconds"},
                       {90, "&90 seconds"},
                       {105, "&105 seconds"},
                       {120, "1&20 seconds (default)"},
                       {135, "1&35 seconds"},
                       {150, "1&50 seconds"},
                       {180, "1&80 seconds"}};
  return words;
}

}  // namespace

frmKestrane::frmKestrane(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()) {
  using core::Command;
  BuildMenu({
      core::Heading("mnuFile", "&File",
                    {{"mnuPlay", "&Play", Command::Play},
                     {"mnuPause", "Pau&se", Command::Pause},
                     {"mnuExit", "E&xit", Command::Exit}}),
      core::Heading("mnuOptions", "&Options",
                    {{"mnuView", "&View High Scores...", Command::ViewHighScores},
                     {"mnuClear", "&Clear High Scores...", Command::ClearHighScores},
                     {"mnuMusic", "Play &Music (plays during game)", Command::Music},
                     {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
                     {"mnuSounds", "&Play Sounds", Command::Sounds},
                     {"mnuCustom", "&User Options...", Command::Custom}}),
      {"mnuTime", "&Time Limit", Command::Time, {}, TimeRows()},
      core::Heading("mnuDeck", "Dec&k", DeckRows()),
      core::HelpMenu("&Rules", "&About..."),
  });
  for (Spot spot : AllSpots) {
    PictureOf(spot).OnMouseMove = [this, spot] { PointAt(spot); };
    MarkOf(spot).LineColor = spot.area == Area::Storage ? ui::Blue : ui::Red;
  }
  for (ui::Label* label : {&Message, &lblMessage, &lblFlush}) {
    label->FontSize = 16;
    label->Bold = true;
    label->Visible = false;
  }
  lblMessage.TextColor = lblFlush.TextColor = ui::Red;
  BringToFront(Message);
  Message.OnChange = [this] { CenterScoringLabel(); };
  ScoringLabelOutline.Visible = lblTimeBonus.Visible = cmdTakeScore.Enabled = false;
  lblHighScore.Wrap = true;
  ShowCards(false);
  ShowControls(false, true);
}

// --- where it stands ----------------------------------------------------------------------------

void frmKestrane::PlaceBoard(ui::Size inner) {
  const int middle = (inner.w - ButtonsWidth) / 2;
  const int spare = inner.h - SmallestHeight;
  const int top = spare / 2, deckTop = 304 + spare * 3 / 4;
  PlaceCards(middle, 20 + spare / 4, 139 + top, deckTop);
  Clock.SetPlace({middle - 264, top + 8});
  core::CenterIn(lblRound, {middle - 268, top + 116, 96, 20});
  Trips.SetPlace({middle - 268, top + 140, 96, 44});
  Runs.SetPlace({middle - 268, top + 190, 96, 44});
  // Beside the deck, where the title panel leaves them free.
  Score.SetPlace({middle + 234, deckTop + 34, 116, 44});
  core::CenterIn(lblHighScore, {middle + 174, deckTop + 82, 178, 20});
  core::CenterIn(lblCardCount, {middle - 270, deckTop + 36, 146, 20});
  const ui::Rect outline{inner.w / 2 - 170, deckTop, 340, 98};
  ScoringLabelOutline.Place = outline;
  core::CenterIn(lblMessage, {outline.x - TitleOffset, outline.y + 4, outline.w, 28});
  core::CenterIn(Message, {outline.x, outline.y + 34, outline.w, 30});
}

void frmKestrane::PlaceCards(int middle, int storageTop, int fieldTop, int deckTop) {
  const Row rows[] = {
      {middle - 22, deckTop, 22}, {middle - 114, storageTop, 80}, {middle - 154, fieldTop, 80}};
  for (Spot spot : AllSpots) {
    const Row& row = rows[static_cast<int>(spot.area)];
    const int x = row.x + spot.index % Columns * row.step;
    const int y = row.y + spot.index / Columns * RowStep;
    PictureOf(spot).Place = {x, y, Card.w, Card.h};
    MarkOf(spot).Place = {x - 1, y - 1, Mark.w, Mark.h};
  }
  CardStackPicture.Place = {middle - 118, deckTop, 76, 98};
  FieldRect.Place = {middle - 166, fieldTop - 5, 333, 2 * RowStep + Card.h + 11};
  core::CenterIn(lblFieldCards, {middle - 80, fieldTop - 22, 160, 16});
  core::CenterIn(lblTemp, {middle - 80, storageTop - 18, 160, 16});
}

// --- what it shows ------------------------------------------------------------------------------

ui::Picture& frmKestrane::PictureOf(Spot spot) {
  if (spot.area == Area::UpCards) return UpCard(spot.index);
  return spot.area == Area::Storage ? TempCard(spot.index) : PlayCard(spot.index);
}

ui::Shape& frmKestrane::MarkOf(Spot spot) {
  if (spot.area == Area::UpCards) return UpCardSelection;
  return spot.area == Area::Storage ? TempCardSelection(spot.index) : PlayCardSelection(spot.index);
}

// A column shows only in its first row that it is empty.
void frmKestrane::ShowField() {
  for (Spot spot : AllSpots) {
    ui::Picture& picture = PictureOf(spot);
    const bool vanishes = spot.area == Area::Field && spot.index >= Columns;
    picture.Border = rules_.HasCard(spot);
    picture.Show(picture.Border ? rules_.KeyAt(spot) : vanishes ? "" : "EMPTY");
    if (vanishes) picture.Visible = rules_.HasCard(spot);
  }
}

void frmKestrane::UpDateDeck() {
  CardStackPicture.Show(rules_.StackPicture());
  lblCardCount.Text = "Cards remaining: " + core::Digits(rules_.CardsRemaining());
}

void frmKestrane::ShowDeck(bool visible) {
  UpCard.Show(visible);
  CardStackPicture.Visible = visible;
  if (!visible) UpCardSelection.Visible = false;
}

void frmKestrane::ShowSelection(bool visible) {
  for (Spot spot : AllSpots) MarkOf(spot).Visible = visible && spot == rules_.Selected();
}

void frmKestrane::ShowCards(bool visible) {
  ShowDeck(visible);
  TempCard.Show(visible);
  PlayCard.ForEach([&](int i, ui::Picture& picture) {
    picture.Visible = visible && (i < Columns || rules_.HasCard({Area::Field, i}));
  });
  ShowSelection(visible);
}

void frmKestrane::ShowControls(bool visible, bool) {
  Score.Show(true);
  ShowTimerGroup(visible);
  Trips.Show(visible);
  Runs.Show(visible);
  Show(visible, {&lblHighScore, &lblCardCount, &lblRound, &lblTemp, &lblFieldCards, &FieldRect});
}

void frmKestrane::WriteCounts() {
  Trips.Number.Text = core::Digits(rules_.TripCount);
  Runs.Number.Text = core::Digits(rules_.RunCount);
}

void frmKestrane::ShowFlushMessage(Spot spot) {
  core::CenterIn(lblFlush, PictureOf(spot).Place());
  lblFlush.Visible = true;
  suite.platform.Repaint(*this);
}

void frmKestrane::PauseBoard() {
  ShowCards(false);
  ShowControls(false, true);
  Message.TextColor = ui::Blue;
}

void frmKestrane::ResumeBoard() {
  if (!shared.GameActive) return;
  ShowCards(true);
  ShowControls(true, true);
}

void frmKestrane::HideAtExpiry() {
  ShowDeck(false);
  lblCardCount.Visible = false;
  Wave("Slide.wav");
}

void frmKestrane::PointAt(Spot spot) {
  PictureOf(spot).Pointer = rules_.AnswerTo(spot) == Answer::Refused ? "" : "POINTER";
}

void frmKestrane::ClearPointers(bool frontToo) {
  for (Spot spot : AllSpots) {
    if (frontToo || spot.area != Area::UpCards) PictureOf(spot).Pointer = "";
  }
}

}  // namespace games::kestrane
