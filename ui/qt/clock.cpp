// The machine's clocks.
#include "ui/qt/clock.h"

#include <QDateTime>
#include <chrono>

namespace ui::qt {

std::int64_t Clock::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  return now.toMSecsSinceEpoch() + std::int64_t{now.offsetFromUtc()} * 1000;
}

std::int64_t Clock::Ticks() const {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace ui::qt
