// The one look of all real widgets.
#pragma once

class QStyle;
class QPalette;

namespace ui::qt {

/// A new style; the application takes it over.
QStyle* MakeStyle();

/// Colours of dialogs, menus and bars; and of what stands on the felt.
QPalette PaperPalette();
QPalette FeltPalette();

}  // namespace ui::qt
