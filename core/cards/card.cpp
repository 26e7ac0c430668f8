// Card keys taken apart and named.
#include "core/cards/card.h"

#include <array>
#include <cstdint>

#include "core/text/number.h"
#include "core/text/text.h"

namespace core {
namespace {

constexpr std::array<const char*, 13> rankNames = {"Ace",  "Two",   "Three", "Four", "Five",
                                                   "Six",  "Seven", "Eight", "Nine", "Ten",
                                                   "Jack", "Queen", "King"};
constexpr std::array<const char*, 4> suitNames = {"Spades", "Hearts", "Clubs", "Diamonds"};

}  // namespace

int RankOf(std::string_view key) {
  return ClampTo<std::int16_t>(WholeIn(key));
}

char SuitOf(std::string_view key) {
  return key.empty() ? '\0' : key.back();
}

std::string Trimmed(std::string_view key) {
  return Trim(key);
}

std::string KeyFromNumber(int rank, char suit) {
  return ' ' + Digits(rank) + suit;
}

std::string CardName(std::string_view key) {
  const int rank = RankOf(key);
  const std::size_t suit = suitOrder.find(SuitOf(key));
  if (rank < ace || rank > king || suit == std::string_view::npos) return {};
  return std::string(rankNames[static_cast<std::size_t>(rank - 1)]) + " of " + suitNames[suit];
}

}  // namespace core
