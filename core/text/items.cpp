// The reader of items and lines.
#include "core/text/items.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/text/text.h"

namespace core {

ItemReader::ItemReader(std::string text) : text_(std::move(text)) {}

bool ItemReader::AtEnd() const {
  return at_ >= text_.size();
}

std::optional<std::string> ItemReader::Next() {
  if (AtEnd()) return std::nullopt;
  at_ = AfterBlanks(at_);
  std::optional<std::string> quoted = QuotedItem();
  std::string item = quoted ? std::move(*quoted) : PlainItem();
  if (!AtEnd() && text_[at_] == ',') {
    ++at_;
  } else {
    PassLineEnd();
  }
  return item;
}

std::optional<std::string> ItemReader::NextLine() {
  if (AtEnd()) return std::nullopt;
  const std::size_t end = std::min(text_.find_first_of("\r\n", at_), text_.size());
  std::string line = text_.substr(at_, end - at_);
  at_ = end;
  PassLineEnd();
  return line;
}

void ItemReader::SkipEmptyLines() {
  while (!AtEnd() && AtLineEnd(at_)) PassLineEnd();
}

bool ItemReader::AtLineEnd(std::size_t at) const {
  return at >= text_.size() || text_[at] == '\r' || text_[at] == '\n';
}

std::size_t ItemReader::AfterBlanks(std::size_t at) const {
  return std::min(text_.find_first_not_of(" \t", at), text_.size());
}

// Takes the item at the reading place if it stands in quotes from end to end, and goes to what
// ended it; otherwise moves nothing. Only the next quote is tried, which keeps the time linear.
std::optional<std::string> ItemReader::QuotedItem() {
  if (AtEnd() || text_[at_] != '"') return std::nullopt;
  const std::size_t close = text_.find_first_of("\"\r\n", at_ + 1);
  if (close == std::string::npos || text_[close] != '"') return std::nullopt;
  const std::size_t end = AfterBlanks(close + 1);
  if (!AtLineEnd(end) && text_[end] != ',') return std::nullopt;
  std::string item = text_.substr(at_ + 1, close - at_ - 1);
  at_ = end;
  return item;
}

std::string ItemReader::PlainItem() {
  const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
  std::string item = Trim(std::string_view(text_).substr(at_, end - at_));
  at_ = end;
  return item;
}

void ItemReader::PassLineEnd() {
  if (AtEnd()) return;
  const bool pair = text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n';
  at_ += pair ? 2 : 1;
}

}  // namespace core
