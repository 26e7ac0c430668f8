// The phrase files of the seven topics: reading, the next phrase, and writing back the place kept.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/cards/chance.h"

namespace games::glimmard {

inline constexpr int TopicCount = 7;
inline constexpr std::int16_t RandomTopic = 0;

struct Topic {
  const char* file;
  const char* caption;
};

/// A topic by its number, 1 to TopicCount.
const Topic& TopicOf(int number);

/// What is played when there is no phrase to be had. It fits the board.
extern const std::string MissingFilePhrase;

/// The phrases of one topic, as long as the program runs.
struct PhraseList {
  std::vector<std::string> phrases;  ///< positions 0 to count, in their present order; some empty
  std::int32_t count = 0;            ///< lines of the file, without the numbered one
  std::int32_t position = 0;         ///< of the next phrase; -1 when the file had no number
  bool loaded = false;
};

/// Reads any text as far as it goes. A text of no lines but perhaps the numbered one counts 0.
PhraseList ReadPhrases(std::string text);

/// One pass that swaps each position with any but the first, one draw each. False, with nothing
/// changed, for a list that has no such position.
bool ShufflePhrases(PhraseList& list, core::Chance& chance);

/// The text of a file that keeps the list in its order, with its position. Blank phrases are left
/// out.
std::string FormatPhrases(const PhraseList& list);

/// Why there is no phrase, or one that stands in for it.
enum class Trouble { None, Missing, NotShuffled, Other };

struct DrawnPhrase {
  int topic = 0;       ///< the one that was drawn, if it was left to chance
  std::string phrase;  ///< without blanks at its ends; can be empty
  Trouble trouble = Trouble::None;
  std::string error;  ///< the error's own text, for Other
};

class PhraseFiles {
 public:
  /// The next phrase of a topic, or of any topic for RandomTopic. Reads the topic's file from the
  /// directory on first use; in the place of one that is missing it puts a file of one phrase.
  DrawnPhrase GetPhrase(std::int16_t PhraseTopic, const std::string& directory,
                        core::Chance& chance);

  /// Writes back each topic that was read. The result is what went wrong, a text for each file.
  std::vector<std::string> WritePhraseFiles(const std::string& directory) const;

  /// How many positions all lists have that were read so far.
  std::size_t Positions() const;

 private:
  PhraseList& ListOf(int topic) { return lists_[static_cast<std::size_t>(topic - 1)]; }
  static bool Load(PhraseList& list, const std::string& path, DrawnPhrase& drawn);

  std::array<PhraseList, TopicCount> lists_;
};

}  // namespace games::glimmard
