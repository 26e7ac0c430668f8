// Each kind of control, told as names and values.
#include "ui/script/properties.h"

#include "ui/script/words.h"
#include "ui/window.h"

namespace ui::script {
namespace {

template <class T>
const T& As(const Control& control) {
  return static_cast<const T&>(control);
}

void AddText(Properties& to, const char* name, const std::string& text) {
  to.push_back({name, Quote(text), {}});
}
void AddFlag(Properties& to, const char* name, bool flag) {
  to.push_back({name, FlagText(flag), {}});
}
void AddNumber(Properties& to, const char* name, int number) {
  to.push_back({name, std::to_string(number), {}});
}
void AddColor(Properties& to, Color color) {
  to.push_back({"color", ColorText(color), {}});
}

std::string Joined(std::initializer_list<double> numbers) {
  std::string text;
  for (const double number : numbers) text += NumberText(number) + " ";
  return text;
}

std::string StrokeText(const Stroke& s) {
  const std::string color = ColorText(s.color);
  switch (s.form) {
    case Stroke::Form::Sector:
      return "sector " + Joined({s.a, s.b, s.c, s.d, s.e}) + color;
    case Stroke::Form::Line:
      return "line " + Joined({s.a, s.b, s.c, s.d}) + color;
    case Stroke::Form::Circle:
      return "circle " + Joined({s.a, s.b, s.c}) + color;
    case Stroke::Form::Box:
      return "box " + Joined({s.a, s.b, s.c}) + (s.filled ? color : "none");
  }
  return {};
}

void AddDrawing(Properties& to, const Surface& surface) {
  PropertyText drawing{"drawing", std::to_string(surface.Drawing().size()), {}};
  for (const Stroke& stroke : surface.Drawing()) drawing.lines.push_back(StrokeText(stroke));
  to.push_back(std::move(drawing));
}

void AddCommon(Properties& to, const Control& c) {
  const Rect place = c.PlaceInWindow();
  to.push_back({"kind", std::string(KindName(c.GetKind())), {}});
  AddFlag(to, "visible", c.Visible());
  AddFlag(to, "shown", c.Shown());
  AddFlag(to, "enabled", c.Enabled());
  AddNumber(to, "x", place.x);
  AddNumber(to, "y", place.y);
  AddNumber(to, "w", place.w);
  AddNumber(to, "h", place.h);
  AddText(to, "tip", c.Tip());
  AddText(to, "pointer", c.Pointer());
}

void AddLabel(Properties& to, const Label& label) {
  AddText(to, "text", label.Text());
  AddColor(to, label.TextColor());
  AddFlag(to, "bold", label.Bold());
  AddNumber(to, "size", label.FontSize());
}

void AddField(Properties& to, const Field& field) {
  AddText(to, "text", field.Text());
  AddText(to, "selected", field.SelectedText());
  AddFlag(to, "readonly", field.ReadOnly());
}

void AddList(Properties& to, const List& list) {
  AddText(to, "text", list.Text());
  AddNumber(to, "index", list.Index());
  std::string items;
  for (const std::string& item : list.Items()) items += (items.empty() ? "" : " ") + Quote(item);
  to.push_back({"items", items, {}});
}

void AddPicture(Properties& to, const Picture& picture) {
  AddText(to, "picture", picture.Key());
  AddFlag(to, "border", picture.Border());
  AddText(to, "image", picture.Image());
}

void AddBar(Properties& to, const Bar& bar) {
  AddNumber(to, "value", bar.Value());
  AddNumber(to, "min", bar.Min);
  AddNumber(to, "max", bar.Max);
}

void AddOwn(Properties& to, const Control& c) {
  switch (c.GetKind()) {
    case Kind::Label:
      return AddLabel(to, As<Label>(c));
    case Kind::Button:
      return AddText(to, "text", As<Button>(c).Text());
    case Kind::Frame:
      return AddText(to, "text", As<Frame>(c).Text());
    case Kind::Panel:
      return AddText(to, "text", As<Panel>(c).Text());
    case Kind::Menu:
      AddText(to, "text", As<Menu>(c).Text());
      return AddFlag(to, "checked", As<Menu>(c).Checked());
    case Kind::Field:
      return AddField(to, As<Field>(c));
    case Kind::Check:
    case Kind::Option:
      AddText(to, "text", As<Check>(c).Text());
      return AddFlag(to, "checked", As<Check>(c).Checked());
    case Kind::List:
      return AddList(to, As<List>(c));
    case Kind::Picture:
      return AddPicture(to, As<Picture>(c));
    case Kind::Shape:
      return AddColor(to, As<Shape>(c).LineColor());
    case Kind::Line:
      return AddColor(to, As<Line>(c).LineColor());
    case Kind::Bar:
      return AddBar(to, As<Bar>(c));
    case Kind::Surface:
      AddDrawing(to, As<Surface>(c));
      return AddText(to, "image", As<Surface>(c).Image());
    case Kind::Timer:
      return AddNumber(to, "interval", As<Timer>(c).Interval());
  }
}

}  // namespace

Properties PropertiesOf(const Control& control) {
  Properties properties;
  AddCommon(properties, control);
  AddOwn(properties, control);
  return properties;
}

Properties PropertiesOf(const Window& window) {
  Properties properties;
  const Size outer = window.OuterSize();
  const Size inner = window.InnerSize();
  AddText(properties, "caption", window.Caption());
  AddNumber(properties, "state", static_cast<int>(window.State()));
  AddNumber(properties, "width", outer.w);
  AddNumber(properties, "height", outer.h);
  AddNumber(properties, "innerwidth", inner.w);
  AddNumber(properties, "innerheight", inner.h);
  AddText(properties, "pointer", window.Hourglass() ? "hourglass" : "");
  return properties;
}

std::string SightOf(const Control& control) {
  std::string text = Quote("");
  std::string color = "-";
  for (const PropertyText& property : PropertiesOf(control)) {
    if (property.name == "color") color = property.value;
    if (property.name == "text" || property.name == "picture") text = property.value;
    if (property.name == "value") text = Quote(property.value);
  }
  return text + " " + color;
}

}  // namespace ui::script
