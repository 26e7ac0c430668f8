// The keyboard's way over the board: arrow keys move a ring over what can be clicked.
#include <QFocusEvent>
#include <QKeyEvent>
#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <set>
#include <string>

#include "ui/qt/accessible.h"
#include "ui/qt/board.h"
#include "ui/qt/color_words.h"
#include "ui/qt/painters.h"
#include "ui/qt/painting_order.h"
#include "ui/qt/platform.h"
#include "ui/qt/qt_window.h"

namespace ui::qt {
namespace {

constexpr int SidewaysWeight = 3;  // a step to the side counts more than one ahead

/// How far `to` lies from `from` in a direction; nothing if it lies elsewhere.
int DistanceAlong(QPoint from, QPoint to, int dx, int dy) {
  const QPoint step = to - from;
  const int ahead = step.x() * dx + step.y() * dy;
  const int aside = std::abs(step.x() * dy) + std::abs(step.y() * dx);
  if (ahead <= 0) return std::numeric_limits<int>::max();
  return ahead + SidewaysWeight * aside;
}

const Target& NearestTo(QPoint from, const std::vector<Target>& targets) {
  return *std::min_element(targets.begin(), targets.end(), [&](const Target& a, const Target& b) {
    return (a.area.center() - from).manhattanLength() < (b.area.center() - from).manhattanLength();
  });
}

void AddBoxes(Surface& surface, std::vector<Target>& targets) {
  if (!surface.OnMouseDown) return;
  const QPoint corner = ToQt(surface.PlaceInWindow()).topLeft();
  for (const Stroke& stroke : surface.Drawing()) {
    if (stroke.form != Stroke::Form::Box || !stroke.filled) continue;
    targets.push_back({&surface, QRect(corner + QPoint(int(stroke.a), int(stroke.b)),
                                       QSize(int(stroke.c), int(stroke.c)))});
  }
}

}  // namespace

std::vector<Target> Board::Targets() const {
  std::vector<Target> targets;
  const Window* window = Model();
  if (!window || !window->Layout().Empty()) return targets;
  for (Control* control : PaintingOrder(*window)) {
    if (!IsPainted(*control) || !control->Usable() || IsEmptied(*control)) continue;
    if (control->GetKind() == Kind::Surface) AddBoxes(static_cast<Surface&>(*control), targets);
    if (!control->OnClick) continue;
    const QRect area = ToQt(control->PlaceInWindow());
    // What a card above covers in its middle can't be pointed at there.
    if (area.isEmpty() || ControlAt(area.center()) != control) continue;
    targets.push_back({control, area});
  }
  return targets;
}

std::string Board::FocusedBox(const Control& control) const {
  if (FocusedControl() != &control || control.GetKind() != Kind::Surface) return {};
  const QPoint corner = ToQt(control.PlaceInWindow()).topLeft();
  std::set<double> columns, rows;
  const Stroke* box = nullptr;
  for (const Stroke& stroke : static_cast<const Surface&>(control).Drawing()) {
    if (stroke.form != Stroke::Form::Box) continue;
    columns.insert(stroke.a);
    rows.insert(stroke.b);
    if (corner + QPoint(int(stroke.a), int(stroke.b)) == focus_.area.topLeft()) box = &stroke;
  }
  if (!box) return {};
  const auto place = [](const std::set<double>& edges, double edge) {
    return std::to_string(std::distance(edges.begin(), edges.find(edge)) + 1);
  };
  return std::string(box->filled ? WordOf(box->color) : "empty") + ", column " +
         place(columns, box->a) + ", row " + place(rows, box->b);
}

void Board::FocusOn(const Target& target) {
  if (focus_.control) update(focus_.area.adjusted(-6, -6, 6, 6));
  focus_ = target;
  focusShown_ = true;
  update(focus_.area.adjusted(-6, -6, 6, 6));
  TellFocus(*this, *target.control);
  Move(target.area.center());
}

void Board::ShowFocus(bool show) {
  if (focusShown_ == show) return;
  focusShown_ = show;
  if (focus_.control) update(focus_.area.adjusted(-6, -6, 6, 6));
}

void Board::MoveFocus(int dx, int dy) {
  const auto targets = Targets();
  if (targets.empty()) return;
  const bool known = std::any_of(targets.begin(), targets.end(), [&](const Target& target) {
    return target.control == focus_.control && target.area == focus_.area;
  });
  const QPoint from = focus_.area.center();
  if (!known || !focusShown_) {
    // What the ring lay on may have been played: it goes on from there.
    FocusOn(known ? focus_ : focus_.control ? NearestTo(from, targets) : targets.front());
    return;
  }
  const auto distance = [&](const Target& t) {
    return DistanceAlong(from, t.area.center(), dx, dy);
  };
  const auto nearest =
      std::min_element(targets.begin(), targets.end(),
                       [&](const Target& a, const Target& b) { return distance(a) < distance(b); });
  if (distance(*nearest) < std::numeric_limits<int>::max()) FocusOn(*nearest);
}

void Board::ClickFocus() {
  const auto targets = Targets();
  const auto target = std::find_if(targets.begin(), targets.end(), [&](const Target& t) {
    return t.control == focus_.control && t.area.contains(focus_.area.center());
  });
  if (target == targets.end()) return;
  if (target->control->GetKind() == Kind::Surface) {
    Press(static_cast<Surface&>(*target->control), target->area.center());
  } else {
    Click(*target->control);
  }
}

void Board::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return MoveFocus(-1, 0);
    case Qt::Key_Right:
      return MoveFocus(1, 0);
    case Qt::Key_Up:
      return MoveFocus(0, -1);
    case Qt::Key_Down:
      return MoveFocus(0, 1);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (focusShown_ && focus_.control) return ClickFocus();
      break;
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

void Board::focusInEvent(QFocusEvent* event) {
  const bool byTab =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  // A button that is switched off hands its focus on: nobody has asked to see that.
  if (!byTab || host_.IsSyncing()) return;
  if (!Targets().empty()) {
    MoveFocus(0, 0);
  } else if (nextInFocusChain() != this) {
    focusNextPrevChild(event->reason() == Qt::TabFocusReason);
  }
}

void Board::focusOutEvent(QFocusEvent*) {
  ShowFocus(false);
}

}  // namespace ui::qt
