// Text and selection of a field, carried both ways.
#include "ui/qt/field_mirror.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <algorithm>

#include "ui/qt/platform.h"
#include "ui/qt/qt_window.h"
#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr int FewLines = 5;  // of a field that can grow

/// What both kinds of field have in common: positions count characters in the widget, bytes in the
/// control. A line ends with LF in the widget, with CR LF in the control.
class FieldMirror : public Mirror {
 protected:
  FieldMirror(QtWindow& host, Field& field) : Mirror(host, field), field_(field) {}

  virtual QString ShownText() const = 0;
  virtual Selection ShownSelection() const = 0;  ///< in characters
  virtual void ShowText(const QString& text) = 0;
  virtual void ShowSelection(Selection selection) = 0;
  virtual void ShowReadOnly(bool readOnly) = 0;

  void SyncContent() override {
    ShowReadOnly(field_.ReadOnly());
    const QString text = WithoutReturns(field_.Text());
    if (ShownText() != text) ShowText(text);
    const Selection wanted = InCharacters(field_.Selected());
    if (!(ShownSelection() == wanted)) ShowSelection(wanted);
  }

  void Typed() {
    const std::string text = FromQt(WithReturns(ShownText()));
    host_.Act(field_, [this, text] {
      const Selection selection = InBytes(ShownSelection());
      host_.Platform().UserType(field_, text);
      KeepSelection(text, selection);
    });
  }

  void Moved() {
    if (!Widget()->hasFocus()) return;  // a widget that loses the focus shows no selection
    const Selection selection = InBytes(ShownSelection());
    if (ShownText() != WithoutReturns(field_.Text())) return;  // Typed tells both
    host_.Act(field_, [this, selection] { field_.Selected = selection; });
  }

  Field& field_;

 private:
  /// A change of the text moves the control's cursor to the end; the player's is where it is,
  /// unless the program has set text or selection meanwhile.
  void KeepSelection(const std::string& text, Selection selection) {
    if (!host_.Model() || field_.Text() != text) return;
    const Selection atEnd{static_cast<int>(text.size()), 0};
    if (field_.Selected() == atEnd) field_.Selected = selection;
  }

  static QString WithoutReturns(const std::string& text) {
    return ToQt(text).remove(QLatin1Char('\r'));
  }
  static QString WithReturns(QString text) {
    return text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
  }

  Selection InBytes(Selection s) const {
    const int start = BytesUpTo(s.start);
    return {start, BytesUpTo(s.start + s.length) - start};
  }
  int BytesUpTo(int characters) const {
    return static_cast<int>(FromQt(WithReturns(ShownText().left(characters))).size());
  }

  Selection InCharacters(Selection s) const {
    const int start = CharactersUpTo(s.start);
    return {start, CharactersUpTo(s.start + s.length) - start};
  }
  int CharactersUpTo(int bytes) const {
    const std::string& text = field_.Text();
    const auto size = std::min(text.size(), static_cast<std::size_t>(std::max(0, bytes)));
    return static_cast<int>(WithoutReturns(text.substr(0, size)).size());
  }
};

class LineMirror : public FieldMirror {
 public:
  LineMirror(QtWindow& host, Field& field, QWidget* parent)
      : FieldMirror(host, field), widget_(new QLineEdit(parent)) {
    Use(widget_);
    QObject::connect(widget_, &QLineEdit::textEdited, widget_, [this] { Typed(); });
    QObject::connect(widget_, &QLineEdit::selectionChanged, widget_, [this] { Moved(); });
    QObject::connect(widget_, &QLineEdit::cursorPositionChanged, widget_, [this] { Moved(); });
  }

 private:
  QString ShownText() const override { return widget_->text(); }
  Selection ShownSelection() const override {
    if (!widget_->hasSelectedText()) return {widget_->cursorPosition(), 0};
    return {widget_->selectionStart(), widget_->selectionLength()};
  }
  void ShowText(const QString& text) override {
    const QSignalBlocker silent(widget_);
    widget_->setText(text);
  }
  void ShowSelection(Selection s) override {
    const QSignalBlocker silent(widget_);
    if (s.length > 0) {
      widget_->setSelection(s.start, s.length);
    } else {
      widget_->setCursorPosition(s.start);
    }
  }
  void ShowReadOnly(bool readOnly) override { widget_->setReadOnly(readOnly); }

  QLineEdit* widget_;
};

/// Takes the room that is left, and asks for a few lines.
class TextEdit : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;
  QSize sizeHint() const override {
    return {QPlainTextEdit::sizeHint().width(), FewLines * fontMetrics().lineSpacing()};
  }
  QSize minimumSizeHint() const override { return {80, sizeHint().height()}; }
};

class TextMirror : public FieldMirror {
 public:
  TextMirror(QtWindow& host, Field& field, QWidget* parent)
      : FieldMirror(host, field), widget_(new TextEdit(parent)) {
    Use(widget_);
    widget_->setTabChangesFocus(true);
    QObject::connect(widget_, &QPlainTextEdit::textChanged, widget_, [this] {
      if (!quiet_) Typed();
    });
    QObject::connect(widget_, &QPlainTextEdit::selectionChanged, widget_, [this] {
      if (!quiet_) Moved();
    });
    QObject::connect(widget_, &QPlainTextEdit::cursorPositionChanged, widget_, [this] {
      if (!quiet_) Moved();
    });
  }

 private:
  QString ShownText() const override { return widget_->toPlainText(); }
  Selection ShownSelection() const override {
    const QTextCursor cursor = widget_->textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
  }
  void ShowText(const QString& text) override {
    quiet_ = true;
    widget_->setPlainText(text);
    quiet_ = false;
  }
  void ShowSelection(Selection s) override {
    if (field_.ReadOnly()) return;  // a text to be read stays at its beginning
    quiet_ = true;
    QTextCursor cursor = widget_->textCursor();
    cursor.setPosition(std::min<int>(s.start, int(ShownText().size())));
    cursor.setPosition(std::min<int>(s.start + s.length, int(ShownText().size())),
                       QTextCursor::KeepAnchor);
    widget_->setTextCursor(cursor);
    quiet_ = false;
  }
  void ShowReadOnly(bool readOnly) override { widget_->setReadOnly(readOnly); }

  QPlainTextEdit* widget_;
  bool quiet_ = false;  // the widget's own signals are needed inside, so they can't be blocked
};

}  // namespace

std::unique_ptr<Mirror> MakeFieldMirror(QtWindow& host, Field& field, QWidget* parent) {
  if (field.Multiline) return std::make_unique<TextMirror>(host, field, parent);
  return std::make_unique<LineMirror>(host, field, parent);
}

}  // namespace ui::qt
