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

int BytesBefore(const QString& text, int characters) {
  return static_cast<int>(text.left(characters).toUtf8().size());
}

int CharactersBefore(std::string_view bytes, int count) {
  const auto size = static_cast<int>(bytes.size());
  return static_cast<int>(
      ToQt(bytes.substr(0, static_cast<std::size_t>(std::clamp(count, 0, size)))).size());
}

}  // namespace ui::qt
