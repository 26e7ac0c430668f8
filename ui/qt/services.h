// What the desktop does for the program: its browser, its text viewer, its mail composer.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "ui/platform.h"

class QProcess;

namespace ui::qt {

/// Waits for a process to end, the program's windows painted meanwhile; false if it takes too long.
using Waiter = std::function<bool(QProcess&)>;

/// Opens a page in the default browser.
PageResult OpenInBrowser(const std::string& url, const Waiter& waitFor);
/// Opens a text in the desktop's viewer; what becomes of it is the viewer's affair.
void OpenInViewer(const std::string& path);

/// A message put together step by step and handed to the player's own mail composer at `Send`.
class Mail {
 public:
  explicit Mail(Waiter waitFor) : waitFor_(std::move(waitFor)) {}

  /// One operation by its name; false when it fails.
  bool Step(const std::string& operation, const std::optional<std::string>& value);

 private:
  bool HandOver();

  Waiter waitFor_;
  bool signedOn_ = false;
  std::map<std::string, std::string> parts_;
};

}  // namespace ui::qt
