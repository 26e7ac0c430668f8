// Taking lines apart and writing values, strictly: what is not well formed is refused.
#include "ui/script/words.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace ui::script {
namespace {

constexpr std::string_view Blanks = " \t\r";

bool IsBlank(char c) {
  return Blanks.find(c) != std::string_view::npos;
}

char Unescaped(char c) {
  switch (c) {
    case '"':
    case '\\':
      return c;
    case 'r':
      return '\r';
    case 'n':
      return '\n';
    default:
      throw Refused{"only \\\", \\\\, \\r and \\n may follow a backslash"};
  }
}

/// Takes the quoted word that begins at `at`, and moves `at` behind it.
std::string TakeQuoted(const std::string& line, std::size_t& at) {
  std::string text;
  for (++at; at < line.size(); ++at) {
    if (line[at] == '"') {
      ++at;
      if (at < line.size() && !IsBlank(line[at])) throw Refused{"a blank must follow a text"};
      return text;
    }
    if (line[at] == '\\' && at + 1 < line.size()) {
      text += Unescaped(line[++at]);
    } else {
      text += line[at];
    }
  }
  throw Refused{"a text lacks its closing quote"};
}

std::string TakeBareText(const std::string& line, std::size_t& at) {
  const std::size_t begin = at;
  while (at < line.size() && !IsBlank(line[at])) {
    if (line[at] == '"') throw Refused{"a quote stands within a word"};
    ++at;
  }
  return line.substr(begin, at - begin);
}

std::int64_t DaysSince1970(int year, int month, int day) {
  // March is the first month of the reckoning, so that the leap day is the last day of its year.
  year -= month <= 2;
  const int era = year / 400;
  const int yearOfEra = year - era * 400;
  const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return static_cast<std::int64_t>(era) * 146097 + dayOfEra - 719468;
}

int DaysOf(int year, int month) {
  static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return month == 2 && leap ? 29 : days[month - 1];
}

/// Whether `text` has digits where the pattern has a 0, and the pattern's characters elsewhere.
bool HasForm(std::string_view text, std::string_view pattern) {
  if (text.size() != pattern.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (pattern[i] == '0' ? !digit : text[i] != pattern[i]) return false;
  }
  return true;
}

}  // namespace

Command ParseCommand(std::string_view line) {
  Command command;
  const auto first = line.find_first_not_of(Blanks);
  if (first == std::string_view::npos) return command;
  command.line = line.substr(first, line.find_last_not_of(Blanks) - first + 1);
  std::size_t at = 0;
  while (at < command.line.size()) {
    if (IsBlank(command.line[at])) {
      ++at;
      continue;
    }
    Word word;
    word.begin = at;
    word.quoted = command.line[at] == '"';
    word.text = word.quoted ? TakeQuoted(command.line, at) : TakeBareText(command.line, at);
    command.words.push_back(std::move(word));
  }
  return command;
}

std::string Quote(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    switch (c) {
      case '"':
        quoted += "\\\"";
        break;
      case '\\':
        quoted += "\\\\";
        break;
      case '\r':
        quoted += "\\r";
        break;
      case '\n':
        quoted += "\\n";
        break;
      default:
        quoted += c;
    }
  }
  return quoted + '"';
}

std::string QuoteShort(std::string_view text) {
  constexpr std::size_t most = 60;
  return text.size() <= most ? Quote(text) : Quote(std::string(text.substr(0, most)) + "...");
}

std::int64_t TakeNumber(const Word& word, std::int64_t low, std::int64_t high) {
  std::int64_t number = 0;
  const char* end = word.text.data() + word.text.size();
  const auto [stop, error] = std::from_chars(word.text.data(), end, number);
  if (word.quoted || error != std::errc() || stop != end || number < low || number > high) {
    throw Refused{QuoteShort(word.text) + " is not a whole number from " + std::to_string(low) +
                  " to " + std::to_string(high)};
  }
  return number;
}

double TakeFraction(const Word& word) {
  double number = 0;
  const char* end = word.text.data() + word.text.size();
  const auto [stop, error] = std::from_chars(word.text.data(), end, number);
  if (word.quoted || error != std::errc() || stop != end || !(number >= 0 && number < 1)) {
    throw Refused{QuoteShort(word.text) + " is not a number from 0 to below 1"};
  }
  return number;
}

const std::string& TakeBare(const Word& word) {
  if (word.quoted) throw Refused{QuoteShort(word.text) + " must stand without quotes"};
  return word.text;
}

const std::string& TakeText(const Word& word) {
  if (!word.quoted) throw Refused{QuoteShort(word.text) + " must stand between double quotes"};
  return word.text;
}

std::int64_t TakeMoment(const Word& word) {
  const std::string& text = TakeText(word);
  const Refused refusal{QuoteShort(text) + " is not a moment as \"2026-01-31 23:59:59\""};
  if (!HasForm(text, "0000-00-00 00:00:00")) throw refusal;
  const auto part = [&](std::size_t at, std::size_t size) {
    int value = 0;
    std::from_chars(text.data() + at, text.data() + at + size, value);
    return value;
  };
  const int year = part(0, 4), month = part(5, 2), day = part(8, 2);
  const int hour = part(11, 2), minute = part(14, 2), second = part(17, 2);
  if (year < 1970 || month < 1 || month > 12 || day < 1 || day > DaysOf(year, month)) throw refusal;
  if (hour > 23 || minute > 59 || second > 59) throw refusal;
  const std::int64_t hours = DaysSince1970(year, month, day) * 24 + hour;
  return ((hours * 60 + minute) * 60 + second) * 1000;
}

std::string FlagText(bool flag) {
  return flag ? "true" : "false";
}

std::string ColorText(Color color) {
  return std::to_string(color.r) + "," + std::to_string(color.g) + "," + std::to_string(color.b);
}

std::string NumberText(double number) {
  if (!std::isfinite(number)) return "0";
  char buffer[512];
  const int size = std::snprintf(buffer, sizeof buffer, "%.3f", number);
  std::string text(buffer, static_cast<std::size_t>(size));
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

}  // namespace ui::script
