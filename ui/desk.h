// What both platforms share: which windows are open, which timers are due, and running a handler.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "ui/platform.h"
#include "ui/window.h"

namespace ui {

/// Whether a player can give the focus to controls of that kind.
bool TakesFocus(Kind kind);

/// Keeps the open windows, the focus and the handlers at work. Does not own open windows; takes
/// over closed ones with Bury until nothing of them can be at work any more.
class Desk : public Platform {
 public:
  /// The open windows, the one used last first. A modal window comes before all that it blocks.
  const std::vector<Window*>& Windows() const { return windows_; }
  /// The window that takes the player's input; null if none is shown.
  Window* ActiveWindow() const;
  /// The control of the active window that has the focus; null if none has.
  Control* Focus() const;
  /// The control that has the focus whenever that window is active; null if none has.
  Control* FocusOf(const Window& window) const;

  /// Runs a handler for an event. What it throws ends it and is shown as the system's error text.
  void Run(const std::function<void()>& handler);
  bool HandlerAtWork() const { return depth_ > 0; }
  /// Takes over a window that is closed, and destroys it when no handler is at work.
  void Bury(std::unique_ptr<Window> window);

  /// The player's acts. They run the handlers and do what the act itself does to the control; the
  /// caller has made sure that the control is usable.
  void UserClick(Control& control);
  void UserPress(Surface& surface, int x, int y);
  void UserMove(Control& control);
  void UserMove(Surface& surface, int x, int y);
  void UserMoveBeside(Window& window);  ///< over the window beside its controls
  void UserStrike(Window& window, char32_t letter);
  void UserType(Field& field, const std::string& text);
  void UserChoose(List& list, int index);
  void UserCheck(Check& check, bool checked);
  void UserFocus(Control& control);
  void UserClose(Window& window);
  void UserResize(Window& window, Size outerTwips);
  void UserState(Window& window, WindowState state);

  /// The enabled timer of an open window that is due first, not after `limit`; null if none.
  Timer* FirstDue(std::int64_t limit) const;
  /// Lets one timer tick.
  void Tick(Timer& timer);
  /// Each timer that is due at this moment ticks once.
  void TickAllDue();

  /// The store behind ArtworkOf, set once at start-up.
  void SetArtwork(std::function<std::string(std::string_view key)> artwork) {
    artwork_ = std::move(artwork);
  }
  /// Names a picture for a person who can't see it, as "Queen of Hearts"; set once at start-up.
  void SetDescription(std::function<std::string(const std::string& key)> describe) {
    describe_ = std::move(describe);
  }
  std::string DescriptionOf(const std::string& key) const {
    return describe_ ? describe_(key) : key;
  }

  std::string ArtworkOf(std::string_view key) const override;
  void SetFocus(Control& control) override;

 protected:
  void Opened(Window& window, bool modal);
  /// A window in which nothing has the focus gives it to the first control that takes it.
  void FocusFirst(Window& window);
  void WasHidden(Window& window);
  void Closed(Window& window);
  void RaiseToTop(Window& window);

 private:
  void BuryDead();

  std::vector<Window*> windows_;
  std::vector<std::unique_ptr<Window>> dead_;
  std::map<const Window*, Control*> focus_;  ///< each open window remembers its own
  int depth_ = 0;
  std::function<std::string(std::string_view)> artwork_;
  std::function<std::string(const std::string&)> describe_;
};

}  // namespace ui
