// The rules of Vermoy: cards laid one by one on a grid of five by five, ten poker hands.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/cards/deck.h"
#include "games/vermoy/hand.h"
#include "games/vermoy/settings.h"

namespace games::vermoy {

inline constexpr int Side = 5;
inline constexpr int Cells = Side * Side;
inline constexpr int FullDeck = 52;
inline constexpr int BonusRound = 4;

/// The grid row by row: position = 5 * row + column, both counted from 0.
using Grid = std::array<Card, Cells>;
void TransposeGrid(Grid& grid);  ///< swaps rows and columns in place

/// What drawing a card gave: nothing, for the deck is used up; a card with its sound; a card whose
/// sound a hand that was just made has taken.
enum class Drawn { Nothing, Sounding, Silent };

/// What a click on a cell gave.
struct Placed {
  bool legal = false;  ///< false: nothing has changed
  int handsMade = 0;   ///< lines that now show another hand than before, and not "Nothing"
  Drawn drawn = Drawn::Nothing;
};

/// One round at a time: the grid, the deck that feeds it and the worth of its hands. Any call is
/// safe at any time; a click on a cell that does not exist is refused.
class Rules {
 public:
  /// The values are the caller's, outlive the rules and may change between two rounds.
  explicit Rules(const Values& values) : values_(values) {}

  /// An empty grid, no card exposed, all overwrites left.
  void Reset();
  /// Takes over the deck as it lies and exposes the first card.
  Drawn Deal(const core::Deck& deck);
  /// A card goes to an empty cell, or covers another one while overwrites are left.
  bool IsLegal(int cell) const;
  /// Lays the exposed card on a cell, values the ten hands anew and exposes the next card.
  Placed Place(int cell);

  /// Whether a round with this number follows, after the round before it has been scored.
  bool RoundFollows(int roundNumber, std::int32_t currentScore) const;

  /// The card key of a cell from 0 to 24, empty for an empty one. Another number, and in the hands
  /// another than 1 to 5, throws std::out_of_range.
  const std::string& GridCard(int cell) const { return gridCards_.at(std::size_t(cell)); }
  bool GridIsFull() const;
  /// The exposed card; empty when there is none.
  const std::string& HoleCard() const { return holeCard_; }
  int CardsRemaining() const { return cardsRemaining_; }
  /// How thick the rest of the deck looks: "FULL", "HALF", "BACK" or "EMPTY".
  std::string_view StackPicture() const;
  std::int32_t OverWritesLeft() const { return values_.OverWrites - overWritesUsed_; }
  /// What all ten hands are worth as they stand now.
  std::int32_t RoundPoints() const { return roundPoints_; }
  Hand RowHand(int number) const { return rowHands_.at(std::size_t(number - 1)); }
  Hand ColumnHand(int number) const { return columnHands_.at(std::size_t(number - 1)); }

 private:
  using Hands = std::array<Hand, Side>;
  Drawn DrawCard();
  int EvaluateGrid();
  int EvaluateLines(const Grid& grid, Hands& hands, std::int64_t& points) const;

  const Values& values_;
  std::array<std::string, Cells> gridCards_;
  Grid cards_;                           ///< what counts of them
  std::vector<std::string> dealtCards_;  ///< from index 0
  bool cardExposed_ = false;
  std::string holeCard_;
  int cardsRemaining_ = FullDeck;
  int overWritesUsed_ = 0;
  std::int32_t roundPoints_ = 0;
  bool suppressClick_ = false;  ///< the next card is drawn without its sound
  Hands rowHands_{};
  Hands columnHands_{};
};

}  // namespace games::vermoy
