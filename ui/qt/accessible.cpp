// Interfaces of painted controls, children of their board's.
#include "ui/qt/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>
#include <unordered_map>

#include "ui/qt/board.h"
#include "ui/qt/painters.h"
#include "ui/qt/platform.h"
#include "ui/qt/qt_window.h"
#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

/// One painted control. Answers with nothing once its window is closed.
class PaintedControl : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  PaintedControl(Board& board, Control& control) : board_(board), control_(control) {}

  bool isValid() const override { return board_.Host().Model() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return board_.window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&board_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}

  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    if (kind == QAccessible::Description) return ToQt(control_.Tip());
    if (kind != QAccessible::Name) return {};
    if (control_.GetKind() == Kind::Label) return ToQt(static_cast<Label&>(control_).Text());
    if (control_.GetKind() == Kind::Picture) {
      const auto& picture = static_cast<Picture&>(control_);
      return ToQt(board_.Host().Platform().DescriptionOf(picture.Key()));
    }
    const std::string box = board_.FocusedBox(control_);
    return ToQt(box.empty() ? control_.Tip() : box);
  }

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect place = ToQt(control_.PlaceInWindow());
    return {board_.mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessible::Role role() const override {
    if (!isValid()) return QAccessible::NoRole;
    if (control_.OnClick) return QAccessible::Button;
    return control_.GetKind() == Kind::Label ? QAccessible::StaticText : QAccessible::Graphic;
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) {
      state.invalid = true;
      return state;
    }
    state.invisible = !control_.Shown();
    state.disabled = !control_.Usable();
    state.readOnly = control_.GetKind() == Kind::Label;
    state.focusable = bool(control_.OnClick);
    state.focused = board_.FocusedControl() == &control_;
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override {
    return isValid() && control_.OnClick ? QStringList{pressAction()} : QStringList{};
  }
  void doAction(const QString& action) override {
    if (action == pressAction() && isValid()) board_.Click(control_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  Board& board_;
  Control& control_;
};

/// A board's children are what it paints and the widgets on it, in this order.
class AccessibleBoard : public QAccessibleWidget {
 public:
  explicit AccessibleBoard(Board* board)
      : QAccessibleWidget(board, QAccessible::Client), board_(*board) {}
  ~AccessibleBoard() override {
    for (const auto& [control, id] : known_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override {
    return int(board_.Readable().size()) + QAccessibleWidget::childCount();
  }
  QAccessibleInterface* child(int index) const override {
    const auto painted = board_.Readable();
    const int count = int(painted.size());
    if (index >= count) return QAccessibleWidget::child(index - count);
    return index < 0 ? nullptr : InterfaceOf(*painted[std::size_t(index)]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto painted = board_.Readable();
    const auto found = std::find_if(painted.begin(), painted.end(), [&](Control* control) {
      return InterfaceOf(*control) == child;
    });
    if (found != painted.end()) return int(found - painted.begin());
    const int among = QAccessibleWidget::indexOfChild(child);
    return among < 0 ? -1 : among + int(painted.size());
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    if (QAccessibleInterface* widget = QAccessibleWidget::childAt(x, y)) return widget;
    const auto painted = board_.Readable();
    const auto found = std::find_if(painted.rbegin(), painted.rend(), [&](Control* control) {
      return InterfaceOf(*control)->rect().contains(x, y);
    });
    return found == painted.rend() ? nullptr : InterfaceOf(**found);
  }

  QAccessibleInterface* InterfaceOf(Control& control) const {
    const auto known = known_.find(&control);
    if (known != known_.end()) return QAccessible::accessibleInterface(known->second);
    auto* made = new PaintedControl(board_, control);
    known_[&control] = QAccessible::registerAccessibleInterface(made);
    return made;
  }

 private:
  Board& board_;
  mutable std::unordered_map<const Control*, QAccessible::Id> known_;
};

QAccessibleInterface* InterfaceFor(const QString&, QObject* object) {
  auto* board = dynamic_cast<Board*>(object);
  return board ? new AccessibleBoard(board) : nullptr;
}

void Tell(Board& board, Control& control, QAccessible::Event what) {
  if (!QAccessible::isActive()) return;
  auto* parent = dynamic_cast<AccessibleBoard*>(QAccessible::queryAccessibleInterface(&board));
  if (!parent) return;
  QAccessibleEvent event(parent->InterfaceOf(control), what);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

void MakeBoardsAccessible() {
  QAccessible::installFactory(InterfaceFor);
}

void TellNameChanged(Board& board, Control& control) {
  Tell(board, control, QAccessible::NameChanged);
}

void TellFocus(Board& board, Control& control) {
  Tell(board, control, QAccessible::Focus);
}

}  // namespace ui::qt
