// The deck: a resizable row of card keys, indexed from 1.
#pragma once

#include <string>
#include <vector>

#include "core/cards/chance.h"

namespace core {

class Deck {
 public:
  // The key at an index from 1 to UpperBound(); an empty text outside of that.
  const std::string& operator()(int i) const;

  // The highest index, and so the number of slots; 0 before the first CreateDeck or Resize.
  int UpperBound() const;

  // Gives the deck this many slots, all of them empty.
  void Resize(int upperBound);

  // Puts a key into a slot; an index outside of the deck does nothing.
  void Assign(int i, std::string key);

  // Takes over a whole row of keys, the first to index 1.
  void Assign(std::vector<std::string> keys);

  // Fills the deck with the 52 cards, in the spelling " 5S". False if that is not possible.
  bool CreateDeck();

  // Shuffles in one pass that swaps each slot with any slot, one draw each. An order staged in the
  // source of chance then takes the place of the result, if it has as many keys as the deck.
  // False for a deck that was never made.
  bool ShuffleDeck(Chance& chance);

  // All keys in order, as they are spelt.
  const std::vector<std::string>& Keys() const;

 private:
  bool Holds(int i) const;

  std::vector<std::string> keys_;
};

}  // namespace core
