// The desktop: the windows of ui/ as Qt's, driven by the machine's clock, pointer and keyboard.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ui/desk.h"
#include "ui/qt/clock.h"

class QApplication;
class QMessageBox;
class QProcess;
class QTimer;

namespace ui::qt {

class Artwork;
class InstantMnemonics;
class Mail;
class Preferences;
class QtWindow;
class Sound;
class WarmUp;

/// Where the desktop program finds its own files.
struct Installation {
  std::string pictures;       ///< directory of the store's artwork, an SVG file each
  std::string icons{};        ///< directory of the program's icon, a folder for each size
  std::string preferences{};  ///< path of the file that keeps the player's wishes
};

/// Whether there is a display to open windows on.
bool HasDisplay();

/// One exists in a program. Windows are mirrored as long as they are open.
///
/// The program's handlers run in one of three situations. Free: an event loop delivers input and
/// timers. Serving: input is delivered, timers are not, until no input is left. Waiting: a handler
/// blocks; windows are painted and answer the window manager, but input stays where it is, and what
/// reaches the program all the same (the window manager's changes, a screen reader's acts) is kept
/// until it is served.
class QtPlatform : public Desk {
 public:
  QtPlatform(int& argc, char** argv, Installation installation,
             std::unique_ptr<Clock> clock = std::make_unique<Clock>());
  ~QtPlatform() override;

  /// Serves events until Quit; returns the program's exit status.
  int Exec();

  std::int64_t Now() const override { return clock_->Now(); }
  std::int64_t Ticks() const override { return clock_->Ticks(); }
  void Wait(int milliseconds) override;
  void ServeEvents() override;

  Answer MessageBox(Sign sign, Buttons buttons, const std::string& title,
                    const std::string& text) override;
  std::optional<std::string> AskFile(const FileDialog& dialog) override;

  void Show(Window& window) override;
  void ShowModal(Window& window) override;
  void Hide(Window& window) override;
  void Close(Window& window) override;
  void Repaint(Window& window) override;
  Size ScreenSize() const override;

  void PlayWave(const std::string& path) override;
  bool OpenMusic(const std::string& path) override;
  void PlayMusic() override;
  void PauseMusic() override;
  void CloseMusic() override;

  PageResult OpenPage(const std::string& url) override;
  void ViewText(const std::string& path) override;
  bool MailStep(const std::string& operation, std::optional<std::string> value) override;
  bool CanShowPicture(const std::string& path) const override;

  void SetFocus(Control& control) override;
  void ControlChanged(Control& control) override;
  void WindowChanged(Window& window) override;
  void Quit() override;

  /// The player did something to a window: runs `act` now, or when input is served again.
  void Act(Window& window, std::function<void()> act);
  /// The window manager has brought a window to the front.
  void Activated(Window& window);
  /// A maximized window turned out to have this outer size, in logical pixels.
  void SetScreenSize(Size size);
  Artwork& Pictures() { return *artwork_; }
  Preferences& Wishes() { return *preferences_; }

 protected:
  /// The view of an open window; null for another one.
  QtWindow* ViewOf(const Window& window) const;
  /// The view of the active window; null if none is shown.
  QtWindow* ActiveView() const;
  /// Serves all pending input, and no timer.
  void ServeInput();
  /// Brings the widgets in step with the controls.
  void SyncAll();

  // How a player is waited for; a platform whose player is a script has its own ways.
  virtual void ArmTimer();
  virtual void HoldUp(QtWindow& modal);  ///< returns when it has been closed
  virtual int HoldUp(QMessageBox& box);  ///< returns the standard button that closed it

 private:
  enum class Pump { Free, Serving, Waiting };
  class PumpScope;
  struct HeldAct {
    Window* window;
    std::function<void()> act;
  };

  QtWindow& Mirror(Window& window);
  void ServeHeldActs();
  void TimersDue();
  /// After a handler: widgets in step, the next timer armed, the program ended if it asked for it.
  void Settle();
  void SettleSoon();
  void BuryViews();
  bool WaitFor(QProcess& process);

  std::unique_ptr<Clock> clock_;
  std::unique_ptr<WarmUp> warmUp_;
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<InstantMnemonics> mnemonics_;
  std::unique_ptr<Artwork> artwork_;
  std::unique_ptr<Preferences> preferences_;
  std::unique_ptr<QTimer> timer_;  // goes off when the first of the program's timers falls due
  std::map<const Window*, std::unique_ptr<QtWindow>> views_;
  std::vector<std::unique_ptr<QtWindow>> closed_;  // destroyed when no handler is at work
  std::deque<HeldAct> held_;
  Pump pump_ = Pump::Free;
  bool quitting_ = false;
  bool settleIsPosted_ = false;
  Size screen_{};
  std::unique_ptr<Sound> sound_;
  std::unique_ptr<Mail> mail_;
};

}  // namespace ui::qt
