// The round clock as a pie: green for the first half, then yellow, then a flashing last quarter.
#include "core/session/round_clock.h"

#include <algorithm>

#include "core/text/number.h"

namespace core {
namespace {

constexpr int Padding = 6;
constexpr int TimeHeight = 20;
constexpr int Rim = 30 / ui::TwipsPerPixel;  // between the circle and the surface's edge

}  // namespace

RoundClock::RoundClock(ui::Window* window, Suite& suite, ui::Timer& flash)
    : Frame(window, "Timer"),
      Surface(window, "Surface"),
      lblTime(window, "lblTime", "Time:"),
      suite_(suite),
      flash_(flash) {
  Surface.Tip = "Displays time remaining in current round";
  lblTime.TextColor = ui::Blue;
  lblTime.Bold = true;
  SetPlace({0, 0});
}

void RoundClock::ShowTimerGroup(bool visible) {
  Surface.Visible = visible;
  Frame.Show(visible);
  lblTime.Visible = visible;
}

void RoundClock::SetPlace(ui::Point at) {
  Frame.SetPlace({at.x, at.y, Extent.w, Extent.h});
  const int side = Extent.w - 2 * Padding;
  Surface.Place = {at.x + Padding, at.y + Padding, side, side};
  CenterIn(lblTime, {at.x + 2, at.y + Extent.h - TimeHeight - 2, Extent.w - 4, TimeHeight});
}

void RoundClock::InitTimerFace() {
  TimerCenterX = Surface.Place().w / 2;
  TimerCenterY = Surface.Place().h / 2;
  TimerRadius = std::min(TimerCenterX, TimerCenterY) - Rim;
  DrawTimerFace(0);
}

void RoundClock::DrawTimerFace(int angle) {
  Surface.Clear();
  DrawWedge(0, std::min(angle, angle > 180 ? 180 : 90), ui::Lime);
  if (angle > 90 && angle <= 180) DrawWedge(90, angle, ui::Lime);
  if (angle > 180) DrawWedge(180, std::min(angle, 270), ui::Yellow);
  if (angle > 270) DrawLastQuarter(angle);
  DrawOutline();
}

void RoundClock::DrawLastQuarter(int angle) {
  const bool full = angle >= 360;
  flashIsRed_ = full || !flashIsRed_;
  DrawWedge(270, std::min(angle, 360), flashIsRed_ ? ui::Red : ui::White);
  flash_.Enabled = !full;
}

void RoundClock::DrawWedge(double from, double to, ui::Color color) {
  if (to > from) Surface.DrawSector(TimerCenterX, TimerCenterY, TimerRadius, from, to, color);
}

void RoundClock::DrawOutline() {
  const int x = TimerCenterX, y = TimerCenterY, r = TimerRadius;
  Surface.DrawLine(x, y - r, x, y + r, ui::Silver);
  Surface.DrawLine(x, y, x - r, y, ui::Silver);
  Surface.DrawCircle(x, y, r, ui::Black);
}

void RoundClock::MoveTo(int elapsed) {
  Shared& shared = suite_.shared;
  shared.ElapsedSeconds = ClampTo<std::int16_t>(elapsed);
  shared.TimerFaceTick = shared.ElapsedSeconds;
  DrawSecond(elapsed);
}

void RoundClock::WriteTime() {
  lblTime.Text = "Time: " + Digits(suite_.shared.SecondsLeft());
}

int RoundClock::AngleAt(int elapsed) const {
  const int limit = suite_.shared.TimeLimit;
  if (limit <= 0) return 360;
  return static_cast<int>(std::clamp<std::int64_t>(RoundToEven(360.0 / limit * elapsed), 0, 360));
}

}  // namespace core
