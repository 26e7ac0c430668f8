// The table of colours, their words and their signs.
#include "ui/qt/color_words.h"

#include <QPainter>
#include <algorithm>
#include <iterator>
#include <string_view>

#include "ui/qt/ground.h"

namespace ui::qt {
namespace {

struct Word {
  const char* text;
  Color plain;
  Color other;            ///< the shade in which it stands out
  std::string_view sign;  ///< corners on a grid of 8 by 8, two digits each; empty for a disc
};

const Word Words[] = {
    {"red", {255, 0, 0}, {255, 128, 128}, "41744714"},
    {"green", {0, 255, 0}, {32, 255, 171}, "427616"},
    {"blue", {0, 0, 255}, {128, 128, 255}, "22626626"},
    {"yellow", {255, 255, 0}, {220, 220, 0}, ""},
    {"magenta", {255, 0, 255}, {220, 0, 220}, "127246"},
    {"orange", {255, 183, 0}, {220, 128, 0}, "22622666"},
    {"cyan", {0, 255, 255}, {0, 220, 220}, "13737515"},
    {"brown", {159, 89, 0}, {222, 89, 0}, "31515737"},
    {"white", {255, 255, 255}, {220, 220, 220}, "315153737555573735151333"},
    {"black", {0, 0, 0}, {128, 128, 128}, "122143617254766745271634"},
};

int Distance(const Color& a, const Color& b) {
  const int red = a.r - b.r, green = a.g - b.g, blue = a.b - b.b;
  return red * red + green * green + blue * blue;
}

const Word& Nearest(const Color& color) {
  const auto distance = [&](const Word& word) {
    return std::min(Distance(color, word.plain), Distance(color, word.other));
  };
  return *std::min_element(std::begin(Words), std::end(Words),
                           [&](const Word& a, const Word& b) { return distance(a) < distance(b); });
}

}  // namespace

const char* WordOf(const Color& color) {
  return Nearest(color).text;
}

void PaintSign(QPainter& painter, const QRectF& box, const Color& color) {
  const QColor ground = ColorOf(color);
  const bool dark = Contrast(ground, Qt::black) > Contrast(ground, Qt::white);
  painter.setPen(Qt::NoPen);
  painter.setBrush(dark ? QColor(0, 0, 0, 170) : QColor(255, 255, 255, 210));
  const std::string_view sign = Nearest(color).sign;
  const double unit = box.width() / 8;
  if (sign.empty()) painter.drawEllipse(box.center(), 2 * unit, 2 * unit);
  QPolygonF outline;
  for (std::size_t i = 0; i + 1 < sign.size(); i += 2) {
    outline << box.topLeft() + QPointF((sign[i] - '0') * unit, (sign[i + 1] - '0') * unit);
  }
  painter.drawPolygon(outline);
}

}  // namespace ui::qt
