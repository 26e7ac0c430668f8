// Quindle's rules: exposed cards of a field are selected to total a goal, and leave it as a set.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/cards/deck.h"

namespace games::quindle {

inline constexpr int FieldSlots = 22;
inline constexpr std::int16_t SmallestGoal = 10;
inline constexpr std::int16_t LargestGoal = 15;
inline constexpr int StandardUpCardPoints = 100;
inline constexpr int StandardDrawCost = 100;

/// Points of a slot in a scoring mode; the same for all slots of a row.
int SlotPoints(int slot, bool enhanced);

/// How many cards the deck of a goal has; a goal that can't be chosen has the smallest deck.
int DeckSize(std::int16_t cardGoal);

/// What a click on a card gave.
enum class Choice { Refused, Selected, Deselected };

/// A set that has been made and has left the board.
struct SetMade {
  bool made = false;
  int upCardPoints = 0;  ///< 0 unless the up card was part of it
  bool upCardUsed = false;
  std::vector<int> slots;  ///< of the field, ascending
};

/// A card drawn from the pile.
struct Draw {
  bool drawn = false;
  int filledSlot = -1;  ///< where the old up card went, -1 if it stayed on the pile
  int cost = 0;         ///< points taken for that
};

/// One round on the table. The score itself is the owner's.
class Rules {
 public:
  std::int16_t CardGoal = 11;
  bool EnhancedScoring = true;

  std::int16_t CardTotal = 0;     ///< sum of the selected cards
  std::int32_t ElevensCount = 0;  ///< sets made in this round
  std::int16_t UpCount = 0;       ///< index of the top of the up pile; 0 when it is empty
  std::int16_t StockTop = -1;     ///< index of the next card to draw; -1 when there is none

  /// Fills a deck for the goal: sixteen aces, and court cards as the goal allows them.
  bool CreateQuindleDeck(core::Deck& deck) const;
  /// Lays out a round. A deck of fewer cards than a field needs leaves places empty.
  void Deal(const core::Deck& deck);

  bool HoldsCard(int slot) const { return holds_[Index(slot)]; }
  bool IsSelected(int slot) const { return selected_[Index(slot)]; }
  const std::string& FieldCard(int slot) const { return FieldCards[Index(slot)]; }
  /// The top of the up pile; empty when there is none.
  std::string UpCard() const;
  int StockSize() const { return static_cast<int>(StockCards.size()); }

  /// No covering slot holds a card.
  bool CheckLegalFieldCardMove(int slot) const;
  Choice ChooseField(int slot);
  Choice ChooseUpCard();
  /// Takes the selected cards off the board if they total the goal.
  SetMade CheckTotal();
  /// Draws a card. The up card goes back to the first empty slot, which costs points.
  Draw DrawCard();
  void DropSelection();
  bool CheckForCompletion() const;  ///< the field is empty
  /// What the up card is worth in enhanced scoring: the points of the first slot that holds a card.
  int UpCardWorth() const;

 private:
  static std::size_t Index(int slot) { return static_cast<std::size_t>(slot); }
  Choice Toggle(bool mark, const std::string& card);
  void MoveUpCardToFieldArea(Draw& draw);

  std::array<std::string, FieldSlots> FieldCards;
  std::array<bool, FieldSlots> holds_{};
  std::array<bool, FieldSlots> selected_{};
  std::vector<std::string> UpCards;  ///< from index 1
  std::vector<std::string> StockCards;
  bool upSelected_ = false;
};

}  // namespace games::quindle
