// A platform without a screen: a virtual clock, and a player who is a script.
#pragma once

#include <deque>
#include <set>
#include <string>
#include <vector>

#include "ui/desk.h"
#include "ui/script/stage.h"

namespace ui {

/// Time moves only in PassTime and in the program's own waits. Without a listener it works as well:
/// boxes and dialogs are then cancelled at once.
class HeadlessPlatform : public Desk, public script::Stage {
 public:
  /// The program's directory, with its closing slash: waves are told by their names under it.
  void SetHome(std::string home) { home_ = std::move(home); }
  /// Tells the listener that something has happened.
  void Tell(const std::string& line) const;

  std::int64_t Now() const override { return ticks_ + nowAtStart_; }
  std::int64_t Ticks() const override { return ticks_; }
  void Wait(int milliseconds) override;
  void ServeEvents() override;
  Answer MessageBox(Sign sign, Buttons buttons, const std::string& title,
                    const std::string& text) override;
  std::optional<std::string> AskFile(const FileDialog& dialog) override;
  void Show(Window& window) override;
  void ShowModal(Window& window) override;
  void Hide(Window& window) override;
  void Close(Window& window) override;
  void Repaint(Window&) override {}
  Size ScreenSize() const override { return {1920, 1080}; }
  void PlayWave(const std::string& path) override;
  bool OpenMusic(const std::string& path) override;
  void PlayMusic() override { Tell("music play"); }
  void PauseMusic() override { Tell("music pause"); }
  void CloseMusic() override { Tell("music close"); }
  PageResult OpenPage(const std::string& url) override;
  void ViewText(const std::string& path) override;
  bool MailStep(const std::string& operation, std::optional<std::string> value) override;
  bool CanShowPicture(const std::string& path) const override;
  void ControlChanged(Control&) override {}
  void WindowChanged(Window&) override {}
  void Quit() override { ended_ = true; }

  void Listen(script::Listener listener) override { listener_ = std::move(listener); }
  Desk& TheDesk() override { return *this; }
  std::vector<script::Standing> AllStanding() const override;
  bool Ended() const override { return ended_; }
  void Start(const std::function<void()>& startUp) override;
  void Settle() override;
  void PassTime(std::int64_t milliseconds) override;
  void Queue(std::function<void()> act) override { queue_.push_back(std::move(act)); }
  void SetNow(std::int64_t now) override { nowAtStart_ = now - ticks_; }
  void PlayerClicks(Control& control) override { UserClick(control); }
  void PlayerPresses(Surface& surface, Point place) override;
  void PlayerMoves(Control& control, Point place) override;
  void PlayerMovesBeside(Window& window) override;
  void PlayerTypes(Field& field, const std::string& text) override { UserType(field, text); }
  void PlayerStrikes(Window& window, char32_t letter) override;
  void PlayerChooses(List& list, int index) override { UserChoose(list, index); }
  void PlayerChecks(Check& check, bool checked) override { UserCheck(check, checked); }
  void PlayerFocuses(Control& control) override { UserFocus(control); }
  void PlayerCloses(Window& window) override { UserClose(window); }
  void PlayerSetsState(Window& window, WindowState state) override { UserState(window, state); }
  void PlayerResizes(Window& window, Size outerTwips) override { UserResize(window, outerTwips); }
  void PlayerAnswers(Answer answer) override;
  void PlayerGivesPath(std::optional<std::string> path) override;
  void FailNext(const std::string& step) override { failing_.insert(step); }
  void FailNothing() override { failing_.clear(); }

 private:
  /// What stands, and what it was answered.
  struct Stand {
    script::Standing standing;
    bool answered = false;
    Answer answer = Answer::Cancel;
    std::optional<std::string> path;
  };

  /// Does `first` and then lets the player go on, until `over`, or until the program has ended.
  void LetStand(Stand& stand, const std::function<bool()>& over,
                const std::function<void()>& first = {});
  void Open(Window& window, bool modal);
  void ServeQueue();
  /// Whether that step is to fail this time.
  bool Fails(const std::string& step) { return failing_.erase(step) > 0; }

  script::Listener listener_;
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

}  // namespace ui
