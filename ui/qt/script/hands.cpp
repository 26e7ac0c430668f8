// Mouse, keyboard and eyes on real widgets.
#include "ui/qt/script/hands.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <optional>

#include "ui/qt/board.h"
#include "ui/qt/painters.h"
#include "ui/qt/qt_window.h"
#include "ui/qt/script/scripted_desktop.h"
#include "ui/qt/script/sight.h"
#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr int Step = 4;  // pixels between the places that are tried on a covered control
constexpr int OnIndicator = 8;

void Mouse(QWidget& widget, QEvent::Type type, QPoint at) {
  const bool moves = type == QEvent::MouseMove;
  const bool down = type == QEvent::MouseButtonPress;
  QMouseEvent event(type, at, widget.mapToGlobal(at), moves ? Qt::NoButton : Qt::LeftButton,
                    down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void ClickAt(QWidget& widget, QPoint at) {
  const QPointer<QWidget> alive(&widget);
  Mouse(widget, QEvent::MouseButtonPress, at);
  if (alive) Mouse(widget, QEvent::MouseButtonRelease, at);
}

void Strike(QWidget& widget, int key, const QString& text = {}) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&widget, &press);
}

/// Where the board itself would find the control under the pointer.
std::optional<QPoint> PlaceOf(const Board& board, const Control& control) {
  const QRect area = ToQt(control.PlaceInWindow());
  if (board.ControlAt(area.center()) == &control) return area.center();
  for (int y = area.top(); y <= area.bottom(); y += Step) {
    for (int x = area.left(); x <= area.right(); x += Step) {
      if (board.ControlAt({x, y}) == &control) return QPoint(x, y);
    }
  }
  return std::nullopt;
}

QMessageBox::StandardButton ButtonOf(Answer answer) {
  switch (answer) {
    case Answer::Yes:
      return QMessageBox::Yes;
    case Answer::No:
      return QMessageBox::No;
    case Answer::Cancel:
      return QMessageBox::Cancel;
    case Answer::Ok:
      break;
  }
  return QMessageBox::Ok;
}

}  // namespace

Hands::Hands(ScriptedDesktop& desktop) : Director(desktop), desktop_(desktop) {}

void Hands::Settle() {
  desktop_.ServeInput();
  Director::Settle();
  desktop_.ServeInput();
}

QtWindow& Hands::ViewOf(const Window& window) {
  desktop_.SyncAll();
  return *desktop_.ViewOf(window);
}

QWidget* Hands::WidgetOf(const Control& control) {
  QtWindow& view = ViewOf(control.Owner());
  QWidget* widget = view.WidgetOf(control);
  return widget == &view.TheBoard() ? nullptr : widget;
}

// --- Eyes --------------------------------------------------------------------------------------

script::Properties Hands::Look(const Control& control) {
  script::Properties properties = script::PropertiesOf(control);
  if (const QtWindow* view = desktop_.ViewOf(control.Owner()))
    SeeOnScreen(*view, control, properties);
  return properties;
}

bool Hands::TakePicture(const std::string& path) {
  Settle();
  QWidget* top = QApplication::activeModalWidget();
  if (!top) top = desktop_.ActiveView();
  return top && top->grab().save(ToQt(path), "PNG");
}

// --- Hands -------------------------------------------------------------------------------------

void Hands::PlayerClicks(Control& control) {
  QtWindow& view = ViewOf(control.Owner());
  QWidget* widget = WidgetOf(control);
  if (control.GetKind() == Kind::Menu) {
    if (auto* action = view.findChild<QAction*>(ToQt(control.FullName()))) action->trigger();
  } else if (control.GetKind() == Kind::Field || control.GetKind() == Kind::List) {
    PlayerFocuses(control);
  } else if (widget) {
    const bool button = control.GetKind() == Kind::Button;
    ClickAt(*widget, button ? widget->rect().center() : QPoint(OnIndicator, widget->height() / 2));
  } else if (!ClickPainted(control)) {
    Director::PlayerClicks(control);
  }
}

bool Hands::ClickPainted(Control& control) {
  Board& board = ViewOf(control.Owner()).TheBoard();
  const auto place = PlaceOf(board, control);
  if (place) ClickAt(board, *place);
  return place.has_value();
}

void Hands::PlayerPresses(Surface& surface, Point place) {
  Board& board = ViewOf(surface.Owner()).TheBoard();
  const QPoint at = ToQt(surface.PlaceInWindow()).topLeft() + QPoint(place.x, place.y);
  if (board.ControlAt(at) != &surface) return Director::PlayerPresses(surface, place);
  ClickAt(board, at);
}

void Hands::PlayerMoves(Control& control, Point place) {
  Board& board = ViewOf(control.Owner()).TheBoard();
  std::optional<QPoint> at = PlaceOf(board, control);
  if (control.GetKind() == Kind::Surface) {
    at = ToQt(control.PlaceInWindow()).topLeft() + QPoint(place.x, place.y);
  }
  if (WidgetOf(control) || !at || board.ControlAt(*at) != &control) {
    return Director::PlayerMoves(control, place);
  }
  Mouse(board, QEvent::MouseMove, *at);
}

void Hands::PlayerTypes(Field& field, const std::string& text) {
  QWidget* widget = WidgetOf(field);
  if (!widget || field.Text() == text) return Director::PlayerTypes(field, text);
  PlayerFocuses(field);
  QMetaObject::invokeMethod(widget, "selectAll");
  if (text.empty()) return Strike(*widget, Qt::Key_Delete);
  QInputMethodEvent event;
  event.setCommitString(ToQt(text).remove(QLatin1Char('\r')));
  QApplication::sendEvent(widget, &event);
}

void Hands::PlayerStrikes(Window& window, char32_t letter) {
  Strike(ViewOf(window), 0, QString::fromUcs4(&letter, 1));
}

void Hands::PlayerChooses(List& list, int index) {
  auto* widget = qobject_cast<QComboBox*>(WidgetOf(list));
  if (!widget) return Director::PlayerChooses(list, index);
  widget->setCurrentIndex(index);
  emit widget->activated(index);
}

void Hands::PlayerChecks(Check& check, bool checked) {
  const auto* widget = qobject_cast<QAbstractButton*>(WidgetOf(check));
  if (!widget || widget->isChecked() == checked) return Director::PlayerChecks(check, checked);
  PlayerClicks(check);
}

void Hands::PlayerFocuses(Control& control) {
  if (QWidget* widget = WidgetOf(control)) widget->setFocus(Qt::MouseFocusReason);
  // A window that isn't the display's active one tells nothing of it.
  if (desktop_.FocusOf(control.Owner()) != &control) Director::PlayerFocuses(control);
}

void Hands::PlayerCloses(Window& window) {
  ViewOf(window).close();
}

void Hands::PlayerAnswers(Answer answer) {
  Director::PlayerAnswers(answer);
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box) box->button(ButtonOf(answer))->click();
}

}  // namespace ui::qt
