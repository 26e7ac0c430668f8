// The moves of Kestrane, and what they make of the columns.
#include "games/kestrane/rules.h"

#include <algorithm>
#include <utility>

#include "core/cards/card.h"

namespace games::kestrane {
namespace {

constexpr int LastRound = 3;
constexpr int DeckSize = 52;

// The stack's pictures, each up to this count of cards dealt.
constexpr int LastFull = 19;
constexpr int LastHalf = 35;
constexpr int LastBack = 51;

template <class Cards>
auto* Within(Cards& cards, int index) {
  const bool exists = index >= 0 && index < static_cast<int>(cards.size());
  return exists ? cards.data() + index : nullptr;
}

template <class Cards>
bool AllTaken(const Cards& cards) {
  return std::none_of(cards.begin(), cards.end(), [](const auto& key) { return key.empty(); });
}

}  // namespace

// --- the board ----------------------------------------------------------------------------------

template <class Self>
auto* Rules::CardAt(Self& self, Spot spot) {
  switch (spot.area) {
    case Area::UpCards:
      return Within(self.upCards_, spot.index);
    case Area::Storage:
      return Within(self.tempCards_, spot.index);
    case Area::Field:
      return Within(self.columnCards_, spot.index);
    default:
      return Within(self.upCards_, -1);
  }
}

const std::string& Rules::KeyAt(Spot spot) const {
  static const std::string none;
  const std::string* card = CardAt(*this, spot);
  return card ? *card : none;
}

int Rules::TopSlot(int column) const {
  int slot = LastRow + column;
  while (slot >= 0 && !HasCard({Area::Field, slot})) slot -= Columns;
  return slot >= 0 ? slot : -1;
}

bool Rules::NoMoveLeft() const {
  return AllTaken(tempCards_) && AllTaken(columnCards_);
}

std::string_view Rules::StackPicture() const {
  if (deckIndex_ <= LastFull) return "FULL";
  if (deckIndex_ <= LastHalf) return "HALF";
  return deckIndex_ <= LastBack ? "BACK" : "EMPTY";
}

Spot Rules::NextLeftOver() const {
  for (int slot = Slots - 1; slot >= 0; --slot) {
    if (HasCard({Area::Field, slot})) return {Area::Field, slot};
  }
  for (int spot = Spots - 1; spot >= 0; --spot) {
    if (HasCard({Area::Storage, spot})) return {Area::Storage, spot};
  }
  return {};
}

void Rules::TakeOff(Spot spot) {
  if (std::string* card = CardAt(*this, spot)) card->clear();
  if (spot == Selected()) EndSelection();
}

// --- rounds -------------------------------------------------------------------------------------

bool Rules::EarnsNextRound(std::int64_t score, std::int64_t bonusScore) const {
  if (roundNumber_ >= LastRound) return false;
  return roundNumber_ == 1 || score >= bonusScore;
}

void Rules::InitRound() {
  ClearBoard();
  tripCount_ = 0;
  runCount_ = 0;
}

void Rules::ClearBoard() {
  columnCards_.fill("");
  upCards_.fill("");
  tempCards_.fill("");
  EndSelection();
}

void Rules::Deal() {
  ClearBoard();
  for (int i = 0; i < UpCardCount; ++i) *CardAt(*this, {Area::UpCards, i}) = deck_(i + 1);
  deckIndex_ = UpCardCount;
}

void Rules::UpDateDeck() {
  if (deckIndex_ < LastDeckIndex) ++deckIndex_;
  upCards_[2] = std::exchange(upCards_[1], std::exchange(upCards_[0], ""));
  if (deckIndex_ <= DeckSize) upCards_[0] = deck_(deckIndex_);
}

// --- selecting and moving -----------------------------------------------------------------------

Answer Rules::AnswerTo(Spot spot) const {
  if (!CardAt(*this, spot)) return Answer::Refused;
  if (spot.area == Area::UpCards && spot.index != Front) return Answer::Refused;
  if (!cardSelected_) {
    const int first = spot.area == Area::Field ? spot.index % Columns : spot.index;
    return HasCard({spot.area, first}) ? Answer::Select : Answer::Refused;
  }
  if (IsSelected(spot)) return Answer::Cancel;
  return HasRoom(spot) ? Answer::Move : Answer::Refused;
}

bool Rules::IsSelected(Spot spot) const {
  if (spot.area != selectedArea_) return false;
  return spot.area == Area::Field ? spot.index % Columns == selectedIndex_ % Columns
                                  : spot.index == selectedIndex_;
}

bool Rules::HasRoom(Spot spot) const {
  if (spot.area == Area::Field) return !ColumnFull(spot.index % Columns);
  return spot.area == Area::Storage && !HasCard(spot);
}

Answer Rules::Click(Spot spot) {
  const Answer answer = AnswerTo(spot);
  if (answer == Answer::Select) Select(spot);
  if (answer == Answer::Cancel) EndSelection();
  if (answer == Answer::Move) MoveCard(spot);
  return answer;
}

void Rules::Select(Spot spot) {
  if (spot.area == Area::Field) spot.index = TopSlot(spot.index % Columns);
  cardSelected_ = true;
  selectedArea_ = spot.area;
  selectedIndex_ = static_cast<std::int16_t>(spot.index);
}

void Rules::EndSelection() {
  cardSelected_ = false;
  selectedArea_ = Area::None;
  selectedIndex_ = -1;
}

void Rules::MoveCard(Spot& spot) {
  if (spot.area == Area::Field) {
    const int column = spot.index % Columns;
    const int top = TopSlot(column);
    spot.index = top < 0 ? column : top + Columns;
  }
  *CardAt(*this, spot) = std::exchange(*CardAt(*this, Selected()), "");
  if (selectedArea_ == Area::UpCards) UpDateDeck();
  EndSelection();
}

// --- full columns -------------------------------------------------------------------------------

Made Rules::CheckColumn(int column) {
  if (column < 0 || column >= Columns || !ColumnFull(column)) return Made::Nothing;
  if (IsTrip(column)) {
    ClearColumn(column);
    ++tripCount_;
    return Made::Trip;
  }
  if (!IsRun(column)) return Made::Nothing;
  const bool flush = CheckFlush(column);
  ClearColumn(column);
  ++runCount_;
  return flush ? Made::Flush : Made::Run;
}

std::array<int, 3> Rules::RanksOf(int column) const {
  std::array<int, 3> ranks;
  for (int row = 0; row < 3; ++row) {
    ranks[static_cast<std::size_t>(row)] =
        core::RankOf(KeyAt({Area::Field, row * Columns + column}));
  }
  return ranks;
}

bool Rules::IsTrip(int column) const {
  const auto [a, b, d] = RanksOf(column);
  return a == b && b == d;
}

// Only the order in which the cards lie counts, and the ace joins the king at one end alone.
bool Rules::IsRun(int column) const {
  const auto [a, b, d] = RanksOf(column);
  const bool ascending = b == a + 1 && d == a + 2;
  const bool descending = b == a - 1 && d == a - 2;
  const bool toAce = a == core::queen && b == core::king && d == core::ace;
  const bool fromAce = a == core::ace && b == core::king && d == core::queen;
  return ascending || descending || toAce || fromAce;
}

bool Rules::CheckFlush(int column) const {
  const char suit = core::SuitOf(KeyAt({Area::Field, column}));
  return suit == core::SuitOf(KeyAt({Area::Field, column + Columns})) &&
         suit == core::SuitOf(KeyAt({Area::Field, column + LastRow}));
}

void Rules::ClearColumn(int column) {
  for (int slot = column; slot < Slots; slot += Columns) TakeOff({Area::Field, slot});
}

}  // namespace games::kestrane
