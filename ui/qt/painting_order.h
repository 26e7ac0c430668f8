// The order in which a window's controls lie upon each other.
#pragma once

#include <vector>

#include "ui/window.h"

namespace ui::qt {

/// Controls that the board paints; all others are real widgets or not to be seen.
bool IsPainted(const Control& control);

/// All controls of the board from the bottom to the top: in stacking order, with what a frame holds
/// right above that frame.
std::vector<Control*> PaintingOrder(const Window& window);

/// Frames that lie wholly or in part over a widget, in the window's pixels.
std::vector<Rect> CoversOf(const Control& widget);

}  // namespace ui::qt
