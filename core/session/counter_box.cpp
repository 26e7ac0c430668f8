// A number on the board with its caption, in a sunken frame.
#include "core/session/counter_box.h"

namespace core {

void CenterIn(ui::Label& label, const ui::Rect& place) {
  label.Place = place;
  label.Alignment = ui::Align::Center;
}

SunkenFrame::SunkenFrame(ui::Window* window, const std::string& role)
    : Rectangle(window, role + "Rectangle", ui::Shape::Look::Sunken),
      BevelSide(window, role + "BevelSide"),
      BevelBottom(window, role + "BevelBottom") {
  BevelSide.LineColor = ui::White;
  BevelBottom.LineColor = ui::White;
}

void SunkenFrame::Show(bool visible) {
  Rectangle.Visible = visible;
  BevelSide.Visible = visible;
  BevelBottom.Visible = visible;
}

void SunkenFrame::SetPlace(ui::Rect place) {
  Rectangle.Place = place;
  BevelSide.Place = {place.Right() - 1, place.y, 1, place.h};
  BevelBottom.Place = {place.x, place.Bottom() - 1, place.w, 1};
}

CounterBox::CounterBox(ui::Window* window, const std::string& role, const std::string& captionName,
                       const std::string& caption, const std::string& numberName,
                       const std::string& tip)
    : Frame(window, role), Caption(window, captionName, caption, tip), Number(window, numberName) {
  Number.Tip = tip;
  Number.TextColor = ui::Blue;
  Number.Bold = true;
  Number.FontSize = 12;
}

void CounterBox::Show(bool visible) {
  Frame.Show(visible);
  Caption.Visible = visible;
  Number.Visible = visible;
}

void CounterBox::SetPlace(ui::Rect place) {
  Frame.SetPlace(place);
  const int half = place.h / 2;
  CenterIn(Caption, {place.x + 2, place.y + 2, place.w - 4, half - 4});
  CenterIn(Number, {place.x + 2, place.y + half - 3, place.w - 4, place.h - half});
}

}  // namespace core
