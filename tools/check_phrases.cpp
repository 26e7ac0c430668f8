// check_phrases DIRECTORY: looks whether all phrases of the seven files fit the board, and whether
// there are enough of them, no two alike.
#include <algorithm>
#include <cctype>
#include <iostream>
#include <set>

#include "core/files/files.h"
#include "core/text/text.h"
#include "games/glimmard/layout.h"
#include "games/glimmard/phrases.h"

namespace {

using namespace games::glimmard;

constexpr std::size_t FewestPhrases = 150;

bool HasLetter(const std::string& phrase) {
  return std::any_of(phrase.begin(), phrase.end(),
                     [](unsigned char c) { return LetterIndex(c) >= 0; });
}

std::string InCapitals(std::string phrase) {
  std::transform(phrase.begin(), phrase.end(), phrase.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return phrase;
}

/// What is wrong with a phrase; empty if nothing is.
std::string FaultOf(const std::string& phrase) {
  if (core::Trim(phrase) != phrase || phrase.find("  ") != std::string::npos) return "blanks";
  if (!HasLetter(phrase)) return "no letter";
  if (!std::all_of(phrase.begin(), phrase.end(), [](char c) { return c >= ' ' && c <= '~'; })) {
    return "a character that not every keyboard has";
  }
  return LayoutPhrase(phrase).fits ? "" : "doesn't fit the board";
}

bool CheckFile(const std::string& path) {
  const auto text = core::ReadWhole(path);
  std::set<std::string> phrases;
  bool good = true;
  for (const std::string& phrase : ReadPhrases(text.value_or("")).phrases) {
    if (phrase.empty()) continue;
    std::string fault = FaultOf(phrase);
    if (!phrases.insert(InCapitals(phrase)).second) fault = "stands there twice";
    if (fault.empty()) continue;
    std::cout << path << ": " << phrase << ": " << fault << '\n';
    good = false;
  }
  std::cout << path << ": " << phrases.size() << " phrases\n";
  return good && phrases.size() >= FewestPhrases;
}

}  // namespace

int main(int count, char** words) {
  if (count != 2) {
    std::cerr << "usage: check_phrases DIRECTORY\n";
    return 2;
  }
  bool good = true;
  for (int topic = 1; topic <= TopicCount; ++topic) {
    good = CheckFile(std::string(words[1]) + "/" + TopicOf(topic).file) && good;
  }
  return good ? 0 : 1;
}
