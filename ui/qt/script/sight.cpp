// Reading widgets back as properties.
#include "ui/qt/script/sight.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <optional>

#include "ui/qt/qt_window.h"
#include "ui/qt/strings.h"
#include "ui/script/words.h"

namespace ui::qt {
namespace {

using script::PropertyText;

/// What is shown, beside what the control says.
class Comparison {
 public:
  Comparison(const Control& control, script::Properties& properties)
      : control_(control), properties_(properties) {}

  const Control& Of() const { return control_; }

  void Text(const char* name, const std::string& said, const QString& shown) {
    if (ToQt(said).remove(QLatin1Char('\r')) != shown) Replace(name, script::Quote(FromQt(shown)));
  }
  void Flag(const char* name, bool said, bool shown) {
    if (said != shown) Replace(name, script::FlagText(shown));
  }
  void Number(const char* name, int said, int shown) {
    if (said != shown) Replace(name, std::to_string(shown));
  }

 private:
  void Replace(const char* name, const std::string& value) {
    for (PropertyText& property : properties_) {
      if (property.name == name) property.value = value;
    }
  }

  const Control& control_;
  script::Properties& properties_;
};

template <class T>
const T& As(const Comparison& comparison) {
  return static_cast<const T&>(comparison.Of());
}

void SeeList(Comparison& c, const QComboBox& widget) {
  const auto& list = As<List>(c);
  c.Number("index", list.Index(), widget.currentIndex());
  c.Text("text", list.Text(), widget.currentText());
  c.Number("items", static_cast<int>(list.Items().size()), widget.count());
}

void SeeWidget(Comparison& c, const QWidget& widget) {
  if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
    if (As<Button>(c).Image().empty()) c.Text("text", As<Button>(c).Text(), button->text());
  } else if (const auto* check = qobject_cast<const QAbstractButton*>(&widget)) {
    c.Text("text", As<Check>(c).Text(), check->text());
    c.Flag("checked", As<Check>(c).Checked(), check->isChecked());
  } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
    c.Text("text", As<Field>(c).Text(), line->text());
    if (line->hasFocus()) c.Text("selected", As<Field>(c).SelectedText(), line->selectedText());
    c.Flag("readonly", As<Field>(c).ReadOnly(), line->isReadOnly());
  } else if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) {
    c.Text("text", As<Field>(c).Text(), text->toPlainText());
    c.Flag("readonly", As<Field>(c).ReadOnly(), text->isReadOnly());
  } else if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
    SeeList(c, *list);
  } else if (const auto* bar = qobject_cast<const QProgressBar*>(&widget)) {
    c.Number("value", As<Bar>(c).Value(), bar->value());
  } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (c.Of().GetKind() == Kind::Label) c.Text("text", As<Label>(c).Text(), label->text());
  } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
    c.Text("text", As<Frame>(c).Text(), group->title());
  }
}

/// A widget can be there or not, and ready or not, only as far as what holds it is.
void SeeState(Comparison& c, const QWidget& widget, const QWidget& view) {
  const Control& control = c.Of();
  if (!widget.isEnabled() && control.Usable()) c.Flag("enabled", true, false);
  if (widget.isEnabled() && !control.Enabled()) c.Flag("enabled", false, true);
  if (widget.isVisibleTo(&view) && !control.Shown()) c.Flag("shown", false, true);
}

void SeeAction(Comparison& c, const QAction& action) {
  const auto& menu = As<Menu>(c);
  c.Text("text", menu.Text(), action.text());
  c.Flag("checked", menu.Checked(), action.isChecked());
  c.Flag("enabled", menu.Enabled(), action.isEnabled());
  c.Flag("visible", menu.Visible(), action.isVisible());
}

}  // namespace

void SeeOnScreen(const QtWindow& view, const Control& control, script::Properties& properties) {
  Comparison comparison(control, properties);
  const QString name = ToQt(control.FullName());
  if (control.GetKind() == Kind::Menu) {
    if (const auto* action = view.findChild<QAction*>(name)) SeeAction(comparison, *action);
  } else if (control.GetKind() == Kind::Panel) {
    const auto* label = view.findChild<QLabel*>(name);
    if (label) comparison.Text("text", As<Panel>(comparison).Text(), label->text());
  } else if (const QWidget* widget = view.WidgetOf(control);
             widget && widget->objectName() == name) {
    SeeWidget(comparison, *widget);
    SeeState(comparison, *widget, view);
  }
}

}  // namespace ui::qt
