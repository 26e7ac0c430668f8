// The program's icon and name, as window managers and task bars show them.
#pragma once

#include <string>

namespace ui::qt {

/// Tells the desktop which of its entries the program's windows belong to, and gives all windows
/// the icon. `directory` holds a folder for each size in pixels, `<size>/pastimo.png`; what is
/// missing there is left out.
void IntroduceProgram(const std::string& directory);

}  // namespace ui::qt
