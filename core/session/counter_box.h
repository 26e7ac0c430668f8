// A number on the board with its caption, in a sunken frame.
#pragma once

#include <string>

#include "ui/controls.h"
#include "ui/window.h"

namespace core {

/// The sunken frame alone: a rectangle and two bevel lines, named by their role ("Score" makes
/// ScoreRectangle, ScoreBevelSide and ScoreBevelBottom).
struct SunkenFrame {
  SunkenFrame(ui::Window* window, const std::string& role);
  void Show(bool visible);
  void SetPlace(ui::Rect place);

  ui::Shape Rectangle;
  ui::Line BevelSide;
  ui::Line BevelBottom;
};

/// A caption over a number in its frame. The number stays centred in the frame.
struct CounterBox {
  CounterBox(ui::Window* window, const std::string& role, const std::string& captionName,
             const std::string& caption, const std::string& numberName,
             const std::string& tip = "");
  void Show(bool visible);
  void SetPlace(ui::Rect place);  ///< of the frame, which holds caption and number

  SunkenFrame Frame;
  ui::Label Caption;
  ui::Label Number;
};

/// Lays a label over a rectangle so that its text stands in the middle.
void CenterIn(ui::Label& label, const ui::Rect& place);

}  // namespace core
