// Clicking a button by its letter.
#include "ui/qt/mnemonics.h"

#include <QAbstractButton>
#include <QShortcutEvent>

namespace ui::qt {

bool InstantMnemonics::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::Shortcut) return false;
  auto* button = qobject_cast<QAbstractButton*>(object);
  if (!button || static_cast<QShortcutEvent*>(event)->isAmbiguous()) return false;
  button->setFocus(Qt::ShortcutFocusReason);
  button->click();
  return true;
}

}  // namespace ui::qt
