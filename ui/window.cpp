// Sizes, stacking and closing of a window.
#include "ui/window.h"

#include <algorithm>

#include "ui/platform.h"

namespace ui {
namespace {

/// What a window's frame takes of its outer size, in logical pixels: the same on every platform, so
/// that a size kept in a file gives the same board everywhere.
constexpr Size FrameSize{8, 31};
constexpr int MenuHeight = 22;
constexpr int StatusHeight = 24;

bool Holds(const std::vector<Control*>& controls, Kind kind) {
  return std::any_of(controls.begin(), controls.end(),
                     [kind](const Control* c) { return c->GetKind() == kind; });
}

Size Trimmings(const std::vector<Control*>& controls) {
  Size size = FrameSize;
  if (Holds(controls, Kind::Menu)) size.h += MenuHeight;
  if (Holds(controls, Kind::Panel)) size.h += StatusHeight;
  return size;
}

}  // namespace

Window::Window(Platform& platform, std::string name)
    : platform_(platform), name_(std::move(name)) {}

void Window::Add(Control* control) {
  controls_.push_back(control);
  stacking_.push_back(control);
}

Control* Window::Find(std::string_view fullName) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* c) { return c->FullName() == fullName; });
  return found == controls_.end() ? nullptr : *found;
}

void Window::SendToBack(Control& control) {
  const auto at = std::find(stacking_.begin(), stacking_.end(), &control);
  std::rotate(stacking_.begin(), at, at + 1);
  ControlChanged(control);
}

void Window::BringToFront(Control& control) {
  const auto at = std::find(stacking_.begin(), stacking_.end(), &control);
  std::rotate(at, at + 1, stacking_.end());
  ControlChanged(control);
}

Size Window::OuterSize() const {
  if (State() != WindowState::Maximized) return NormalSize();
  const Size screen = platform_.ScreenSize();
  return {screen.w * TwipsPerPixel, screen.h * TwipsPerPixel};
}

Size Window::InnerSize() const {
  return InnerFor(OuterSize());
}

Size Window::InnerFor(Size outer) const {
  const Size trimmings = Trimmings(controls_);
  return {std::max(1, outer.w / TwipsPerPixel - trimmings.w),
          std::max(1, outer.h / TwipsPerPixel - trimmings.h)};
}

Size Window::OuterFor(Size inner) const {
  const Size trimmings = Trimmings(controls_);
  return {(inner.w + trimmings.w) * TwipsPerPixel, (inner.h + trimmings.h) * TwipsPerPixel};
}

bool Window::Unload() {
  if (unloading_ || !open_) return !open_;
  if (!QueryClose() || unloading_ || !open_) return !open_;
  // Also when one of the last acts fails: the player must be able to try again.
  struct Mark {
    explicit Mark(bool& flag) : flag(flag) { flag = true; }
    ~Mark() { flag = false; }
    bool& flag;
  };
  const Mark mark(unloading_);
  Unloading();
  platform_.Close(*this);
  return true;
}

void Window::ControlChanged(Control& control) {
  if (open_) platform_.ControlChanged(control);
}

void Window::PropertyChanged(const void* property) {
  if (!open_) return;
  platform_.WindowChanged(*this);
  if (property == &State || (property == &NormalSize && State() == WindowState::Normal)) Resized();
}

}  // namespace ui
