// Fandrel's rules: cards race from five lower spots to three upper spots, and eights are wild.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/cards/deck.h"

namespace games::fandrel {

inline constexpr int LowerSpots = 5;  ///< counted from 1, as the upper ones
inline constexpr int UpperSpots = 3;

/// What a spot is worth at the start of a round, and by how much its value rises.
int SpotStep(int upper);

/// How a move is judged.
enum class Match {
  None = 0,
  Suit = 1,  ///< the same suit, or an eight lies on the upper spot
  Rank = 2,  ///< raises the spot's value
  Vacant = 3,
  Eight = 4  ///< an eight is moved; raises the spot's value
};

/// How the whole board is judged.
enum class Board { NoMove = 0, MovesLeft = 1, AllUsed = 2 };

/// One round on the table. The score and the Move Timer are the owner's.
class Rules {
 public:
  /// Cards left in the deck, which is dealt from its end.
  std::int16_t CardsRemaining = 0;

  void Deal(const core::Deck& deck);
  void ResetSpotValues();

  /// The key on a spot; empty for none, and for a spot that there is not.
  const std::string& PlayCard(int lower) const;
  const std::string& UpperCard(int upper) const;
  std::int32_t SpotValue(int upper) const { return spotValues_[Index(upper)]; }

  Match CheckMove(int lower, int upper) const;
  Board CheckForMoves() const;
  /// Makes the move if it is legal: raises the spot's value by what the match says, and refills the
  /// lower spot while the deck lasts.
  Match MoveCard(int lower, int upper);

 private:
  static std::size_t Index(int spot) { return static_cast<std::size_t>(spot - 1); }
  std::string NextCard();

  std::array<std::string, LowerSpots> PlayCards;
  std::array<std::string, UpperSpots> UpperCards;
  std::array<std::int32_t, UpperSpots> spotValues_{};
  std::vector<std::string> deck_;
};

}  // namespace games::fandrel
