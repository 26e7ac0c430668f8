// What scripts see and change of the program besides its windows.
#include "apps/pastimo-script/program_subject.h"

#include <algorithm>

#include "core/cards/card.h"

namespace app {
namespace {

constexpr int DesignPositions = 12;

}  // namespace

double StagedChance::Draw() {
  if (draws.empty()) return core::Chance::Draw();
  const double draw = draws.front();
  draws.pop_front();
  return draw;
}

std::optional<std::vector<std::string>> StagedChance::StagedOrder(std::size_t deckSize) {
  if (decks.empty()) return std::nullopt;
  StagedDeck deck = std::move(decks.front());
  decks.pop_front();
  if (deck.keys.size() == deckSize) return std::move(deck.keys);
  deck.notUsed();
  return std::nullopt;
}

bool StagedFaults::Matches(const std::vector<std::string>& patterns, std::string_view fileName) {
  return std::any_of(patterns.begin(), patterns.end(), [fileName](const std::string& pattern) {
    return core::WildcardMatch(pattern, fileName);
  });
}

ProgramSubject::ProgramSubject(core::Suite& suite, StagedChance& chance)
    : suite_(suite), chance_(chance) {
  core::SetFileFaults(&faults_);
}

ProgramSubject::~ProgramSubject() {
  core::SetFileFaults(nullptr);
}

std::optional<std::string> ProgramSubject::Value(const std::string& name) {
  return SharedValue(suite_.shared, name);
}

std::vector<std::string> ProgramSubject::DeckKeys() {
  std::vector<std::string> keys = suite_.deck.Keys();
  for (std::string& key : keys) key = core::Trimmed(key);
  return keys;
}

std::string ProgramSubject::ImageKeys() {
  std::string text;
  for (int position = 1; position <= DesignPositions; ++position) {
    const std::string key = suite_.images.KeyAt(position);
    if (key.empty()) continue;
    text += (text.empty() ? "" : " ") + std::to_string(position) + ":" + key;
  }
  return text;
}

void ProgramSubject::AddDraws(const std::vector<double>& draws) {
  chance_.draws.insert(chance_.draws.end(), draws.begin(), draws.end());
}

void ProgramSubject::StageDeck(const std::vector<std::string>& keys,
                               std::function<void()> notUsed) {
  chance_.decks.push_back({keys, std::move(notUsed)});
}

void ProgramSubject::SetWriteFault(const std::string& pattern) {
  faults_.writePatterns.push_back(pattern);
}

void ProgramSubject::SetReadFault(const std::string& pattern) {
  faults_.readPatterns.push_back(pattern);
}

void ProgramSubject::ClearFaults() {
  faults_.readPatterns.clear();
  faults_.writePatterns.clear();
}

}  // namespace app
