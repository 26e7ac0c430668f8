// Answering a test's questions.
#include "tests/desktop/probe.h"

#include <unistd.h>

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSocketNotifier>
#include <QWidget>
#include <QWindow>
#include <iostream>
#include <sstream>

#include "ui/qt/platform.h"
#include "ui/qt/strings.h"

class Probe::Reader {
 public:
  Reader(ui::qt::QtPlatform& platform, Stage stage)
      : platform_(platform),
        stage_(std::move(stage)),
        notifier_(STDIN_FILENO, QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { Read(); });
  }

 private:
  void Read() {
    char buffer[4096];
    const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
    if (count <= 0) {
      notifier_.setEnabled(false);
      return;
    }
    pending_.append(buffer, static_cast<std::size_t>(count));
    for (std::size_t end; (end = pending_.find('\n')) != std::string::npos;) {
      std::cout << "= " << Answer(pending_.substr(0, end)) << std::endl;
      pending_.erase(0, end + 1);
    }
  }

  std::string Answer(const std::string& question) const {
    std::istringstream words(question);
    std::string verb, name;
    words >> verb;
    if (verb == "windows") return Windows();
    if (verb == "active") return Active();
    if (verb == "busy") return platform_.HandlerAtWork() ? "yes" : "no";
    if (verb != "text" && verb != "spoken" && verb != "place") {
      stage_(verb, words);
      return "staged";
    }
    words >> name;
    const ui::Control* control = FindControl(name);
    if (!control) return "none";
    if (verb == "text") return TextOf(*control);
    return verb == "spoken" ? SpokenAt(*control) : PlaceOf(*control);
  }

  static std::string Active() {
    const QWidget* active = QApplication::activeWindow();
    if (!active) return "none";
    const auto* box = qobject_cast<const QMessageBox*>(active);
    const QString name =
        box ? QStringLiteral("box ") + box->text().simplified() : active->objectName();
    return ui::qt::FromQt(name) + "@" + OnScreen(*active, active->rect());
  }

  /// What a screen reader finds at the middle of a control: its role's number and its name.
  static std::string SpokenAt(const ui::Control& control) {
    std::istringstream place(PlaceOf(control));
    int x = 0, y = 0, w = 0, h = 0;
    if (!(place >> x >> y >> w >> h)) return "none";
    const QPoint middle(x + w / 2, y + h / 2);
    QAccessibleInterface* found =
        QAccessible::queryAccessibleInterface(QApplication::activeWindow());
    while (QAccessibleInterface* inner = found ? found->childAt(middle.x(), middle.y()) : nullptr) {
      found = inner;
    }
    if (!found) return "none";
    const char* role = found->role() == QAccessible::Button ? "button " : "";
    return role + ui::qt::FromQt(found->text(QAccessible::Name));
  }

  std::string Windows() const {
    std::string names;
    for (const ui::Window* window : platform_.Windows()) {
      names += (names.empty() ? "" : " ") + window->Name() + (window->IsHidden() ? ":hidden" : "");
    }
    return names;
  }

  const ui::Control* FindControl(const std::string& name) const {
    for (const ui::Window* window : platform_.Windows()) {
      if (const ui::Control* control = window->Find(name)) return control;
    }
    return nullptr;
  }

  static std::string TextOf(const ui::Control& control) {
    switch (control.GetKind()) {
      case ui::Kind::Label:
        return static_cast<const ui::Label&>(control).Text();
      case ui::Kind::Button:
        return static_cast<const ui::Button&>(control).Text();
      case ui::Kind::Field:
        return static_cast<const ui::Field&>(control).Text();
      case ui::Kind::Panel:
        return static_cast<const ui::Panel&>(control).Text();
      case ui::Kind::Picture:
        return static_cast<const ui::Picture&>(control).Key();
      case ui::Kind::Menu:
        return static_cast<const ui::Menu&>(control).Text();
      default:
        return "";
    }
  }

  static std::string PlaceOf(const ui::Control& control) {
    const QString name = ui::qt::ToQt(control.FullName());
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top->objectName() != ui::qt::ToQt(control.Owner().Name()) || !IsOnScreen(*top)) continue;
      if (auto* action = top->findChild<QAction*>(name)) return PlaceInMenu(*action);
      if (auto* widget = top->findChild<QWidget*>(name)) {
        return widget->isVisible() ? OnScreen(*widget, widget->rect()) : "none";
      }
      if (auto* board = top->findChild<QWidget*>(QStringLiteral("board"))) {
        const ui::Rect place = control.PlaceInWindow();
        return control.Shown() ? OnScreen(*board, {place.x, place.y, place.w, place.h}) : "none";
      }
    }
    return "none";
  }

  static std::string PlaceInMenu(QAction& action) {
    for (QObject* place : action.associatedObjects()) {
      const auto* bar = qobject_cast<QMenuBar*>(place);
      const auto* menu = qobject_cast<QMenu*>(place);
      if (bar) return OnScreen(*bar, bar->actionGeometry(&action));
      if (menu && menu->isVisible()) return OnScreen(*menu, menu->actionGeometry(&action));
    }
    return "none";
  }

  static bool IsOnScreen(const QWidget& top) {
    return top.isVisible() && top.windowHandle() && top.windowHandle()->isExposed();
  }

  static std::string OnScreen(const QWidget& widget, const QRect& area) {
    const qreal ratio = widget.devicePixelRatioF();
    const QPoint corner = widget.mapToGlobal(area.topLeft());
    std::ostringstream answer;
    answer << int(corner.x() * ratio) << ' ' << int(corner.y() * ratio) << ' '
           << int(area.width() * ratio) << ' ' << int(area.height() * ratio);
    return answer.str();
  }

  ui::qt::QtPlatform& platform_;
  const Stage stage_;
  QSocketNotifier notifier_;
  std::string pending_;
};

Probe::Probe(ui::qt::QtPlatform& platform, Stage stage)
    : reader_(std::make_unique<Reader>(platform, std::move(stage))) {}
Probe::~Probe() = default;
