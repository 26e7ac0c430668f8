// What the about window says.
#include "core/help/frm_about.h"

#include <algorithm>

#include "core/suite/deployment.h"
#include "core/text/number.h"

namespace core {
namespace {

constexpr int InnerWidth = 360;
constexpr std::int64_t MillisecondsPerMinute = 60'000;

std::string Credit(const std::string& gameTitle) {
  return gameTitle + " is a game of the Pastimo, written by Corvane.\r\nWrite to " +
         deployment::SupportAddress + "\r\nor visit " + deployment::SuitePage + ".";
}

/// A clock that was set back since the session began gives none.
std::int64_t MinutesSince(std::int64_t start, std::int64_t now) {
  return std::max<std::int64_t>(0, now - start) / MillisecondsPerMinute;
}

}  // namespace

frmAbout::frmAbout(Suite& suite) : ui::Window(suite.platform, "frmAbout") {
  const Shared& shared = suite.shared;
  const std::int64_t minutes = MinutesSince(shared.SessionStart, suite.platform.Now());
  Resizable = false;
  Caption = "About " + shared.GameTitle;
  lblInfo.Text = Credit(shared.GameTitle);
  lblInfo.Wrap = true;
  lblStats.Text =
      "This session has lasted " + Digits(minutes) + " minutes." + "Thanks for playing!";
  for (ui::Label* label : {&lblInfo, &lblStats}) label->Alignment = ui::Align::Center;
  cmdCoolDude.DialogRole = ui::Button::Role::Default;
  layout_.Row({&lblInfo});
  layout_.Row({&lblStats});
  layout_.Buttons({&cmdCoolDude});
  NormalSize = OuterFor({InnerWidth, ui::PlaceForm(layout_, InnerWidth)});
}

void frmAbout::cmdCoolDude_Click() {
  Unload();
}

}  // namespace core
