// The few things that the shared values do by themselves.
#include "core/suite/shared.h"

#include <algorithm>

#include "core/text/number.h"

namespace core {

void Shared::AddToScore(std::int64_t points) {
  // More than the whole range cannot matter, and keeps the sum within its width.
  constexpr std::int64_t most = std::int64_t{1} << 32;
  CurrentScore = ClampTo<std::int32_t>(CurrentScore + std::clamp(points, -most, most));
}

std::string Shared::StripCustomMark() {
  while (!PlayerName.empty() && PlayerName.back() == '*') PlayerName.pop_back();
  return PlayerName;
}

}  // namespace core
