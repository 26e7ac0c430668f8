// The few things that the shared values do by themselves.
#include "core/suite/shared.h"

#include "core/text/number.h"

namespace core {

void Shared::AddToScore(std::int64_t points) {
  CurrentScore = ClampTo<std::int32_t>(CurrentScore + points);
}

std::string Shared::StripCustomMark() {
  while (!PlayerName.empty() && PlayerName.back() == '*') PlayerName.pop_back();
  return PlayerName;
}

}  // namespace core
