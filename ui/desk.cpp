// Open windows, due timers, handlers and the player's acts, the same on every platform.
#include "ui/desk.h"

#include <algorithm>
#include <exception>

namespace ui {

Window* Desk::ActiveWindow() const {
  const auto shown = std::find_if(windows_.begin(), windows_.end(),
                                  [](const Window* w) { return !w->IsHidden(); });
  return shown == windows_.end() ? nullptr : *shown;
}

void Desk::Run(const std::function<void()>& handler) {
  if (!handler) return;
  ++depth_;
  std::string error;
  try {
    handler();
  } catch (const WindowGone&) {
  } catch (const std::exception& e) {
    error = e.what();
  }
  --depth_;
  if (!error.empty()) MessageBox(Sign::Plain, Buttons::Ok, "", error);
  BuryDead();
}

void Desk::Bury(std::unique_ptr<Window> window) {
  if (window) dead_.push_back(std::move(window));
}

void Desk::BuryDead() {
  if (depth_ > 0) return;
  auto dead = std::move(dead_);
  dead_.clear();
}

void Desk::UserClick(Control& control) {
  if (control.Owner().DropsInput) return;
  switch (control.GetKind()) {
    case Kind::Check:
      UserCheck(static_cast<Check&>(control), !static_cast<Check&>(control).Checked());
      return;
    case Kind::Option:
      UserCheck(static_cast<Check&>(control), true);
      return;
    case Kind::Field:
      UserFocus(control);
      return;
    default:
      Run(control.OnClick);
  }
}

void Desk::UserPress(Surface& surface, int x, int y) {
  if (surface.Owner().DropsInput) return;
  UserMove(surface, x, y);
  if (surface.OnMouseDown) Run([&] { surface.OnMouseDown(x, y); });
  if (!surface.Owner().IsOpen()) return;
  if (surface.OnMouseUp) Run([&] { surface.OnMouseUp(x, y); });
}

void Desk::UserMove(Control& control) {
  if (control.Owner().DropsInput) return;

  Run(control.OnMouseMove);
}

void Desk::UserMove(Surface& surface, int x, int y) {
  if (surface.Owner().DropsInput) return;
  if (surface.OnMouseMoveAt) Run([&] { surface.OnMouseMoveAt(x, y); });
}

void Desk::UserType(Field& field, const std::string& text) {
  if (field.Owner().DropsInput) return;
  UserFocus(field);
  Run([&] { field.Text = text; });
}

void Desk::UserChoose(List& list, int index) {
  if (list.Owner().DropsInput) return;
  list.Index = index;
  Run(list.OnClick);
}

void Desk::UserCheck(Check& check, bool checked) {
  if (check.Owner().DropsInput) return;
  Run([&] { check.Checked = checked; });
}

void Desk::UserFocus(Control& control) {
  if (control.Owner().DropsInput) return;
  Run([&] { SetFocus(control); });
}

void Desk::UserClose(Window& window) {
  if (window.DropsInput) return;
  Run([&] { window.Unload(); });
}

void Desk::UserResize(Window& window, Size outerTwips) {
  Run([&] { window.NormalSize = outerTwips; });
}

void Desk::UserState(Window& window, WindowState state) {
  Run([&] { window.State = state; });
}

std::string Desk::ArtworkOf(std::string_view key) const {
  return artwork_ ? artwork_(key) : std::string(key);
}

void Desk::SetFocus(Control& control) {
  if (focus_ == &control) return;
  focus_ = &control;
  if (control.OnGotFocus) control.OnGotFocus();
}

void Desk::Opened(Window& window, bool modal) {
  const bool fresh = !window.open_;
  window.open_ = true;
  window.hidden_ = false;
  window.modal_ = modal;
  RaiseToTop(window);
  if (fresh) window.Resized();
  window.Activate();
}

void Desk::WasHidden(Window& window) {
  window.hidden_ = true;
}

void Desk::Closed(Window& window) {
  window.open_ = false;
  std::erase(windows_, &window);
  if (focus_ && &focus_->Owner() == &window) focus_ = nullptr;
}

void Desk::RaiseToTop(Window& window) {
  std::erase(windows_, &window);
  auto at = windows_.begin();
  if (!window.IsModal()) {
    at = std::find_if(at, windows_.end(), [](const Window* w) { return !w->IsModal(); });
  }
  windows_.insert(at, &window);
}

Timer* Desk::FirstDue(std::int64_t limit) const {
  Timer* first = nullptr;
  for (const Window* window : windows_) {
    for (Control* control : window->Controls()) {
      if (control->GetKind() != Kind::Timer || !control->Enabled()) continue;
      auto* timer = static_cast<Timer*>(control);
      if (timer->Interval() <= 0) continue;
      if (timer->Due() <= limit && (!first || timer->Due() < first->Due())) first = timer;
    }
  }
  return first;
}

void Desk::Tick(Timer& timer) {
  timer.BeginTick(Ticks());
  Run(timer.OnTick);
}

void Desk::TickAllDue() {
  const std::int64_t now = Ticks();
  while (Timer* timer = FirstDue(now)) Tick(*timer);
}

}  // namespace ui
