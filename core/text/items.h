// The reader that takes a text apart into items, which end at a comma or at a line end.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace core {

// Reads a whole text in memory once, from its start to its end, in time that grows with its length
// only, whatever its bytes. CR LF, LF and CR alone all end a line; the last line may lack its end.
class ItemReader {
 public:
  explicit ItemReader(std::string text);

  // Nothing is left. True after the last item and its line end, so a text that ends in a line end
  // has no empty item behind it.
  bool AtEnd() const;

  // The next item without the blanks round it; nothing at the end. An item that stands wholly in
  // double quotes keeps its commas and the blanks within, and loses the quotes. A quote that is
  // not closed so within its line is a character like any other: a stray one in a player's name
  // must not swallow the rows that follow. An empty line is an empty item.
  std::optional<std::string> Next();

  // The rest of the line, as it stands and without its end; nothing at the end.
  std::optional<std::string> NextLine();

  // Passes over the line ends that come next, if any.
  void SkipEmptyLines();

 private:
  bool AtLineEnd(std::size_t at) const;
  std::size_t AfterBlanks(std::size_t at) const;
  std::optional<std::string> QuotedItem();
  std::string PlainItem();
  void PassLineEnd();

  std::string text_;
  std::size_t at_ = 0;
};

}  // namespace core
