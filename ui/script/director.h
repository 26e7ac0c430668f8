// The virtual machine under a script: its clock, what stands in the player's way, and what is told.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "ui/script/stage.h"

namespace ui::script {

/// The part of a scripted platform that knows no screen. A platform hands on what its program asks
/// of a machine; the acts of the player go to the desk, unless a derived class has real widgets for
/// them. Time moves only in PassTime and in the program's own waits. Without a listener it works as
/// well: boxes and dialogs are then cancelled at once.
class Director : public Stage {
 public:
  explicit Director(Desk& desk) : desk_(desk) {}

  /// The program's directory, with its closing slash: waves are told by their names under it.
  void SetHome(std::string home) { home_ = std::move(home); }
  /// Tells the listener that something has happened.
  void Tell(const std::string& line) const;

  // What a platform is asked for; see Platform.
  std::int64_t Now() const { return ticks_ + nowAtStart_; }
  std::int64_t Ticks() const { return ticks_; }
  void Wait(int milliseconds);
  /// Serves what is queued, and then has `timers` serve the timers.
  void ServeEvents(const std::function<void()>& timers);
  /// Opens what stands and calls `converse`, which returns when it stands no longer.
  using HoldUp = std::function<void(const std::function<void()>& converse)>;
  Answer MessageBox(Sign sign, Buttons buttons, const std::string& title, const std::string& text,
                    const HoldUp& holdUp);
  std::optional<std::string> AskFile(const FileDialog& dialog);
  void ShowModal(Window& window, const HoldUp& holdUp);
  void TellShow(const Window& window) const;
  void TellHide(const Window& window) const;
  void TellClose(const Window& window) const;
  void PlayWave(const std::string& path) const;
  bool OpenMusic(const std::string& path);
  PageResult OpenPage(const std::string& url);
  void ViewText(const std::string& path) const;
  bool MailStep(const std::string& operation, const std::optional<std::string>& value);
  void Quit() { ended_ = true; }

  void Listen(Listener listener) override { listener_ = std::move(listener); }
  Desk& TheDesk() override { return desk_; }
  std::vector<Standing> AllStanding() const override;
  bool Ended() const override { return ended_; }
  void Start(const std::function<void()>& startUp) override;
  void Settle() override;
  void PassTime(std::int64_t milliseconds) override;
  void Queue(std::function<void()> act) override { queue_.push_back(std::move(act)); }
  void SetNow(std::int64_t now) override { nowAtStart_ = now - ticks_; }
  Properties Look(const Control& control) override { return PropertiesOf(control); }
  bool TakePicture(const std::string&) override { return false; }
  void PlayerClicks(Control& control) override { desk_.UserClick(control); }
  void PlayerPresses(Surface& surface, Point place) override;
  void PlayerMoves(Control& control, Point place) override;
  void PlayerMovesBeside(Window& window) override { desk_.UserMoveBeside(window); }
  void PlayerTypes(Field& field, const std::string& text) override { desk_.UserType(field, text); }
  void PlayerStrikes(Window& window, char32_t letter) override { desk_.UserStrike(window, letter); }
  void PlayerChooses(List& list, int index) override { desk_.UserChoose(list, index); }
  void PlayerChecks(Check& check, bool checked) override { desk_.UserCheck(check, checked); }
  void PlayerFocuses(Control& control) override { desk_.UserFocus(control); }
  void PlayerCloses(Window& window) override { desk_.UserClose(window); }
  void PlayerSetsState(Window& window, WindowState state) override;
  void PlayerResizes(Window& window, Size outerTwips) override;
  void PlayerAnswers(Answer answer) override;
  void PlayerGivesPath(std::optional<std::string> path) override;
  void FailNext(const std::string& step) override { failing_.insert(step); }
  void FailNothing() override { failing_.clear(); }

 private:
  /// What stands, and what it was answered.
  struct Stand {
    Standing standing;
    bool answered = false;
    Answer answer = Answer::Cancel;
    std::optional<std::string> path;
  };

  /// Lets the player go on until `over`, or until the program has ended.
  void LetStand(Stand& stand, const std::function<bool()>& over, const HoldUp& holdUp);
  void ServeQueue();
  /// Whether that step is to fail this time.
  bool Fails(const std::string& step) { return failing_.erase(step) > 0; }

  Desk& desk_;
  Listener listener_;
  std::string home_;
  std::int64_t ticks_ = 0;
  std::int64_t nowAtStart_ = 1767268800000;  // 2026-01-01 12:00:00
  std::deque<std::function<void()>> queue_;
  std::vector<Stand*> standing_;  ///< the one on top last
  std::set<std::string> failing_;
  std::int64_t opened_ = 0;  ///< how many boxes and modal windows have opened so far
  int serving_ = 0;          ///< how many servings of events are at work
  bool ended_ = false;
};

}  // namespace ui::script
