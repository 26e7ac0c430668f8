// What a control's real widget shows.
#pragma once

#include "ui/script/properties.h"

namespace ui::qt {

class QtWindow;

/// Replaces each property that a widget, a menu action or a panel shows by what that shows, where
/// it is not what the control says.
void SeeOnScreen(const QtWindow& view, const Control& control, script::Properties& properties);

}  // namespace ui::qt
