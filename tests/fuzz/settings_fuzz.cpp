// Any bytes as a settings file: read in bounded time, and never further than they go.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/settings/settings_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  bool flag = false;
  std::int16_t small = 0;
  std::int32_t large = 0;
  std::string text;
  const std::vector<core::SettingsKey> keys = {
      core::Flag("[Play Sounds]", flag), core::Number("[Time]", small),
      core::Number("[Time Bonus]", large), core::Text("[MIDI]", text)};
  core::ReadSettings(std::string_view(reinterpret_cast<const char*>(data), size), keys);
  // What has been read is written so that it reads the same again, but for texts that quoting
  // changes.
  const bool flagBefore = flag;
  const std::int32_t largeBefore = large;
  core::ReadSettings(core::FormatSettings(keys), keys);
  if (flag != flagBefore || large != largeBefore) __builtin_trap();
  return 0;
}
