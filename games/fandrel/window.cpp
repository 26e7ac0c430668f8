// Fandrel's window: its menu, its board, and what it shows.
#include "games/fandrel/window.h"

#include "core/text/number.h"

namespace games::fandrel {
namespace {

constexpr ui::Size Card{69, 94};
constexpr ui::Size SelectionFrame{71, 97};
constexpr int LowerStep = 84;
constexpr int UpperStep = 96;
constexpr int RaisedBy = 800 / ui::TwipsPerPixel;
constexpr int MessageHeight = 40;
constexpr int ButtonColumn = 88;

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmFandrel";
  words.settingsFile = "Fandrel.Ini";
  words.exitTip = "Closes Fandrel";
  words.score = "lblTotalScore";
  words.welcomeEnd = "   ";
  words.smallestSize = {9540, 7305};
  words.maximizedHeight = "7305";
  words.timeEntries = {{60, "&60 Seconds"},
                       {75, "&75 Seconds"},
                       {90, "&90 Seconds  (default)"},
                       {105, "&105 Seconds"},
                       {120, "1&20 Seconds"}};
  words.deckEntries = {{"mnuPalm", "&Palm Tree", core::Design::Palm, 1},
                       {"mnuNight", "&Night Castle", core::Design::Night, 2},
                       {"mnuMagic", "&Magic Hands", core::Design::Magic, 3},
                       {"mnuHot", "&Hot Cards", core::Design::Hot, 4}};
  return words;
}

}  // namespace

frmFandrel::frmFandrel(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()),
      Bonuses(*this, suite, Clock, {Message, lblScoring, Score.Number},
              {.placeSpeedBonus = [this] { RaiseMessage(InnerSize().h / 2 - RaisedBy); },
               .placeBonus = [this] { RaiseMessage(Message.Place().y - RaisedBy); }}) {
  using core::Command;
  BuildMenu({core::Heading("mnuFile", "&File",
                           {{"mnuPlay", "&Play", Command::Play},
                            {"mnuPause", "Pau&se", Command::Pause},
                            {"mnuExit", "E&xit", Command::Exit}}),
             core::Heading("mnuOptions", "&Options",
                           {{"mnuViewHighScores", "&View High Scores...", Command::ViewHighScores},
                            {"mnuClearHighScores", "&Clear High Scores", Command::ClearHighScores},
                            {"mnuMusic", "Play &Music  (plays during game)", Command::Music},
                            {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
                            {"mnuSounds", "&Play Sounds", Command::Sounds},
                            {"mnuCustom", "&User Options...", Command::Custom},
                            {"mnuTime", "Time Limit", Command::Time, {}, TimeRows()}}),
             core::Heading("mnuDeck", "Deck", DeckRows()), core::HelpMenu()});
  Score.Caption.Tip = Score.Number.Tip = "Displays your Current Score";
  imgUpperCard(1).Tip = "Upper spot one";
  imgUpperCard(2).Tip = "Upper spot two";
  imgUpperCard(3).Tip = "Lower spot three";
  DeckCards.Tip = "A deck of cards";
  ProgressBar1.Tip = "Move Timer";
  FieldSelectionRectangle.ForEach([](int, ui::Shape& frame) { frame.LineColor = ui::Red; });
  lbl100.ForEach([](int, ui::Label& label) {
    label.Bold = true;
    label.FontSize = 12;
    label.TextColor = ui::Blue;
  });
  for (ui::Line* line : {&X1, &X2}) {
    line->LineColor = ui::Red;
    line->Thickness = 4;
  }
  X2.Rising = true;
  lblWild.TextColor = ui::Red;
  lblWild.Bold = lblCurrentGameTime.Bold = lblScoring.Bold = true;
  lblWild.FontSize = lblCurrentGameTime.FontSize = 14;
  lblCurrentGameTime.TextColor = ui::Blue;
  lblScoring.FontSize = 18;
  lblScoring.Visible = false;
  Message.OnChange = [this] { CenterMessage(); };
  BringToFront(Message);
  moveTimer_ = ProgressBar1.Max + ProgressBar1.Min - ProgressBar1.Value();
  lblCurrentGameTime.Text = core::Digits(moveTimer_);
  ShowCards(false);
  ShowControls(false, false);
  lblHighScore.Visible = false;
}

// --- the board ----------------------------------------------------------------------------------

void frmFandrel::PlaceBoard(ui::Size inner) {
  const int middle = (inner.w - ButtonColumn) / 2;
  const int top = (inner.h - 400) / 3 + 6;
  const int spots = middle - 60;
  imgUpperCard.ForEach([&](int j, ui::Picture& spot) {
    spot.Place = {spots + (j - 1) * UpperStep, top + 26, Card.w, Card.h};
    core::CenterIn(lbl100(j), {spot.Place().x - 12, top, Card.w + 24, 22});
  });
  DeckCards.Place = {middle - 204, top + 26, 76, 98};
  core::CenterIn(lblCardCount, {middle - 240, top + 126, 148, 20});
  const int bar = top + 156;
  ProgressBar1.Place = {middle - 110, bar, 220, 20};
  lblCurrentGameTime.Place = {ProgressBar1.Place().Right() + 150 / ui::TwipsPerPixel, bar - 2, 48,
                              24};
  imgPlayCard.ForEach([&](int i, ui::Picture& spot) {
    spot.Place = {middle + (i - 3) * LowerStep - Card.w / 2, bar + 34, Card.w, Card.h};
    FieldSelectionRectangle(i).Place = {spot.Place().x - 1, spot.Place().y - 1, SelectionFrame.w,
                                        SelectionFrame.h};
  });
  const int counters = inner.h - 74;
  Score.SetPlace({16, counters, 140, 44});
  Round.SetPlace({172, counters, 84, 44});
  core::CenterIn(lblHighScore, {272, counters + 12, inner.w - 92 - 272, 20});
  Clock.SetPlace({inner.w - 92, inner.h - 134});
  CenterMessage();
}

void frmFandrel::CenterMessage() {
  const ui::Size inner = InnerSize();
  const int top = (inner.h - MessageHeight) / 2;
  core::CenterIn(Message, {0, top, inner.w, MessageHeight});
  core::CenterIn(lblScoring, {0, top, inner.w, MessageHeight});
}

void frmFandrel::RaiseMessage(int top) {
  Message.MoveTo(Message.Place().x, top);
}

void frmFandrel::ShowCards(bool visible) {
  imgPlayCard.Show(visible);
  imgUpperCard.Show(visible);
  DeckCards.Visible = visible;
  lbl100.Show(visible);
  FieldSelectionRectangle.Show(false);
}

void frmFandrel::ShowControls(bool visible, bool) {
  Round.Show(visible);
  lbl100.Show(visible);
  ShowMoveTimer(visible);
  lblCardCount.Visible = visible;
  X1.Visible = X2.Visible = lblWild.Visible = false;
}

void frmFandrel::ShowMoveTimer(bool visible) {
  ProgressBar1.Visible = visible;
  lblCurrentGameTime.Visible = visible;
}

void frmFandrel::ShowLowerSpot(int i) {
  const std::string& card = rules_.PlayCard(i);
  imgPlayCard(i).Show(card.empty() ? "EMPTY" : card);
  imgPlayCard(i).Border = !card.empty();
}

void frmFandrel::ShowSpotValues() {
  lbl100.ForEach(
      [this](int j, ui::Label& label) { label.Text = core::Digits(rules_.SpotValue(j)); });
}

void frmFandrel::ShowDeck() {
  const int left = rules_.CardsRemaining;
  lblCardCount.Text = "Cards remaining: " + core::Digits(left);
  DeckCards.Show(left > 25 ? "FULL" : left > 10 ? "HALF" : left > 0 ? "BACK" : "EMPTY");
}

// --- pausing ------------------------------------------------------------------------------------

void frmFandrel::PauseBoard() {
  ShowCards(false);
  ShowMoveTimer(false);
}

void frmFandrel::ResumeBoard() {
  ShowCards(true);
  ShowMoveTimer(true);
}

void frmFandrel::HideAtExpiry() {
  playing_ = false;
  Timer6.Enabled = false;
  ShowCards(false);
  ShowMoveTimer(false);
}

// --- the pointer --------------------------------------------------------------------------------

void frmFandrel::imgPlayCard_MouseMove(int i) {
  imgPlayCard(i).Pointer = rules_.PlayCard(i).empty() ? "" : "POINTER";
}

void frmFandrel::imgUpperCard_MouseMove(int j) {
  imgUpperCard(j).Pointer = SelectedSpot() == 0 ? "" : "POINTER";
}

void frmFandrel::ClearPointers() {
  imgPlayCard.ForEach([](int, ui::Picture& spot) { spot.Pointer = ""; });
  imgUpperCard.ForEach([](int, ui::Picture& spot) { spot.Pointer = ""; });
}

}  // namespace games::fandrel
