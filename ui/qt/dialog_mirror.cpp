// What is painted elsewhere and is a widget in a dialog that layouts place.
#include <QGroupBox>
#include <QLabel>

#include "ui/qt/artwork.h"
#include "ui/qt/ground.h"
#include "ui/qt/mirror.h"
#include "ui/qt/platform.h"
#include "ui/qt/qt_window.h"
#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

class LabelMirror : public Mirror {
 public:
  LabelMirror(QtWindow& host, Label& label, QWidget* parent)
      : Mirror(host, label), label_(label), widget_(new QLabel(parent)) {
    Use(widget_);
    widget_->setTextFormat(Qt::PlainText);
  }

  void SyncContent() override {
    widget_->setText(ToQt(label_.Text()));
    widget_->setFont(FontOf(label_.FontSize(), label_.Bold()));
    widget_->setAlignment(Qt::AlignVCenter | AlignmentOf(label_.Alignment()));
    QPalette palette;
    const Color color = label_.TextColor();
    palette.setColor(QPalette::WindowText, color == Black ? QColor(tone::Ink) : ColorOf(color));
    widget_->setPalette(palette);
  }

 private:
  static Qt::AlignmentFlag AlignmentOf(Align alignment) {
    switch (alignment) {
      case Align::Center:
        return Qt::AlignHCenter;
      case Align::Right:
        return Qt::AlignRight;
      case Align::Left:
        break;
    }
    return Qt::AlignLeft;
  }

  Label& label_;
  QLabel* widget_;
};

class PictureMirror : public Mirror {
 public:
  PictureMirror(QtWindow& host, Picture& picture, QWidget* parent)
      : Mirror(host, picture), picture_(picture), widget_(new QLabel(parent)) {
    Use(widget_);
  }
  void SyncContent() override {
    widget_->setPixmap(
        host_.Platform().Pictures().Natural(picture_.Artwork(), widget_->devicePixelRatioF()));
    widget_->setAccessibleName(ToQt(host_.Platform().DescriptionOf(picture_.Key())));
  }

 private:
  Picture& picture_;
  QLabel* widget_;
};

class GroupMirror : public Mirror {
 public:
  GroupMirror(QtWindow& host, Frame& frame, QWidget* parent)
      : Mirror(host, frame), frame_(frame), widget_(new QGroupBox(parent)) {
    Use(widget_);
  }
  void SyncContent() override { widget_->setTitle(ToQt(frame_.Text())); }

 private:
  Frame& frame_;
  QGroupBox* widget_;
};

}  // namespace

std::unique_ptr<Mirror> MakeDialogMirror(QtWindow& host, Control& control, QWidget* parent) {
  switch (control.GetKind()) {
    case Kind::Label:
      return std::make_unique<LabelMirror>(host, static_cast<Label&>(control), parent);
    case Kind::Picture:
      return std::make_unique<PictureMirror>(host, static_cast<Picture&>(control), parent);
    case Kind::Frame:
      return std::make_unique<GroupMirror>(host, static_cast<Frame&>(control), parent);
    default:
      return MakeMirror(host, control, parent);
  }
}

}  // namespace ui::qt
