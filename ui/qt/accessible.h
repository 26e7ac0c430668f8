// Painted controls for screen readers.
#pragma once

namespace ui {
class Control;
}

namespace ui::qt {

class Board;

/// From now on boards tell assistive tools of what they paint: labels by their text, pictures in
/// words; what can be clicked can be pressed.
void MakeBoardsAccessible();

/// Tells assistive tools, if any listen, that a painted control reads otherwise, or that the
/// keyboard points at it.
void TellNameChanged(Board& board, Control& control);
void TellFocus(Board& board, Control& control);

}  // namespace ui::qt
