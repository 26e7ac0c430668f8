// A game's scoring dialog as a table: its fields, what is tested, and what a refusal does.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/text/number.h"

namespace core {

class ScoringDialog;

/// A reason to refuse what a field holds, and what comes of it.
struct FieldTest {
  std::function<bool(double value, const ScoringDialog&)> refuses;
  std::string message;
  /// What the field reads afterwards; none leaves it.
  std::function<std::string(const ScoringDialog&)> shows = {};
  /// What goes into memory, by the field's own store; none leaves the old value there.
  std::optional<std::int64_t> stores = {};

  FieldTest& KeepOld() {
    stores.reset();
    return *this;
  }
};

/// Below or above a limit: the message, and field and memory take the limit.
FieldTest Below(std::int64_t limit, std::string message);
FieldTest Above(std::int64_t limit, std::string message);
/// Outside of a range; nothing changes but by `replacement`, which field and memory take.
FieldTest Outside(std::int64_t low, std::int64_t high, std::string message,
                  std::optional<std::int64_t> replacement = {});

/// A text field with a number.
struct NumberField {
  std::string name;
  std::string label;
  std::function<std::string()> show;
  std::function<void(double)> store;
  std::vector<FieldTest> tests;
  std::int64_t standard;       ///< what Default writes into the field
  bool defaultStores = true;   ///< Default puts it into memory as well
  std::string labelName = {};  ///< empty: "lbl" and the field's name without its prefix
  std::string suffix = {};     ///< words behind the field
  /// After the field has passed its tests and its value is stored.
  std::function<void(ScoringDialog&)> passed = {};
};

/// A number in memory, shown and stored in units of `unit` (1000 for seconds kept in milliseconds).
template <class T>
NumberField Field(std::string name, std::string label, T& value, std::vector<FieldTest> tests,
                  std::int64_t standard, int unit = 1) {
  return {std::move(name),
          std::move(label),
          [&value, unit] { return NumberText(static_cast<double>(value) / unit); },
          [&value, unit](double number) { value = ClampTo<T>(RoundToEven(number * unit)); },
          std::move(tests),
          standard};
}

/// A check box. Without a store, whoever needs its state asks the dialog.
struct CheckField {
  std::string name;
  std::string caption;
  std::function<bool()> show;
  bool standard = true;
  /// After each change by the player or by Default; not while the dialog opens.
  std::function<void(ScoringDialog&)> changed = {};
};

/// A drop-down list of fixed choices.
struct ListField {
  std::string name;
  std::string label;
  std::vector<std::string> items;
  std::function<int()> showIndex;
  int standardIndex;
  std::string suffix = {};
};

/// Option buttons under a heading; exactly one is set.
struct OptionField {
  std::string labelName;
  std::string label;
  struct Choice {
    std::string name;
    std::string caption;
  };
  std::vector<Choice> choices;
  std::function<int()> showIndex;
  int standardIndex;
};

/// Buttons that show pictures and act at once.
struct PictureButtons {
  std::string name;  ///< of the array, from index 0
  std::string label;
  std::vector<std::string> artworks;
  std::function<void(int)> click;
};

/// A text between the fields.
struct NoteField {
  std::string name;
  std::string text;
};

using DialogItem =
    std::variant<NumberField, CheckField, ListField, OptionField, PictureButtons, NoteField>;

enum class Refusal {
  Clamping,      ///< every field is tested and stored by itself; the message is an information
  RefusingAll,   ///< every field is tested; nothing is stored if one fails
  RefusingFirst  ///< the first field that fails ends it; nothing is stored
};

struct ScoringTable {
  std::string window;             ///< "frmQuindleCustomScoring"
  std::string frame;              ///< "frmScoringOptions"
  std::vector<DialogItem> items;  ///< in the order of the layout
  Refusal refusal = Refusal::Clamping;
  bool replacesBeforeMessage = false;  ///< a refused value is replaced before the message stands
  bool storesBeforeMessage = false;    ///< the same in memory, but the field is replaced after it
  /// The fields in the order of their tests; empty: the order of the layout.
  std::vector<std::string> testOrder = {};

  std::function<void(ScoringDialog&)> opened = {};
  std::function<void(ScoringDialog&)> beforeTests = {};
  std::function<void(ScoringDialog&)> beforeStoring = {};  ///< refusing tables, when all is valid
  std::function<void(ScoringDialog&)> afterTests = {};     ///< whether or not a field was refused
  std::function<void(ScoringDialog&)> allValid = {};       ///< right before the dialog closes
  /// After Default has set fields and values: the time limit's entry, other values.
  std::function<void(ScoringDialog&)> defaults = {};
};

}  // namespace core
