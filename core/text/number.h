// Numbers as text: tolerant reading, rounding, and the masks in which numbers are shown.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

namespace core {

// The number at the start of a text: leading blanks are skipped, then a sign, digits and a point
// are taken up to the first character that does not fit. A text without a number gives 0. Never
// fails; what is too large for a double gives the largest double of that sign.
double NumberIn(std::string_view text);

// NumberIn, rounded to the nearest whole number, ties to even, kept within 64 bits.
std::int64_t WholeIn(std::string_view text);

// The product, kept within 64 bits.
std::int64_t Product(std::int64_t a, std::int64_t b);

// The nearest whole number, ties to even; what leaves 64 bits is clamped, a NaN gives 0.
std::int64_t RoundToEven(double value);

// The value, or the nearest one that T can hold.
template <class T>
T ClampTo(std::int64_t value) {
  static_assert(std::is_integral_v<T> && sizeof(T) <= sizeof(std::int64_t));
  constexpr std::int64_t low = std::is_signed_v<T> ? std::numeric_limits<T>::min() : 0;
  constexpr std::int64_t high = sizeof(T) == sizeof(std::int64_t)
                                    ? std::numeric_limits<std::int64_t>::max()
                                    : static_cast<std::int64_t>(std::numeric_limits<T>::max());
  return static_cast<T>(std::clamp(value, low, high));
}

// Plain decimal digits, with '-' before a negative number and no blank: 1234567 is "1234567".
std::string Digits(std::int64_t value);

// A number as a text field shows it: without a point if it is whole, as "2.5" if not.
std::string NumberText(double value);

// The mask "###,###,###,##0": 1234567 is "1,234,567", 0 is "0".
std::string Masked(std::int64_t value);

// The mask "###.##": at most two decimals, an exact half rounded away from zero. The point always
// stands and a zero before it never does: 0 is ".", 0.5 is ".5", 12 is "12.".
std::string Percent(float value);

}  // namespace core
