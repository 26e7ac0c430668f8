// A platform without a screen: a virtual clock, and a player who is a script.
#pragma once

#include <string>

#include "ui/desk.h"
#include "ui/script/director.h"

namespace ui {

/// The program's windows are there and nobody paints them; what else it asks for, the director has.
class HeadlessPlatform : public Desk {
 public:
  /// The stage on which a script plays.
  script::Director& Stage() { return director_; }

  std::int64_t Now() const override { return director_.Now(); }
  std::int64_t Ticks() const override { return director_.Ticks(); }
  void Wait(int milliseconds) override { director_.Wait(milliseconds); }
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
  void PlayWave(const std::string& path) override { director_.PlayWave(path); }
  bool OpenMusic(const std::string& path) override { return director_.OpenMusic(path); }
  void PlayMusic() override { director_.Tell("music play"); }
  void PauseMusic() override { director_.Tell("music pause"); }
  void CloseMusic() override { director_.Tell("music close"); }
  PageResult OpenPage(const std::string& url) override { return director_.OpenPage(url); }
  void ViewText(const std::string& path) override { director_.ViewText(path); }
  bool MailStep(const std::string& operation, std::optional<std::string> value) override;
  bool CanShowPicture(const std::string& path) const override;
  void ControlChanged(Control&) override {}
  void WindowChanged(Window&) override {}
  void Quit() override { director_.Quit(); }

 private:
  void Open(Window& window, bool modal);

  script::Director director_{*this};
};

}  // namespace ui
