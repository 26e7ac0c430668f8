// How a phrase is laid out on the board of six lines of fifteen cells.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace games::glimmard {

inline constexpr int LineCells = 15;
inline constexpr int BoardCells = 90;

/// The characters of a text in UTF-8; a byte that is none counts as Latin-1.
std::u32string CharactersOf(std::string_view bytes);
std::string Utf8Of(char32_t character);

/// As the board shows it: capitals, also of the letters that Latin-1 has beyond "Z".
char32_t Capital(char32_t character);

/// The number of a letter from "A" on, 0 to 25, whatever its case; -1 for all else.
int LetterIndex(char32_t character);

struct PhraseLayout {
  bool fits = false;
  std::u32string text;       ///< the n-th character, from 0, stands in cell n
  int LetterCellCount = 0;   ///< cells that are shown: all but the blanks
  int LetterValueLimit = 0;  ///< a letter is worth up to so many times 250 points
};

/// Breaks a phrase, which has no blanks at its ends, into centred lines. A phrase that is empty,
/// longer than the board, or can't be broken so that it fits, doesn't fit.
PhraseLayout LayoutPhrase(std::string_view phrase);

}  // namespace games::glimmard
