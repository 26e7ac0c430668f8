// What each kind of control does when one of its values changes.
#include "ui/controls.h"

#include <algorithm>

#include "ui/platform.h"
#include "ui/window.h"

namespace ui {

void Label::PropertyChanged(const void* property) {
  Control::PropertyChanged(property);
  if (property == &Text && OnChange) OnChange();
}

Menu::Menu(Window* window, Menu* parent, std::string name, std::string text)
    : Control(window, std::move(name), Kind::Menu) {
  Text = std::move(text);
  SetContainer(parent);
  if (parent) parent->entries_.push_back(this);
}

std::string Field::SelectedText() const {
  const auto size = static_cast<int>(Text().size());
  const int start = std::clamp(Selected().start, 0, size);
  return Text().substr(static_cast<std::size_t>(start),
                       static_cast<std::size_t>(std::max(0, Selected().length)));
}

void Field::PropertyChanged(const void* property) {
  if (property == &Text) Selected = Selection{static_cast<int>(Text().size()), 0};
  Control::PropertyChanged(property);
  if (property == &Text && OnChange) OnChange();
}

void Check::PropertyChanged(const void* property) {
  Control::PropertyChanged(property);
  if (property == &Checked && OnClick) OnClick();
}

void Option::PropertyChanged(const void* property) {
  if (property == &Checked && Checked()) {
    for (Control* other : Owner().Controls()) {
      if (other == this || other->GetKind() != Kind::Option) continue;
      if (other->Container() == Container()) static_cast<Option*>(other)->Checked = false;
    }
  }
  Check::PropertyChanged(property);
}

std::string List::Text() const {
  const auto i = static_cast<std::size_t>(Index());
  return Index() >= 0 && i < Items().size() ? Items()[i] : std::string();
}

void Picture::Show(std::string_view key) {
  const auto first = key.find_first_not_of(' ');
  key = first == std::string_view::npos ? std::string_view()
                                        : key.substr(first, key.find_last_not_of(' ') - first + 1);
  artwork_ = key.empty() ? std::string() : Owner().GetPlatform().ArtworkOf(key);
  key_ = std::string(key);
}

void Picture::ShowArtwork(std::string artwork, std::string key) {
  artwork_ = std::move(artwork);
  key_ = std::move(key);
}

void Surface::Add(const Stroke& stroke) {
  drawing_.push_back(stroke);
  PropertyChanged(&drawing_);
}

void Surface::Clear() {
  if (drawing_.empty()) return;
  drawing_.clear();
  PropertyChanged(&drawing_);
}

void Surface::DrawSector(double cx, double cy, double radius, double from, double to, Color color) {
  Add({Stroke::Form::Sector, cx, cy, radius, from, to, color});
}

void Surface::DrawLine(double x1, double y1, double x2, double y2, Color color) {
  Add({Stroke::Form::Line, x1, y1, x2, y2, 0, color});
}

void Surface::DrawCircle(double cx, double cy, double radius, Color color) {
  Add({Stroke::Form::Circle, cx, cy, radius, 0, 0, color});
}

void Surface::DrawBox(int x, int y, int size, const Color* color, bool marked) {
  Add({Stroke::Form::Box, double(x), double(y), double(size), 0, 0, color ? *color : Black,
       color != nullptr, marked});
}

void Timer::PropertyChanged(const void* property) {
  if (Enabled() && (property == &Enabled || property == &Interval)) {
    BeginTick(Owner().GetPlatform().Ticks());
  }
  Control::PropertyChanged(property);
}

}  // namespace ui
