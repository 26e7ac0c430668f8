// A click on a card to the end of its repaint, a full repaint of the board, and opening the game.
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "apps/pastimo/program.h"
#include "ui/qt/platform.h"
#include "ui/window.h"

namespace {

constexpr int Clicks = 400;
constexpr int Repaints = 100;
constexpr int TimeToShow = 700;  // milliseconds until a window has surely been shown

using ui::qt::QtPlatform;

ui::Control* Find(const QtPlatform& platform, const char* name) {
  for (ui::Window* window : platform.Windows()) {
    if (ui::Control* control = window->Find(name)) return control;
  }
  return nullptr;
}

QWidget* TopOf(const QtPlatform& platform) {
  const QString name = QString::fromStdString(platform.ActiveWindow()->Name());
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->objectName() == name && top->isVisible()) return top;
  }
  return nullptr;
}

void PaintNow(QWidget* top) {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::sendPostedEvents(top, QEvent::UpdateRequest);
}

void Tell(const char* what, std::vector<double>& milliseconds) {
  std::sort(milliseconds.begin(), milliseconds.end());
  const auto at = [&](double share) {
    return milliseconds[static_cast<std::size_t>(share * double(milliseconds.size() - 1))];
  };
  std::printf("%s: median %.2f ms, 99th percentile %.2f ms\n", what, at(0.5), at(0.99));
}

double Click(QWidget* top, QWidget* board, QPoint at) {
  QElapsedTimer timer;
  timer.start();
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, at, board->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(board, &event);
  }
  PaintNow(top);
  return double(timer.nsecsElapsed()) / 1e6;
}

void MeasureBoard(QtPlatform& platform) {
  QWidget* top = TopOf(platform);
  auto* board = top->findChild<QWidget*>(QStringLiteral("board"));
  std::vector<double> clicks, repaints;
  for (int i = 0; i < Clicks; ++i) {
    const ui::Rect place = Find(platform, i % 2 ? "FieldCardPicture(20)" : "FieldCardPicture(21)")
                               ->PlaceInWindow();
    clicks.push_back(Click(top, board, {place.CenterX(), place.CenterY()}));
  }
  for (int i = 0; i < Repaints; ++i) {
    QElapsedTimer timer;
    timer.start();
    board->repaint();
    repaints.push_back(double(timer.nsecsElapsed()) / 1e6);
  }
  Tell("click on a card", clicks);
  Tell("full repaint", repaints);
  std::printf("at %.2f device pixels to a pixel\n", board->devicePixelRatioF());
  std::fflush(stdout);
  _exit(0);
}

void OpenGame(QtPlatform& platform) {
  QElapsedTimer timer;
  timer.start();
  platform.UserClick(*Find(platform, "cmdQuindle"));
  QWidget* top = TopOf(platform);
  while (!top->property("painted").toBool()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  std::printf("opening Quindle to its first frame: %.1f ms\n", double(timer.nsecsElapsed()) / 1e6);
  platform.UserClick(*Find(platform, "cmdPlay"));
  QTimer::singleShot(TimeToShow, [&platform] { MeasureBoard(platform); });
}

/// Marks a window once its board has been painted.
class PaintMark : public QObject {
 public:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && object->objectName() == QLatin1String("board")) {
      static_cast<QWidget*>(object)->window()->setProperty("painted", true);
    }
    return false;
  }
};

}  // namespace

int main(int argc, char** argv) {
  PaintMark mark;
  return apps::RunPastimo(argc, argv, [&mark](QtPlatform& platform) {
    qApp->installEventFilter(&mark);
    QTimer::singleShot(TimeToShow, [&platform] { OpenGame(platform); });
  });
}
