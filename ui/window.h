// A window: its controls, its size, and what it does when it is used.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"
#include "ui/form.h"

namespace ui {

class Platform;

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

/// Thrown out of a handler that has served events or asked the player and whose window was closed
/// meanwhile: nothing that was still to be done concerns anybody. Whoever runs handlers ends it.
struct WindowGone {};

/// Base of all windows. A window declares its controls as members and its handlers as member
/// functions. It does not own the platform.
class Window : public Changeable {
 public:
  Window(Platform& platform, std::string name);
  virtual ~Window() = default;
  Window(const Window&) = delete;

  const std::string& Name() const { return name_; }
  Platform& GetPlatform() const { return platform_; }
  /// In the order of their declaration.
  const std::vector<Control*>& Controls() const { return controls_; }
  /// From the back to the front; what is painted last lies on top.
  const std::vector<Control*>& Stacking() const { return stacking_; }
  Control* Find(std::string_view fullName) const;  ///< null if there is none of that name
  void SendToBack(Control& control);
  void BringToFront(Control& control);

  Property<std::string> Caption{this};
  Property<WindowState> State{this, WindowState::Normal};
  /// Outer size in normal state, in twips.
  Property<Size> NormalSize{this, Size{9540, 7200}};
  Property<bool> Hourglass{this, false};

  /// Outer size as it is now, in twips: that of the screen while maximized.
  Size OuterSize() const;
  /// Inner area in logical pixels, without title, menu and status bar; at least 1 by 1.
  Size InnerSize() const;
  /// The inner area of this outer size, and the outer size of this inner area.
  Size InnerFor(Size outerTwips) const;
  Size OuterFor(Size inner) const;

  bool Resizable = true;
  /// While set, what the player does with this window is served and has no effect; its size and
  /// state still follow.
  bool DropsInput = false;
  bool IsOpen() const { return open_; }
  bool IsModal() const { return modal_; }
  bool IsHidden() const { return hidden_; }

  /// How the controls of a dialog are laid out; empty for a window that places them itself.
  const Form& Layout() const { return layout_; }

  /// What happens before the window is first shown; may ask and tell the player. Called once, by
  /// whoever shows the window. What it throws means that the window can't be shown.
  virtual void Load() {}
  virtual void Activate() {}   ///< shown, or shown again
  virtual void Resized() {}    ///< after each change of size or state
  virtual void MouseMove() {}  ///< the pointer moves over the window beside its controls
  virtual void KeyTyped(char32_t /*letter*/) {}  ///< a letter that no control has taken
  /// Asked by the close box and by Unload; false keeps the window open.
  virtual bool QueryClose() { return true; }
  /// After QueryClose has said yes: the last acts of the window, which is closed right afterwards.
  virtual void Unloading() {}

  /// Asks QueryClose and, on yes, closes the window. True when it is closed.
  bool Unload();

  void PropertyChanged(const void* property) override;
  void ControlChanged(Control& control);

 protected:
  Form layout_;

 private:
  friend class Control;
  friend class Desk;
  void Add(Control* control);

  Platform& platform_;
  std::string name_;
  std::vector<Control*> controls_;
  std::vector<Control*> stacking_;
  bool open_ = false;
  bool modal_ = false;
  bool hidden_ = false;
  bool unloading_ = false;
};

}  // namespace ui
