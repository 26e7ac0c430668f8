// Menus and panels as Qt's.
#include "ui/qt/menus.h"

#include <QLabel>

#include "ui/qt/platform.h"
#include "ui/qt/qt_window.h"
#include "ui/qt/strings.h"

namespace ui::qt {

MenuBar::MenuBar(QtWindow& host, const std::vector<Control*>& controls, QWidget* parent)
    : QMenuBar(parent), host_(host) {
  setNativeMenuBar(false);
  for (Control* control : controls) {
    if (control->GetKind() != Kind::Menu || control->Container()) continue;
    Add(static_cast<Menu&>(*control), this);
  }
}

void MenuBar::Add(Menu& menu, QWidget* into) {
  QAction* action = nullptr;
  if (menu.Entries().empty()) {
    action = new QAction(this);
    connect(action, &QAction::triggered, this, [this, &menu] {
      host_.ControlChanged(menu);  // the program alone says what is checked
      host_.Act(menu, [this, &menu] { host_.Platform().UserClick(menu); });
    });
  } else {
    auto* heading = new QMenu(into);
    for (Menu* entry : menu.Entries()) Add(*entry, heading);
    action = heading->menuAction();
  }
  action->setObjectName(ToQt(menu.FullName()));
  if (menu.StartsGroup) into->addAction(QString())->setSeparator(true);
  into->addAction(action);
  actions_[&menu] = action;
  SyncMenu(menu);
}

void MenuBar::SyncMenu(Menu& menu) {
  QAction* action = actions_.at(&menu);
  action->setText(ToQt(menu.Text()));
  action->setEnabled(menu.Enabled());
  action->setVisible(menu.Visible());
  action->setToolTip(PlainTip(menu.Tip()));
  action->setCheckable(menu.Checked());
  action->setChecked(menu.Checked());
}

StatusBar::StatusBar(const std::vector<Control*>& controls, QWidget* parent) : QStatusBar(parent) {
  setSizeGripEnabled(false);
  setContentsMargins(6, 0, 6, 2);
  int count = 0;
  for (Control* control : controls) {
    if (control->GetKind() != Kind::Panel) continue;
    auto& panel = static_cast<Panel&>(*control);
    auto* label = new QLabel(this);
    label->setObjectName(ToQt(panel.FullName()));
    label->setTextFormat(Qt::PlainText);
    addWidget(label, ++count == 2 ? 1 : 0);
    labels_[&panel] = label;
    SyncPanel(panel);
  }
}

void StatusBar::SyncPanel(Panel& panel) {
  QLabel* label = labels_.at(&panel);
  label->setText(ToQt(panel.Text()));
  label->setToolTip(PlainTip(panel.Tip()));
}

}  // namespace ui::qt
