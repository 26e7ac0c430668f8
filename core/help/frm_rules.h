// The window that shows a game's rules.
#pragma once

#include <string>

#include "core/suite/suite.h"
#include "ui/window.h"

namespace core {

class frmRules : public ui::Window {
 public:
  /// `rulesBody` is the whole text, as ComposeRules gives it.
  frmRules(Suite& suite, std::string rulesBody);

 private:
  void Resized() override;
  void cmdOK_Click();

  ui::Field lblRules{this, "lblRules"};
  ui::Button cmdOK{this, "cmdOK", "&OK", "", &frmRules::cmdOK_Click};
};

}  // namespace core
