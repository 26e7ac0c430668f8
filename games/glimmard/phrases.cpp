// The phrase files of the seven topics: reading, the next phrase, and writing back the place kept.
#include "games/glimmard/phrases.h"

#include <utility>

#include "core/files/files.h"
#include "core/text/items.h"
#include "core/text/number.h"
#include "core/text/text.h"

namespace games::glimmard {
namespace {

constexpr std::string_view HeaderWord = "CURRENT_PHRASE_NUMBER";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::int32_t NoPosition = -1;
constexpr std::size_t LargestFile = 8u << 20;  // bytes; lines of nothing take most memory

constexpr Topic TopicTable[TopicCount] = {
    {"GMM.Dat", "Topic: Television and Movies"},
    {"GMN.Dat", "Topic: People and Names"},
    {"GMP.Dat", "Topic: Famous and Not So Famous Phrases"},
    {"GMS.Dat", "Topic: Sports"},
    {"GMX.Dat", "Topic: Miscellaneous"},
    {"GMMU.Dat", "Topic: Music"},
    {"GMPL.Dat", "Topic: Places"},
};

/// The topics' numbers in the order in which their files are written back.
constexpr int WritingOrder[TopicCount] = {3, 2, 4, 1, 5, 7, 6};

std::int32_t NumberInHeader(std::string_view line) {
  const std::size_t sign = line.find('=');
  if (sign == std::string_view::npos) return 0;
  return core::ClampTo<std::int32_t>(core::WholeIn(line.substr(sign + 1)));
}

/// The list is at its end; so is one whose file gave a number that it has no place for.
bool HasRunOut(const PhraseList& list) {
  return list.position < 0 || list.position >= list.count;
}

}  // namespace

const std::string MissingFilePhrase = "Glimmard's data file is missing. Please re-install!";

const Topic& TopicOf(int number) {
  return TopicTable[number - 1];
}

PhraseList ReadPhrases(std::string text) {
  if (text.starts_with(ByteOrderMark)) text.erase(0, ByteOrderMark.size());
  core::ItemReader reader(std::move(text));
  std::vector<std::string> lines;
  while (auto line = reader.NextLine()) lines.push_back(std::move(*line));

  PhraseList list;
  const bool numbered = !lines.empty() && lines.front().starts_with(HeaderWord);
  list.count = static_cast<std::int32_t>(lines.size()) - (numbered ? 1 : 0);
  list.position = numbered ? NumberInHeader(lines.front()) : NoPosition;
  list.loaded = list.count > 0;
  list.phrases = std::move(lines);
  if (numbered) {
    // The phrases begin at position 1, so the last line falls on position count. It is the empty
    // one that ends a file written here; in any other file it is a phrase that must not be lost.
    list.phrases.front().clear();
  } else {
    list.phrases.emplace_back();
  }
  return list;
}

bool ShufflePhrases(PhraseList& list, core::Chance& chance) {
  const int last = static_cast<int>(list.phrases.size()) - 1;
  if (last < 1) return false;
  for (int i = 0; i <= last; ++i) {
    const int j = core::RandomBetween(chance, 1, last);
    std::swap(list.phrases[static_cast<std::size_t>(i)], list.phrases[static_cast<std::size_t>(j)]);
  }
  return true;
}

std::string FormatPhrases(const PhraseList& list) {
  std::string text = std::string(HeaderWord) + "=" + core::Digits(list.position) + "\r\n";
  for (const std::string& phrase : list.phrases) {
    if (!core::Trim(phrase).empty()) text += phrase + "\r\n";
  }
  return text + "\r\n";
}

bool PhraseFiles::Load(PhraseList& list, const std::string& path, DrawnPhrase& drawn) {
  if (!core::Exists(path)) {
    drawn.trouble = Trouble::Missing;
    drawn.phrase = MissingFilePhrase;
    core::WriteWhole(path, MissingFilePhrase + "\r\n");
    return false;
  }
  auto text = core::ReadWhole(path, &drawn.error);
  if (text && text->empty()) drawn.error = core::FileName(path) + " is empty.";
  if (text && text->size() > LargestFile) drawn.error = core::FileName(path) + " is too large.";
  if (!drawn.error.empty()) {
    drawn.trouble = Trouble::Other;
    return false;
  }
  list = ReadPhrases(std::move(*text));
  return true;
}

DrawnPhrase PhraseFiles::GetPhrase(std::int16_t PhraseTopic, const std::string& directory,
                                   core::Chance& chance) {
  DrawnPhrase drawn;
  const bool any = PhraseTopic < 1 || PhraseTopic > TopicCount;
  drawn.topic = any ? core::RandomBetween(chance, 1, TopicCount) : PhraseTopic;
  PhraseList& list = ListOf(drawn.topic);
  if (!list.loaded && !Load(list, directory + TopicOf(drawn.topic).file, drawn)) return drawn;
  if (HasRunOut(list)) {
    list.position = 0;
    if (!ShufflePhrases(list, chance)) {
      drawn.trouble = Trouble::NotShuffled;
      return drawn;
    }
  }
  drawn.phrase = core::Trim(list.phrases[static_cast<std::size_t>(list.position)]);
  ++list.position;
  return drawn;
}

std::vector<std::string> PhraseFiles::WritePhraseFiles(const std::string& directory) const {
  std::vector<std::string> errors;
  for (int topic : WritingOrder) {
    const PhraseList& list = lists_[static_cast<std::size_t>(topic - 1)];
    std::string error;
    if (list.loaded &&
        !core::WriteWhole(directory + TopicOf(topic).file, FormatPhrases(list), &error)) {
      errors.push_back(error);
    }
  }
  return errors;
}

std::size_t PhraseFiles::Positions() const {
  std::size_t positions = 0;
  for (const PhraseList& list : lists_) positions += list.phrases.size();
  return positions;
}

}  // namespace games::glimmard
