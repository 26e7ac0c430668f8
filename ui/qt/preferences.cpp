// Reading and writing the player's wishes.
#include "ui/qt/preferences.h"

#include <QSettings>

#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

const QString BoxSignsKey = QStringLiteral("BoxSigns");

}  // namespace

bool Preferences::BoxSigns() {
  if (!boxSigns_) {
    boxSigns_ = QSettings(ToQt(file_), QSettings::IniFormat).value(BoxSignsKey).toBool();
  }
  return *boxSigns_;
}

void Preferences::SetBoxSigns(bool wanted) {
  boxSigns_ = wanted;
  QSettings(ToQt(file_), QSettings::IniFormat).setValue(BoxSignsKey, wanted);
}

}  // namespace ui::qt
