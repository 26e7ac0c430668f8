// Reading and writing of settings files.
#include "core/settings/settings_file.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/text/items.h"
#include "core/text/text.h"

namespace core {

std::string FormatSettings(const std::vector<SettingsKey>& keys) {
  std::string text;
  for (const SettingsKey& item : keys) {
    if (item.write) text += item.key + "\r\n" + item.write() + "\r\n\r\n";
  }
  return text + "\r\n";
}

void ReadSettings(std::string_view text, const std::vector<SettingsKey>& keys) {
  ItemReader reader{std::string(text)};
  while (const std::optional<std::string> item = reader.Next()) {
    const auto known = std::find_if(keys.begin(), keys.end(), [&item](const SettingsKey& entry) {
      return entry.read && entry.key == *item;
    });
    if (known == keys.end()) continue;
    if (const std::optional<std::string> value = reader.Next()) known->read(*value);
  }
}

SettingsKey Flag(std::string key, bool& value) {
  return {std::move(key), [&value] { return FlagWord(value); },
          [&value](const std::string& text) { value = FlagIn(text); }};
}

SettingsKey Text(std::string key, std::string& value) {
  const auto write = [&value] {
    std::string line = value;
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return line;
  };
  return {std::move(key), write, [&value](const std::string& text) { value = text; }};
}

}  // namespace core
