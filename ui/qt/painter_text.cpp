// Labels: letters that read well on whatever they stand on.
#include <QFontMetricsF>
#include <QPainterPath>
#include <QStringList>
#include <algorithm>

#include "ui/qt/ground.h"
#include "ui/qt/painters.h"
#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr double ReadsWell = 4.0;
constexpr double ReadsOnLight = 3.0;
constexpr double SmallestShare = 0.85;  // a text is not shrunk further, but stands over its place
constexpr int MessageSize = 14;         // points; larger texts on the table get a plaque
constexpr QMarginsF PlaqueMargins{9, 3, 9, 4};

/// How the letters are made to stand out.
struct Ink {
  QColor color;
  QColor halo;          ///< invalid for none
  bool plaque = false;  ///< a light plate lies under the letters
};

Ink InkOn(Ground ground, const Label& label) {
  const QColor color = ColorOf(label.TextColor());
  const bool big = label.FontSize() >= MessageSize;
  const bool dark = ground == Ground::Felt || ground == Ground::Panel;
  if (!dark) {
    if (Contrast(color, ColorOf(ground)) >= ReadsOnLight) return {color, {}};
    return {color, QColor::fromHsvF(color.hsvHueF() < 0 ? 0 : color.hsvHueF(),
                                    color.hsvSaturationF(), 0.32)};
  }
  if (label.TextColor() == Black && (ground == Ground::Panel || !big)) return {tone::Cream, {}};
  if (!big && Contrast(color, ColorOf(ground)) >= ReadsWell) return {color, {}};
  return {color, {}, true};
}

QStringList BreakLines(const QString& text, const QFontMetricsF& metrics, double width) {
  QStringList lines;
  for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
    QString line;
    for (const QString& word : paragraph.split(QLatin1Char(' '))) {
      const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
      if (!line.isEmpty() && metrics.horizontalAdvance(longer) > width) {
        lines << line;
        line = word;
      } else {
        line = longer;
      }
    }
    lines << line;
  }
  return lines;
}

/// A label's text, broken into lines and measured.
struct Lines {
  QStringList texts;
  QFont font;
  QRectF area;
  double height = 0;
  double ascent = 0;
};

QStringList LinesOf(const Label& label, const QFontMetricsF& metrics, double width) {
  QString text = ToQt(label.Text());
  text.remove(QLatin1Char('\r'));
  if (label.Wrap() && width > 0) return BreakLines(text, metrics, width);
  return text.split(QLatin1Char('\n'));
}

double WidestOf(const QStringList& lines, const QFontMetricsF& metrics) {
  double widest = 0;
  for (const QString& line : lines) widest = std::max(widest, metrics.horizontalAdvance(line));
  return widest;
}

double LeftOf(Align alignment, const QRectF& place, double width) {
  switch (alignment) {
    case Align::Left:
      return place.left();
    case Align::Center:
      return place.center().x() - width / 2;
    case Align::Right:
      break;
  }
  return place.right() - width;
}

Lines Measure(const Label& label) {
  const QRectF place = ToQt(label.PlaceInWindow());
  Lines lines;
  lines.font = FontOf(label.FontSize(), label.Bold());
  lines.texts = LinesOf(label, QFontMetricsF(lines.font), place.width());
  double width = WidestOf(lines.texts, QFontMetricsF(lines.font));
  if (width > place.width() && place.width() > 0) {
    const double share = std::max(SmallestShare, place.width() / width);
    lines.font.setPixelSize(std::max(9, int(lines.font.pixelSize() * share)));
    width = WidestOf(lines.texts, QFontMetricsF(lines.font));
  }
  const QFontMetricsF metrics(lines.font);
  lines.height = metrics.height();
  lines.ascent = metrics.ascent();
  const double height = lines.height * double(lines.texts.size());
  const bool centered = height > place.height() || place.height() < 2 * height;
  const double top = centered ? place.center().y() - height / 2 : place.top();
  lines.area = QRectF(LeftOf(label.Alignment(), place, width), top, width, height);
  return lines;
}

void PaintPlaque(QPainter& painter, const QRectF& around) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF plate = around.marginsAdded(PlaqueMargins);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 60));
  painter.drawRoundedRect(plate.translated(0, 2), 6, 6);
  painter.setPen(QPen(QColor(tone::Gold), 1));
  painter.setBrush(QColor(tone::Board));
  painter.drawRoundedRect(plate.adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
  painter.restore();
}

void PaintLine(QPainter& painter, QPointF at, const QString& text, const QFont& font,
               const Ink& ink) {
  if (ink.halo.isValid()) {
    QPainterPath outline;
    outline.addText(at, font, text);
    painter.strokePath(outline, QPen(ink.halo, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(outline, ink.color);
    return;
  }
  painter.setPen(ink.color);
  painter.drawText(at, text);
}

bool HasText(const Label& label) {
  return label.Text().find_first_not_of(" \r\n") != std::string::npos;
}

}  // namespace

QRect TextArea(const Label& label) {
  return Measure(label).area.marginsAdded(PlaqueMargins + QMarginsF(2, 2, 2, 3)).toAlignedRect();
}

void PaintLabel(QPainter& painter, const Label& label, const Scene& scene) {
  if (!HasText(label)) return;
  const Lines lines = Measure(label);
  const Ink ink = InkOn(GroundUnder(label, scene.order), label);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (ink.plaque) PaintPlaque(painter, lines.area);
  painter.setFont(lines.font);
  const QFontMetricsF metrics(lines.font);
  double baseline = lines.area.top() + lines.ascent;
  for (const QString& text : lines.texts) {
    const double x = LeftOf(label.Alignment(), lines.area, metrics.horizontalAdvance(text));
    PaintLine(painter, {x, baseline}, text, lines.font, ink);
    baseline += lines.height;
  }
  painter.restore();
}

}  // namespace ui::qt
