// A platform for tests of single windows: it records what it is told, and a function is the player.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "ui/desk.h"

/// What the player is told and what is mailed stands in `log`, a line each.
class FakeDesk : public ui::Desk {
 public:
  std::vector<std::string> log;
  std::int64_t now = 0;
  std::string failingMailStep;
  std::function<void(ui::Window&)> player;  ///< uses a modal window till it is closed
  std::function<void()> behindBox;          ///< what happens while a message box stands

  std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

  std::int64_t Now() const override { return now; }
  std::int64_t Ticks() const override { return now; }
  ui::Answer MessageBox(ui::Sign sign, ui::Buttons, const std::string& title,
                        const std::string& text) override {
    static const char* const signs[] = {"plain", "information", "exclamation", "critical",
                                        "question"};
    log.push_back(std::string(signs[static_cast<int>(sign)]) + " [" + title + "] " + text);
    if (behindBox) std::exchange(behindBox, {})();
    return ui::Answer::Ok;
  }
  void ShowModal(ui::Window& window) override {
    Opened(window, true);
    if (player) player(window);
    window.Unload();
  }
  void Close(ui::Window& window) override { Closed(window); }
  bool MailStep(const std::string& operation, std::optional<std::string> value) override {
    log.push_back(operation + (value ? " " + *value : ""));
    return operation != failingMailStep;
  }
  ui::Size ScreenSize() const override { return {1024, 768}; }

  void Wait(int) override {}
  void ServeEvents() override {}
  std::optional<std::string> AskFile(const ui::FileDialog&) override { return {}; }
  void Show(ui::Window& window) override { Opened(window, false); }
  void Hide(ui::Window& window) override { WasHidden(window); }
  void Repaint(ui::Window&) override {}
  void PlayWave(const std::string&) override {}
  bool OpenMusic(const std::string&) override { return true; }
  void PlayMusic() override {}
  void PauseMusic() override {}
  void CloseMusic() override {}
  ui::PageResult OpenPage(const std::string&) override { return ui::PageResult::Opened; }
  void ViewText(const std::string&) override {}
  bool CanShowPicture(const std::string&) const override { return false; }
  void ControlChanged(ui::Control&) override {}
  void WindowChanged(ui::Window&) override {}
  void Quit() override {}
};

/// A control of a window by its name; a missing one fails the test.
template <class T>
T& Get(const ui::Window& window, const std::string& name) {
  auto* control = dynamic_cast<T*>(window.Find(name));
  if (!control) throw std::runtime_error("no control " + name);
  return *control;
}
