// Names, places and visibility of controls.
#include "ui/control.h"

#include "ui/window.h"

namespace ui {

std::string_view KindName(Kind kind) {
  static constexpr std::string_view names[] = {"label",  "button", "menu",    "field",   "check",
                                               "option", "list",   "picture", "shape",   "line",
                                               "bar",    "frame",  "panel",   "surface", "timer"};
  return names[static_cast<std::size_t>(kind)];
}

Control::Control(Window* window, std::string name, Kind kind, int index)
    : window_(window), name_(std::move(name)), kind_(kind), index_(index) {
  window_->Add(this);
}

std::string Control::FullName() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

bool Control::Shown() const {
  return Visible() && (!container_ || container_->Shown());
}

bool Control::Usable() const {
  return Visible() && Enabled() && (!container_ || container_->Usable());
}

Rect Control::PlaceInWindow() const {
  Rect place = Place();
  for (const Control* c = container_; c; c = c->container_) {
    place.x += c->Place().x;
    place.y += c->Place().y;
  }
  return place;
}

void Control::PropertyChanged(const void*) {
  window_->ControlChanged(*this);
}

}  // namespace ui
