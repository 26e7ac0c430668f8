// What scripts see and change of the program besides its windows.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "core/files/files.h"
#include "core/suite/suite.h"
#include "ui/script/subject.h"

namespace app {

/// Draws and shuffles that a script has staged come first; then chance is chance again.
class StagedChance : public core::Chance {
 public:
  using core::Chance::Chance;
  double Draw() override;
  std::optional<std::vector<std::string>> StagedOrder(std::size_t deckSize) override;

  struct StagedDeck {
    std::vector<std::string> keys;
    std::function<void()> notUsed;
  };
  std::deque<double> draws;
  std::deque<StagedDeck> decks;
};

/// Opening files fails as a script says.
class StagedFaults : public core::FileFaults {
 public:
  bool FailRead(std::string_view fileName) override { return Matches(readPatterns, fileName); }
  bool FailWrite(std::string_view fileName) override { return Matches(writePatterns, fileName); }

  std::vector<std::string> readPatterns;
  std::vector<std::string> writePatterns;

 private:
  static bool Matches(const std::vector<std::string>& patterns, std::string_view fileName);
};

/// A shared value as a script reads it; nothing if there is none of that name.
std::optional<std::string> SharedValue(const core::Shared& shared, const std::string& name);

class ProgramSubject : public ui::script::Subject {
 public:
  ProgramSubject(core::Suite& suite, StagedChance& chance);
  ~ProgramSubject() override;

  std::optional<std::string> Value(const std::string& name) override;
  std::vector<std::string> DeckKeys() override;
  std::string ImageKeys() override;
  void AddDraws(const std::vector<double>& draws) override;
  void StageDeck(const std::vector<std::string>& keys, std::function<void()> notUsed) override;
  void SetWriteFault(const std::string& pattern) override;
  void SetReadFault(const std::string& pattern) override;
  void ClearFaults() override;

 private:
  core::Suite& suite_;
  StagedChance& chance_;
  StagedFaults faults_;
};

}  // namespace app
