// The deal, what a click on a cell means, and the worth of the ten hands.
#include "games/vermoy/rules.h"

#include <algorithm>

#include "core/text/number.h"

namespace games::vermoy {

void TransposeGrid(Grid& grid) {
  for (std::size_t row = 0; row < Side; ++row) {
    for (std::size_t column = row + 1; column < Side; ++column) {
      std::swap(grid[Side * row + column], grid[Side * column + row]);
    }
  }
}

void Rules::Reset() {
  gridCards_.fill("");
  cards_.fill({});
  dealtCards_.clear();
  cardExposed_ = false;
  holeCard_.clear();
  overWritesUsed_ = 0;
  roundPoints_ = 0;
}

Drawn Rules::Deal(const core::Deck& deck) {
  dealtCards_.clear();
  for (int i = 1; i <= FullDeck; ++i) dealtCards_.push_back(deck(i));
  cardExposed_ = false;
  holeCard_.clear();
  cardsRemaining_ = FullDeck;
  rowHands_.fill(Hand::Nothing);
  columnHands_.fill(Hand::Nothing);
  return DrawCard();
}

Drawn Rules::DrawCard() {
  if (cardsRemaining_ == 0 || dealtCards_.empty()) return Drawn::Nothing;
  const Drawn drawn = suppressClick_ ? Drawn::Silent : Drawn::Sounding;
  suppressClick_ = false;
  cardExposed_ = true;
  holeCard_ = dealtCards_[static_cast<std::size_t>(FullDeck - cardsRemaining_)];
  --cardsRemaining_;
  return drawn;
}

bool Rules::IsLegal(int cell) const {
  if (cell < 0 || cell >= Cells) return false;
  return GridCard(cell).empty() ? cardExposed_ : OverWritesLeft() > 0;
}

Placed Rules::Place(int cell) {
  Placed placed;
  placed.legal = IsLegal(cell);
  if (!placed.legal) return placed;
  std::string& key = gridCards_[static_cast<std::size_t>(cell)];
  if (!key.empty()) ++overWritesUsed_;
  key = holeCard_;
  cards_[static_cast<std::size_t>(cell)] = CardOf(key);
  cardExposed_ = false;
  holeCard_.clear();
  placed.handsMade = EvaluateGrid();
  if (placed.handsMade > 0) suppressClick_ = true;
  placed.drawn = DrawCard();
  return placed;
}

int Rules::EvaluateGrid() {
  Grid grid = cards_;
  std::int64_t points = 0;
  int made = EvaluateLines(grid, rowHands_, points);
  TransposeGrid(grid);
  made += EvaluateLines(grid, columnHands_, points);
  roundPoints_ = core::ClampTo<std::int32_t>(points);
  return made;
}

int Rules::EvaluateLines(const Grid& grid, Hands& hands, std::int64_t& points) const {
  int made = 0;
  for (std::size_t i = 0; i < Side; ++i) {
    Line line;
    std::copy_n(grid.begin() + static_cast<std::ptrdiff_t>(Side * i), Side, line.begin());
    const Hand hand = EvaluateHand(line);
    points += values_.Of(hand);
    if (hand != hands[i] && hand != Hand::Nothing) ++made;
    hands[i] = hand;
  }
  return made;
}

bool Rules::RoundFollows(int roundNumber, std::int32_t currentScore) const {
  if (roundNumber == BonusRound) return currentScore >= values_.BonusScore;
  return roundNumber < BonusRound;
}

bool Rules::GridIsFull() const {
  return std::none_of(gridCards_.begin(), gridCards_.end(),
                      [](const std::string& key) { return key.empty(); });
}

std::string_view Rules::StackPicture() const {
  if (cardsRemaining_ > 25) return "FULL";
  if (cardsRemaining_ > 12) return "HALF";
  return cardsRemaining_ < 1 ? "EMPTY" : "BACK";
}

}  // namespace games::vermoy
