// Small value types of the window layer: places, sizes and colours.
#pragma once

#include <cstdint>
#include <string>

namespace ui {

/// Twips in one logical pixel. Window sizes are counted in twips, all else in logical pixels.
inline constexpr int TwipsPerPixel = 15;

struct Size {
  int w = 0;
  int h = 0;
  bool operator==(const Size&) const = default;
};

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

/// A rectangle in logical pixels, relative to its container's inner area.
struct Rect {
  int x = 0;
  int y = 0;
  int w = 0;
  int h = 0;
  int Right() const { return x + w; }
  int Bottom() const { return y + h; }
  int CenterX() const { return x + w / 2; }
  int CenterY() const { return y + h / 2; }
  bool Contains(Point p) const { return p.x >= x && p.x < Right() && p.y >= y && p.y < Bottom(); }
  bool operator==(const Rect&) const = default;
};

struct Color {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  bool operator==(const Color&) const = default;
};

inline constexpr Color Black{0, 0, 0};
inline constexpr Color White{255, 255, 255};
inline constexpr Color Red{255, 0, 0};
inline constexpr Color Blue{0, 0, 255};
inline constexpr Color Aqua{0, 255, 255};
inline constexpr Color Lime{0, 255, 0};
inline constexpr Color Yellow{255, 255, 0};
inline constexpr Color Silver{192, 192, 192};
inline constexpr Color Green{0, 192, 0};

}  // namespace ui
