// The colours of boxes.
#include "games/mozaro/box.h"

#include <array>

namespace games::mozaro {
namespace {

struct Shades {
  BoxColor plain;
  BoxColor highlighted;
};

constexpr std::array<Shades, MostColors> shades = {{
    {{255, 0, 0}, {255, 128, 128}},
    {{0, 255, 0}, {32, 255, 171}},
    {{0, 0, 255}, {128, 128, 255}},
    {{255, 255, 0}, {220, 220, 0}},
    {{255, 0, 255}, {220, 0, 220}},
    {{255, 183, 0}, {220, 128, 0}},
    {{0, 255, 255}, {0, 220, 220}},
    {{159, 89, 0}, {222, 89, 0}},
    {{255, 255, 255}, {220, 220, 220}},
    {{0, 0, 0}, {128, 128, 128}},
}};

}  // namespace

void Box::DrawMe(BoxSurface& surface, int size) const {
  const BoxColor* fill = nullptr;
  if (Color >= 0 && Color < MostColors) {
    const Shades& pair = shades[static_cast<std::size_t>(Color)];
    fill = Selected ? &pair.highlighted : &pair.plain;
  }
  surface.DrawBox(X, Y, size, fill, Selected);
}

}  // namespace games::mozaro
