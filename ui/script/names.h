// Finding windows and controls by the names that scripts use.
#pragma once

#include <string>

#include "ui/desk.h"

namespace ui::script {

/// Null if no window of that name is open.
Window* FindWindow(const Desk& desk, const std::string& name);
/// "lblTime" in the active window, or "frmQuindle.lblTime" in an open one; null if there is none.
Control* FindControl(const Desk& desk, const std::string& name);

}  // namespace ui::script
