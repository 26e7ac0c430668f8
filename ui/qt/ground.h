// The colours of the table and of what lies on it, and which of them is under a control.
#pragma once

#include <QColor>
#include <QFont>
#include <vector>

#include "ui/controls.h"

namespace ui::qt {

/// What a text stands on.
enum class Ground { Felt, Paper, Box, Board, Panel };

namespace tone {
inline constexpr QRgb Felt = 0xff1a6d46;
inline constexpr QRgb Paper = 0xfff4efe3;
inline constexpr QRgb Box = 0xfffbf6e6;
inline constexpr QRgb Board = 0xfff6edd2;
inline constexpr QRgb Panel = 0xfff3e7c8;
inline constexpr QRgb Lamp = 0xff17332a;
inline constexpr QRgb Gold = 0xffd9b25f;
inline constexpr QRgb Ink = 0xff241f18;
inline constexpr QRgb Cream = 0xfffaf3df;
inline constexpr QRgb Wood = 0xff8a7a55;
}  // namespace tone

QColor ColorOf(Ground ground);
QColor ColorOf(const Color& color);

/// What lies under the middle of a painted control: the topmost box, board or panel that is painted
/// before it, or the window's own ground. `order` is the window's painting order.
Ground GroundUnder(const Control& control, const std::vector<Control*>& order);
/// The ground of a window: dialogs are paper, all else is a table.
Ground GroundOf(const Window& window);

/// The ratio of two colours' lightness as a reader perceives it, 1 to 21; text wants 4 and more.
double Contrast(const QColor& a, const QColor& b);

/// The letters of painted and real controls alike, by their size in points.
QFont FontOf(int points, bool bold);

}  // namespace ui::qt
