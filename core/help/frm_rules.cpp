// The rules window: the text fills the window, with the button under its middle.
#include "core/help/frm_rules.h"

#include <algorithm>

namespace core {
namespace {

constexpr ui::Size Inner{640, 460};
constexpr ui::Size ButtonSize{96, 28};
constexpr int Margin = 10;

}  // namespace

frmRules::frmRules(Suite& suite, std::string rulesBody) : ui::Window(suite.platform, "frmRules") {
  Caption = suite.shared.GameTitle + " Rules, Notes and Strategy";
  lblRules.Multiline = true;
  lblRules.ReadOnly = true;
  lblRules.Text = std::move(rulesBody);
  lblRules.Selected = ui::Selection{0, 0};  // it is read from its start
  cmdOK.DialogRole = ui::Button::Role::Default;
  NormalSize = OuterFor(Inner);
  Resized();
}

void frmRules::Resized() {
  const ui::Size inner = InnerSize();
  const int buttonTop = std::max(0, inner.h - Margin - ButtonSize.h);
  lblRules.Place = ui::Rect{0, 0, inner.w, std::max(1, buttonTop - Margin)};
  cmdOK.Place = ui::Rect{(inner.w - ButtonSize.w) / 2, buttonTop, ButtonSize.w, ButtonSize.h};
}

void frmRules::cmdOK_Click() {
  Unload();
}

}  // namespace core
