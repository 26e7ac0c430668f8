// Clicking a button by its letter.
#include "ui/qt/mnemonics.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QShortcutEvent>

namespace ui::qt {
namespace {

/// The button that alone can be meant by a letter. Qt counts menus that are greyed out as rivals.
QAbstractButton* OnlyButtonFor(const QKeySequence& key) {
  const QWidget* window = QApplication::activeWindow();
  if (!window) return nullptr;
  for (const QMenuBar* bar : window->findChildren<QMenuBar*>()) {
    for (const QAction* heading : bar->actions()) {
      if (heading->isEnabled() && QKeySequence::mnemonic(heading->text()) == key) return nullptr;
    }
  }
  QAbstractButton* only = nullptr;
  for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
    if (!button->isVisible() || !button->isEnabled() || button->shortcut() != key) continue;
    if (only) return nullptr;
    only = button;
  }
  return only;
}

}  // namespace

bool InstantMnemonics::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::Shortcut) return false;
  const auto* shortcut = static_cast<QShortcutEvent*>(event);
  auto* button = shortcut->isAmbiguous() ? OnlyButtonFor(shortcut->key())
                                         : qobject_cast<QAbstractButton*>(object);
  if (!button) return false;
  button->setFocus(Qt::ShortcutFocusReason);
  button->click();
  return true;
}

}  // namespace ui::qt
