// The text of a public listing, and the score that may stand in it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace publication {

/// A row of a score table as the high score window shows it: the score with its separators, the
/// name with its mark of custom scoring. Both are empty in a row that the table doesn't have.
struct ListedRow {
  std::string name;
  std::string score;
};

/// The fields of a listing as the player has filled them in.
struct Listing {
  std::int32_t score = 0;
  std::string name;
  std::string town;
  std::string state;  ///< "None" is left out of the text
  std::string country;
};

/// The number in a score text, with or without separators; 0 if there is none, and the nearest of
/// 32 bits if it is beyond them.
std::int32_t ParseScore(std::string_view text);

/// One line, as "250,000 by Ann of Dover, Ohio".
std::string ListingText(const Listing& listing);

/// The first row, thus the highest score, without the mark of custom scoring; null if there is
/// none.
const ListedRow* BestUnmarked(const std::vector<ListedRow>& rows);

/// The entries that a player can choose from, "None" first.
std::vector<std::string> StateNames();

}  // namespace publication
