// The moves of Kestrane, and what they make of the columns.
#include "games/kestrane/rules.h"

#include <algorithm>
#include <utility>

#include "core/cards/card.h"

namespace games::kestrane {
namespace {

constexpr int DeckSize = 52;

// Only the order in which the cards lie counts, and the ace joins the king at one end alone.
bool IsRun(int a, int b, int d) {
  const bool ascending = b == a + 1 && d == a + 2;
  const bool descending = b == a - 1 && d == a - 2;
  const bool toAce = a == core::queen && b == core::king && d == core::ace;
  const bool fromAce = a == core::ace && b == core::king && d == core::queen;
  return ascending || descending || toAce || fromAce;
}

}  // namespace

void Rules::Deal() {
  ColumnCards.fill("");
  TempCards.fill("");
  Select({});
  TripCount = RunCount = 0;
  UpCards = {deck_(1), deck_(2), deck_(3)};
  DeckIndex = UpCardCount;
}

void Rules::UpDateDeck() {
  if (DeckIndex < LastDeckIndex) ++DeckIndex;
  UpCards = {DeckIndex <= DeckSize ? deck_(DeckIndex) : "", UpCards[0], UpCards[1]};
}

bool Rules::EarnsNextRound(std::int64_t score, std::int64_t bonusScore) const {
  return RoundNumber == 1 || (RoundNumber < BonusRound && score >= bonusScore);
}

std::string& Rules::CardAt(Spot spot) {
  const auto index = static_cast<std::size_t>(spot.index);
  if (spot.area == Area::UpCards) return UpCards.at(index);
  return spot.area == Area::Storage ? TempCards.at(index) : ColumnCards.at(index);
}

const std::string& Rules::KeyAt(Spot spot) const {
  return const_cast<Rules*>(this)->CardAt(spot);
}

int Rules::TopSlot(int column) const {
  int slot = LastRow + column;
  while (slot >= 0 && !HasCard({Area::Field, slot})) slot -= Columns;
  return slot;
}

bool Rules::NoMoveLeft() const {
  return std::ranges::count(TempCards, "") + std::ranges::count(ColumnCards, "") == 0;
}

std::string_view Rules::StackPicture() const {
  if (DeckIndex < 20) return "FULL";
  if (DeckIndex < 36) return "HALF";
  return DeckIndex < DeckSize ? "BACK" : "EMPTY";
}

Spot Rules::NextLeftOver() const {
  const auto last = std::find_if(AllSpots.rbegin(), AllSpots.rend(), [this](Spot spot) {
    return spot.area != Area::UpCards && HasCard(spot);
  });
  return last == AllSpots.rend() ? Spot{} : *last;
}

void Rules::TakeOff(Spot spot) {
  if (spot == Selected()) Select({});
  CardAt(spot).clear();
}

// --- selecting and moving -----------------------------------------------------------------------

Answer Rules::AnswerTo(Spot spot) const {
  if (spot.area == Area::UpCards && spot.index != Front) return Answer::Refused;
  const bool inField = spot.area == Area::Field;
  if (inField) spot.index %= Columns;
  if (!CardSelected()) return HasCard(spot) ? Answer::Select : Answer::Refused;
  const int selected = inField ? SelectedIndex % Columns : SelectedIndex;
  if (spot == Spot{SelectedArea, selected}) return Answer::Cancel;
  const bool full = inField ? ColumnFull(spot.index) : HasCard(spot);
  return full || spot.area == Area::UpCards ? Answer::Refused : Answer::Move;
}

Answer Rules::Click(Spot spot) {
  const Answer answer = AnswerTo(spot);
  if (answer == Answer::Select) Select(spot);
  if (answer == Answer::Cancel) Select({});
  if (answer == Answer::Move) MoveCard(spot);
  return answer;
}

/// Of a column the top card; no spot ends the selection.
void Rules::Select(Spot spot) {
  if (spot.area == Area::Field) spot.index = TopSlot(spot.index % Columns);
  SelectedArea = spot.area;
  SelectedIndex = static_cast<std::int16_t>(spot.index);
}

void Rules::MoveCard(Spot& spot) {
  if (spot.area == Area::Field) spot.index = TopSlot(spot.index % Columns) + Columns;
  CardAt(spot) = std::exchange(CardAt(Selected()), "");
  if (SelectedArea == Area::UpCards) UpDateDeck();
  Select({});
}

Made Rules::CheckColumn(int column) {
  if (!ColumnFull(column)) return Made::Nothing;
  const auto rank = [&](int row) { return core::RankOf(KeyAt({Area::Field, row + column})); };
  const int a = rank(0), b = rank(Columns), d = rank(LastRow);
  const bool trip = a == b && b == d;
  if (!trip && !IsRun(a, b, d)) return Made::Nothing;
  const Made run = CheckFlush(column) ? Made::Flush : Made::Run;
  ClearColumn(column);
  ++(trip ? TripCount : RunCount);
  return trip ? Made::Trip : run;
}

bool Rules::CheckFlush(int column) const {
  const auto suit = [&](int row) { return core::SuitOf(KeyAt({Area::Field, row + column})); };
  return suit(0) == suit(Columns) && suit(0) == suit(LastRow);
}

void Rules::ClearColumn(int column) {
  for (int slot = column; slot < Slots; slot += Columns) TakeOff({Area::Field, slot});
}

}  // namespace games::kestrane
