// Settings files: bracketed keys and their values, by one table that reader and writer walk.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "core/text/number.h"

namespace core {

// One item of a settings file. A key without write is not written; a key without read is not read.
struct SettingsKey {
  std::string key;  // with its brackets, as "[Play Sounds]"
  std::function<std::string()> write;
  std::function<void(const std::string&)> read;
};

// The text of a file with all keys that have a value to write, in their order; a key that is
// listed twice is written twice.
std::string FormatSettings(const std::vector<SettingsKey>& keys);

// Walks any text and hands each known key's value to the first entry of that key that reads. Keys
// stand in any order; what is not known, and a key with no value at the end, is passed over. The
// handlers run in the order of the text.
void ReadSettings(std::string_view text, const std::vector<SettingsKey>& keys);

// The usual keys. The values are the caller's and outlive the table.

// "True" or "False"; any other text reads as false.
SettingsKey Flag(std::string key, bool& value);

// A text as it stands; a line end in it is written as a blank.
SettingsKey Text(std::string key, std::string& value);

// A whole number in plain digits, read into the range of its type; a text that is none reads as 0.
template <class T>
SettingsKey Number(std::string key, T& value) {
  static_assert(std::is_integral_v<T> && !std::is_same_v<T, bool>);
  return {std::move(key), [&value] { return Digits(static_cast<std::int64_t>(value)); },
          [&value](const std::string& text) { value = ClampTo<T>(WholeIn(text)); }};
}

}  // namespace core
