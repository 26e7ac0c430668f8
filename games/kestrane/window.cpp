// Kestrane's window: its menu, its board, and what it shows.
#include "games/kestrane/window.h"

#include "core/text/number.h"

namespace games::kestrane {
namespace {

constexpr ui::Size Card{69, 94};
constexpr ui::Size Mark{71, 97};
constexpr ui::Size SmallestBoard{628, 410};
constexpr int ButtonsWidth = 84;
constexpr int ColumnStep = 80;
constexpr int RowStep = 26;
constexpr int UpCardStep = 22;
constexpr int BigMessageSize = 16;

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
  words.deckEntries = {{"mnuPalm", "&Palm Tree", core::Design::Palm, 1},
                       {"mnuMagic", "&Magic Hands", core::Design::Magic, 2},
                       {"mnuNight", "&Night Castle", core::Design::Night, 3},
                       {"mnuHot", "&Hot Cards", core::Design::Hot, 4}};
  return words;
}

void PlaceMark(ui::Shape& mark, const ui::Picture& card) {
  mark.Place = {card.Place().x - 1, card.Place().y - 1, Mark.w, Mark.h};
}

}  // namespace

frmKestrane::frmKestrane(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()) {
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
       {{"mnuView", "&View High Scores...", Command::ViewHighScores},
        {"mnuClear", "&Clear High Scores...", Command::ClearHighScores},
        {"mnuMusic", "Play &Music (plays during game)", Command::Music},
        {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
        {"mnuSounds", "&Play Sounds", Command::Sounds},
        {"mnuCustom", "&User Options...", Command::Custom}}},
      {"mnuTime", "&Time Limit", Command::Time, {}, TimeRows()},
      {"mnuDeck", "Dec&k", Command::Other, {}, DeckRows()},
      {"mnuHelp",
       "&Help",
       Command::Other,
       {},
       {{"mnuRules", "&Rules", Command::Rules},
        {"mnuReadme", "&View Readme File", Command::Readme},
        {"mnuAbout", "&About...", Command::About}}},
  });
  PrepareControls();
  ShowCards(false);
  ShowControls(false, true);
}

void frmKestrane::PrepareControls() {
  PlayCardSelection.ForEach([](int, ui::Shape& mark) { mark.LineColor = ui::Red; });
  TempCardSelection.ForEach([](int, ui::Shape& mark) { mark.LineColor = ui::Blue; });
  UpCardSelection.LineColor = ui::Red;
  for (ui::Label* label : {&Message, &lblMessage, &lblFlush}) {
    label->FontSize = BigMessageSize;
    label->Bold = true;
    label->Visible = false;
  }
  lblMessage.TextColor = lblFlush.TextColor = ui::Red;
  Score.Number.Text = "0";
  ScoringLabelOutline.Visible = false;
  BringToFront(Message);
  lblTimeBonus.Visible = false;
  lblHighScore.Wrap = true;
  cmdTakeScore.Enabled = false;
}

// --- the board ----------------------------------------------------------------------------------

void frmKestrane::PlaceBoard(ui::Size inner) {
  const int middle = (inner.w - ButtonsWidth) / 2;
  const int spare = inner.h - SmallestBoard.h;
  PlaceCards(middle, 20 + spare / 4, 139 + spare / 2, 304 + spare * 3 / 4);
  const int top = spare / 2;
  Clock.SetPlace({middle - 264, top + 8});
  core::CenterIn(lblRound, {middle - 268, top + 116, 96, 20});
  Trips.SetPlace({middle - 268, top + 140, 96, 44});
  Runs.SetPlace({middle - 268, top + 190, 96, 44});
  Score.SetPlace({middle + 234, top + 190, 116, 44});
  core::CenterIn(lblHighScore, {middle + 174, top + 240, 178, 36});
  core::CenterIn(lblCardCount, {middle - 270, top + 340, 146, 20});
  const ui::Rect outline{inner.w / 2 - 170, 304 + spare * 3 / 4, 340, 98};
  ScoringLabelOutline.Place = outline;
  core::CenterIn(lblMessage, {outline.x, outline.y + 4, outline.w, 28});
  core::CenterIn(Message, {outline.x, outline.y + 34, outline.w, 30});
}

void frmKestrane::PlaceCards(int middle, int storage, int field, int deck) {
  PlayCard.ForEach([&](int i, ui::Picture& card) {
    const int column = i % Rules::Columns, row = i / Rules::Columns;
    card.Place = {middle - 154 + column * ColumnStep, field + row * RowStep, Card.w, Card.h};
  });
  TempCard.ForEach([&](int i, ui::Picture& card) {
    card.Place = {middle - 114 + i * ColumnStep, storage, Card.w, Card.h};
  });
  UpCard.ForEach([&](int i, ui::Picture& card) {
    card.Place = {middle - 22 + i * UpCardStep, deck, Card.w, Card.h};
  });
  CardStackPicture.Place = {middle - 118, deck, 76, 98};
  FieldRect.Place = {middle - 166, field - 5, 333, 2 * RowStep + Card.h + 11};
  core::CenterIn(lblFieldCards, {middle - 80, field - 22, 160, 16});
  core::CenterIn(lblTemp, {middle - 80, storage - 18, 160, 16});
  PlaceMark(UpCardSelection, UpCard(Rules::Front));
  PlayCardSelection.ForEach([&](int i, ui::Shape& mark) { PlaceMark(mark, PlayCard(i)); });
  TempCardSelection.ForEach([&](int i, ui::Shape& mark) { PlaceMark(mark, TempCard(i)); });
}

}  // namespace games::kestrane
