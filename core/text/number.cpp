// Reading and showing of numbers.
#include "core/text/number.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace core {
namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// A number without a sign that from_chars found to be out of range: too large or too small.
double OutOfRange(std::string_view number) {
  const std::string_view whole = number.substr(0, number.find('.'));
  const bool large = whole.find_first_not_of('0') != std::string_view::npos;
  return large ? std::numeric_limits<double>::max() : 0;
}

}  // namespace

double NumberIn(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  const bool negative = !text.empty() && text.front() == '-';
  if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
  // from_chars alone would take "inf" and "nan" as well; it stops at a second point by itself.
  text = text.substr(0, text.find_first_not_of("0123456789."));

  double value = 0;
  const auto result =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (result.ec == std::errc::result_out_of_range) value = OutOfRange(text);
  return negative && value != 0 ? -value : value;
}

std::int64_t WholeIn(std::string_view text) {
  return RoundToEven(NumberIn(text));
}

std::int64_t RoundToEven(double value) {
  constexpr double limit = 9223372036854775808.0;  // 2 to the 63rd, the first that does not fit
  if (std::isnan(value)) return 0;
  const double rounded = std::nearbyint(value);
  if (rounded >= limit) return std::numeric_limits<std::int64_t>::max();
  if (rounded < -limit) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(rounded);
}

std::string Digits(std::int64_t value) {
  return std::to_string(value);
}

std::string Masked(std::int64_t value) {
  std::string text = Digits(value);
  const std::size_t first = value < 0 ? 1 : 0;
  for (std::size_t at = text.size(); at > first + 3;) {
    at -= 3;
    text.insert(at, 1, ',');
  }
  return text;
}

std::string Percent(float value) {
  const double scaled = std::clamp(static_cast<double>(value) * 100, -9e18, 9e18);
  if (std::isnan(scaled)) return ".";
  const long long cents = std::llround(scaled);
  const long long size = std::llabs(cents);

  std::string text = cents < 0 ? "-" : "";
  if (size >= 100) text += std::to_string(size / 100);
  text += '.';
  if (size % 100 != 0) text += static_cast<char>('0' + size % 100 / 10);
  if (size % 10 != 0) text += static_cast<char>('0' + size % 10);
  return text;
}

std::int64_t Product(std::int64_t a, std::int64_t b) {
  std::int64_t product = 0;
  if (!__builtin_mul_overflow(a, b, &product)) return product;
  using Limits = std::numeric_limits<std::int64_t>;
  return (a < 0) == (b < 0) ? Limits::max() : Limits::min();
}

std::string NumberText(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.15g", value);
  return text;
}

}  // namespace core
