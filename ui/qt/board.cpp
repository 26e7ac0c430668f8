// Painting the board and serving the pointer over it.
#include "ui/qt/board.h"

#include <QCursor>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "ui/qt/accessible.h"
#include "ui/qt/artwork.h"
#include "ui/qt/painters.h"
#include "ui/qt/painting_order.h"
#include "ui/qt/platform.h"
#include "ui/qt/preferences.h"
#include "ui/qt/qt_window.h"
#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr QPoint FingerTip{10, 1};  // the hot spot of the pointer's artwork
constexpr int PointerSize = 32;

bool HasHandlers(const Control& control) {
  return control.OnClick || control.OnMouseMove;
}

/// Whether the pointer over this control is the control's affair, not that of what lies below.
bool TakesPointer(const Control& control) {
  switch (control.GetKind()) {
    case Kind::Picture:
    case Kind::Surface:
    case Kind::Frame:
      return true;
    default:
      return HasHandlers(control);
  }
}

bool HoldsBoxes(const Surface& surface) {
  const auto& drawing = surface.Drawing();
  return std::any_of(drawing.begin(), drawing.end(),
                     [](const Stroke& stroke) { return stroke.form == Stroke::Form::Box; });
}

QRect Clickable(const Control& control) {
  return ToQt(control.PlaceInWindow());
}

}  // namespace

Board::Board(QtWindow& host) : QWidget(&host), host_(host) {
  setObjectName(QStringLiteral("board"));
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

Window* Board::Model() const {
  return host_.Model();
}

// --- Painting ----------------------------------------------------------------------------------

void Board::paintEvent(QPaintEvent* event) {
  const Window* window = Model();
  if (!window) return;
  hasBeenPainted_ = true;
  QPainter painter(this);
  const auto order = PaintingOrder(*window);
  const Scene scene{host_.Platform().Pictures(), devicePixelRatioF(), order,
                    HasBoxes() && host_.Platform().Wishes().BoxSigns()};
  for (const QRect& part : event->region()) {
    PaintGround(painter, *window, size(), part, scene);
  }
  const QRect bounds = event->region().boundingRect();
  if (window->Layout().Empty()) {
    for (const Control* control : order) {
      if (!IsPainted(*control) || !control->Shown()) continue;
      const QRect area = PaintedArea(*control);
      if (!area.intersects(bounds)) continue;
      painted_[control] = area;
      PaintControl(painter, *control, scene);
    }
  }
  if (focusShown_ && focus_.control) PaintFocus(painter, focus_.area);
}

void Board::ControlChanged(Control& control) {
  if (!IsPainted(control)) return;
  QRegion region;
  const auto before = painted_.find(&control);
  if (before != painted_.end()) region += before->second;
  if (control.Shown()) {
    const QRect now = PaintedArea(control);
    painted_[&control] = now;
    region += now;
  } else if (before != painted_.end()) {
    painted_.erase(before);
  }
  if (!region.isEmpty()) update(region);
  TellNameChanged(*this, control);
  if (ToQt(control.PlaceInWindow()).contains(pointer_)) UpdatePointer();
  if (&control == focus_.control && !control.Usable()) ShowFocus(false);
}

// --- The pointer -------------------------------------------------------------------------------

Control* Board::ControlAt(QPoint at) const {
  const Window* window = Model();
  if (!window || !window->Layout().Empty()) return nullptr;
  const auto order = PaintingOrder(*window);
  const auto hit = std::find_if(order.rbegin(), order.rend(), [&](const Control* control) {
    return IsPainted(*control) && control->Shown() && TakesPointer(*control) &&
           Clickable(*control).contains(at);
  });
  return hit == order.rend() ? nullptr : *hit;
}

void Board::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint at = event->position().toPoint();
  ShowFocus(false);
  pressed_ = ControlAt(at);
  if (!pressed_ || pressed_->GetKind() != Kind::Surface) return;
  Press(static_cast<Surface&>(*pressed_), at);
  pressed_ = nullptr;
}

void Board::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_) return;
  Control* pressed = std::exchange(pressed_, nullptr);
  if (ControlAt(event->position().toPoint()) == pressed) Click(*pressed);
}

void Board::mouseMoveEvent(QMouseEvent* event) {
  Move(event->position().toPoint());
}

/// What can be wished of coloured boxes.
void Board::contextMenuEvent(QContextMenuEvent* event) {
  if (!HasBoxes()) return;
  Preferences& wishes = host_.Platform().Wishes();
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* signs = menu->addAction(QStringLiteral("&Signs on the boxes"));
  signs->setCheckable(true);
  signs->setChecked(wishes.BoxSigns());
  connect(signs, &QAction::toggled, this, [this, &wishes](bool wanted) {
    wishes.SetBoxSigns(wanted);
    update();
  });
  menu->popup(event->globalPos());
}

void Board::leaveEvent(QEvent*) {
  pointer_ = {-1, -1};
}

void Board::Click(Control& control) {
  host_.Act(control, [this, &control] { host_.Platform().UserClick(control); });
}

void Board::Press(Surface& surface, QPoint at) {
  const QPoint inside = at - Clickable(surface).topLeft();
  host_.Act(surface, [this, &surface, inside] {
    host_.Platform().UserPress(surface, inside.x(), inside.y());
  });
}

void Board::Move(QPoint at) {
  Window* window = Model();
  if (!window) return;
  pointer_ = at;
  Control* control = ControlAt(at);
  if (!control) {
    host_.Platform().Act(*window, [this] {
      if (Window* open = Model()) host_.Platform().UserMoveBeside(*open);
    });
  } else if (control->GetKind() == Kind::Surface) {
    auto& surface = static_cast<Surface&>(*control);
    const QPoint inside = at - Clickable(surface).topLeft();
    host_.Act(surface, [this, &surface, inside] {
      host_.Platform().UserMove(surface, inside.x(), inside.y());
    });
  } else if (control->OnMouseMove) {
    host_.Act(*control, [this, control] { host_.Platform().UserMove(*control); });
  }
  UpdatePointer();
}

void Board::UpdatePointer() {
  const Control* control = ControlAt(pointer_);
  const std::string key = control && control->Usable() ? control->Pointer() : std::string();
  if (Model() && Model()->Hourglass()) {
    setCursor(Qt::WaitCursor);
  } else if (key.empty()) {
    unsetCursor();
  } else {
    const std::string artwork = host_.Platform().ArtworkOf(key);
    const QPixmap picture = host_.Platform().Pictures().Fitted(
        artwork, QSizeF(PointerSize, PointerSize), devicePixelRatioF());
    setCursor(picture.isNull() ? QCursor(Qt::PointingHandCursor)
                               : QCursor(picture, FingerTip.x(), FingerTip.y()));
  }
}

bool Board::ShowTip(QPoint at, QPoint global) {
  const Window* window = Model();
  if (!window) return false;
  const auto order = PaintingOrder(*window);
  for (auto it = order.rbegin(); it != order.rend(); ++it) {
    const Control& control = **it;
    if (!IsPainted(control) || !control.Shown() || !Clickable(control).contains(at)) continue;
    if (!control.Tip().empty()) {
      QToolTip::showText(global, PlainTip(control.Tip()), this, Clickable(control));
      return true;
    }
    if (TakesPointer(control)) break;
  }
  QToolTip::hideText();
  return true;
}

bool Board::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    return ShowTip(help->pos(), help->globalPos());
  }
  return QWidget::event(event);
}

bool Board::HasBoxes() const {
  const Window* window = Model();
  if (!window) return false;
  const auto& controls = window->Controls();
  return std::any_of(controls.begin(), controls.end(), [](const Control* control) {
    return control->GetKind() == Kind::Surface && control->Shown() &&
           HoldsBoxes(static_cast<const Surface&>(*control));
  });
}

std::vector<Control*> Board::Readable() const {
  std::vector<Control*> readable;
  const Window* window = Model();
  if (!window || !window->Layout().Empty()) return readable;
  for (Control* control : PaintingOrder(*window)) {
    if (!control->Shown() || IsEmptied(*control)) continue;
    const Kind kind = control->GetKind();
    if (kind == Kind::Label || kind == Kind::Picture || kind == Kind::Surface) {
      readable.push_back(control);
    }
  }
  return readable;
}

}  // namespace ui::qt
