// Open windows, due timers, handlers and the player's acts, the same on every platform.
#include "ui/desk.h"

#include <algorithm>
#include <exception>

namespace ui {

bool TakesFocus(Kind kind) {
  constexpr Kind kinds[] = {Kind::Button, Kind::Field, Kind::Check, Kind::Option, Kind::List};
  return std::find(std::begin(kinds), std::end(kinds), kind) != std::end(kinds);
}

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
    case Kind::List:
      UserFocus(control);
      return;
    default:
      Run([&] {
        if (TakesFocus(control.GetKind())) SetFocus(control);
        if (control.OnClick && control.Owner().IsOpen()) control.OnClick();
      });
  }
}

void Desk::UserPress(Surface& surface, int x, int y) {
  if (surface.Owner().DropsInput) return;
  // One handler for all of it, so that the window is not destroyed in between.
  Run([&] {
    const Window& window = surface.Owner();
    UserMove(surface, x, y);
    if (window.IsOpen() && surface.OnMouseDown) Run([&] { surface.OnMouseDown(x, y); });
    if (window.IsOpen() && surface.OnMouseUp) Run([&] { surface.OnMouseUp(x, y); });
    if (window.IsOpen()) Run(surface.OnClick);
  });
}

void Desk::UserMove(Control& control) {
  if (control.Owner().DropsInput) return;
  Run(control.OnMouseMove);
}

void Desk::UserMove(Surface& surface, int x, int y) {
  if (surface.Owner().DropsInput) return;
  if (surface.OnMouseMoveAt) Run([&] { surface.OnMouseMoveAt(x, y); });
}

void Desk::UserMoveBeside(Window& window) {
  if (window.DropsInput) return;
  Run([&] { window.MouseMove(); });
}

void Desk::UserStrike(Window& window, char32_t letter) {
  if (window.DropsInput) return;
  Run([&] { window.KeyTyped(letter); });
}

void Desk::UserType(Field& field, const std::string& text) {
  if (field.Owner().DropsInput) return;
  Run([&] {
    SetFocus(field);
    const bool same = field.Text() == text;
    field.Text = text;
    // Typing is a change, also when it ends in the same text.
    if (same && field.OnChange) field.OnChange();
  });
}

void Desk::UserChoose(List& list, int index) {
  if (list.Owner().DropsInput) return;
  Run([&] {
    SetFocus(list);
    list.Index = index;
    if (list.OnClick) list.OnClick();
  });
}

void Desk::UserCheck(Check& check, bool checked) {
  if (check.Owner().DropsInput) return;
  Run([&] {
    SetFocus(check);
    check.Checked = checked;
  });
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

Control* Desk::Focus() const {
  const Window* active = ActiveWindow();
  return active ? FocusOf(*active) : nullptr;
}

Control* Desk::FocusOf(const Window& window) const {
  const auto found = focus_.find(&window);
  return found == focus_.end() ? nullptr : found->second;
}

void Desk::SetFocus(Control& control) {
  Control*& focus = focus_[&control.Owner()];
  if (focus == &control) return;
  focus = &control;
  if (control.OnGotFocus) control.OnGotFocus();
}

void Desk::Opened(Window& window, bool modal) {
  const bool fresh = !window.open_;
  window.open_ = true;
  window.hidden_ = false;
  window.modal_ = modal;
  RaiseToTop(window);
  if (fresh) {
    // A window that was never opened may have left its focus behind at the same address.
    const auto& controls = window.Controls();
    if (std::find(controls.begin(), controls.end(), FocusOf(window)) == controls.end()) {
      focus_.erase(&window);
    }
    window.Resized();
  }
  window.Activate();
}

void Desk::FocusFirst(Window& window) {
  if (!window.IsOpen() || window.IsHidden() || FocusOf(window)) return;
  // In a form the player starts at the top, wherever the buttons were declared.
  std::vector<Control*> controls;
  for (const FormRow& row : window.Layout().Rows()) {
    controls.insert(controls.end(), row.cells.begin(), row.cells.end());
  }
  if (controls.empty()) controls = window.Controls();
  const auto first = std::find_if(controls.begin(), controls.end(), [](const Control* c) {
    return TakesFocus(c->GetKind()) && c->Usable();
  });
  if (first != controls.end()) SetFocus(**first);
}

void Desk::WasHidden(Window& window) {
  window.hidden_ = true;
}

void Desk::Closed(Window& window) {
  window.open_ = false;
  std::erase(windows_, &window);
  focus_.erase(&window);
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
