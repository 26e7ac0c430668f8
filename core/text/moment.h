// A moment of the wall clock, and the forms in which it is shown and stored.
#pragma once

#include <cstdint>
#include <string>

namespace core {

// A date of the civil calendar with a time of day, of no time zone. Month and day count from 1.
struct Moment {
  int year = 1970;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;

  bool operator==(const Moment&) const = default;
};

// "h:mm AMPM", as "12:05 PM".
std::string ClockText(const Moment& moment);

// "mmm dd yyyy hh:mm am/pm", as "Jan 01 2000 12:00 am".
std::string TableDate(const Moment& moment);

// Seconds since the start of 1970, negative before it. Fields out of their range carry over, as
// second 75 into the next minute; a month or year that is far out is clamped.
std::int64_t SecondsSince1970(const Moment& moment);

// The moment so many seconds after the start of 1970, kept within the years 1 to 9999.
Moment MomentAt(std::int64_t secondsSince1970);

}  // namespace core
