// What a script can ask of controls and windows.
#pragma once

#include <string>
#include <vector>

#include "ui/controls.h"

namespace ui {
class Window;
}

namespace ui::script {

/// One property as it stands in an answer.
struct PropertyText {
  std::string name;
  std::string value;
  std::vector<std::string> lines;  ///< further lines that follow it: those of a drawing
};

using Properties = std::vector<PropertyText>;

/// All properties, those that every control has first.
Properties PropertiesOf(const Control& control);
Properties PropertiesOf(const Window& window);

/// What the player sees of a control: its text and its colour, as `"TEXT" COLOUR`.
std::string SightOf(const Control& control);

}  // namespace ui::script
