// The rules of Harvel.
#include "games/harvel/rules.h"

#include "core/text/number.h"

namespace games::harvel {
namespace {

using core::ClampTo;

constexpr int BustCost = 100;
constexpr int SoftDifference = 10;
constexpr int ThinStackFrom = 17;  // position in the deck
constexpr int SingleBackFrom = 35;

}  // namespace

Rules::Rules(const core::Deck& deck, columns::SharedValues shared, const Values& values)
    : Columns(deck, shared, ColumnCount), values_(values) {}

void Rules::StartGame() {
  EndRound();
  ClearBonus();
  PassesLeft = CardsToPass;
  DeckIndex = 1;
}

void Rules::StartRound() {
  DeckIndex = 1;
  if (CardsToPass != 0) PassesLeft = CardsToPass;
}

void Rules::EndRound() {
  ClearColumns();
  CounterValue = 0;
}

HitResult Rules::Hit(int column) {
  if (!IsColumn(column) || !CardInPlay()) return {};
  int total = ColumnTotal[static_cast<std::size_t>(column)] + CurrentCardOn(column);
  if (total > columns::TwentyOne) {
    if (!UseSoftAce(column)) return {Outcome::Refused, 0, false, -BustCost};
    total -= SoftDifference;
  }
  return PlaceCard(column, total);
}

HitResult Rules::PlaceCard(int column, int total) {
  auto& cards = CardsInColumn[static_cast<std::size_t>(column)];
  HitResult result{Outcome::Placed, cards++, IsSoft(column), 0};
  ++DeckIndex;
  if (total != columns::TwentyOne && cards < columns::PlacesOfColumn) {
    ColumnTotal[static_cast<std::size_t>(column)] = ClampTo<std::int16_t>(total);
    return result;
  }
  if (total == columns::TwentyOne) {
    result.outcome = Outcome::TwentyOne;
    ++TwentyOneCount;
    BonusFigure = ClampTo<std::int32_t>(std::int64_t{BonusFigure} + values_.TwentyOneBonusValue);
  } else {
    result.outcome = Outcome::FiveCardGimme;
    result.points = values_.FiveCardsBonusValue;
  }
  ClearColumn(column);
  CounterValue = 0;
  return result;
}

CounterTick Rules::TickCounter() {
  if (CounterValue < CounterLimit) {
    ++CounterValue;
    return CounterValue == CounterLimit / 2 ? CounterTick::HalfWay : CounterTick::Counting;
  }
  CounterValue = 0;
  BonusFigure = values_.TwentyOneBonusValue;
  return CounterTick::RanOut;
}

const char* Rules::DeckPicture() const {
  if (DeckIndex < ThinStackFrom) return "FULL";
  return DeckIndex < SingleBackFrom ? "HALF" : "BACK";
}

std::int32_t Rules::TwentyOneBonus() const {
  return ClampTo<std::int32_t>(core::Product(TwentyOneCount, BonusFigure));
}

int Rules::BonusSteps() const {
  const std::int64_t step = values_.TwentyOneBonusValue;
  return step > 0 ? static_cast<int>((TwentyOneBonus() + step - 1) / step) : 0;
}

bool Rules::IsBonusRound(int round, std::int32_t score) const {
  return round == BonusRound && score > values_.BonusRoundScore;
}

bool Rules::IsPlayed(int round, std::int32_t score) const {
  return round <= LastRound || IsBonusRound(round, score);
}

}  // namespace games::harvel
