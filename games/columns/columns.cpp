// The value of a card on a column, and the aces of the columns.
#include "games/columns/columns.h"

#include <algorithm>

#include "core/cards/card.h"
#include "core/text/number.h"

namespace games::columns {
namespace {

constexpr int HighestValue = 10;
constexpr int SoftValue = 11;

std::size_t At(int column) {
  return static_cast<std::size_t>(column);
}

}  // namespace

Columns::Columns(const core::Deck& deck, SharedValues shared, int count)
    : DeckIndex(shared.DeckIndex),
      PassesLeft(shared.PassesLeft),
      CardsToPass(shared.CardsToPass),
      SoftAces(shared.SoftAces),
      deck_(deck),
      count_(std::min(count, MostColumns)) {}

bool Columns::IsSoft(int column) const {
  return IsColumn(column) && SoftAces[At(column)] > 0;
}

int Columns::GetCardValue(int position) const {
  return std::clamp(core::RankOf(deck_(position)), 0, HighestValue);
}

int Columns::CurrentCardOn(int column) {
  const int value = GetCardValue(DeckIndex);
  return value == core::ace ? CalculateAces(column) : value;
}

int Columns::CalculateAces(int column) {
  if (ColumnTotal[At(column)] + SoftValue > TwentyOne) return core::ace;
  ++SoftAces[At(column)];
  return SoftValue;
}

bool Columns::UseSoftAce(int column) {
  if (!IsSoft(column)) return false;
  --SoftAces[At(column)];
  return true;
}

bool Columns::Pass() {
  if (!CanPass()) return false;
  PassesLeft = core::ClampTo<std::int16_t>(PassesLeft - 1);
  ++DeckIndex;
  return true;
}

void Columns::ClearColumn(int column) {
  CardsInColumn[At(column)] = ColumnTotal[At(column)] = SoftAces[At(column)] = 0;
}

void Columns::ClearColumns() {
  CardsInColumn.fill(0);
  ColumnTotal.fill(0);
  SoftAces.fill(0);
}

}  // namespace games::columns
