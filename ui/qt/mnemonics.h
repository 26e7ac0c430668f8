// Mnemonics of buttons.
#pragma once

#include <QObject>

namespace ui::qt {

/// Lets a mnemonic click its button at once, in all windows. Qt would press the button now and
/// click it a moment later, when the program may no longer refuse what was refused to the key.
class InstantMnemonics : public QObject {
 public:
  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace ui::qt
