// Where the desktop takes its time from.
#pragma once

#include <cstdint>

namespace ui::qt {

/// The machine's clocks; another one can stand in where time is to pass on command.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Milliseconds of local civil time since 1970-01-01 00:00.
  virtual std::int64_t Now() const;
  /// Milliseconds that never go back.
  virtual std::int64_t Ticks() const;
  /// The program waits for so long: how many real milliseconds that takes.
  virtual int BeginWait(int milliseconds) { return milliseconds; }
};

}  // namespace ui::qt
