// The inner area of a window: everything that is painted, and the pointer and keys over it.
#pragma once

#include <QWidget>
#include <unordered_map>
#include <vector>

#include "ui/controls.h"

namespace ui::qt {

class QtWindow;

/// Something on the board that a click is meant for: a control, or a place on a drawing surface.
struct Target {
  Control* control = nullptr;
  QRect area;  ///< in the board's pixels
};

class Board : public QWidget {
 public:
  explicit Board(QtWindow& host);

  /// A painted control has changed: what it covered and what it covers now are painted again.
  void ControlChanged(Control& control);
  /// Where the controls lie on top of each other, the topmost that takes the pointer; null for
  /// none.
  Control* ControlAt(QPoint at) const;
  QtWindow& Host() const { return host_; }
  void Click(Control& control);
  bool HasTargets() const { return !Targets().empty(); }
  /// What the keyboard points at; null for nothing.
  const Control* FocusedControl() const { return focusShown_ ? focus_.control : nullptr; }
  bool HasBeenPainted() const { return hasBeenPainted_; }
  /// The coloured box of a surface that the keyboard points at, in words; empty for none.
  std::string FocusedBox(const Control& surface) const;
  /// The painted controls that a person would want to be told of, in painting order.
  std::vector<Control*> Readable() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  Window* Model() const;
  void Press(Surface& surface, QPoint at);
  void Move(QPoint at);
  void UpdatePointer();
  bool ShowTip(QPoint at, QPoint global);
  bool HasBoxes() const;

  // The keyboard's way over the board: board_keys.cpp.
  std::vector<Target> Targets() const;
  void MoveFocus(int dx, int dy);
  void FocusOn(const Target& target);
  void ClickFocus();
  void ShowFocus(bool show);

  QtWindow& host_;
  std::unordered_map<const Control*, QRect> painted_;
  Control* pressed_ = nullptr;
  QPoint pointer_{-1, -1};
  bool hasBeenPainted_ = false;
  bool focusShown_ = false;
  Target focus_;
};

}  // namespace ui::qt
