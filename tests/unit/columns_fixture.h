// A deck laid out for the rules of the games of columns, and the values that they keep.
#pragma once

#include <string>
#include <vector>

#include "core/cards/deck.h"
#include "games/columns/columns.h"

struct ColumnsFixture {
  core::Deck deck;
  std::int16_t DeckIndex = 0, PassesLeft = 0, CardsToPass = 3;
  std::array<std::int16_t, 5> SoftAces{};

  virtual ~ColumnsFixture() = default;
  virtual void Start(const std::vector<int>& ranks) = 0;
  /// The current card onto a column; what came of it, as one word and a blank.
  virtual std::string Hit(int column) = 0;

  games::columns::SharedValues Shared() { return {DeckIndex, PassesLeft, CardsToPass, SoftAces}; }

  /// The deck from `first` on, in either spelling of the keys; sevens fill it up.
  void Stack(int first, const std::vector<int>& ranks) {
    deck.Assign(std::vector<std::string>(52, " 7S"));
    for (const int rank : ranks) {
      deck.Assign(first, (first % 2 == 0 ? " " : "") + std::to_string(rank) + "H");
      ++first;
    }
  }
  std::string Hits(const std::vector<int>& columns) {
    std::string trace;
    for (const int column : columns) trace += Hit(column);
    return trace;
  }
  /// All ranks on the first column.
  std::string Feed(const std::vector<int>& ranks) {
    Start(ranks);
    return Hits(std::vector<int>(ranks.size(), 0));
  }
};
