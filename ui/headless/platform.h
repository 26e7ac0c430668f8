// A platform without a screen: a virtual clock, and a player who is a script.
#pragma once

#include <string>

#include "ui/desk.h"
#include "ui/script/directed.h"

namespace ui {

/// The program's windows are there and nobody paints them; what else it asks for, the director has.
class HeadlessPlatform : public script::Directed<Desk> {
 public:
  HeadlessPlatform();

  void Wait(int milliseconds) override { director_->Wait(milliseconds); }
  void ServeEvents() override;
  Answer MessageBox(Sign sign, Buttons buttons, const std::string& title,
                    const std::string& text) override;
  std::optional<std::string> AskFile(const FileDialog& dialog) override;
  void Show(Window& window) override;
  void ShowModal(Window& window) override;
  void Hide(Window& window) override;
  void Close(Window& window) override;
  void Repaint(Window&) override {}
  bool CanShowPicture(const std::string& path) const override;
  void ControlChanged(Control&) override {}
  void WindowChanged(Window&) override {}

 private:
  void Open(Window& window, bool modal);
};

}  // namespace ui
