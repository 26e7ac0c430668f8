// The rules of Brenlock.
#include "games/brenlock/rules.h"

#include <algorithm>
#include <numeric>

#include "core/text/number.h"

namespace games::brenlock {
namespace {

using core::ClampTo;

constexpr int SoftDifference = 10;
constexpr int TimeBonusesInStep = 2;

std::size_t At(int column) {
  return static_cast<std::size_t>(column);
}

}  // namespace

Rules::Rules(const core::Deck& deck, columns::SharedValues shared, const Values& values)
    : Columns(deck, shared, ColumnCount), values_(values) {}

void Rules::SetTimeBonusDecay(int timeLimit) {
  const auto fall = static_cast<float>(values_.TimeBonusMax - values_.TimeBonusMin);
  TimeBonusDecay = timeLimit > 0 ? fall / static_cast<float>(timeLimit) : 0;
}

// The decay is short of digits and the rest is not, so an exact half can fall to either side.
void Rules::UpdateTimeBonus(int elapsedSeconds) {
  const double max = values_.TimeBonusMax;
  const double min = values_.TimeBonusMin;
  const double bonus = (max + min) - (elapsedSeconds * static_cast<double>(TimeBonusDecay) + min);
  CurrentTimeBonus = ClampTo<std::int32_t>(core::RoundToEven(bonus));
}

void Rules::Reset() {
  ClearColumns();
  SetCardTotal(0);
  CurrentTimeBonus = values_.TimeBonusMax;
  PassesLeft = CardsToPass;
}

HitResult Rules::Hit(int column) {
  if (!CardInPlay() || IsClosed(column)) return {};
  HitResult result = CalculateColumnValue(column);
  if (ColumnTotal[At(column)] > columns::TwentyOne) result.outcome = CheckForBust(column);
  SetCardTotal(result.outcome == Outcome::Bust ? TotalOfBust : SumOfColumns());
  return result;
}

HitResult Rules::CalculateColumnValue(int column) {
  auto& total = ColumnTotal[At(column)];
  total = ClampTo<std::int16_t>(total + CurrentCardOn(column));
  ++DeckIndex;
  return {Outcome::Placed, CardsInColumn[At(column)]++, total == columns::TwentyOne};
}

Outcome Rules::CheckForBust(int column) {
  if (!UseSoftAce(column)) return Outcome::Bust;
  if (!IsSoft(column)) ColumnTotal[At(column)] -= SoftDifference;
  return Outcome::SoftAceUsed;
}

bool Rules::IsClosed(int column) const {
  return !IsColumn(column) || CardTotal == TotalOfBust ||
         CardsInColumn[At(column)] >= columns::PlacesOfColumn;
}

int Rules::SumOfColumns() const {
  return std::accumulate(ColumnTotal.begin(), ColumnTotal.end(), 0);
}

void Rules::SetCardTotal(int total) {
  CardTotal = ClampTo<std::int16_t>(total);
  CardTotalValue = ValueOf(CardTotal);
}

std::int16_t Rules::ValueOf(int cardTotal) {
  if (cardTotal < LowestScoring || cardTotal > HighestScoring) return 0;
  return CardTotalValues[At(cardTotal - LowestScoring)];
}

std::int32_t Rules::RoundScore() const {
  return ClampTo<std::int32_t>(core::Product(CardTotalValue, CurrentTimeBonus));
}

std::int32_t Rules::ScoreStep() const {
  return std::max(ClampTo<std::int32_t>(core::Product(TimeBonusesInStep, CurrentTimeBonus)), 0);
}

std::int16_t Rules::RoundToPlay(std::int16_t round, std::int32_t score) const {
  if (round == BonusRound && score < values_.BonusScore) return AfterLastRound;
  return round;
}

}  // namespace games::brenlock
