// The kinds of control that a window can declare as members.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ui/control.h"

namespace ui {

enum class Align { Left, Center, Right };

/// A text, painted in its place; it takes no focus.
class Label : public Control {
 public:
  Label(Window* window, std::string name, int index = -1)
      : Control(window, std::move(name), Kind::Label, index) {}
  Label(Window* window, std::string name, std::string text, std::string tip = "")
      : Label(window, std::move(name)) {
    Text = std::move(text);
    Tip = std::move(tip);
  }

  Property<std::string> Text{this};
  Property<Color> TextColor{this, Black};
  Property<bool> Bold{this, false};
  Property<int> FontSize{this, 9};  ///< points
  Property<Align> Alignment{this, Align::Left};
  Property<bool> Wrap{this, false};
  /// Runs after each change of the text, whoever made it.
  Handler OnChange;

  void PropertyChanged(const void* property) override;
};

class Button : public Control {
 public:
  Button(Window* window, std::string name, int index = -1)
      : Control(window, std::move(name), Kind::Button, index) {}
  template <class W, class B>
  Button(W* window, std::string name, std::string text, std::string tip, void (B::*click)())
      : Button(window, std::move(name)) {
    Text = std::move(text);
    Tip = std::move(tip);
    OnClick = Bind(window, click);
  }

  Property<std::string> Text{this};   ///< with `&` before its mnemonic
  Property<std::string> Image{this};  ///< picture key shown instead of the text, empty for none
  /// Enter presses the default button of a dialog, Escape the cancel button.
  enum class Role { Plain, Default, Cancel };
  Role DialogRole = Role::Plain;
};

/// A menu, a menu command or a heading within a menu; what has entries is a heading.
class Menu : public Control {
 public:
  Menu(Window* window, Menu* parent, std::string name, std::string text);

  Property<std::string> Text{this};
  Property<bool> Checked{this, false};
  const std::vector<Menu*>& Entries() const { return entries_; }
  bool StartsGroup = false;  ///< a dividing line is drawn above it

 private:
  std::vector<Menu*> entries_;
};

struct Selection {
  int start = 0;
  int length = 0;
  bool operator==(const Selection&) const = default;
};

/// A text field of one or more lines.
class Field : public Control {
 public:
  Field(Window* window, std::string name, int index = -1)
      : Control(window, std::move(name), Kind::Field, index) {}

  Property<std::string> Text{this};
  Property<Selection> Selected{this};  ///< counted in characters of the text's bytes
  Property<bool> ReadOnly{this, false};
  bool Multiline = false;
  /// Runs after each change of the text, whoever made it.
  Handler OnChange;

  void SelectAll() { Selected = Selection{0, static_cast<int>(Text().size())}; }
  std::string SelectedText() const;
  void PropertyChanged(const void* property) override;
};

/// A check box. Its click runs after each change of the mark, whoever made it.
class Check : public Control {
 public:
  Check(Window* window, std::string name, std::string text = "")
      : Check(window, std::move(name), Kind::Check) {
    Text = std::move(text);
  }

  Property<std::string> Text{this};
  Property<bool> Checked{this, false};
  void PropertyChanged(const void* property) override;

 protected:
  Check(Window* window, std::string name, Kind kind) : Control(window, std::move(name), kind) {}
};

/// An option button. Setting one clears the other option buttons of the same container.
class Option : public Check {
 public:
  Option(Window* window, std::string name, std::string text = "")
      : Check(window, std::move(name), Kind::Option) {
    Text = std::move(text);
  }
  void PropertyChanged(const void* property) override;
};

/// A drop-down list of fixed entries. Its click runs when the player picks an entry.
class List : public Control {
 public:
  List(Window* window, std::string name) : Control(window, std::move(name), Kind::List) {}

  Property<std::vector<std::string>> Items{this};
  Property<int> Index{this, -1};  ///< from 0; -1 for none
  std::string Text() const;       ///< the entry shown, empty for none
};

/// A card or another picture of the store.
class Picture : public Control {
 public:
  Picture(Window* window, std::string name, int index = -1)
      : Control(window, std::move(name), Kind::Picture, index) {}
  template <class W, class B>
  Picture(W* window, std::string name, void (B::*click)()) : Picture(window, std::move(name)) {
    OnClick = Bind(window, click);
  }

  /// Shows the store's picture of this key (blanks round it don't count) as it is now: when the key
  /// moves to another picture later, this one stays till the next call. Empty shows nothing.
  void Show(std::string_view key);
  /// Shows an artwork by its own name, under a key or none.
  void ShowArtwork(std::string artwork, std::string key);
  const std::string& Key() const { return key_(); }
  /// The artwork behind the key, by the name that the store gave it.
  const std::string& Artwork() const { return artwork_(); }

  Property<bool> Border{this, false};  ///< a thin line round the picture
  Property<std::string> Image{this};   ///< path of a picture file, scaled to the place; or empty

 private:
  Property<std::string> key_{this};
  Property<std::string> artwork_{this};
};

/// A rectangle: a sunken box behind a number, a frame round a card, a board for a message.
class Shape : public Control {
 public:
  enum class Look { Outline, Sunken, Board };
  Shape(Window* window, std::string name, int index = -1)
      : Control(window, std::move(name), Kind::Shape, index) {}
  Shape(Window* window, std::string name, Look look) : Shape(window, std::move(name)) {
    ShapeLook = look;
  }
  Property<Color> LineColor{this, Black};
  Look ShapeLook = Look::Outline;
};

/// A straight line between two corners of its place.
class Line : public Control {
 public:
  Line(Window* window, std::string name, int index = -1)
      : Control(window, std::move(name), Kind::Line, index) {}
  Property<Color> LineColor{this, Black};
  Property<bool> Rising{this, false};  ///< from the bottom left corner, not the top left
  Property<int> Thickness{this, 1};
};

class Bar : public Control {
 public:
  Bar(Window* window, std::string name, int min, int max)
      : Control(window, std::move(name), Kind::Bar), Min(min), Max(max) {
    Value = min;
  }
  Property<int> Value{this};
  const int Min;
  const int Max;
};

/// A container, with or without a caption, that shows and hides what it holds.
class Frame : public Control {
 public:
  enum class Look { Group, Panel };
  Frame(Window* window, std::string name, std::string text = "", Look look = Look::Group)
      : Control(window, std::move(name), Kind::Frame), FrameLook(look) {
    Text = std::move(text);
  }
  Property<std::string> Text{this};
  const Look FrameLook;
};

/// One panel of the status bar.
class Panel : public Control {
 public:
  Panel(Window* window, std::string name, int index)
      : Control(window, std::move(name), Kind::Panel, index) {}
  Property<std::string> Text{this};
};

/// One thing drawn on a surface. Angles are degrees clockwise from 12 o'clock.
struct Stroke {
  enum class Form { Sector, Line, Circle, Box };
  Form form = Form::Line;
  double a = 0, b = 0;  ///< centre; start; or top left corner
  double c = 0, d = 0;  ///< Sector: radius, from; Line: end; Circle: radius; Box: size
  double e = 0;         ///< Sector: to
  Color color;
  bool filled = true;   ///< Box only: false draws the black outline alone
  bool marked = false;  ///< Box only: drawn so that it stands out from its neighbours
};

/// An area to draw on, in its own pixels from its top left corner.
class Surface : public Control {
 public:
  Surface(Window* window, std::string name) : Control(window, std::move(name), Kind::Surface) {}

  void Clear();
  void DrawSector(double cx, double cy, double radius, double from, double to, Color color);
  void DrawLine(double x1, double y1, double x2, double y2, Color color);
  void DrawCircle(double cx, double cy, double radius, Color color);
  /// A square filled with `color` (or with nothing) and outlined in black.
  void DrawBox(int x, int y, int size, const Color* color, bool marked = false);
  const std::vector<Stroke>& Drawing() const { return drawing_; }

  Property<std::string> Image{this};  ///< path of a picture file behind the drawing, or empty
  std::function<void(int x, int y)> OnMouseDown;
  std::function<void(int x, int y)> OnMouseMoveAt;
  std::function<void(int x, int y)> OnMouseUp;

 private:
  void Add(const Stroke& stroke);
  std::vector<Stroke> drawing_;
};

/// Ticks every `Interval` milliseconds while it is enabled and its window is open. Switching it on
/// starts a full interval; switching on one that runs changes nothing.
class Timer : public Control {
 public:
  enum class At { Off, On };
  template <class W, class B>
  Timer(W* window, std::string name, int interval, At start, void (B::*tick)())
      : Control(window, std::move(name), Kind::Timer) {
    Enabled = false;
    Interval = interval;
    OnTick = Bind(window, tick);
    if (start == At::On) Enabled = true;
  }
  Property<int> Interval{this, 0};
  Handler OnTick;

  /// When it ticks next, in ticks of the platform; of no meaning while it is off.
  std::int64_t Due() const { return due_; }
  /// The tick that begins now counts its next interval from `now`.
  void BeginTick(std::int64_t now) { due_ = now + Interval(); }
  void PropertyChanged(const void* property) override;

 private:
  std::int64_t due_ = 0;
};

}  // namespace ui
