// Small helpers for text: trimming, the two flag words, and bytes made fit for showing.
#pragma once

#include <string>
#include <string_view>

namespace core {

// The text without the blanks and tabs at both ends.
std::string Trim(std::string_view text);

bool EndsWith(std::string_view text, std::string_view ending);

// "True" or "False", as flags stand in files.
std::string FlagWord(bool flag);

// Only the exact word "True" is true.
bool FlagIn(std::string_view text);

// The bytes as valid UTF-8: what is UTF-8 stays, any other byte is taken as Latin-1. For showing
// only; what goes back into a file are the bytes as they were.
std::string Utf8ForShowing(std::string_view bytes);

}  // namespace core
