// Giving windows the program's icon.
#include "ui/qt/icon.h"

#include <QApplication>
#include <QIcon>

#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr const char* Name = "pastimo";  // of the desktop entry and of the icon's files
constexpr int Sizes[] = {16, 24, 32, 48, 64, 128};

}  // namespace

void IntroduceProgram(const std::string& directory) {
  QGuiApplication::setDesktopFileName(QString::fromLatin1(Name));
  QIcon icon;
  for (const int size : Sizes) {
    icon.addFile(QStringLiteral("%1/%2/%3.png").arg(ToQt(directory)).arg(size).arg(Name),
                 QSize(size, size));
  }
  QApplication::setWindowIcon(icon);
}

}  // namespace ui::qt
