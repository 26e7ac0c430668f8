// The round clock as a pie in its frame, with the seconds left written below it.
#pragma once

#include "core/session/counter_box.h"
#include "core/suite/suite.h"

namespace core {

/// Draws the clock of the shared values TimeLimit, ElapsedSeconds and TimerFaceTick. The timers
/// that move it belong to the window.
class RoundClock {
 public:
  /// `flash` repeats the drawing in the last quarter of the time; it is switched on and off here.
  RoundClock(ui::Window* window, Suite& suite, ui::Timer& flash);

  SunkenFrame Frame;
  ui::Surface Surface;
  ui::Label lblTime;

  void ShowTimerGroup(bool visible);
  void SetPlace(ui::Point at);
  static constexpr ui::Size Extent{84, 104};

  /// Computes the geometry from the surface and draws the empty clock.
  void InitTimerFace();
  /// Draws the clock with a wedge of `angle` degrees, 0 to 360, used up.
  void DrawTimerFace(int angle);
  /// Draws the clock as it is after so many seconds.
  void DrawSecond(int elapsed) { DrawTimerFace(AngleAt(elapsed)); }
  /// Moves ElapsedSeconds and TimerFaceTick to `elapsed` and draws it.
  void MoveTo(int elapsed);
  /// The flash timer's tick: draws the same time once more, in the other colour.
  void Flash() { DrawSecond(suite_.shared.TimerFaceTick); }
  void WriteTime();  ///< "Time: " and the seconds left

 private:
  int AngleAt(int elapsed) const;
  void DrawWedge(double from, double to, ui::Color color);
  void DrawLastQuarter(int angle);
  void DrawOutline();

  Suite& suite_;
  ui::Timer& flash_;
  int TimerCenterX = 0;
  int TimerCenterY = 0;
  int TimerRadius = 0;
  bool flashIsRed_ = true;
};

}  // namespace core
