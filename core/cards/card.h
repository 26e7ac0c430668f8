// Cards as text: a rank from 1 (Ace) to 13 (King) and a suit letter, as "12H".
#pragma once

#include <string>
#include <string_view>

namespace core {

inline constexpr char spades = 'S';
inline constexpr char hearts = 'H';
inline constexpr char clubs = 'C';
inline constexpr char diamonds = 'D';

// The suits in the order that holds wherever suits are in order.
inline constexpr std::string_view suitOrder = "SHCD";

inline constexpr int ace = 1;
inline constexpr int jack = 11;
inline constexpr int queen = 12;
inline constexpr int king = 13;

// A key has two spellings, " 5S" and "5S"; every function here takes both.

// The number at the start of the key; 0 if there is none, as in an empty slot. Foreign keys can
// bear any number: it is held within 16 bits, so that sums of ranks stay in an int.
int RankOf(std::string_view key);

// The last character of the key; a zero byte for an empty slot.
char SuitOf(std::string_view key);

// The spelling without blanks, by which pictures are kept.
std::string Trimmed(std::string_view key);

// The spelling with the leading blank, as keys built from a number have it: " 5S".
std::string KeyFromNumber(int rank, char suit);

// The card in words, as "Queen of Hearts" or "Two of Clubs"; empty for what is no card.
std::string CardName(std::string_view key);

}  // namespace core
