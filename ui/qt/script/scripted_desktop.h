// The desktop's real windows under a script: no display, and a clock that a script drives.
#pragma once

#include <memory>

#include "ui/qt/platform.h"
#include "ui/script/directed.h"

class QTemporaryFile;

namespace ui::qt {

/// The display that nobody sees, chosen before the application is there.
class HiddenDisplay {
 protected:
  HiddenDisplay();
  ~HiddenDisplay();

 private:
  std::unique_ptr<QTemporaryFile> screen_;  ///< tells the display its size
};

/// All that is a widget is real and is used as a player uses it; message boxes too. File dialogs,
/// sound, browser, viewer and mail belong to the machine: here they are the director's.
class ScriptedDesktop : private HiddenDisplay, public script::Directed<QtPlatform> {
 public:
  ScriptedDesktop(int& argc, char** argv, Installation installation);

  void Wait(int milliseconds) override;
  void ServeEvents() override;
  Answer MessageBox(Sign sign, Buttons buttons, const std::string& title,
                    const std::string& text) override;
  std::optional<std::string> AskFile(const FileDialog& dialog) override;
  void Show(Window& window) override;
  void ShowModal(Window& window) override;
  void Hide(Window& window) override;
  void Close(Window& window) override;

 protected:
  void ArmTimer() override {}  // the director lets timers tick
  void HoldUp(QtWindow& modal) override;
  int HoldUp(QMessageBox& box) override;

 private:
  friend class Hands;
  /// Does `open`, in which one of the two HoldUp has the player go on.
  void Converse(const std::function<void()>& converse, const std::function<void()>& open);

  const std::function<void()>* converse_ = nullptr;  ///< of what opens just now
};

}  // namespace ui::qt
