// Quindle's rules: exposed cards of a field are selected to total a goal, and leave it as a set.
#include "games/quindle/rules.h"

#include <algorithm>

#include "core/cards/card.h"

namespace games::quindle {
namespace {

constexpr int Aces = 4;  // of each suit
constexpr int FirstStockCard = FieldSlots + 1;
constexpr int NoSlot = -1;  // in the table below

/// Each row's first slot and its points; the rows count from the top.
struct Row {
  int firstSlot;
  int standardPoints;
  int enhancedPoints;
};
constexpr Row Rows[] = {{0, 700, 600},  {1, 600, 500},  {5, 500, 400},
                        {10, 400, 300}, {16, 300, 200}, {20, 200, 100}};

/// The slots that cover each slot.
constexpr int Covers[FieldSlots][2] = {{3, 4},   {5, 6},   {8, 9},   {7, 12},  {7, 13},  {10, 11},
                                       {11, 12}, {-1, -1}, {13, 14}, {14, 15}, {16, -1}, {16, 17},
                                       {17, -1}, {18, -1}, {18, 19}, {19, -1}, {20, -1}, {20, -1},
                                       {21, -1}, {21, -1}, {-1, -1}, {-1, -1}};

}  // namespace

int SlotPoints(int slot, bool enhanced) {
  const auto row = std::find_if(std::rbegin(Rows), std::rend(Rows),
                                [slot](const Row& r) { return slot >= r.firstSlot; });
  if (row == std::rend(Rows)) return 0;
  return enhanced ? row->enhancedPoints : row->standardPoints;
}

int DeckSize(std::int16_t cardGoal) {
  static constexpr int sizes[] = {52, 52, 56, 60, 64, 64};
  if (cardGoal < SmallestGoal || cardGoal > LargestGoal) return sizes[0];
  return sizes[cardGoal - SmallestGoal];
}

bool Rules::CreateQuindleDeck(core::Deck& deck) const {
  std::vector<std::string> keys;
  for (char suit : core::suitOrder) keys.insert(keys.end(), Aces, std::string("1") + suit);
  for (char suit : core::suitOrder) {
    for (int rank = 2; rank <= 10; ++rank) keys.push_back(core::KeyFromNumber(rank, suit));
  }
  const auto size = static_cast<std::size_t>(DeckSize(CardGoal));
  for (int rank = core::jack; keys.size() < size; ++rank) {
    for (char suit : core::suitOrder) keys.push_back(std::to_string(rank) + suit);
  }
  deck.Assign(std::move(keys));
  return true;
}

void Rules::Deal(const core::Deck& deck) {
  for (int i = 0; i < FieldSlots; ++i) {
    FieldCards[Index(i)] = deck(i + 1);
    holds_[Index(i)] = !FieldCards[Index(i)].empty();
  }
  DropSelection();
  UpCards.assign({"", deck(FirstStockCard)});
  UpCount = 1;
  // The first up card is the bottom of the pile as well, and comes up a second time at its end.
  StockCards.clear();
  for (int i = FirstStockCard; i <= deck.UpperBound(); ++i) StockCards.push_back(deck(i));
  StockTop = static_cast<std::int16_t>(StockCards.size() - 1);
  ElevensCount = 0;
}

std::string Rules::UpCard() const {
  return UpCount > 0 ? UpCards[Index(UpCount)] : std::string();
}

bool Rules::CheckLegalFieldCardMove(int slot) const {
  return std::none_of(std::begin(Covers[slot]), std::end(Covers[slot]),
                      [this](int cover) { return cover != NoSlot && HoldsCard(cover); });
}

Choice Rules::ChooseField(int slot) {
  if (!HoldsCard(slot) || !CheckLegalFieldCardMove(slot)) return Choice::Refused;
  const Choice choice = Toggle(IsSelected(slot), FieldCard(slot));
  if (choice != Choice::Refused) selected_[Index(slot)] = choice == Choice::Selected;
  return choice;
}

Choice Rules::ChooseUpCard() {
  if (UpCount <= 0) return Choice::Refused;
  const Choice choice = Toggle(upSelected_, UpCard());
  if (choice != Choice::Refused) upSelected_ = choice == Choice::Selected;
  return choice;
}

Choice Rules::Toggle(bool mark, const std::string& card) {
  const int value = core::RankOf(card);
  if (mark) {
    CardTotal = static_cast<std::int16_t>(CardTotal - value);
    return Choice::Deselected;
  }
  if (CardTotal + value > CardGoal) return Choice::Refused;
  CardTotal = static_cast<std::int16_t>(CardTotal + value);
  return Choice::Selected;
}

SetMade Rules::CheckTotal() {
  SetMade set;
  if (CardTotal != CardGoal) return set;
  set.made = true;
  if (upSelected_) {
    set.upCardUsed = true;
    set.upCardPoints = EnhancedScoring ? UpCardWorth() : StandardUpCardPoints;
    --UpCount;
  }
  for (int slot = 0; slot < FieldSlots; ++slot) {
    if (!IsSelected(slot)) continue;
    set.slots.push_back(slot);
    holds_[Index(slot)] = false;
  }
  ++ElevensCount;
  DropSelection();
  return set;
}

Draw Rules::DrawCard() {
  Draw draw;
  if (StockTop < 0) return draw;
  draw.drawn = true;
  if (UpCount > 0) MoveUpCardToFieldArea(draw);
  ++UpCount;
  UpCards.resize(Index(UpCount));
  UpCards.push_back(StockCards[Index(StockTop)]);
  --StockTop;
  DropSelection();
  return draw;
}

void Rules::MoveUpCardToFieldArea(Draw& draw) {
  const auto empty = std::find(holds_.begin(), holds_.end(), false);
  if (empty == holds_.end()) return;
  draw.filledSlot = static_cast<int>(empty - holds_.begin());
  FieldCards[Index(draw.filledSlot)] = UpCard();
  *empty = true;
  --UpCount;
  draw.cost = EnhancedScoring ? SlotPoints(draw.filledSlot, true) : StandardDrawCost;
}

void Rules::DropSelection() {
  selected_.fill(false);
  upSelected_ = false;
  CardTotal = 0;
}

bool Rules::CheckForCompletion() const {
  return std::none_of(holds_.begin(), holds_.end(), [](bool holds) { return holds; });
}

int Rules::UpCardWorth() const {
  const auto first = std::find(holds_.begin(), holds_.end(), true);
  return first == holds_.end() ? 0 : SlotPoints(static_cast<int>(first - holds_.begin()), true);
}

}  // namespace games::quindle
