// Colours, and what lies under a control.
#include "ui/qt/ground.h"

#include <cmath>

#include "ui/window.h"

namespace ui::qt {
namespace {

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

/// The ground that a control makes for what lies on it, if it makes one.
bool GroundOfControl(const Control& control, Ground* ground) {
  if (control.GetKind() == Kind::Shape) {
    switch (static_cast<const Shape&>(control).ShapeLook) {
      case Shape::Look::Sunken:
        *ground = Ground::Box;
        return true;
      case Shape::Look::Board:
        *ground = Ground::Board;
        return true;
      case Shape::Look::Outline:
        return false;
    }
  }
  if (control.GetKind() == Kind::Frame) {
    if (static_cast<const Frame&>(control).FrameLook == Frame::Look::Group) return false;
    *ground = Ground::Panel;
    return true;
  }
  return false;
}

}  // namespace

QColor ColorOf(Ground ground) {
  switch (ground) {
    case Ground::Paper:
      return tone::Paper;
    case Ground::Box:
      return tone::Box;
    case Ground::Board:
      return tone::Board;
    case Ground::Panel:
      return tone::Panel;
    case Ground::Felt:
      break;
  }
  return tone::Felt;
}

QColor ColorOf(const Color& color) {
  return {color.r, color.g, color.b};
}

Ground GroundOf(const Window& window) {
  return window.IsModal() || !window.Layout().Empty() ? Ground::Paper : Ground::Felt;
}

Ground GroundUnder(const Control& control, const std::vector<Control*>& order) {
  Ground ground = GroundOf(control.Owner());
  const Rect place = control.PlaceInWindow();
  const Point middle{place.CenterX(), place.CenterY()};
  for (const Control* below : order) {
    if (below == &control) break;
    if (below->Shown() && below->PlaceInWindow().Contains(middle)) GroundOfControl(*below, &ground);
  }
  return ground;
}

double Contrast(const QColor& a, const QColor& b) {
  const double la = Luminance(a), lb = Luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QFont FontOf(int points, bool bold) {
  QFont font;
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 4 / 3.0))));
  font.setBold(bold);
  return font;
}

}  // namespace ui::qt
