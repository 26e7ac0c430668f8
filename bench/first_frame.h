// Ending a program when its first frame is painted, and telling what it took.
#pragma once

/// From now on the first window that has been painted ends the program. With an argument of "stay"
/// the program goes on for some seconds instead, and tells its memory and processor time.
void EndWithFirstFrame(bool stay);
