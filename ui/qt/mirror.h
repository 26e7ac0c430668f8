// Real widgets that stand for controls.
#pragma once

#include <memory>

#include "ui/controls.h"

class QWidget;

namespace ui::qt {

class QtWindow;

/// One control and its widget. The widget belongs to its parent widget.
class Mirror {
 public:
  virtual ~Mirror() = default;
  Mirror(const Mirror&) = delete;

  Control& Model() const { return control_; }
  QWidget* Widget() const { return widget_; }
  /// Carries the control's state over to the widget.
  void Sync();
  /// The widget's place is a layout's affair, not the control's.
  void LeaveToLayout() { placed_ = false; }

 protected:
  Mirror(QtWindow& host, Control& control) : host_(host), control_(control) {}
  void Use(QWidget* widget);
  virtual void SyncContent() = 0;
  bool IsPlaced() const { return placed_; }

  QtWindow& host_;

 private:
  void SyncVisibility();

  Control& control_;
  QWidget* widget_ = nullptr;
  bool placed_ = true;
};

/// Makes the widget of a button, field, check box, option button, list or bar; null for a control
/// that is painted, or is a part of the menu or the status bar.
std::unique_ptr<Mirror> MakeMirror(QtWindow& host, Control& control, QWidget* parent);

/// A label as a widget, or a picture: both only in a dialog that a layout places.
std::unique_ptr<Mirror> MakeDialogMirror(QtWindow& host, Control& control, QWidget* parent);

}  // namespace ui::qt
