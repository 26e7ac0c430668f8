// Timing what a player sees.
#include "ui/qt/stopwatch.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>

namespace ui::qt {
namespace {

QWidget* BoardOf(const std::string& window) {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->objectName() != QString::fromStdString(window) || !top->isVisible()) continue;
    return top->findChild<QWidget*>(QStringLiteral("board"));
  }
  qFatal("there is no window %s", window.c_str());
}

void Send(QWidget* board, QEvent::Type type, Point point, Qt::MouseButton button) {
  const QPoint at(point.x, point.y);
  QMouseEvent event(type, at, board->mapToGlobal(at), button, button, {});
  QCoreApplication::sendEvent(board, &event);
}

double Milliseconds(const QElapsedTimer& timer) {
  return double(timer.nsecsElapsed()) / 1e6;
}

/// From the begin of `act` to the end of the painting that it asks for.
double TimeOf(QWidget* board, const std::function<void()>& act) {
  QElapsedTimer timer;
  timer.start();
  act();
  QCoreApplication::sendPostedEvents();
  QCoreApplication::sendPostedEvents(board->window(), QEvent::UpdateRequest);
  return Milliseconds(timer);
}

/// Calls `seen` when a widget is about to be painted.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(std::function<void(QWidget&)> seen) : seen_(std::move(seen)) {
    qApp->installEventFilter(this);
  }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && object->isWidgetType()) {
      seen_(*static_cast<QWidget*>(object));
    }
    return false;
  }

 private:
  const std::function<void(QWidget&)> seen_;
};

}  // namespace

void After(int milliseconds, const std::function<void()>& then) {
  QTimer::singleShot(milliseconds, then);
}

void AfterFirstFrame(const std::function<void()>& then) {
  auto* watch = new PaintWatch([then, first = true](QWidget&) mutable {
    // All widgets are painted in one go: what follows in the loop comes after the frame.
    if (std::exchange(first, false)) After(0, then);
  });
  watch->setParent(qApp);
}

double TimeOfClick(const std::string& window, Point at) {
  QWidget* board = BoardOf(window);
  return TimeOf(board, [&] {
    Send(board, QEvent::MouseButtonPress, at, Qt::LeftButton);
    Send(board, QEvent::MouseButtonRelease, at, Qt::LeftButton);
  });
}

double TimeOfMove(const std::string& window, Point at) {
  QWidget* board = BoardOf(window);
  return TimeOf(board, [&] { Send(board, QEvent::MouseMove, at, Qt::NoButton); });
}

double TimeOfRepaint(const std::string& window) {
  QWidget* board = BoardOf(window);
  return TimeOf(board, [board] { board->repaint(); });
}

double TimeToFirstFrame(const std::string& window, const std::function<void()>& open) {
  bool painted = false;
  const PaintWatch watch([&](QWidget& widget) {
    painted = painted || (widget.objectName() == QLatin1String("board") &&
                          widget.window()->objectName() == QString::fromStdString(window));
  });
  QElapsedTimer timer;
  timer.start();
  open();
  while (!painted) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  return Milliseconds(timer);
}

double PixelRatio(const std::string& window) {
  return BoardOf(window)->devicePixelRatioF();
}

}  // namespace ui::qt
