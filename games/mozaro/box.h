// One cell of the grid: its place, what it holds, and how it is drawn.
#pragma once

#include <cstdint>

namespace games::mozaro {

inline constexpr std::int32_t NoColor = 10;  ///< the colour of an empty cell
inline constexpr std::int16_t MostColors = 10;

/// Red, green and blue, 0 to 255.
struct BoxColor {
  std::uint8_t r;
  std::uint8_t g;
  std::uint8_t b;
  bool operator==(const BoxColor&) const = default;
};

/// What a board is drawn on, in pixels.
class BoxSurface {
 public:
  virtual void ClearSurface() = 0;
  /// Fills a square and outlines it in black; `fill` is null for the outline alone.
  virtual void DrawBox(int x, int y, int size, const BoxColor* fill, bool highlighted) = 0;

 protected:
  ~BoxSurface() = default;
};

/// A box never moves: what falls or slides is Color and Removed, copied from box to box. It is
/// empty exactly when Removed is set and Color is NoColor.
struct Box {
  std::int16_t X = 0;  ///< left edge on the surface
  std::int16_t Y = 0;  ///< top edge
  std::int16_t Size = 0;
  std::int32_t Color = NoColor;
  bool Selected = false;  ///< belongs to the group that is highlighted
  bool Removed = true;
  bool Visited = false;  ///< reached by the search for a group

  void DrawMe(BoxSurface& surface, int size) const;

  void TakeContentOf(const Box& other) {
    Color = other.Color;
    Removed = other.Removed;
  }
  void MakeEmpty() {
    Color = NoColor;
    Removed = true;
  }
};

}  // namespace games::mozaro
