// The rules of Harvel: four columns fed towards 21, the 21 Counter, and who earns a fourth round.
#pragma once

#include "games/columns/columns.h"
#include "games/harvel/settings.h"

namespace games::harvel {

inline constexpr int ColumnCount = 4;
inline constexpr int LastRound = 3;  ///< before the bonus round
inline constexpr int BonusRound = 4;
inline constexpr int AfterLastRound = 5;
inline constexpr int CounterLimit = 100;  ///< of the 21 Counter

/// What became of the current card.
enum class Outcome {
  Nothing,       ///< no card, or no such column
  Refused,       ///< a bust: the card stays the current one
  Placed,        ///< it lies on the column
  TwentyOne,     ///< it made 21, and the column is cleared
  FiveCardGimme  ///< it was the fifth card, and the column is cleared
};

struct HitResult {
  Outcome outcome = Outcome::Nothing;
  int place = 0;            ///< where the card came to lie, 0 to 4
  bool soft = false;        ///< the column was soft when the card had come
  std::int32_t points = 0;  ///< for the score, below 0 for a bust
};

/// The 21 Counter: it runs from 0 to its limit, and a 21 in time keeps the bonus figure growing.
enum class CounterTick {
  Counting,
  HalfWay,  ///< its caption starts to flash
  RanOut    ///< the bonus figure fell back, and the counter starts over
};

class Rules : public columns::Columns {
 public:
  /// All that is given outlives the rules.
  Rules(const core::Deck& deck, columns::SharedValues shared, const Values& values);

  std::int16_t TwentyOneCount = 0;  ///< 21 combinations made in this round
  std::int32_t BonusFigure = 0;     ///< what each of them will be worth
  int CounterValue = 0;             ///< 0 to CounterLimit

  void StartGame();
  void StartRound();
  /// Empties the columns and stops counting; the figures of the round stay.
  void EndRound();

  HitResult Hit(int column);
  CounterTick TickCounter();

  int CardsUsed() const { return DeckIndex - 1; }
  bool DeckFinished() const { return DeckIndex > columns::LastCard; }
  /// Picture of the draw pile by its height.
  const char* DeckPicture() const;

  /// Points for the round's 21 combinations.
  std::int32_t TwentyOneBonus() const;
  /// How many steps of TwentyOneBonusValue count them up; 0 if they can't be counted so.
  int BonusSteps() const;
  /// The 21 combinations are paid.
  void ClearBonus() { BonusFigure = TwentyOneCount = 0; }

  bool IsBonusRound(int round, std::int32_t score) const;
  bool IsPlayed(int round, std::int32_t score) const;

 private:
  HitResult PlaceCard(int column, int total);

  const Values& values_;
};

}  // namespace games::harvel
