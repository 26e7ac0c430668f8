// Random numbers, reseeded from the clock on every call.
#include "core/cards/chance.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace core {
namespace {

// The finishing step of the SplitMix64 generator: every bit of the result hangs on every bit given.
std::uint64_t Scramble(std::uint64_t value) {
  value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9u;
  value = (value ^ value >> 27) * 0x94D049BB133111EBu;
  return value ^ value >> 31;
}

}  // namespace

Chance::Chance(std::function<std::uint64_t()> clock) : clock_(std::move(clock)) {}

Chance::~Chance() = default;

double Chance::Draw() {
  constexpr std::uint64_t step = 0x9E3779B97F4A7C15u;
  const std::uint64_t seed = clock_ ? clock_() : 0;
  state_ = Scramble(state_ + step + Scramble(seed + step));
  return static_cast<double>(state_ >> 11) * 0x1.0p-53;
}

std::optional<std::vector<std::string>> Chance::StagedOrder(std::size_t /*deckSize*/) {
  return std::nullopt;
}

int RandomBetween(Chance& chance, int low, int high) {
  const double span = static_cast<double>(high) - low + 1;
  const double value = std::floor(span * chance.Draw() + low);
  // The sum can round up to the first number that is too high.
  const auto [least, most] = std::minmax(low, high);
  return static_cast<int>(std::clamp<double>(value, least, most));
}

int RandomBelow(Chance& chance, int n) {
  const double value = std::floor(n * chance.Draw());
  return static_cast<int>(std::clamp<double>(value, 0, std::max(n - 1, 0)));
}

}  // namespace core
