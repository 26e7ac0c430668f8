// Each painted control to its painter.
#include "ui/qt/painters.h"

namespace ui::qt {

void PaintControl(QPainter& painter, const Control& control, const Scene& scene) {
  switch (control.GetKind()) {
    case Kind::Label:
      return PaintLabel(painter, static_cast<const Label&>(control), scene);
    case Kind::Picture:
      return PaintPicture(painter, static_cast<const Picture&>(control), scene);
    case Kind::Shape:
      return PaintShape(painter, static_cast<const Shape&>(control));
    case Kind::Line:
      return PaintLine(painter, static_cast<const Line&>(control));
    case Kind::Frame:
      return PaintFrame(painter, static_cast<const Frame&>(control));
    case Kind::Surface:
      return PaintSurface(painter, static_cast<const Surface&>(control), scene);
    default:
      return;
  }
}

bool IsEmptied(const Control& control) {
  if (control.GetKind() != Kind::Picture) return false;
  const auto& picture = static_cast<const Picture&>(control);
  return picture.Artwork().empty() && picture.Image().empty();
}

QRect PaintedArea(const Control& control) {
  const QRect place = ToQt(control.PlaceInWindow());
  switch (control.GetKind()) {
    case Kind::Label:
      return place.united(TextArea(static_cast<const Label&>(control)));
    case Kind::Picture:
      return place.adjusted(-4, -4, 12, 10);  // stacks stand out to the right and below
    case Kind::Surface:
      return place;
    default:
      return place.adjusted(-8, -8, 8, 8);
  }
}

}  // namespace ui::qt
