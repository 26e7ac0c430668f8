// All that the program asks of a machine.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ui {

class Control;
class Window;
struct Size;

enum class Sign { Plain, Information, Exclamation, Critical, Question };
enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };
enum class PageResult { Opened, NoBrowser, NotOpened };

struct FileDialog {
  enum class Purpose { Open, Save };
  Purpose purpose = Purpose::Open;
  std::string title;
  std::string filter;            ///< "Description|*.a;*.b"
  std::string defaultExtension;  ///< "*.mid", or empty
  std::string fileName;          ///< what stands in the dialog at first
};

/// One implementation stands for a desktop, another for a script. A message box, a file dialog and
/// a modal window hold up their caller, not the timers: handlers may run inside these calls.
class Platform {
 public:
  virtual ~Platform() = default;

  /// The wall clock: milliseconds of local civil time since 1970-01-01 00:00.
  virtual std::int64_t Now() const = 0;
  /// A clock for timers, in milliseconds, that never goes back.
  virtual std::int64_t Ticks() const = 0;

  /// Blocks for so many milliseconds: no timer fires, no input is served; windows stay painted.
  virtual void Wait(int milliseconds) = 0;
  /// Serves all pending input, then each timer that fell due, once.
  virtual void ServeEvents() = 0;

  virtual Answer MessageBox(Sign sign, Buttons buttons, const std::string& title,
                            const std::string& text) = 0;
  /// The chosen path, or nothing if the dialog was cancelled.
  virtual std::optional<std::string> AskFile(const FileDialog& dialog) = 0;

  virtual void Show(Window& window) = 0;
  virtual void ShowModal(Window& window) = 0;  ///< returns when it has been closed
  virtual void Hide(Window& window) = 0;
  virtual void Close(Window& window) = 0;
  virtual void Repaint(Window& window) = 0;
  virtual Size ScreenSize() const = 0;  ///< logical pixels of the area for windows

  virtual void PlayWave(const std::string& path) = 0;  ///< cuts the wave before it; never fails
  virtual bool OpenMusic(const std::string& path) = 0;
  virtual void PlayMusic() = 0;
  virtual void PauseMusic() = 0;  ///< stops, and goes back to the start
  virtual void CloseMusic() = 0;

  virtual PageResult OpenPage(const std::string& url) = 0;
  virtual void ViewText(const std::string& path) = 0;
  /// One operation on the mail interface; false when it fails.
  virtual bool MailStep(const std::string& operation, std::optional<std::string> value) = 0;
  /// Whether a picture file can be shown.
  virtual bool CanShowPicture(const std::string& path) const = 0;

  /// The artwork that the picture store shows under a key just now; empty for none.
  virtual std::string ArtworkOf(std::string_view key) const = 0;
  /// The field, button or other control gets the focus; its OnGotFocus runs.
  virtual void SetFocus(Control& control) = 0;
  virtual void ControlChanged(Control& control) = 0;
  virtual void WindowChanged(Window& window) = 0;

  /// Ends the program when no handler runs any more.
  virtual void Quit() = 0;
};

}  // namespace ui
