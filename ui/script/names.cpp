// Names of controls, alone or behind the name of their window.
#include "ui/script/names.h"

#include <algorithm>

namespace ui::script {

Window* FindWindow(const Desk& desk, const std::string& name) {
  const auto& windows = desk.Windows();
  const auto found = std::find_if(windows.begin(), windows.end(),
                                  [&](const Window* w) { return w->Name() == name; });
  return found == windows.end() ? nullptr : *found;
}

Control* FindControl(const Desk& desk, const std::string& name) {
  const auto dot = name.find('.');
  const Window* window =
      dot == std::string::npos ? desk.ActiveWindow() : FindWindow(desk, name.substr(0, dot));
  return window ? window->Find(dot == std::string::npos ? name : name.substr(dot + 1)) : nullptr;
}

}  // namespace ui::script
