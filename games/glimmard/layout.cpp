// How a phrase is laid out on the board of six lines of fifteen cells.
#include "games/glimmard/layout.h"

#include <algorithm>

#include "core/text/number.h"
#include "core/text/text.h"

namespace games::glimmard {
namespace {

constexpr char32_t Blank = U' ';
constexpr int LastCell = BoardCells - 1;
constexpr int MostBytes = 4 * BoardCells;  // no longer text can have few enough characters

int HalfRoundedUp(int blanks) {
  return (blanks + 1) / 2;
}

/// A phrase on its way to the board. Positions count from 1.
class Breaker {
 public:
  explicit Breaker(std::u32string phrase) : text_(std::move(phrase)) {}

  /// False if the phrase doesn't fit.
  bool Break() {
    while (end_ <= LastCell) {
      if (Length() <= end_) {
        CentreLastLine();
        return true;
      }
      DeleteLeadingBlanks();
      if (!IsBlank(end_ + 1) && !IsBlank(end_ + 2) && !MoveWordToNextLine()) return false;
      break_ = end_ + 1;
      end_ += LineCells;
    }
    return false;
  }

  /// Short phrases begin on the third line, longer ones on the second or on the first.
  std::u32string AtItsHeight() const {
    const int lines = (end_ + 1) / LineCells;
    const int above = lines <= 2 ? 2 : lines <= 4 ? 1 : 0;
    return Blanks(above * LineCells) + text_;
  }

 private:
  static std::u32string Blanks(int count) {
    return std::u32string(static_cast<std::size_t>(count), Blank);
  }
  int Length() const { return static_cast<int>(text_.size()); }
  bool IsBlank(int position) const {
    return position <= Length() && text_[static_cast<std::size_t>(position - 1)] == Blank;
  }
  int LineStart() const { return end_ - LineCells + 2; }

  void DeleteLeadingBlanks() {
    while (IsBlank(LineStart())) text_.erase(static_cast<std::size_t>(LineStart() - 1), 1);
  }

  /// Ends the line at its last blank, and centres it. False if the word alone is too long.
  bool MoveWordToNextLine() {
    int last = break_;
    for (int position = break_ + 1; position <= end_; ++position) {
      if (IsBlank(position)) last = position;
    }
    const int pad = end_ + 1 - last;
    if (pad >= LineCells) return false;
    const int front = HalfRoundedUp(pad);
    text_.insert(static_cast<std::size_t>(last), Blanks(pad - front));
    text_.insert(static_cast<std::size_t>(LineStart() - 1), Blanks(front));
    return true;
  }

  void CentreLastLine() {
    DeleteLeadingBlanks();
    const int free = LineCells - (Length() - break_);
    if (free < 1 || free >= LineCells) return;
    text_.insert(static_cast<std::size_t>(break_), Blanks(HalfRoundedUp(free)));
  }

  std::u32string text_;
  int end_ = LineCells - 1;  ///< index of the last cell of the line in hand, from 0
  int break_ = 0;            ///< where the line before it ends
};

/// The value falls with the number of cells, so that long phrases pay about as much as short ones.
int ValueLimit(int cells) {
  return static_cast<int>(core::RoundToEven(2 * (100000 / cells) / 250.0));
}

}  // namespace

std::u32string CharactersOf(std::string_view bytes) {
  std::u32string characters;
  for (const char c : core::Utf8ForShowing(bytes)) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0) == 0x80) {
      characters.back() = characters.back() << 6 | (byte & 0x3Fu);
    } else {
      characters += byte < 0x80   ? byte
                    : byte < 0xE0 ? byte & 0x1Fu
                    : byte < 0xF0 ? byte & 0x0Fu
                                  : byte & 0x07u;
    }
  }
  return characters;
}

std::string Utf8Of(char32_t character) {
  if (character < 0x80) return std::string(1, static_cast<char>(character));
  std::string tail;
  char32_t room = 0x40;
  do {
    tail.insert(tail.begin(), static_cast<char>(0x80 | (character & 0x3F)));
    character >>= 6;
    room >>= 1;
  } while (character >= room);
  const char32_t mark = 0x100 - 2 * room;
  return static_cast<char>(mark | character) + tail;
}

char32_t Capital(char32_t character) {
  const bool latin = (character >= U'a' && character <= U'z') ||
                     (character >= 0xE0 && character <= 0xFE && character != 0xF7);
  return latin ? character - 0x20 : character;
}

int LetterIndex(char32_t character) {
  const char32_t capital = Capital(character);
  return capital >= U'A' && capital <= U'Z' ? static_cast<int>(capital - U'A') : -1;
}

PhraseLayout LayoutPhrase(std::string_view phrase) {
  PhraseLayout layout;
  if (phrase.empty() || phrase.size() > MostBytes) return layout;
  std::u32string characters = CharactersOf(phrase);
  if (characters.size() > BoardCells) return layout;
  Breaker breaker(std::move(characters));
  if (!breaker.Break()) return layout;
  layout.text = breaker.AtItsHeight();
  if (layout.text.size() > BoardCells) return layout;
  layout.LetterCellCount = static_cast<int>(
      std::count_if(layout.text.begin(), layout.text.end(), [](char32_t c) { return c != Blank; }));
  if (layout.LetterCellCount == 0) return layout;
  layout.LetterValueLimit = ValueLimit(layout.LetterCellCount);
  layout.fits = true;
  return layout;
}

}  // namespace games::glimmard
