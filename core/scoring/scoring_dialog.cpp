// The one class of all scoring dialogs: it shows a game's table and applies it.
#include "core/scoring/scoring_dialog.h"

#include <algorithm>
#include <stdexcept>

#include "core/suite/notices.h"

namespace core {
namespace {

constexpr int Width = 460;

std::string LabelNameFor(const std::string& control) {
  const auto prefix = std::find_if(control.begin(), control.end(),
                                   [](unsigned char c) { return c < 'a' || c > 'z'; });
  return "lbl" + std::string(prefix, control.end());
}

}  // namespace

ScoringDialog::ScoringDialog(Suite& suite, ScoringTable table)
    : ui::Window(suite.platform, table.window),
      suite_(suite),
      table_(std::move(table)),
      frame_(this, table_.frame) {
  Resizable = false;
  for (DialogItem& item : table_.items) {
    std::visit([this](auto& field) { Add(field); }, item);
  }
  cmdOK.DialogRole = ui::Button::Role::Default;
  cmdCancel.DialogRole = ui::Button::Role::Cancel;
  layout_.Buttons({&cmdOK, &cmdCancel, &cmdDefault});
  NormalSize = OuterFor({Width, ui::PlaceForm(layout_, Width)});
}

// --- making the controls ------------------------------------------------------------------------

template <class T, class... Args>
T& ScoringDialog::Make(Args&&... args) {
  controls_.push_back(std::make_unique<T>(this, std::forward<Args>(args)...));
  controls_.back()->SetContainer(&frame_);
  return static_cast<T&>(*controls_.back());
}

ui::Label& ScoringDialog::MakeLabel(const std::string& name, const std::string& text) {
  auto& label = Make<ui::Label>(name, text);
  label.Wrap = true;
  return label;
}

void ScoringDialog::Add(NumberField& field) {
  auto& label =
      MakeLabel(field.labelName.empty() ? LabelNameFor(field.name) : field.labelName, field.label);
  auto& text = Make<ui::Field>(field.name);
  text.OnGotFocus = [&text] { text.SelectAll(); };
  ui::FormRow row{{&label, &text}, &frame_};
  if (!field.suffix.empty()) {
    row.cells.push_back(&MakeLabel(label.Name() + "Suffix", field.suffix));
  }
  layout_.Row(std::move(row));
  openers_.push_back([&text, &field] { text.Text = field.show(); });
  defaults_.push_back([&text, &field] {
    text.Text = Digits(field.standard);
    if (field.defaultStores) field.store(static_cast<double>(field.standard));
  });
}

void ScoringDialog::Add(CheckField& field) {
  auto& check = Make<ui::Check>(field.name, field.caption);
  check.OnClick = [this, &field] {
    if (!opening_ && field.changed) field.changed(*this);
  };
  layout_.Row({&check}, &frame_);
  openers_.push_back([&check, &field] { check.Checked = field.show(); });
  defaults_.push_back([&check, &field] { check.Checked = field.standard; });
}

void ScoringDialog::Add(ListField& field) {
  auto& label = MakeLabel(LabelNameFor(field.name), field.label);
  auto& list = Make<ui::List>(field.name);
  list.Items = field.items;
  ui::FormRow row{{&label, &list}, &frame_};
  if (!field.suffix.empty()) {
    row.cells.push_back(&MakeLabel(label.Name() + "Suffix", field.suffix));
  }
  layout_.Row(std::move(row));
  const int last = static_cast<int>(field.items.size()) - 1;
  openers_.push_back(
      [&list, &field, last] { list.Index = std::clamp(field.showIndex(), 0, last); });
  defaults_.push_back([&list, &field] { list.Index = field.standardIndex; });
}

void ScoringDialog::Add(OptionField& field) {
  layout_.Row({&MakeLabel(field.labelName, field.label)}, &frame_);
  std::vector<ui::Option*> options;
  for (const auto& choice : field.choices) {
    options.push_back(&Make<ui::Option>(choice.name, choice.caption));
    layout_.Row({options.back()}, &frame_);
  }
  openers_.push_back([options, &field] {
    const int index = field.showIndex();
    for (std::size_t i = 0; i < options.size(); ++i) {
      options[i]->Checked = static_cast<int>(i) == index;
    }
  });
  defaults_.push_back([options, &field] {
    options.at(static_cast<std::size_t>(field.standardIndex))->Checked = true;
  });
}

void ScoringDialog::Add(PictureButtons& buttons) {
  ui::FormRow row{{&MakeLabel(LabelNameFor(buttons.name), buttons.label)}, &frame_};
  for (std::size_t i = 0; i < buttons.artworks.size(); ++i) {
    auto& button = Make<ui::Button>(buttons.name, static_cast<int>(i));
    button.Image = buttons.artworks[i];
    button.OnClick = [&buttons, i] { buttons.click(static_cast<int>(i)); };
    row.cells.push_back(&button);
  }
  layout_.Row(std::move(row));
}

void ScoringDialog::Add(NoteField& note) {
  layout_.Row({&MakeLabel(note.name, note.text)}, &frame_);
}

// --- opening, and the three commands ------------------------------------------------------------

void ScoringDialog::Load() {
  Caption = suite_.shared.GameTitle + " User Options";
  frame_.Text = suite_.shared.GameTitle + " Scoring Options";
  for (const auto& show : openers_) show();
  if (table_.opened) table_.opened(*this);
  opening_ = false;
}

void ScoringDialog::cmdOK_Click() {
  try {
    if (table_.beforeTests) table_.beforeTests(*this);
    const bool valid = TestFields();
    if (valid && table_.refusal != Refusal::Clamping) StoreAll();
    if (table_.afterTests) table_.afterTests(*this);
    if (!valid) return;
    if (table_.allValid) table_.allValid(*this);
    Unload();
  } catch (const std::exception& e) {
    suite_.Tell(ui::Sign::Exclamation, e.what());
  }
}

void ScoringDialog::cmdDefault_Click() {
  for (const auto& set : defaults_) set();
  if (table_.defaults) table_.defaults(*this);
  ShowDefaultScoringNotice(suite_, suite_.shared.GameTitle);
}

// --- the tests ----------------------------------------------------------------------------------

std::vector<NumberField*> ScoringDialog::FieldsInTestOrder() {
  std::vector<NumberField*> fields;
  for (DialogItem& item : table_.items) {
    if (auto* field = std::get_if<NumberField>(&item)) fields.push_back(field);
  }
  const auto& order = table_.testOrder;
  const auto rank = [&order](const NumberField* field) {
    return std::find(order.begin(), order.end(), field->name) - order.begin();
  };
  std::stable_sort(fields.begin(), fields.end(),
                   [&](const auto* a, const auto* b) { return rank(a) < rank(b); });
  return fields;
}

bool ScoringDialog::TestFields() {
  bool valid = true;
  for (NumberField* field : FieldsInTestOrder()) {
    if (Passes(*field)) continue;
    valid = false;
    if (table_.refusal == Refusal::RefusingFirst) break;
  }
  return valid;
}

bool ScoringDialog::Passes(NumberField& field) {
  bool passes = true;
  for (const FieldTest& test : field.tests) {
    if (!test.refuses(NumberOf(field.name), *this)) continue;
    Refuse(field, test);
    passes = false;
    break;
  }
  if (passes && table_.refusal == Refusal::Clamping) {
    field.store(NumberOf(field.name));
    if (field.passed) field.passed(*this);
  }
  return passes;
}

void ScoringDialog::Refuse(NumberField& field, const FieldTest& test) {
  const bool clamping = table_.refusal == Refusal::Clamping;
  const auto store = [&] {
    if (test.stores) field.store(static_cast<double>(*test.stores));
  };
  const auto show = [&] {
    if (test.shows) SetText(field.name, test.shows(*this));
  };
  const bool storesBefore = table_.storesBeforeMessage || table_.replacesBeforeMessage;
  if (storesBefore) store();
  if (table_.replacesBeforeMessage) show();
  suite_.Tell(clamping ? ui::Sign::Information : ui::Sign::Exclamation, test.message);
  if (!storesBefore) store();
  if (!table_.replacesBeforeMessage) show();
  suite_.platform.SetFocus(Named(field.name));
}

void ScoringDialog::StoreAll() {
  if (table_.beforeStoring) table_.beforeStoring(*this);
  for (NumberField* field : FieldsInTestOrder()) {
    field->store(NumberOf(field->name));
    if (field->passed) field->passed(*this);
  }
}

// --- for the handlers of a table ----------------------------------------------------------------

ui::Control& ScoringDialog::Named(std::string_view name) const {
  if (ui::Control* control = Find(name)) return *control;
  throw std::out_of_range("no control " + std::string(name));
}

double ScoringDialog::NumberOf(std::string_view field) const {
  return NumberIn(static_cast<ui::Field&>(Named(field)).Text());
}

void ScoringDialog::SetText(std::string_view field, const std::string& text) {
  static_cast<ui::Field&>(Named(field)).Text = text;
}

bool ScoringDialog::Checked(std::string_view check) const {
  return static_cast<ui::Check&>(Named(check)).Checked();
}

int ScoringDialog::ChosenIndex(std::string_view list) const {
  return static_cast<ui::List&>(Named(list)).Index();
}

std::string ScoringDialog::ChosenText(std::string_view list) const {
  return static_cast<ui::List&>(Named(list)).Text();
}

bool ScoringDialog::OptionSet(std::string_view option) const {
  return static_cast<ui::Option&>(Named(option)).Checked();
}

void ScoringDialog::Enable(std::string_view control, bool enabled) {
  Named(control).Enabled = enabled;
}

void ScoringDialog::SetLabel(std::string_view label, const std::string& text) {
  static_cast<ui::Label&>(Named(label)).Text = text;
}

}  // namespace core
