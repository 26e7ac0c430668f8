// Names all 2,598,960 poker hands, compares how often each came with the known counts, and times
// the ten hands of a grid.
#include <array>
#include <chrono>
#include <cstdint>
#include <iostream>

#include "core/cards/chance.h"
#include "core/cards/deck.h"
#include "games/vermoy/rules.h"

using namespace games::vermoy;
using Clock = std::chrono::steady_clock;

namespace {

using Counts = std::array<long, HandCount>;

// By arithmetic, in the order of Hand; the royal flush is not among the straight flushes.
constexpr Counts Known = {1302540, 1098240, 123552, 54912, 10200, 5108, 3744, 624, 36, 4};

Counts CountAllHands() {
  std::array<Card, FullDeck> cards;
  core::Deck deck;
  deck.CreateDeck();
  for (int i = 0; i < FullDeck; ++i) cards[i] = CardOf(deck(i + 1));
  Counts counts{};
  for (int a = 0; a < FullDeck; ++a)
    for (int b = a + 1; b < FullDeck; ++b)
      for (int c = b + 1; c < FullDeck; ++c)
        for (int d = c + 1; d < FullDeck; ++d)
          for (int e = d + 1; e < FullDeck; ++e) {
            const Hand hand = EvaluateHand({cards[a], cards[b], cards[c], cards[d], cards[e]});
            ++counts[static_cast<std::size_t>(hand)];
          }
  return counts;
}

// Nanoseconds for laying a card: the ten hands, and drawing the next card.
double NanosecondsOfPlacing() {
  constexpr int rounds = 4000;
  Values values;
  values.OverWrites = 26;
  Rules rules(values);
  core::Deck deck;
  core::Chance chance;
  deck.CreateDeck();
  std::int64_t sum = 0;
  Clock::duration spent{};
  for (int round = 0; round < rounds; ++round) {
    deck.ShuffleDeck(chance);
    rules.Reset();
    rules.Deal(deck);
    const auto start = Clock::now();
    for (int i = 0; i < 2 * Cells; ++i) rules.Place(i % Cells);
    spent += Clock::now() - start;
    sum += rules.RoundPoints();
  }
  if (sum == 0) std::cout << "no hand was worth anything\n";
  return std::chrono::duration<double, std::nano>(spent).count() / (rounds * 2 * Cells);
}

}  // namespace

int main() {
  const auto start = Clock::now();
  const Counts counts = CountAllHands();
  const std::chrono::duration<double, std::milli> all = Clock::now() - start;
  bool right = true;
  for (std::size_t i = 0; i < HandCount; ++i) {
    right = right && counts[i] == Known[i];
    std::cout << TextOf(static_cast<Hand>(i)) << ": " << counts[i]
              << (counts[i] == Known[i] ? "" : "  WRONG") << '\n';
  }
  std::cout << "all 2,598,960 hands: " << all.count() << " ms\n"
            << "the ten hands of a grid, with all that laying a card does: "
            << NanosecondsOfPlacing() << " ns\n";
  return right ? 0 : 1;
}
