// Buttons as raised ivory, captions in ink, on the felt in cream.
#include "ui/qt/style.h"

#include <algorithm>

#include <QLinearGradient>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOptionButton>

#include "ui/qt/bands.h"
#include "ui/qt/ground.h"

namespace ui::qt {
namespace {

constexpr double Radius = 5;

class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStringLiteral("fusion")) {}

  QPalette standardPalette() const override { return PaperPalette(); }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element == PE_PanelButtonCommand) {
      return InBands(*painter, option->rect, [&] { DrawButton(*option, *painter); });
    }
    if (element == PE_FrameFocusRect && widget && widget->inherits("QPushButton")) return;
    if (element == PE_FrameStatusBarItem) return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
        bar && element == CE_ProgressBar) {
      return DrawBar(*bar, *painter);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    if (metric == PM_ButtonShiftVertical) return 1;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    // Mnemonics are part of the captions; nothing moves without being asked.
    if (hint == SH_UnderlineShortcut) return 1;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    if (hint == SH_Widget_Animation_Duration) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

 private:
  /// A sunken groove that fills from the left.
  static void DrawBar(const QStyleOptionProgressBar& bar, QPainter& painter) {
    const QRectF groove = QRectF(bar.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    const int range = std::max(1, bar.maximum - bar.minimum);
    const double share = std::clamp(double(bar.progress - bar.minimum) / range, 0.0, 1.0);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(tone::Wood));
    painter.setBrush(QColor(tone::Box));
    painter.drawRoundedRect(groove, 4, 4);
    QRectF filled = groove.adjusted(1.5, 1.5, -1.5, -1.5);
    filled.setWidth(filled.width() * share);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(tone::Gold));
    if (share > 0) painter.drawRoundedRect(filled, 3, 3);
    painter.restore();
  }

  static void DrawButton(const QStyleOption& option, QPainter& painter) {
    const bool enabled = option.state & State_Enabled;
    const bool down = option.state & (State_Sunken | State_On);
    const bool hot = enabled && option.state & State_MouseOver;
    const bool focus = option.state & State_HasFocus;
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool main = button && button->features & QStyleOptionButton::DefaultButton;
    const QRectF box = QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -2.5);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, enabled && !down ? 70 : 0));
    painter.drawRoundedRect(box.translated(0, 1.5), Radius, Radius);
    painter.setBrush(Face(box, enabled, down, hot));
    const QColor rim = main ? QColor(tone::Felt).darker(130) : QColor(tone::Wood);
    painter.setPen(QPen(enabled ? rim : QColor(tone::Wood).lighter(130), main ? 2 : 1));
    painter.drawRoundedRect(box, Radius, Radius);
    if (focus && enabled) {
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(QColor(tone::Felt), 1.6));
      painter.drawRoundedRect(box.adjusted(2.5, 2.5, -2.5, -2.5), Radius - 2, Radius - 2);
    }
    painter.restore();
  }

  static QBrush Face(const QRectF& box, bool enabled, bool down, bool hot) {
    if (!enabled) return QColor(0xd9, 0xd2, 0xbf);
    QColor light(0xff, 0xfb, 0xf0), dark(0xe8, 0xdc, 0xbd);
    if (hot) dark = QColor(0xf3, 0xe6, 0xbb);
    if (down) std::swap(light, dark);
    QLinearGradient face(box.topLeft(), box.bottomLeft());
    face.setColorAt(0, light);
    face.setColorAt(1, dark);
    return face;
  }
};

void SetBoth(QPalette& palette, QPalette::ColorRole role, const QColor& color,
             const QColor& disabled) {
  palette.setColor(role, color);
  palette.setColor(QPalette::Disabled, role, disabled);
}

}  // namespace

QStyle* MakeStyle() {
  return new Style;
}

QPalette PaperPalette() {
  const QColor ink(tone::Ink), faded(0x8d, 0x86, 0x78);
  QPalette palette;
  palette.setColor(QPalette::Window, tone::Paper);
  palette.setColor(QPalette::Base, QColor(0xff, 0xfd, 0xf7));
  palette.setColor(QPalette::AlternateBase, tone::Paper);
  palette.setColor(QPalette::Button, QColor(0xee, 0xe5, 0xcd));
  palette.setColor(QPalette::Light, Qt::white);
  palette.setColor(QPalette::Midlight, QColor(0xf8, 0xf2, 0xe2));
  palette.setColor(QPalette::Mid, QColor(0xc8, 0xbb, 0x99));
  palette.setColor(QPalette::Dark, QColor(0x9a, 0x8c, 0x68));
  palette.setColor(QPalette::Shadow, QColor(0x4a, 0x40, 0x2c));
  palette.setColor(QPalette::Highlight, tone::Felt);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, tone::Board);
  palette.setColor(QPalette::ToolTipText, ink);
  palette.setColor(QPalette::Link, QColor(0x1b, 0x4f, 0x9c));
  SetBoth(palette, QPalette::WindowText, ink, faded);
  SetBoth(palette, QPalette::Text, ink, faded);
  SetBoth(palette, QPalette::ButtonText, ink, faded);
  SetBoth(palette, QPalette::PlaceholderText, faded, faded);
  return palette;
}

QPalette FeltPalette() {
  QPalette palette = PaperPalette();
  SetBoth(palette, QPalette::WindowText, tone::Cream, QColor(0xb8, 0xc9, 0xbb));
  return palette;
}

}  // namespace ui::qt
