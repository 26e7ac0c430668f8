// What Kestrane's board shows: cards, marks, counters, the big message and the pointer.
#include "core/text/number.h"
#include "games/kestrane/window.h"

namespace games::kestrane {
namespace {

constexpr ui::Size FlushSize{96, 28};

}  // namespace

ui::Picture& frmKestrane::PictureOf(Spot spot) {
  if (spot.area == Area::UpCards) return UpCard(spot.index);
  return spot.area == Area::Storage ? TempCard(spot.index) : PlayCard(spot.index);
}

ui::Shape& frmKestrane::MarkOf(Spot spot) {
  if (spot.area == Area::UpCards) return UpCardSelection;
  return spot.area == Area::Storage ? TempCardSelection(spot.index) : PlayCardSelection(spot.index);
}

// Only the first row of the field shows that a place is free.
void frmKestrane::ShowCard(Spot spot) {
  ui::Picture& picture = PictureOf(spot);
  const bool hasCard = rules_.HasCard(spot);
  const bool vanishes = spot.area == Area::Field && spot.index >= Rules::Columns;
  picture.Show(hasCard ? rules_.KeyAt(spot) : vanishes ? "" : "EMPTY");
  picture.Border = hasCard;
  if (vanishes) picture.Visible = hasCard;
}

void frmKestrane::ShowField() {
  for (int slot = 0; slot < Rules::Slots; ++slot) ShowCard({Area::Field, slot});
  for (int spot = 0; spot < Rules::Spots; ++spot) ShowCard({Area::Storage, spot});
}

void frmKestrane::UpDateDeck() {
  CardStackPicture.Show(rules_.StackPicture());
  for (int i = 0; i <= Rules::Front; ++i) ShowCard({Area::UpCards, i});
  lblCardCount.Text = "Cards remaining: " + core::Digits(rules_.CardsRemaining());
}

void frmKestrane::ShowSelection(bool visible) {
  PlayCardSelection.Show(false);
  TempCardSelection.Show(false);
  UpCardSelection.Visible = false;
  if (visible && rules_.CardSelected()) MarkOf(rules_.Selected()).Visible = true;
}

void frmKestrane::ShowDeck(bool visible) {
  UpCard.Show(visible);
  CardStackPicture.Visible = visible;
  if (!visible) UpCardSelection.Visible = false;
}

void frmKestrane::ShowCards(bool visible) {
  ShowDeck(visible);
  TempCard.Show(visible);
  PlayCard.ForEach([&](int i, ui::Picture& picture) {
    picture.Visible = visible && (i < Rules::Columns || rules_.HasCard({Area::Field, i}));
  });
  ShowSelection(visible);
}

void frmKestrane::ShowControls(bool visible, bool) {
  Score.Show(true);
  ShowTimerGroup(visible);
  Trips.Show(visible);
  Runs.Show(visible);
  for (ui::Label* label : {&lblHighScore, &lblCardCount, &lblRound, &lblTemp, &lblFieldCards}) {
    label->Visible = visible;
  }
  FieldRect.Visible = visible;
}

void frmKestrane::WriteCounts() {
  Trips.Number.Text = core::Digits(rules_.TripCount());
  Runs.Number.Text = core::Digits(rules_.RunCount());
}

void frmKestrane::PauseBoard() {
  ShowCards(false);
  ShowControls(false, true);
  Message.TextColor = ui::Blue;
  CenterScoringLabel();
}

void frmKestrane::ResumeBoard() {
  HideBigMessage();
  if (!shared.GameActive) return;
  ShowCards(true);
  ShowControls(true, true);
}

void frmKestrane::HideAtExpiry() {
  ShowDeck(false);
  lblCardCount.Visible = false;
  CenterScoringLabel();
  Wave("Slide.wav");
}

// --- the big message ----------------------------------------------------------------------------

void frmKestrane::ShowBigMessage(const std::string& text, ui::Color color) {
  ShowMessage(text, color);
  CenterScoringLabel();
}

void frmKestrane::HideBigMessage() {
  HideMessage();
  ScoringLabelOutline.Visible = false;
}

void frmKestrane::CenterScoringLabel() {
  const ui::Rect outline = ScoringLabelOutline.Place();
  const int height = Message.Place().h;
  core::CenterIn(Message, {outline.x, outline.CenterY() - height / 2, outline.w, height});
  ScoringLabelOutline.Visible = true;
  Message.Visible = true;
}

void frmKestrane::ShowFlushOver(const ui::Picture& card) {
  const ui::Rect place = card.Place();
  core::CenterIn(lblFlush, {place.CenterX() - FlushSize.w / 2, place.CenterY() - FlushSize.h / 2,
                            FlushSize.w, FlushSize.h});
  lblFlush.Visible = true;
}

// --- the pointer --------------------------------------------------------------------------------

void frmKestrane::PointAt(Spot spot) {
  PictureOf(spot).Pointer = rules_.AnswerTo(spot) == Answer::Refused ? "" : "POINTER";
}

void frmKestrane::ClearPointers() {
  PlayCard.ForEach([](int, ui::Picture& card) { card.Pointer = ""; });
  TempCard.ForEach([](int, ui::Picture& card) { card.Pointer = ""; });
  if (rules_.DeckUsedUp()) UpCard(Rules::Front).Pointer = "";
}

}  // namespace games::kestrane
