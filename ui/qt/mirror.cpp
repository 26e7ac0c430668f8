// Buttons, check boxes, lists and bars.
#include "ui/qt/mirror.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "ui/qt/artwork.h"
#include "ui/qt/field_mirror.h"
#include "ui/qt/painters.h"
#include "ui/qt/painting_order.h"
#include "ui/qt/platform.h"
#include "ui/qt/qt_window.h"
#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr int PictureInDialog = 32;  // pixels
constexpr int CaptionGap = 12;       // pixels, at most, between a caption and what it names

/// The text of the label that stands right above a control or to its left; empty for none.
std::string CaptionBy(const Control& control) {
  const Rect place = control.PlaceInWindow();
  for (const Control* other : control.Owner().Controls()) {
    if (other->GetKind() != Kind::Label || !other->Shown()) continue;
    const Rect label = other->PlaceInWindow();
    const bool above = label.x < place.Right() && place.x < label.Right() &&
                       label.Bottom() <= place.y && place.y - label.Bottom() < CaptionGap;
    const bool before = label.y < place.Bottom() && place.y < label.Bottom() &&
                        label.Right() <= place.x && place.x - label.Right() < CaptionGap;
    if (above || before) return static_cast<const Label&>(*other).Text();
  }
  return "";
}

bool EnabledThroughout(const Control& control) {
  for (const Control* c = &control; c; c = c->Container()) {
    if (!c->Enabled()) return false;
  }
  return true;
}

bool IsArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

/// Watches for the focus that the player moves; arrow keys lead from a button to the cards.
class FocusWatch : public QObject {
 public:
  FocusWatch(QtWindow& host, Control& control, QObject* parent)
      : QObject(parent), host_(host), control_(control) {}
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::FocusIn && ByPlayer(*static_cast<QFocusEvent*>(event))) {
      host_.FocusMoved(control_);
    }
    if (event->type() != QEvent::KeyPress || control_.GetKind() != Kind::Button) return false;
    return IsArrow(static_cast<QKeyEvent*>(event)->key()) && host_.FocusOnBoard();
  }

 private:
  /// A window that comes forward, or that has lost the control with the focus, chooses one itself.
  static bool ByPlayer(const QFocusEvent& event) {
    constexpr Qt::FocusReason ways[] = {Qt::MouseFocusReason, Qt::TabFocusReason,
                                        Qt::BacktabFocusReason, Qt::ShortcutFocusReason};
    return std::find(std::begin(ways), std::end(ways), event.reason()) != std::end(ways);
  }

  QtWindow& host_;
  Control& control_;
};

class ButtonMirror : public Mirror {
 public:
  ButtonMirror(QtWindow& host, Button& button, QWidget* parent)
      : Mirror(host, button), button_(button), widget_(new QPushButton(parent)) {
    Use(widget_);
    widget_->setAutoDefault(true);
    widget_->setDefault(button.DialogRole == Button::Role::Default);
    QObject::connect(widget_, &QPushButton::clicked, widget_, [this] {
      host_.Act(button_, [this] { host_.Platform().UserClick(button_); });
    });
  }

  void SyncContent() override {
    if (button_.Image().empty()) {
      widget_->setIcon(QIcon());
      widget_->setText(ToQt(button_.Text()));
      widget_->setAccessibleName(QString());
      return;
    }
    const QSize size = IsPlaced() ? QSize(button_.Place().w - 8, button_.Place().h - 8)
                                  : QSize(PictureInDialog, PictureInDialog);
    const std::string artwork = host_.Platform().ArtworkOf(button_.Image());
    widget_->setText(QString());
    if (!IsPlaced()) widget_->setFixedWidth(2 * PictureInDialog);
    widget_->setIconSize(size);
    widget_->setIcon(
        host_.Platform().Pictures().Fitted(artwork, size, widget_->devicePixelRatioF()));
    widget_->setAccessibleName(ToQt(host_.Platform().DescriptionOf(button_.Image())));
  }

 private:
  Button& button_;
  QPushButton* widget_;
};

class CheckMirror : public Mirror {
 public:
  CheckMirror(QtWindow& host, Check& check, QWidget* parent)
      : Mirror(host, check), check_(check), widget_(MakeWidget(check, parent)) {
    Use(widget_);
    QObject::connect(widget_, &QAbstractButton::clicked, widget_, [this](bool checked) {
      host_.ControlChanged(check_);  // whatever the program makes of it is shown
      host_.Act(check_, [this, checked] { host_.Platform().UserCheck(check_, checked); });
    });
  }

  void SyncContent() override {
    widget_->setText(ToQt(check_.Text()));
    const QSignalBlocker silent(widget_);
    // A group of option buttons would refuse to show that none is set.
    QButtonGroup* group = widget_->group();
    if (group) group->setExclusive(false);
    widget_->setChecked(check_.Checked());
    if (group) group->setExclusive(true);
  }

 private:
  static QAbstractButton* MakeWidget(const Check& check, QWidget* parent) {
    if (check.GetKind() == Kind::Check) return new QCheckBox(parent);
    auto* option = new QRadioButton(parent);
    option->setAutoExclusive(false);
    GroupOf(check, parent)->addButton(option);
    return option;
  }

  /// Option buttons of one container are one group, whatever widgets they lie on.
  static QButtonGroup* GroupOf(const Check& check, QWidget* parent) {
    const Control* container = check.Container();
    const QString name =
        QStringLiteral("options of ") + (container ? ToQt(container->FullName()) : QString());
    QWidget* window = parent->window();
    if (auto* group = window->findChild<QButtonGroup*>(name)) return group;
    auto* group = new QButtonGroup(window);
    group->setObjectName(name);
    return group;
  }

  Check& check_;
  QAbstractButton* widget_;
};

class ListMirror : public Mirror {
 public:
  ListMirror(QtWindow& host, List& list, QWidget* parent)
      : Mirror(host, list), list_(list), widget_(new QComboBox(parent)) {
    Use(widget_);
    widget_->setMaxVisibleItems(16);
    QObject::connect(widget_, &QComboBox::activated, widget_, [this](int index) {
      host_.ControlChanged(list_);
      host_.Act(list_, [this, index] { host_.Platform().UserChoose(list_, index); });
    });
  }

  void SyncContent() override {
    const QSignalBlocker silent(widget_);
    if (shown_ != list_.Items()) {
      shown_ = list_.Items();
      widget_->clear();
      for (const std::string& item : shown_) widget_->addItem(ToQt(item));
    }
    widget_->setCurrentIndex(list_.Index());
  }

 private:
  List& list_;
  QComboBox* widget_;
  std::vector<std::string> shown_;
};

class BarMirror : public Mirror {
 public:
  BarMirror(QtWindow& host, Bar& bar, QWidget* parent)
      : Mirror(host, bar), bar_(bar), widget_(new QProgressBar(parent)) {
    Use(widget_);
    widget_->setTextVisible(false);
    widget_->setRange(bar.Min, bar.Max);
  }
  void SyncContent() override {
    widget_->setValue(std::clamp(bar_.Value(), bar_.Min, bar_.Max));
    widget_->update();  // the bar itself leaves out small steps
  }

 private:
  Bar& bar_;
  QProgressBar* widget_;
};

}  // namespace

void Mirror::Use(QWidget* widget) {
  widget_ = widget;
  widget_->setObjectName(ToQt(control_.FullName()));
  widget_->installEventFilter(new FocusWatch(host_, control_, widget_));
}

void Mirror::Sync() {
  SyncContent();
  widget_->setToolTip(PlainTip(control_.Tip()));
  // A field on a board has no caption of its own that a screen reader could find.
  if (placed_ && !qobject_cast<QAbstractButton*>(widget_)) {
    const std::string tip = control_.Tip();
    widget_->setAccessibleName(ToQt(tip.empty() ? CaptionBy(control_) : tip));
  }
  widget_->setEnabled(EnabledThroughout(control_));
  if (placed_) widget_->setGeometry(ToQt(control_.PlaceInWindow()));
  SyncVisibility();
}

void Mirror::SyncVisibility() {
  bool shown = control_.Shown();
  if (placed_ && shown) {
    QRegion free = widget_->rect();
    for (const Rect& cover : CoversOf(control_)) free -= ToQt(cover).translated(-widget_->pos());
    shown = !free.isEmpty();
    if (shown && free != widget_->rect()) {
      widget_->setMask(free);
    } else if (!widget_->mask().isEmpty()) {
      widget_->clearMask();
    }
  }
  widget_->setVisible(shown);
}

std::unique_ptr<Mirror> MakeMirror(QtWindow& host, Control& control, QWidget* parent) {
  switch (control.GetKind()) {
    case Kind::Button:
      return std::make_unique<ButtonMirror>(host, static_cast<Button&>(control), parent);
    case Kind::Field:
      return MakeFieldMirror(host, static_cast<Field&>(control), parent);
    case Kind::Check:
    case Kind::Option:
      return std::make_unique<CheckMirror>(host, static_cast<Check&>(control), parent);
    case Kind::List:
      return std::make_unique<ListMirror>(host, static_cast<List&>(control), parent);
    case Kind::Bar:
      return std::make_unique<BarMirror>(host, static_cast<Bar&>(control), parent);
    default:
      return nullptr;
  }
}

}  // namespace ui::qt
