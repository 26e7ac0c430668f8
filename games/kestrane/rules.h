// The rules of Kestrane: cards move into four columns of three, which trips and runs clear.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/cards/deck.h"

namespace games::kestrane {

/// The three sections of the board. A slot of the field is row times 4 plus column.
enum class Area : std::int16_t { None = -1, UpCards = 0, Storage = 1, Field = 2 };

/// A place for a card: an up card, a spot of the storage, or a slot of the field.
struct Spot {
  Area area = Area::None;
  int index = -1;
  bool operator==(const Spot&) const = default;
};

/// What a click on a place means. A click that is refused changes nothing.
enum class Answer { Refused, Select, Cancel, Move };

/// What a full column holds. A flush is a run of one suit.
enum class Made { Nothing, Trip, Run, Flush };

inline constexpr int Columns = 4;
inline constexpr int Slots = 12;
inline constexpr int StorageSpots = 3;
inline constexpr int UpCardCount = 3;
inline constexpr int Front = 2;  // the one up card that can be played
inline constexpr int BonusRound = 3;

/// Every place of the board, in order.
inline constexpr auto AllSpots = [] {
  std::array<Spot, UpCardCount + StorageSpots + Slots> spots;
  auto next = spots.begin();
  for (int i = 0; i < UpCardCount; ++i) *next++ = {Area::UpCards, i};
  for (int i = 0; i < StorageSpots; ++i) *next++ = {Area::Storage, i};
  for (int i = 0; i < Slots; ++i) *next++ = {Area::Field, i};
  return spots;
}();

/// The cards of a round and the counts of a game. Calls may come in any order; a place that does
/// not exist throws.
class Rules {
 public:
  /// The deck is the caller's, who shuffles it before each deal, and outlives the rules.
  explicit Rules(const core::Deck& deck) : deck_(deck) {}

  /// A clear board without a selection, counts of 0, and the first three cards of the deck turned
  /// up; the third lies in front.
  void Deal();
  /// After a round: round two follows always, the third only at `bonusScore` or more.
  bool EarnsNextRound(std::int64_t score, std::int64_t bonusScore) const;

  /// What a click there would do. A slot of the field means its column.
  Answer AnswerTo(Spot spot) const;
  /// Does it, and says what it was.
  Answer Click(Spot spot);
  /// Clears and counts what a full column holds; a column that is not full holds nothing.
  Made CheckColumn(int column);
  /// Every spot of the storage and every column is full.
  bool NoMoveLeft() const;

  bool DeckUsedUp() const { return UpCards[Front].empty(); }
  /// The card to be taken off next when the deck is used up; of no area if the board is empty.
  Spot NextLeftOver() const;
  void TakeOff(Spot spot);

  /// The key of a card; empty where none lies.
  const std::string& KeyAt(Spot spot) const;
  bool HasCard(Spot spot) const { return !KeyAt(spot).empty(); }
  bool CardSelected() const { return SelectedArea != Area::None; }
  Spot Selected() const { return {SelectedArea, SelectedIndex}; }
  /// Key of the picture of the stack.
  std::string_view StackPicture() const;
  /// Cards not played yet, the up cards included.
  int CardsRemaining() const { return LastDeckIndex - DeckIndex; }

  std::array<std::string, Slots> ColumnCards;
  std::array<std::string, UpCardCount> UpCards;
  std::array<std::string, StorageSpots> TempCards;
  std::int16_t DeckIndex = UpCardCount;
  Area SelectedArea = Area::None;
  std::int16_t SelectedIndex = -1;
  std::int16_t TripCount = 0;
  std::int16_t RunCount = 0;
  std::int16_t RoundNumber = 1;

 private:
  static constexpr int LastRow = 8;         // slot of column 0 in the last row
  static constexpr int LastDeckIndex = 55;  // all cards played, none up

  std::string& CardAt(Spot spot);
  int TopSlot(int column) const;  // column - 4 for an empty column
  bool ColumnFull(int column) const { return HasCard({Area::Field, LastRow + column}); }
  void Select(Spot spot);
  void MoveCard(Spot& spot);
  void UpDateDeck();
  bool CheckFlush(int column) const;
  void ClearColumn(int column);

  const core::Deck& deck_;
};

}  // namespace games::kestrane
