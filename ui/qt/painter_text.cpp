// Labels: letters that read well on whatever they stand on.
#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>

#include "ui/qt/ground.h"
#include "ui/qt/painters.h"
#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr double ReadsWell = 4.5;
constexpr double ReadsTinted = 3.2;  // enough, and the hue is still plain
constexpr double ReadsOnLight = 3.0;
// A text that is too wide for its place is shrunk to these shares of its size, and then stands
// over.
constexpr double SmallestShare = 0.85;
constexpr double SmallestTitleShare = 0.6;
constexpr int MessageSize = 14;  // points; larger texts on the table get a plaque
constexpr int SmallSize = 10;    // points; up to here coloured texts get a lighter ink
constexpr QMarginsF PlaqueMargins{9, 3, 9, 4};
constexpr QMarginsF LampMargins{6, 1, 6, 1};
constexpr double CellWidth = 40;  // pixels; a narrower place is lit as a whole

/// How the letters are made to stand out.
struct Ink {
  enum class Under { Nothing, Plaque, Lamp };
  QColor color;
  Under under = Under::Nothing;  ///< a light plate, or a dark one on which bright letters glow
};

/// The same hue, as light as it takes to be read on the ground.
QColor Lightened(const QColor& color, const QColor& ground) {
  float hue = 0, saturation = 0, lightness = 0;
  color.getHslF(&hue, &saturation, &lightness);
  QColor ink = color;
  for (; lightness < 0.95F && Contrast(ink, ground) < ReadsTinted; lightness += 0.02F) {
    ink = QColor::fromHslF(std::max(0.0F, hue), saturation, lightness);
  }
  return ink;
}

Ink InkOnFelt(const Label& label) {
  const QColor color = ColorOf(label.TextColor()), felt = ColorOf(Ground::Felt);
  if (label.FontSize() < MessageSize) {
    if (label.TextColor() == Black) return {tone::Cream};
    if (Contrast(color, felt) >= ReadsWell) return {color};
    if (label.FontSize() <= SmallSize) return {Lightened(color, felt)};
  }
  return {color, Ink::Under::Plaque};
}

Ink InkOn(Ground ground, const Label& label) {
  if (ground == Ground::Felt) return InkOnFelt(label);
  const QColor color = ColorOf(label.TextColor());
  const bool readable = Contrast(color, ColorOf(ground)) >= ReadsOnLight;
  return {color, readable ? Ink::Under::Nothing : Ink::Under::Lamp};
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
    const double least = label.FontSize() >= MessageSize ? SmallestTitleShare : SmallestShare;
    const double share = std::max(least, place.width() / width);
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

void PaintLamp(QPainter& painter, const QRectF& around, const QRectF& place) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(tone::Lamp));
  const bool cell = place.width() < CellWidth;
  painter.drawRoundedRect(cell ? place : around.marginsAdded(LampMargins) & (around | place), 4, 4);
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
  if (ink.under == Ink::Under::Plaque) PaintPlaque(painter, lines.area);
  if (ink.under == Ink::Under::Lamp) PaintLamp(painter, lines.area, ToQt(label.PlaceInWindow()));
  painter.setFont(lines.font);
  painter.setPen(ink.color);
  const QFontMetricsF metrics(lines.font);
  double baseline = lines.area.top() + lines.ascent;
  for (const QString& text : lines.texts) {
    const double x = LeftOf(label.Alignment(), lines.area, metrics.horizontalAdvance(text));
    painter.drawText(QPointF(x, baseline), text);
    baseline += lines.height;
  }
  painter.restore();
}

}  // namespace ui::qt
