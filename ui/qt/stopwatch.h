// Timing what a player sees, for bench/: from an act to the end of the painting that it causes.
#pragma once

#include <functional>
#include <string>

#include "ui/types.h"

namespace ui::qt {

/// Calls `then` once after so many milliseconds, and after the first frame of any window.
void After(int milliseconds, const std::function<void()>& then);
void AfterFirstFrame(const std::function<void()>& then);

/// What follows gives milliseconds. A window is meant by its name and has to be shown; a point is
/// one of its inner area, in logical pixels. Nothing else is served meanwhile.
double TimeOfClick(const std::string& window, Point at);
double TimeOfMove(const std::string& window, Point at);
/// Painting all of it anew.
double TimeOfRepaint(const std::string& window);
/// From the begin of `open` until the window that it shows is painted; all events are served.
double TimeToFirstFrame(const std::string& window, const std::function<void()>& open);

/// Device pixels to a logical pixel on that window.
double PixelRatio(const std::string& window);

}  // namespace ui::qt
