// The about window of a game: its makers, and how long the session has lasted.
#pragma once

#include "core/suite/suite.h"
#include "ui/window.h"

namespace core {

class frmAbout : public ui::Window {
 public:
  explicit frmAbout(Suite& suite);

 private:
  void cmdCoolDude_Click();

  ui::Label lblInfo{this, "lblInfo"};
  ui::Label lblStats{this, "lblStats"};
  ui::Button cmdCoolDude{this, "cmdCoolDude", "&Cool Dude", "", &frmAbout::cmdCoolDude_Click};
};

}  // namespace core
