// The two sequences that count a bonus onto the score in front of the player.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/session/round_clock.h"
#include "core/suite/suite.h"

namespace core {

/// What a bonus is counted with. The labels belong to the window.
struct BonusLabels {
  ui::Label& title;   ///< "Speed Bonus!" and its like
  ui::Label& amount;  ///< what is still to be counted
  ui::Label& score;
};

/// What a game changes in the sequences; all may be left as they are.
struct BonusStyle {
  /// Multiplies a second's points, if set.
  std::function<std::int64_t()> speedFactor = {};
  /// False: the window has written the speed bonus's title itself.
  bool writesSpeedTitle = true;
  /// Brings title and amount to their places, when the amount has been written.
  std::function<void()> placeSpeedBonus = {};
  std::function<void()> placeBonus = {};
};

class BonusCounter {
 public:
  BonusCounter(ui::Window& window, Suite& suite, RoundClock& clock, BonusLabels labels,
               BonusStyle style = {});

  /// Pays the seconds left, each with so many points; the clock runs on to its end meanwhile.
  void AwardSpeedBonus(std::int64_t perSecond);
  /// Pays `count` times `value` under `title`, which gets an exclamation mark.
  void AwardBonus(std::int64_t count, std::int64_t value, const std::string& title);

 private:
  void ShowAmount(std::int64_t amount, const std::function<void()>& place);
  void CountSeconds(std::int64_t amount, std::int64_t step);
  void CountInSteps(std::int64_t amount);
  void Pay(std::int64_t points);
  void CountOne(std::int64_t points, std::int64_t rest);
  void Finish();

  ui::Window& window_;
  Suite& suite_;
  RoundClock& clock_;
  BonusLabels labels_;
  BonusStyle style_;
};

}  // namespace core
