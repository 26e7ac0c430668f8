// The two sequences that count a bonus onto the score in front of the player.
#include "core/session/bonus_counter.h"

#include <algorithm>

#include "core/text/number.h"

namespace core {
namespace {

constexpr int SpeedBonusPause = 2000;
constexpr int BonusPause = 1000;
constexpr int StepPause = 75;
constexpr double StepsOfABonus = 20;
/// Far more than a score can hold, and little enough to be counted without overflow.
constexpr std::int64_t MostPoints = std::int64_t{1} << 40;

}  // namespace

BonusCounter::BonusCounter(ui::Window& window, Suite& suite, RoundClock& clock, BonusLabels labels,
                           BonusStyle style)
    : window_(window), suite_(suite), clock_(clock), labels_(labels), style_(std::move(style)) {}

void BonusCounter::AwardSpeedBonus(std::int64_t perSecond) {
  const int seconds = suite_.shared.SecondsLeft();
  const std::int64_t factor = style_.speedFactor ? style_.speedFactor() : 1;
  const std::int64_t step = std::clamp(Product(perSecond, factor), -MostPoints, MostPoints);
  const std::int64_t amount = seconds * step;
  if (style_.writesSpeedTitle) labels_.title.Text = "Speed Bonus!";
  ShowAmount(amount, style_.placeSpeedBonus);
  suite_.platform.Wait(SpeedBonusPause);
  if (suite_.shared.CountDownScoring) {
    CountSeconds(amount, step);
  } else {
    Pay(amount);
  }
  Finish();
}

void BonusCounter::AwardBonus(std::int64_t count, std::int64_t value, const std::string& title) {
  const std::int64_t amount = Product(count, value);
  labels_.title.Text = title + "!";
  ShowAmount(amount, style_.placeBonus);
  suite_.platform.Wait(BonusPause);
  if (suite_.shared.CountDownScoring) {
    CountInSteps(amount);
  } else {
    Pay(amount);
  }
  Finish();
}

void BonusCounter::ShowAmount(std::int64_t amount, const std::function<void()>& place) {
  labels_.title.Visible = true;
  labels_.score.TextColor = ui::Aqua;
  labels_.amount.Text = Masked(amount);
  labels_.amount.TextColor = ui::Red;
  if (place) place();
  labels_.amount.Visible = true;
}

void BonusCounter::CountSeconds(std::int64_t amount, std::int64_t step) {
  const int limit = suite_.shared.TimeLimit;
  for (int t = suite_.shared.ElapsedSeconds + 1; t <= limit; ++t) {
    clock_.MoveTo(t);
    amount -= step;
    CountOne(step, amount);
  }
}

void BonusCounter::CountInSteps(std::int64_t amount) {
  const std::int64_t step = RoundToEven(static_cast<double>(amount) / StepsOfABonus);
  if (step <= 0) {
    Pay(amount);
    return;
  }
  while (amount > 0) {
    const std::int64_t points = std::min(step, amount);
    amount -= points;
    CountOne(points, amount);
  }
}

void BonusCounter::CountOne(std::int64_t points, std::int64_t rest) {
  Pay(points);
  labels_.amount.Text = Masked(rest);
  labels_.amount.TextColor = ui::Black;
  suite_.PlayWave("Snap.wav");
  suite_.platform.Wait(StepPause);
}

void BonusCounter::Pay(std::int64_t points) {
  suite_.shared.AddToScore(points);
  labels_.score.Text = Masked(suite_.shared.CurrentScore);
}

void BonusCounter::Finish() {
  labels_.amount.Visible = false;
  labels_.score.TextColor = ui::Blue;
  suite_.platform.Repaint(window_);
}

}  // namespace core
