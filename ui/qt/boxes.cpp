// Questions to the player.
#include "ui/qt/boxes.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>

#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

QMessageBox::Icon IconOf(Sign sign) {
  switch (sign) {
    case Sign::Information:
      return QMessageBox::Information;
    case Sign::Exclamation:
      return QMessageBox::Warning;
    case Sign::Critical:
      return QMessageBox::Critical;
    case Sign::Question:
      return QMessageBox::Question;
    case Sign::Plain:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

Answer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
}

/// "Music File (*.mid)|*.mid;*.rmi" in Qt's form; the letters of a pattern match in either case.
QString FilterOf(const std::string& filter) {
  const QString text = ToQt(filter);
  const qsizetype bar = text.indexOf(QLatin1Char('|'));
  QString description = text.left(bar);
  const qsizetype parenthesis = description.indexOf(QLatin1Char('('));
  if (parenthesis >= 0) description.truncate(parenthesis);
  const QString patterns = bar < 0 ? QStringLiteral("*") : text.mid(bar + 1);
  return description.trimmed() + QStringLiteral(" (") +
         QString(patterns).replace(QLatin1Char(';'), QLatin1Char(' ')) + QLatin1Char(')');
}

QString SuffixOf(const std::string& extension) {
  QString suffix = ToQt(extension);
  while (suffix.startsWith(QLatin1Char('*')) || suffix.startsWith(QLatin1Char('.'))) {
    suffix.remove(0, 1);
  }
  return suffix;
}

/// Where the player was last, at first where documents are kept.
QString& FolderToShow() {
  static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return folder;
}

}  // namespace

Answer AskBox(QWidget* above, Sign sign, Buttons buttons, const std::string& title,
              const std::string& text, const std::function<int(QMessageBox&)>& run) {
  QMessageBox box(IconOf(sign), ToQt(title), ToQt(text), ButtonsOf(buttons),
                  above && above->isVisible() ? above : nullptr);
  box.setTextFormat(Qt::PlainText);
  box.setWindowModality(Qt::ApplicationModal);
  return AnswerOf(run(box));
}

std::optional<std::string> AskForFile(QWidget* above, const FileDialog& asked) {
  QFileDialog dialog(above && above->isVisible() ? above : nullptr, ToQt(asked.title));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  const bool saving = asked.purpose == FileDialog::Purpose::Save;
  dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setNameFilter(FilterOf(asked.filter));
  dialog.setDefaultSuffix(SuffixOf(asked.defaultExtension));
  const QFileInfo given(ToQt(asked.fileName));
  if (asked.fileName.empty()) {
    dialog.setDirectory(QDir(FolderToShow()).exists() ? FolderToShow() : QDir::homePath());
  } else {
    dialog.setDirectory(given.absolutePath());
    dialog.selectFile(given.fileName());
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  if (asked.fileName.empty()) FolderToShow() = dialog.directory().absolutePath();
  return FromQt(dialog.selectedFiles().constFirst());
}

}  // namespace ui::qt
