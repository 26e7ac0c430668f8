// The menu bar and the status bar of a window.
#pragma once

#include <QMenuBar>
#include <QStatusBar>
#include <unordered_map>
#include <vector>

#include "ui/controls.h"

class QLabel;

namespace ui::qt {

class QtWindow;

/// A menu bar with an action for each menu, command and heading of a window.
class MenuBar : public QMenuBar {
 public:
  MenuBar(QtWindow& host, const std::vector<Control*>& controls, QWidget* parent);
  void SyncMenu(Menu& menu);

 private:
  void Add(Menu& menu, QWidget* into);
  QtWindow& host_;
  std::unordered_map<const Menu*, QAction*> actions_;
};

/// Panels side by side: the second takes the room that the others leave.
class StatusBar : public QStatusBar {
 public:
  StatusBar(const std::vector<Control*>& controls, QWidget* parent);
  void SyncPanel(Panel& panel);

 private:
  std::unordered_map<const Panel*, QLabel*> labels_;
};

}  // namespace ui::qt
