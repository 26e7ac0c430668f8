// What the start can do while it waits for the display.
#pragma once

#include <thread>

namespace ui::qt {

/// Reads the system's font configuration on a thread of its own, which takes as long as a sixth of
/// the whole start. Made before the application, ended when the first text has been painted or
/// before.
class WarmUp {
 public:
  WarmUp();
  ~WarmUp();
  WarmUp(const WarmUp&) = delete;

 private:
  std::thread reader_;
};

}  // namespace ui::qt
