// Text fields as real widgets.
#pragma once

#include <memory>

#include "ui/qt/mirror.h"

namespace ui::qt {

/// A line edit, or a plain text edit for a field of several lines.
std::unique_ptr<Mirror> MakeFieldMirror(QtWindow& host, Field& field, QWidget* parent);

}  // namespace ui::qt
