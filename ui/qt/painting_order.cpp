// Which control lies above which.
#include "ui/qt/painting_order.h"

#include <algorithm>

namespace ui::qt {
namespace {

bool IsOnBoard(const Control& control) {
  switch (control.GetKind()) {
    case Kind::Menu:
    case Kind::Panel:
    case Kind::Timer:
      return false;
    default:
      return true;
  }
}

void AddHeldBy(const Control* container, const Window& window, std::vector<Control*>& order) {
  for (Control* control : window.Stacking()) {
    if (!IsOnBoard(*control) || control->Container() != container) continue;
    order.push_back(control);
    if (control->GetKind() == Kind::Frame) AddHeldBy(control, window, order);
  }
}

bool Holds(const Control* container, const Control& control) {
  for (const Control* c = control.Container(); c; c = c->Container()) {
    if (c == container) return true;
  }
  return false;
}

bool IsCover(const Control& control) {
  return control.GetKind() == Kind::Frame && control.Shown() &&
         static_cast<const Frame&>(control).FrameLook == Frame::Look::Panel;
}

bool Overlap(const Rect& a, const Rect& b) {
  return a.x < b.Right() && b.x < a.Right() && a.y < b.Bottom() && b.y < a.Bottom();
}

}  // namespace

bool IsPainted(const Control& control) {
  switch (control.GetKind()) {
    case Kind::Label:
    case Kind::Picture:
    case Kind::Shape:
    case Kind::Line:
    case Kind::Frame:
    case Kind::Surface:
      return true;
    default:
      return false;
  }
}

std::vector<Control*> PaintingOrder(const Window& window) {
  std::vector<Control*> order;
  order.reserve(window.Stacking().size());
  AddHeldBy(nullptr, window, order);
  return order;
}

std::vector<Rect> CoversOf(const Control& widget) {
  const auto order = PaintingOrder(widget.Owner());
  const Rect place = widget.PlaceInWindow();
  std::vector<Rect> covers;
  auto above = std::find(order.begin(), order.end(), &widget);
  for (; above != order.end(); ++above) {
    if (!IsCover(**above) || Holds(*above, widget)) continue;
    const Rect cover = (*above)->PlaceInWindow();
    if (Overlap(cover, place)) covers.push_back(cover);
  }
  return covers;
}

}  // namespace ui::qt
