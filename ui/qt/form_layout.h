// The layout of a dialog: the rows of its form in Qt's own layouts.
#pragma once

#include <functional>

#include "ui/form.h"

class QWidget;

namespace ui::qt {

/// Places the widgets of a form's controls in `board`. `widgetOf` gives a control's widget.
void LayOutForm(QWidget* board, const Form& form,
                const std::function<QWidget*(Control&, QWidget* parent)>& makeWidget);

}  // namespace ui::qt
