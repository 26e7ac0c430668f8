// Message boxes and file dialogs.
#pragma once

#include <optional>
#include <string>

#include "ui/platform.h"

class QWidget;

namespace ui::qt {

/// Shows a message over `above` (null for none) and waits for the answer.
Answer AskBox(QWidget* above, Sign sign, Buttons buttons, const std::string& title,
              const std::string& text);

std::optional<std::string> AskForFile(QWidget* above, const FileDialog& dialog);

}  // namespace ui::qt
