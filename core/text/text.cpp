// Text helpers.
#include "core/text/text.h"

#include <cstdint>

namespace core {
namespace {

bool IsContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// What the first byte of a sequence promises: its length (0 if no sequence starts so), its share
// of the code point, and the least code point that needs that length.
struct LeadByte {
  std::size_t length;
  std::uint32_t bits;
  std::uint32_t least;
};

LeadByte LeadByteOf(unsigned char byte) {
  if (byte < 0x80) return {1, byte, 0};
  if ((byte & 0xE0) == 0xC0) return {2, byte & 0x1Fu, 0x80};
  if ((byte & 0xF0) == 0xE0) return {3, byte & 0x0Fu, 0x800};
  if ((byte & 0xF8) == 0xF0) return {4, byte & 0x07u, 0x10000};
  return {0, 0, 0};
}

// The length of the valid UTF-8 sequence at the start of the bytes, 0 if there is none.
std::size_t SequenceLength(std::string_view bytes) {
  const LeadByte lead = LeadByteOf(static_cast<unsigned char>(bytes.front()));
  if (lead.length == 0 || lead.length > bytes.size()) return 0;
  std::uint32_t point = lead.bits;
  for (std::size_t i = 1; i < lead.length; ++i) {
    if (!IsContinuation(bytes[i])) return 0;
    point = point << 6 | (static_cast<unsigned char>(bytes[i]) & 0x3Fu);
  }
  const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
  return point < lead.least || point > 0x10FFFF || surrogate ? 0 : lead.length;
}

}  // namespace

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

bool EndsWith(std::string_view text, std::string_view ending) {
  return text.ends_with(ending);
}

std::string FlagWord(bool flag) {
  return flag ? "True" : "False";
}

bool FlagIn(std::string_view text) {
  return text == "True";
}

std::string Utf8ForShowing(std::string_view bytes) {
  std::string shown;
  shown.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t length = SequenceLength(bytes);
    if (length > 0) {
      shown.append(bytes.substr(0, length));
      bytes.remove_prefix(length);
      continue;
    }
    const auto latin = static_cast<unsigned char>(bytes.front());
    shown += static_cast<char>(0xC0 | latin >> 6);
    shown += static_cast<char>(0x80 | (latin & 0x3F));
    bytes.remove_prefix(1);
  }
  return shown;
}

}  // namespace core
