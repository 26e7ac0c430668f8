// One open window on the desktop: its menu bar, its board of controls and its status bar.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

#include "ui/window.h"

class QEventLoop;

namespace ui::qt {

class Board;
class Mirror;
class MenuBar;
class QtPlatform;
class StatusBar;

/// Mirrors a window as long as that is open. Changes are gathered and carried over by Sync; the
/// player's acts go to the platform. When the window is closed the view is detached from it and
/// lives on, hidden, until no handler can be at work in it.
class QtWindow : public QWidget {
 public:
  QtWindow(QtPlatform& platform, Window& model);
  ~QtWindow() override;

  void Open(bool modal, const QtWindow* above);
  /// Blocks, serving events, until Detach.
  void WaitUntilClosed();
  void ComeForward();
  void Detach();

  void ControlChanged(Control& control);
  void WindowChanged();
  void Sync();
  bool IsSyncing() const { return syncing_; }
  /// Paints at once what has changed.
  void PaintNow();
  void TakeFocus(Control& control);

  /// Null once the window is closed.
  Window* Model() const { return model_; }
  QtPlatform& Platform() const { return platform_; }
  /// Runs the player's act on a control, if the control can be used when it is served.
  void Act(Control& control, std::function<void()> act);
  /// A real widget got the player's focus.
  void FocusMoved(Control& control);
  /// The board for what is painted; null for a part of the menu or the status bar.
  QWidget* WidgetOf(const Control& control) const;
  Board& TheBoard() const { return *board_; }
  /// The keyboard points at the board from now on; false if nothing there can be clicked.
  bool FocusOnBoard();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void MakeControls();
  void PlaceParts();
  void SyncControls();
  void SyncWindow();
  void FollowSize();
  void FollowState();
  void CenterOnScreen();
  void CheckGeometrySoon();
  void CheckGeometry();
  void CheckSize();
  bool PressButton(Button::Role role);
  QSize WholeSize(QSize inner) const;

  QtPlatform& platform_;
  Window* model_;
  Board* board_;
  MenuBar* menus_ = nullptr;
  StatusBar* status_ = nullptr;
  std::vector<std::unique_ptr<Mirror>> mirrors_;
  std::unordered_set<Control*> changed_;
  bool windowChanged_ = true;
  bool allChanged_ = true;
  bool syncing_ = false;
  bool placed_ = false;
  bool geometryIsPosted_ = false;
  std::optional<QSize> refused_;  ///< a board size that the window manager insists on
  QPointer<QEventLoop> loop_;
};

}  // namespace ui::qt
