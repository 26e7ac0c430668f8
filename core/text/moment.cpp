// Moments of the wall clock.
#include "core/text/moment.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

namespace core {
namespace {

constexpr std::int64_t secondsPerDay = 24 * 60 * 60;
constexpr int firstYear = 1;
constexpr int lastYear = 9999;

constexpr std::array<const char*, 12> monthNames = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

int HourOfTwelve(const Moment& moment) {
  const int hour = moment.hour % 12;
  return hour == 0 ? 12 : hour;
}

std::int64_t DaysSince1970(const Moment& moment) {
  using namespace std::chrono;
  const year_month_day firstOfMonth{year{std::clamp(moment.year, firstYear, lastYear)},
                                    month{static_cast<unsigned>(std::clamp(moment.month, 1, 12))},
                                    day{1}};
  return sys_days{firstOfMonth}.time_since_epoch().count() + (moment.day - std::int64_t{1});
}

}  // namespace

std::string ClockText(const Moment& moment) {
  std::array<char, 40> text;
  std::snprintf(text.data(), text.size(), "%d:%02d %s", HourOfTwelve(moment), moment.minute,
                moment.hour < 12 ? "AM" : "PM");
  return text.data();
}

std::string TableDate(const Moment& moment) {
  const auto monthIndex = static_cast<std::size_t>(std::clamp(moment.month, 1, 12) - 1);
  std::array<char, 80> text;
  std::snprintf(text.data(), text.size(), "%s %02d %04d %02d:%02d %s", monthNames[monthIndex],
                moment.day, moment.year, HourOfTwelve(moment), moment.minute,
                moment.hour < 12 ? "am" : "pm");
  return text.data();
}

std::int64_t SecondsSince1970(const Moment& moment) {
  return DaysSince1970(moment) * secondsPerDay + std::int64_t{moment.hour} * 3600 +
         std::int64_t{moment.minute} * 60 + moment.second;
}

Moment MomentAt(std::int64_t secondsSince1970) {
  using namespace std::chrono;
  static const std::int64_t first = SecondsSince1970({firstYear, 1, 1, 0, 0, 0});
  static const std::int64_t last = SecondsSince1970({lastYear, 12, 31, 23, 59, 59});
  const seconds whole{std::clamp(secondsSince1970, first, last)};
  const sys_days date = floor<days>(sys_seconds{whole});
  const year_month_day ymd{date};
  const hh_mm_ss time{sys_seconds{whole} - date};
  return {static_cast<int>(ymd.year()),
          static_cast<int>(static_cast<unsigned>(ymd.month())),
          static_cast<int>(static_cast<unsigned>(ymd.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count())};
}

}  // namespace core
