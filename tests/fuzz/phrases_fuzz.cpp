// Any bytes as a phrase file: no phrase is lost in the rewriting, and what is laid out fits.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/text/text.h"
#include "games/glimmard/layout.h"
#include "games/glimmard/phrases.h"

namespace {

using namespace games::glimmard;

std::vector<std::string> Sorted(std::vector<std::string> phrases) {
  std::erase_if(phrases, [](const std::string& phrase) { return core::Trim(phrase).empty(); });
  std::sort(phrases.begin(), phrases.end());
  return phrases;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  PhraseList list = ReadPhrases(std::string(reinterpret_cast<const char*>(data), size));
  if (list.phrases.size() != static_cast<std::size_t>(list.count) + 1) __builtin_trap();
  const auto phrases = Sorted(list.phrases);
  core::Chance chance;
  ShufflePhrases(list, chance);
  if (Sorted(ReadPhrases(FormatPhrases(list)).phrases) != phrases) __builtin_trap();
  for (const std::string& phrase : phrases) {
    const PhraseLayout layout = LayoutPhrase(core::Trim(phrase));
    if (layout.fits && (layout.text.size() > BoardCells || layout.LetterCellCount < 1 ||
                        layout.LetterCellCount > BoardCells || layout.LetterValueLimit < 1)) {
      __builtin_trap();
    }
    for (char32_t character : layout.text) Utf8Of(Capital(character));
  }
  return 0;
}
