// Mirroring a window: its parts, its size and state, and what the player does to it.
#include "ui/qt/qt_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "ui/qt/board.h"
#include "ui/qt/form_layout.h"
#include "ui/qt/ground.h"
#include "ui/qt/menus.h"
#include "ui/qt/mirror.h"
#include "ui/qt/painting_order.h"
#include "ui/qt/platform.h"
#include "ui/qt/strings.h"
#include "ui/qt/style.h"

namespace ui::qt {
namespace {

// As the window layer reckons them, so that a kept size gives the same board everywhere.
constexpr int MenuHeight = 22;
constexpr int StatusHeight = 24;
constexpr QSize FrameSize{8, 31};

bool Has(const Window& window, Kind kind) {
  return std::any_of(window.Controls().begin(), window.Controls().end(),
                     [kind](const Control* c) { return c->GetKind() == kind; });
}

QSize InnerOf(const Window& window) {
  return {window.InnerSize().w, window.InnerSize().h};
}

QSize NormalInnerOf(const Window& window) {
  const Size inner = window.InnerFor(window.NormalSize());
  return {inner.w, inner.h};
}

}  // namespace

QtWindow::QtWindow(QtPlatform& platform, Window& model)
    : platform_(platform), model_(&model), board_(new Board(*this)) {
  setObjectName(ToQt(model.Name()));
  setFont(FontOf(9, false));
  MakeControls();
}

QtWindow::~QtWindow() = default;

// --- Parts -------------------------------------------------------------------------------------

void QtWindow::MakeControls() {
  if (GroundOf(*model_) == Ground::Felt) board_->setPalette(FeltPalette());
  if (!model_->Layout().Empty()) {
    LayOutForm(board_, model_->Layout(), [this](Control& control, QWidget* parent) {
      auto mirror = MakeDialogMirror(*this, control, parent);
      mirror->LeaveToLayout();
      mirror->Sync();
      mirrors_.push_back(std::move(mirror));
      return mirrors_.back()->Widget();
    });
  } else {
    for (Control* control : model_->Controls()) {
      if (auto mirror = MakeMirror(*this, *control, board_)) mirrors_.push_back(std::move(mirror));
    }
  }
  if (Has(*model_, Kind::Menu)) menus_ = new MenuBar(*this, model_->Controls(), this);
  if (Has(*model_, Kind::Panel)) status_ = new StatusBar(model_->Controls(), this);
}

void QtWindow::PlaceParts() {
  const int top = menus_ ? MenuHeight : 0;
  const int bottom = status_ ? StatusHeight : 0;
  if (menus_) menus_->setGeometry(0, 0, width(), top);
  if (status_) status_->setGeometry(0, height() - bottom, width(), bottom);
  board_->setGeometry(0, top, width(), std::max(0, height() - top - bottom));
}

/// With what lies above and below the board.
QSize QtWindow::WholeSize(QSize inner) const {
  QSize size = inner;
  if (!model_->Layout().Empty()) {
    const QSize hint = board_->sizeHint();
    size.setWidth(std::max(size.width(), hint.width()));
    const int height =
        board_->hasHeightForWidth() ? board_->heightForWidth(size.width()) : hint.height();
    size.setHeight(model_->Resizable ? std::max(size.height(), height) : height);
  }
  size.rheight() += (menus_ ? MenuHeight : 0) + (status_ ? StatusHeight : 0);
  return size;
}

QWidget* QtWindow::WidgetOf(const Control& control) const {
  for (const auto& mirror : mirrors_) {
    if (&mirror->Model() == &control) return mirror->Widget();
  }
  return IsPainted(control) ? board_ : nullptr;
}

// --- Opening and closing -----------------------------------------------------------------------

void QtWindow::Open(bool modal, const QtWindow* above) {
  if (!isVisible()) {
    if (modal) {
      setWindowFlags(Qt::Dialog);
      setWindowModality(Qt::ApplicationModal);
    }
    allChanged_ = windowChanged_ = true;
    Sync();
    if (!placed_) CenterOnScreen();
    placed_ = true;
    winId();
    if (above && above->windowHandle()) windowHandle()->setTransientParent(above->windowHandle());
  }
  show();
  ComeForward();
  if (Control* focus = platform_.FocusOf(*model_)) TakeFocus(*focus);
  if (!focusWidget()) {
    board_->setFocus(Qt::OtherFocusReason);
    if (!model_->Layout().Empty()) focusNextChild();
  }
}

void QtWindow::CenterOnScreen() {
  const QRect area = screen()->availableGeometry();
  const QSize outer = size() + FrameSize;
  const int x = area.x() + (area.width() - outer.width()) / 2;
  const int y = area.y() + (area.height() - outer.height()) / 2;
  move(std::max(area.x(), x), std::max(area.y(), y));
}

void QtWindow::WaitUntilClosed() {
  if (!model_) return;
  QEventLoop loop;
  loop_ = &loop;
  loop.exec();
}

void QtWindow::ComeForward() {
  if (!isVisible() || isMinimized()) return;
  raise();
  activateWindow();
}

void QtWindow::Detach() {
  model_ = nullptr;
  hide();
  if (loop_) loop_->quit();
}

void QtWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!model_) return;
  platform_.Act(*model_, [this] {
    if (model_) platform_.UserClose(*model_);
  });
}

// --- Keeping in step ---------------------------------------------------------------------------

void QtWindow::ControlChanged(Control& control) {
  changed_.insert(&control);
  // What a frame holds or covers goes with it.
  if (control.GetKind() == Kind::Frame) allChanged_ = true;
}

void QtWindow::WindowChanged() {
  windowChanged_ = true;
}

void QtWindow::Sync() {
  if (!model_ || syncing_) return;
  syncing_ = true;
  if (windowChanged_) SyncWindow();
  if (allChanged_ || !changed_.empty()) SyncControls();
  syncing_ = false;
}

void QtWindow::SyncControls() {
  const bool all = std::exchange(allChanged_, false);
  const auto changed = std::exchange(changed_, {});
  const auto isDue = [&](const Control* control) {
    return all || changed.count(const_cast<Control*>(control)) > 0;
  };
  for (const auto& mirror : mirrors_) {
    if (isDue(&mirror->Model())) mirror->Sync();
  }
  for (Control* control : model_->Controls()) {
    if (!isDue(control)) continue;
    if (control->GetKind() == Kind::Menu) menus_->SyncMenu(static_cast<Menu&>(*control));
    if (control->GetKind() == Kind::Panel) status_->SyncPanel(static_cast<Panel&>(*control));
    board_->ControlChanged(*control);
  }
}

void QtWindow::SyncWindow() {
  windowChanged_ = false;
  setWindowTitle(ToQt(model_->Caption()));
  // The pointer's picture is not worth the time before the first frame.
  if (model_->Hourglass() && board_->HasBeenPainted()) {
    setCursor(Qt::WaitCursor);
    board_->setCursor(Qt::WaitCursor);
  } else if (cursor().shape() == Qt::WaitCursor) {
    unsetCursor();
    board_->unsetCursor();
  }
  FollowSize();
  FollowState();
}

void QtWindow::FollowSize() {
  // A window that doesn't open in its normal state must know what to be restored to.
  if (!placed_) resize(WholeSize(NormalInnerOf(*model_)));
  if (model_->State() != WindowState::Normal || windowState() & Qt::WindowMaximized) return;
  const QSize wanted = WholeSize(InnerOf(*model_));
  if (!model_->Layout().Empty() && isVisible()) return;  // the layout's size is its own affair
  if (!model_->Resizable) {
    setFixedSize(wanted);
  } else if (size() != wanted) {
    refused_ = board_->size();
    resize(wanted);
  }
  PlaceParts();
}

void QtWindow::FollowState() {
  Qt::WindowStates state = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
  if (model_->State() == WindowState::Minimized) state |= Qt::WindowMinimized;
  if (model_->State() == WindowState::Maximized) state |= Qt::WindowMaximized;
  if (state != windowState()) setWindowState(state);
}

void QtWindow::PaintNow() {
  if (!model_ || !isVisible()) return;
  QCoreApplication::sendPostedEvents(this, QEvent::LayoutRequest);
  QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
}

// --- What the player and the window manager do -------------------------------------------------

void QtWindow::Act(Control& control, std::function<void()> act) {
  if (!model_) return;
  platform_.Act(*model_, [this, &control, act = std::move(act)] {
    if (model_ && control.Usable()) act();
  });
}

void QtWindow::FocusMoved(Control& control) {
  if (syncing_ || !model_ || platform_.FocusOf(*model_) == &control) return;
  Act(control, [this, &control] { platform_.UserFocus(control); });
}

void QtWindow::TakeFocus(Control& control) {
  QWidget* widget = WidgetOf(control);
  if (widget && widget != board_) widget->setFocus(Qt::OtherFocusReason);
}

bool QtWindow::FocusOnBoard() {
  if (!board_->HasTargets()) return false;
  board_->setFocus(Qt::TabFocusReason);
  return true;
}

void QtWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceParts();
  CheckGeometrySoon();
}

void QtWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (!model_) return;
  if (event->type() == QEvent::WindowStateChange) CheckGeometrySoon();
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) platform_.Activated(*model_);
}

bool QtWindow::event(QEvent* event) {
  // A layout that wants another size takes it: its texts may have grown.
  if (event->type() == QEvent::LayoutRequest && model_ && !model_->Layout().Empty()) {
    const QSize wanted = WholeSize(InnerOf(*model_));
    if (!model_->Resizable) {
      setFixedSize(wanted);
    } else if (wanted.height() > height() || wanted.width() > width()) {
      resize(wanted.expandedTo(size()));
    }
  }
  return QWidget::event(event);
}

/// The size and the state of a window come in two messages; both are looked at when both are here.
void QtWindow::CheckGeometrySoon() {
  if (geometryIsPosted_ || !model_ || syncing_) return;
  geometryIsPosted_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (!model_) return;
        platform_.Act(*model_, [this] {
          geometryIsPosted_ = false;
          CheckGeometry();
        });
      },
      Qt::QueuedConnection);
}

void QtWindow::CheckGeometry() {
  if (!model_ || !isVisible()) return;
  WindowState state = WindowState::Normal;
  if (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) state = WindowState::Maximized;
  if (windowState() & Qt::WindowMinimized) state = WindowState::Minimized;
  if (state != model_->State()) platform_.UserState(*model_, state);
  if (model_ && state != WindowState::Minimized && model_->Layout().Empty()) CheckSize();
}

void QtWindow::CheckSize() {
  const QSize size = board_->size();
  if (size == InnerOf(*model_)) {
    refused_.reset();
    return;
  }
  if (refused_ == size) return;
  const Size outer = model_->OuterFor({size.width(), size.height()});
  if (model_->State() == WindowState::Normal) {
    platform_.UserResize(*model_, outer);
    return;
  }
  platform_.SetScreenSize({outer.w / TwipsPerPixel, outer.h / TwipsPerPixel});
  platform_.Run([this] { model_->Resized(); });
}

bool QtWindow::PressButton(Button::Role role) {
  for (const auto& mirror : mirrors_) {
    if (mirror->Model().GetKind() != Kind::Button) continue;
    if (static_cast<Button&>(mirror->Model()).DialogRole != role) continue;
    static_cast<QPushButton*>(mirror->Widget())->click();
    return true;
  }
  return false;
}

void QtWindow::keyPressEvent(QKeyEvent* event) {
  if (!model_) return;
  const int key = event->key();
  if ((key == Qt::Key_Return || key == Qt::Key_Enter) && PressButton(Button::Role::Default)) return;
  if (key == Qt::Key_Escape && PressButton(Button::Role::Cancel)) return;
  if (key == Qt::Key_Escape && model_->IsModal()) {
    close();
    return;
  }
  const QString text = event->text();
  const auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (text.isEmpty() || !text.at(0).isPrint() || event->modifiers() & others) {
    QWidget::keyPressEvent(event);
    return;
  }
  for (const char32_t letter : text.toStdU32String()) {
    if (!model_) return;
    platform_.Act(*model_, [this, letter] {
      if (model_) platform_.UserStrike(*model_, letter);
    });
  }
}

}  // namespace ui::qt
