// The program's one source of chance.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace core {

// Draws random numbers. A script derives from it and hands in draws and shuffles of its own.
class Chance {
 public:
  // The clock gives any count that moves with time, best in nanoseconds. Without one the draws
  // follow from those before alone, the same in every run.
  explicit Chance(std::function<std::uint64_t()> clock = {});
  virtual ~Chance();

  // A number in [0, 1), uniform. Every call reseeds the generator from the clock, mixed with what
  // went before, so that two calls in one tick of the clock still differ.
  virtual double Draw();

  // The order in which the next shuffle is to leave a deck of this size, its first card first.
  // Normally nothing: the shuffle stands as it fell.
  virtual std::optional<std::vector<std::string>> StagedOrder(std::size_t deckSize);

 private:
  std::function<std::uint64_t()> clock_;
  std::uint64_t state_ = 0;
};

// A whole number from low to high, both included. One draw.
int RandomBetween(Chance& chance, int low, int high);

// A whole number from 0 to n - 1, and 0 for an n of 0. One draw.
int RandomBelow(Chance& chance, int n);

}  // namespace core
