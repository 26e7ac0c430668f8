// Making and shuffling of the deck.
#include "core/cards/deck.h"

#include <algorithm>
#include <new>
#include <utility>

#include "core/cards/card.h"

namespace core {

const std::string& Deck::operator()(int i) const {
  static const std::string none;
  return Holds(i) ? keys_[static_cast<std::size_t>(i - 1)] : none;
}

int Deck::UpperBound() const {
  return static_cast<int>(keys_.size());
}

void Deck::Resize(int upperBound) {
  keys_.assign(static_cast<std::size_t>(std::max(upperBound, 0)), std::string());
}

void Deck::Assign(int i, std::string key) {
  if (Holds(i)) keys_[static_cast<std::size_t>(i - 1)] = std::move(key);
}

void Deck::Assign(std::vector<std::string> keys) {
  keys_ = std::move(keys);
}

bool Deck::CreateDeck() try {
  keys_.clear();
  for (const char suit : suitOrder) {
    for (int rank = ace; rank <= king; ++rank) keys_.push_back(KeyFromNumber(rank, suit));
  }
  return true;
} catch (const std::bad_alloc&) {
  return false;
}

bool Deck::ShuffleDeck(Chance& chance) {
  const int n = UpperBound();
  if (n == 0) return false;
  for (int i = 1; i <= n; ++i) {
    const int j = RandomBetween(chance, 1, n);
    std::swap(keys_[static_cast<std::size_t>(i - 1)], keys_[static_cast<std::size_t>(j - 1)]);
  }
  auto staged = chance.StagedOrder(keys_.size());
  if (staged && staged->size() == keys_.size()) keys_ = std::move(*staged);
  return true;
}

const std::vector<std::string>& Deck::Keys() const {
  return keys_;
}

bool Deck::Holds(int i) const {
  return i >= 1 && i <= UpperBound();
}

}  // namespace core
