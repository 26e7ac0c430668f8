// The window that asks for the name of a player whose score enters a table.
#pragma once

#include "core/suite/suite.h"
#include "ui/window.h"

namespace core {

class frmHiScoreName : public ui::Window {
 public:
  explicit frmHiScoreName(Suite& suite);

 private:
  void Load() override;
  void Activate() override;
  void cmdOK_Click();

  Suite& suite_;
  ui::Label lblInfo{this, "lblInfo"};
  ui::Field txtPlayerName{this, "txtPlayerName"};
  ui::Button cmdOK{this, "cmdOK", "&OK", "", &frmHiScoreName::cmdOK_Click};
};

}  // namespace core
