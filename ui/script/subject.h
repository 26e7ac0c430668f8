// What a script asks of the program that it plays, besides its windows.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ui::script {

class Subject {
 public:
  virtual ~Subject() = default;

  /// A process-wide value by its name, as it stands in an answer (see Quote and FlagText); nothing
  /// if there is none of that name.
  virtual std::optional<std::string> Value(const std::string& name) = 0;
  /// The deck's keys, trimmed, in order.
  virtual std::vector<std::string> DeckKeys() = 0;
  /// Which positions of the picture store carry a key: "1:FULL 2:BACK 3:HALF".
  virtual std::string ImageKeys() = 0;

  /// Added to the draws that are left; each is in [0, 1).
  virtual void AddDraws(const std::vector<double>& draws) = 0;
  /// The next shuffle that finds no earlier deck staged leaves the deck like this. If the number of
  /// keys is not the deck's, it calls `notUsed` instead.
  virtual void StageDeck(const std::vector<std::string>& keys, std::function<void()> notUsed) = 0;

  /// From now on opening a file for output, or input, fails if its name matches the pattern (`*`
  /// and `?`), besides those that fail already.
  virtual void SetWriteFault(const std::string& pattern) = 0;
  virtual void SetReadFault(const std::string& pattern) = 0;
  virtual void ClearFaults() = 0;
};

}  // namespace ui::script
