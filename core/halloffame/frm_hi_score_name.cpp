// The window that asks for the name of a player whose score enters a table.
#include "core/halloffame/frm_hi_score_name.h"

#include <algorithm>

namespace core {
namespace {

/// A name is one line of a file.
std::string OnOneLine(std::string name) {
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return name;
}

}  // namespace

frmHiScoreName::frmHiScoreName(Suite& suite)
    : ui::Window(suite.platform, "frmHiScoreName"), suite_(suite) {
  Resizable = false;
  lblInfo.Wrap = true;
  cmdOK.DialogRole = ui::Button::Role::Default;
  layout_.Row({&lblInfo});
  layout_.Row({&txtPlayerName});
  layout_.Buttons({&cmdOK});
  NormalSize = OuterFor({380, ui::PlaceForm(layout_, 380)});
}

void frmHiScoreName::Load() {
  const Shared& shared = suite_.shared;
  Caption = shared.GameTitle;
  lblInfo.Text = "Great score! Please enter your name so we can induct you into the " +
                 shared.GameTitle + " Hall of Fame:";
  const bool nameless = shared.PlayerName == "Corvane" || shared.PlayerName == "Unknown User";
  txtPlayerName.Text = nameless ? "" : shared.PlayerName;
  txtPlayerName.SelectAll();
}

void frmHiScoreName::Activate() {
  suite_.platform.SetFocus(txtPlayerName);
  txtPlayerName.SelectAll();
}

void frmHiScoreName::cmdOK_Click() {
  if (txtPlayerName.Text().find(',') != std::string::npos) {
    suite_.Tell(ui::Sign::Critical, "Sorry, you may not use commas in your name.");
    return;
  }
  const std::string name = OnOneLine(txtPlayerName.Text());
  suite_.shared.PlayerName = name.empty() ? "Unknown User" : name;
  Unload();
}

}  // namespace core
