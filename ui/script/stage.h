// What a script asks of the platform on which the program runs.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/desk.h"
#include "ui/script/properties.h"

namespace ui::script {

/// A message box, a file dialog or a modal window that holds up the windows beneath it.
struct Standing {
  enum class What { Box, FileDialog, ModalWindow };
  What what = What::Box;
  Buttons buttons = Buttons::Ok;  ///< of a box
  Window* window = nullptr;       ///< the modal window
};

/// What the platform calls back. All three must be set, or none.
struct Listener {
  /// Something happened: the line of the answer, without its "* ".
  std::function<void(const std::string& line)> happened;
  /// Something stands that holds up its caller: returns when `over` says that it stands no longer.
  std::function<void(const std::function<bool()>& over)> converse;
  /// The program is about to wait.
  std::function<void()> beforeWait;
};

/// The player's hands and eyes, the virtual clock and the faults of the machine. Whoever asks for
/// an act has made sure that a player could do it; an act returns when its handlers have returned.
class Stage {
 public:
  virtual ~Stage() = default;

  virtual void Listen(Listener listener) = 0;
  /// The windows and the focus.
  virtual Desk& TheDesk() = 0;
  /// What stands just now, the one on top first.
  virtual std::vector<Standing> AllStanding() const = 0;
  /// Whether the program has asked to end.
  virtual bool Ended() const = 0;

  /// Runs the program's start-up, and the tick of its one-shot timer.
  virtual void Start(const std::function<void()>& startUp) = 0;
  /// Serves what is queued, then what is overdue, until nothing is left of either.
  virtual void Settle() = 0;
  /// Lets virtual time go by; stops early where a box or a modal window opens.
  virtual void PassTime(std::int64_t milliseconds) = 0;
  /// Keeps an act to be done at the next serving of events.
  virtual void Queue(std::function<void()> act) = 0;
  /// Milliseconds since 1970-01-01 00:00; timers don't notice.
  virtual void SetNow(std::int64_t now) = 0;

  /// What the player sees of a control.
  virtual Properties Look(const Control& control) = 0;
  /// Writes what the player sees of the topmost window to a PNG file; false if nothing is painted
  /// here, or the file can't be written.
  virtual bool TakePicture(const std::string& path) = 0;

  virtual void PlayerClicks(Control& control) = 0;
  virtual void PlayerPresses(Surface& surface, Point place) = 0;
  /// `place` counts for a surface alone.
  virtual void PlayerMoves(Control& control, Point place) = 0;
  virtual void PlayerMovesBeside(Window& window) = 0;
  virtual void PlayerTypes(Field& field, const std::string& text) = 0;
  virtual void PlayerStrikes(Window& window, char32_t letter) = 0;
  virtual void PlayerChooses(List& list, int index) = 0;
  virtual void PlayerChecks(Check& check, bool checked) = 0;
  virtual void PlayerFocuses(Control& control) = 0;
  virtual void PlayerCloses(Window& window) = 0;
  virtual void PlayerSetsState(Window& window, WindowState state) = 0;
  virtual void PlayerResizes(Window& window, Size outerTwips) = 0;
  /// The box on top, or the file dialog on top, which gets a path or is cancelled.
  virtual void PlayerAnswers(Answer answer) = 0;
  virtual void PlayerGivesPath(std::optional<std::string> path) = 0;

  /// "mail OPERATION", "browser find", "browser open" or "music" fails the next time.
  virtual void FailNext(const std::string& step) = 0;
  virtual void FailNothing() = 0;
};

}  // namespace ui::script
