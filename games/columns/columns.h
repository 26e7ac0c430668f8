// What the two games share that feed columns from a deck: the value of a card, and its aces.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/cards/deck.h"

namespace games::columns {

inline constexpr int TwentyOne = 21;
inline constexpr int PlacesOfColumn = 5;
inline constexpr int MostColumns = 5;
inline constexpr int LastCard = 52;  ///< position in the deck

/// The values that both games keep process-wide. Whoever makes them outlives the rules.
struct SharedValues {
  std::int16_t& DeckIndex;
  std::int16_t& PassesLeft;
  std::int16_t& CardsToPass;
  std::array<std::int16_t, MostColumns>& SoftAces;
};

/// Columns of at most five cards. An ace counts 1, or 11 where that fits ("soft") until a later
/// card would take its column over 21.
class Columns {
 public:
  /// `count` columns, numbered from 0. The deck stays its owner's.
  Columns(const core::Deck& deck, SharedValues shared, int count);

  std::int16_t& DeckIndex;    ///< position of the current card, from 1
  std::int16_t& PassesLeft;   ///< cards that may still be passed in this round
  std::int16_t& CardsToPass;  ///< passes allowed per round
  std::array<std::int16_t, MostColumns>& SoftAces;  ///< per column, aces now counted as 11
  std::array<std::int16_t, MostColumns> CardsInColumn{};
  std::array<std::int16_t, MostColumns> ColumnTotal{};

  /// The key of the card at DeckIndex; empty when there is none.
  const std::string& CurrentCard() const { return deck_(DeckIndex); }
  bool CardInPlay() const { return DeckIndex >= 1 && DeckIndex <= LastCard; }
  bool IsColumn(int column) const { return column >= 0 && column < count_; }
  bool IsSoft(int column) const;

  /// Worth of the card at a position of the deck, 1 to 10, an ace 1; 0 where there is no card.
  int GetCardValue(int position) const;
  /// Passes the current card. False, with nothing changed, if that isn't possible.
  bool Pass();
  bool CanPass() const { return PassesLeft != 0 && DeckIndex >= 1 && DeckIndex < LastCard; }

 protected:
  /// Worth of the current card on a column. An ace that counts 11 makes the column soft.
  int CurrentCardOn(int column);
  /// Makes a soft ace of the column count 1 from now on. False if it has none.
  bool UseSoftAce(int column);
  void ClearColumn(int column);
  void ClearColumns();
  int Count() const { return count_; }

 private:
  int CalculateAces(int column);

  const core::Deck& deck_;
  const int count_;
};

}  // namespace games::columns
