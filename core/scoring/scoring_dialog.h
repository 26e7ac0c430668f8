// The one class of all scoring dialogs: it shows a game's table and applies it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/scoring/scoring_table.h"
#include "core/suite/suite.h"
#include "ui/window.h"

namespace core {

class ScoringDialog : public ui::Window {
 public:
  ScoringDialog(Suite& suite, ScoringTable table);

  // For the handlers of a table. A name that the dialog doesn't have is a programming error.
  double NumberOf(std::string_view field) const;  ///< of the text as it stands
  void SetText(std::string_view field, const std::string& text);
  bool Checked(std::string_view check) const;
  int ChosenIndex(std::string_view list) const;
  std::string ChosenText(std::string_view list) const;
  bool OptionSet(std::string_view option) const;
  void Enable(std::string_view control, bool enabled);
  void SetLabel(std::string_view label, const std::string& text);
  ui::Control& Named(std::string_view name) const;

 private:
  void Load() override;
  void cmdOK_Click();
  void cmdCancel_Click() { Unload(); }
  void cmdDefault_Click();

  void Add(NumberField& field);
  void Add(CheckField& field);
  void Add(ListField& field);
  void Add(OptionField& field);
  void Add(PictureButtons& buttons);
  void Add(NoteField& note);
  template <class T, class... Args>
  T& Make(Args&&... args);
  ui::Label& MakeLabel(const std::string& name, const std::string& text);

  std::vector<NumberField*> FieldsInTestOrder();
  bool TestFields();
  bool Passes(NumberField& field);
  void Refuse(NumberField& field, const FieldTest& test);
  void StoreAll();

  Suite& suite_;
  ScoringTable table_;
  bool opening_ = true;
  std::vector<std::unique_ptr<ui::Control>> controls_;
  std::vector<std::function<void()>> openers_;   ///< show the values in force
  std::vector<std::function<void()>> defaults_;  ///< show, and store, the defaults
  ui::Frame frame_;
  ui::Button cmdOK{this, "cmdOK", "&OK", "", &ScoringDialog::cmdOK_Click};
  ui::Button cmdCancel{this, "cmdCancel", "&Cancel", "", &ScoringDialog::cmdCancel_Click};
  ui::Button cmdDefault{this, "cmdDefault", "&Default", "", &ScoringDialog::cmdDefault_Click};
};

}  // namespace core
