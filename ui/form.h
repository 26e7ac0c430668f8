// The layout of a dialog as rows of controls; a platform makes its own layouts of them.
#pragma once

#include <initializer_list>
#include <vector>

namespace ui {

class Control;

/// One row. A row of two controls whose first is a label is a labelled field.
struct FormRow {
  enum class Look { Fields, Buttons };
  std::vector<Control*> cells;
  Control* group = nullptr;  ///< the frame round this and its neighbouring rows, or none
  Look look = Look::Fields;
};

/// Rows from top to bottom; buttons stand in a row of their own, usually the last.
class Form {
 public:
  void Row(std::initializer_list<Control*> cells, Control* group = nullptr);
  void Buttons(std::initializer_list<Control*> cells);
  void Row(FormRow row) { rows_.push_back(std::move(row)); }
  const std::vector<FormRow>& Rows() const { return rows_; }
  bool Empty() const { return rows_.empty(); }

 private:
  std::vector<FormRow> rows_;
};

/// Gives the controls of a form plain places for a platform without text metrics, and returns the
/// height that they take, in logical pixels.
int PlaceForm(const Form& form, int width);

}  // namespace ui
