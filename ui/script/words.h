// The words of a script's lines, and how values are written in its answers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/types.h"

namespace ui::script {

/// Thrown by a command that can't be carried out, before it has changed anything.
struct Refused {
  std::string reason;
};

struct Word {
  std::string text;  ///< a quoted one without its quotes and with its escapes resolved
  bool quoted = false;
  std::size_t begin = 0;  ///< where it begins in the line
};

/// A line of a script, taken apart at its blanks.
struct Command {
  std::string line;
  std::vector<Word> words;

  const std::string& Name() const { return words.front().text; }
  std::size_t Arguments() const { return words.size() - 1; }
  /// The line from that word on, as it stands.
  std::string From(std::size_t word) const { return line.substr(words.at(word).begin); }
};

/// `line` without the blanks round it, taken apart; throws Refused if its quotes are wrong.
Command ParseCommand(std::string_view line);

/// The text between double quotes, with `\"`, `\\`, `\r` and `\n` for those four characters.
std::string Quote(std::string_view text);
/// The same for a reason: at most some sixty characters of it.
std::string QuoteShort(std::string_view text);

/// A bare whole number between two bounds, both included; throws Refused for anything else.
std::int64_t TakeNumber(const Word& word, std::int64_t low, std::int64_t high);
/// A bare number in [0, 1); throws Refused for anything else.
double TakeFraction(const Word& word);
/// A bare word; throws Refused if it is quoted.
const std::string& TakeBare(const Word& word);
/// A quoted text; throws Refused if it is bare.
const std::string& TakeText(const Word& word);
/// "YYYY-MM-DD HH:MM:SS" from 1970 to 9999 as milliseconds since 1970-01-01 00:00.
std::int64_t TakeMoment(const Word& word);

std::string FlagText(bool flag);
std::string ColorText(Color color);
/// At most three places behind the point, and none that is not needed.
std::string NumberText(double number);

}  // namespace ui::script
