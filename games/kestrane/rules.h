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

/// What a click on a place means. A click that is refused changes nothing.
enum class Answer { Refused, Select, Cancel, Move };

/// What a full column holds. A flush is a run of one suit.
enum class Made { Nothing, Trip, Run, Flush };

/// A place for a card: an up card, a spot of the storage, or a slot of the field.
struct Spot {
  Area area = Area::None;
  int index = -1;
  bool operator==(const Spot&) const = default;
};

/// The cards of one round and the counts of one game. Any order of calls and any index is
/// tolerated: a place that does not exist holds no card and refuses every click.
class Rules {
 public:
  static constexpr int Columns = 4;
  static constexpr int Slots = 12;
  static constexpr int Spots = 3;    // of the storage
  static constexpr int Front = 2;    // the one up card that can be played
  static constexpr int LastRow = 8;  // slot of column 0 in row 2

  /// The deck is the caller's, who shuffles it before each deal, and outlives the rules.
  explicit Rules(const core::Deck& deck) : deck_(deck) {}

  /// Round one of a new game.
  void StartGame() { roundNumber_ = 1; }
  /// After a round: round two follows always, the third only at `bonusScore` or more.
  bool EarnsNextRound(std::int64_t score, std::int64_t bonusScore) const;
  void NextRound() { ++roundNumber_; }

  /// Clears the board, the selection and the round's counts.
  void InitRound();
  /// Turns up the first three cards of the deck; the third lies in front.
  void Deal();

  /// What a click there would do. A slot of the field means its column.
  Answer AnswerTo(Spot spot) const;
  /// Does it, and says what it was.
  Answer Click(Spot spot);

  /// Clears and counts what a full column holds; a column that is not full holds nothing.
  Made CheckColumn(int column);
  /// Every spot of the storage and every column is full.
  bool NoMoveLeft() const;

  /// All 52 cards have been played from the up cards.
  bool DeckUsedUp() const { return upCards_[Front].empty(); }
  /// The card to be taken off next when the deck is used up; area None if the board is empty.
  Spot NextLeftOver() const;
  void TakeOff(Spot spot);

  /// Keys of the cards; empty where none lies.
  const std::string& KeyAt(Spot spot) const;
  bool HasCard(Spot spot) const { return !KeyAt(spot).empty(); }
  bool ColumnFull(int column) const { return HasCard({Area::Field, LastRow + column}); }
  /// Key of the picture of the stack.
  std::string_view StackPicture() const;
  /// Cards not played yet, the up cards included.
  int CardsRemaining() const { return LastDeckIndex - deckIndex_; }

  std::int16_t DeckIndex() const { return deckIndex_; }
  bool CardSelected() const { return cardSelected_; }
  /// Of no area if no card is selected.
  Spot Selected() const { return {selectedArea_, selectedIndex_}; }
  std::int16_t TripCount() const { return tripCount_; }
  std::int16_t RunCount() const { return runCount_; }
  std::int16_t RoundNumber() const { return roundNumber_; }

 private:
  static constexpr int UpCardCount = 3;
  static constexpr std::int16_t LastDeckIndex = 55;  // all cards played, none up

  /// Null for a place that does not exist.
  template <class Self>
  static auto* CardAt(Self& self, Spot spot);
  void ClearBoard();
  int TopSlot(int column) const;  // -1 for an empty column
  bool IsSelected(Spot spot) const;
  bool HasRoom(Spot spot) const;
  void Select(Spot spot);
  void EndSelection();
  void MoveCard(Spot& spot);
  void UpDateDeck();
  bool IsTrip(int column) const;
  bool IsRun(int column) const;
  bool CheckFlush(int column) const;
  void ClearColumn(int column);
  std::array<int, 3> RanksOf(int column) const;

  const core::Deck& deck_;
  std::array<std::string, Slots> columnCards_;
  std::array<std::string, UpCardCount> upCards_;
  std::array<std::string, Spots> tempCards_;
  std::int16_t deckIndex_ = UpCardCount;
  bool cardSelected_ = false;
  Area selectedArea_ = Area::None;
  std::int16_t selectedIndex_ = -1;
  std::int16_t tripCount_ = 0;
  std::int16_t runCount_ = 0;
  std::int16_t roundNumber_ = 1;
};

}  // namespace games::kestrane
