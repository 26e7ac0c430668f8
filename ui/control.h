// What all controls of a window have in common: a name, a place, and whether they can be used.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/property.h"
#include "ui/types.h"

namespace ui {

class Window;

enum class Kind {
  Label,
  Button,
  Menu,
  Field,
  Check,
  Option,
  List,
  Picture,
  Shape,
  Line,
  Bar,
  Frame,
  Panel,
  Surface,
  Timer
};

/// The kind's name as scripts see it: "label", "button" and so on.
std::string_view KindName(Kind kind);

using Handler = std::function<void()>;

/// Makes a handler of a member function of a window; a null member gives no handler.
template <class W, class B>
Handler Bind(W* window, void (B::*member)()) {
  if (!member) return {};
  return [window, member] { (window->*member)(); };
}

/// A plain object that holds its own state. A platform mirrors it, or does not: each change is told
/// to the window, which passes it on. Owned by the window class that declares it as a member, and
/// never outlives that window.
class Control : public Changeable {
 public:
  /// `index` is the place in an array of controls, -1 for a control that stands alone.
  Control(Window* window, std::string name, Kind kind, int index = -1);
  virtual ~Control() = default;
  Control(const Control&) = delete;

  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  /// The name by which scripts and tests know it: "cmdHit(2)", or "cmdPlay".
  std::string FullName() const;
  Kind GetKind() const { return kind_; }
  Window& Owner() const { return *window_; }

  Property<bool> Visible{this, true};
  Property<bool> Enabled{this, true};
  Property<Rect> Place{this};
  Property<std::string> Tip{this};
  /// Picture key of the mouse pointer over this control; empty for the usual one.
  Property<std::string> Pointer{this};

  Handler OnClick;
  Handler OnMouseMove;
  Handler OnGotFocus;

  /// The frame or menu that holds this control; none for the window itself.
  Control* Container() const { return container_; }
  void SetContainer(Control* container) { container_ = container; }

  /// Visible, and so is all that holds it.
  bool Shown() const;
  /// Shown and enabled, and so is all that holds it.
  bool Usable() const;

  void MoveTo(int x, int y) { Place = Rect{x, y, Place().w, Place().h}; }
  void MoveTo(Point p) { MoveTo(p.x, p.y); }
  void SetSize(int w, int h) { Place = Rect{Place().x, Place().y, w, h}; }
  /// Its place in the window's inner area, whatever frames hold it.
  Rect PlaceInWindow() const;

  void PropertyChanged(const void* property) override;

 private:
  Window* window_;
  std::string name_;
  Kind kind_;
  int index_;
  Control* container_ = nullptr;
};

/// Controls of one kind and name, told apart by an index that need not start at 0. An index outside
/// the bounds is a programming error and throws std::out_of_range.
template <class T>
class Array {
 public:
  template <class W>
  Array(W* window, const std::string& name, int first, int last) : first_(first) {
    for (int i = first; i <= last; ++i) items_.push_back(std::make_unique<T>(window, name, i));
  }
  template <class W, class B>
  Array(W* window, const std::string& name, int first, int last, void (B::*click)(int))
      : Array(window, name, first, last) {
    ForEach([&](int i, T& item) { item.OnClick = [window, click, i] { (window->*click)(i); }; });
  }
  template <class W, class B, class C>
  Array(W* window, const std::string& name, int first, int last, void (B::*click)(int),
        void (C::*move)(int))
      : Array(window, name, first, last, click) {
    ForEach([&](int i, T& item) { item.OnMouseMove = [window, move, i] { (window->*move)(i); }; });
  }

  T& operator()(int i) { return *items_.at(static_cast<std::size_t>(i - first_)); }
  const T& operator()(int i) const { return *items_.at(static_cast<std::size_t>(i - first_)); }
  int First() const { return first_; }
  int Last() const { return first_ + static_cast<int>(items_.size()) - 1; }

  /// Calls `action(index, item)` for each, in ascending order.
  template <class Action>
  void ForEach(Action action) {
    for (int i = First(); i <= Last(); ++i) action(i, (*this)(i));
  }
  void Show(bool visible) {
    for (auto& item : items_) item->Visible = visible;
  }
  void Enable(bool enabled) {
    for (auto& item : items_) item->Enabled = enabled;
  }
  void PutInto(Control& container) {
    for (auto& item : items_) item->SetContainer(&container);
  }

 private:
  int first_;
  std::vector<std::unique_ptr<T>> items_;
};

}  // namespace ui
