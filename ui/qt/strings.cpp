// Byte strings and Qt strings.
#include "ui/qt/strings.h"

#include <QStringDecoder>
#include <QTextDocument>
#include <algorithm>

namespace ui::qt {

QString ToQt(std::string_view bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = decoder(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
  if (!decoder.hasError()) return text;
  return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
}

std::string FromQt(const QString& text) {
  return text.toStdString();
}

QString PlainTip(std::string_view bytes) {
  const QString text = ToQt(bytes);
  return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

}  // namespace ui::qt
