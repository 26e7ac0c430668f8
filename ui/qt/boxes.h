// Message boxes and file dialogs.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "ui/platform.h"

class QMessageBox;
class QWidget;

namespace ui::qt {

/// Puts a message over `above` (null for none). `run` shows it, waits for the answer and returns
/// the standard button that was pressed.
Answer AskBox(QWidget* above, Sign sign, Buttons buttons, const std::string& title,
              const std::string& text, const std::function<int(QMessageBox&)>& run);

std::optional<std::string> AskForFile(QWidget* above, const FileDialog& dialog);

}  // namespace ui::qt
