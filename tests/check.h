// A small test runner: tests register themselves, checks go on after a failure.
//
//   TEST(name) { CHECK(condition); CHECK_EQ(actual, expected); }
//
// Each executable is one or more such files; all but one define CHECK_NO_MAIN before including
// this. Run with words as arguments to run only the tests whose names hold one of them.
#pragma once

#include <exception>
#include <functional>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace check {

struct Test {
  const char* name;
  void (*body)();
};

inline std::vector<Test>& Tests() {
  static std::vector<Test> tests;
  return tests;
}

inline int& FailedChecks() {
  static int count = 0;
  return count;
}

struct Registration {
  Registration(const char* name, void (*body)()) { Tests().push_back({name, body}); }
};

inline std::string Shown(std::string_view text) {
  std::ostringstream out;
  out << '"';
  for (const char c : text.substr(0, 300)) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte != 0x7F) {
      out << c;
    } else {
      out << "\\x"
          << "0123456789ABCDEF"[byte >> 4] << "0123456789ABCDEF"[byte & 15];
    }
  }
  out << '"';
  if (text.size() > 300) out << "... (" << text.size() << " bytes)";
  return out.str();
}

template <class T>
std::string ShownValue(const T& value) {
  std::ostringstream out;
  out.precision(17);
  if constexpr (std::is_same_v<T, std::nullopt_t>) {
    out << "nothing";
  } else if constexpr (requires { std::string_view(value); }) {
    out << Shown(value);
  } else if constexpr (requires { out << value; }) {
    out << std::boolalpha << value;
  } else if constexpr (requires { value.has_value(); }) {
    return value ? ShownValue(*value) : ShownValue(std::nullopt);
  } else if constexpr (requires { value.begin(); }) {
    out << '{';
    for (const auto& each : value) out << ' ' << ShownValue(each);
    out << " }";
  } else {
    out << "(a value)";
  }
  return out.str();
}

template <class A, class B>
bool Equal(const A& actual, const B& expected) {
  constexpr bool numbers = std::is_integral_v<A> && std::is_integral_v<B>;
  if constexpr (numbers && !std::is_same_v<A, B>) {
    return static_cast<std::common_type_t<A, B>>(actual) ==
               static_cast<std::common_type_t<A, B>>(expected) &&
           (actual < A{}) == (expected < B{});
  } else {
    return actual == expected;
  }
}

inline void Failed(const char* file, int line, const std::string& what) {
  ++FailedChecks();
  std::cout << file << ':' << line << ": " << what << std::endl;
}

template <class A, class B>
void CheckEqual(const A& actual, const B& expected, const char* text, const char* file, int line) {
  if (Equal(actual, expected)) return;
  Failed(file, line,
         std::string(text) + " is " + ShownValue(actual) + ", expected " + ShownValue(expected));
}

// Whether the test passed. An exception fails it.
inline bool Run(const Test& test) {
  const int before = FailedChecks();
  try {
    test.body();
  } catch (const std::exception& error) {
    Failed(test.name, 0, std::string("exception: ") + error.what());
  } catch (...) {
    Failed(test.name, 0, "exception of an unknown type");
  }
  const bool passed = FailedChecks() == before;
  if (!passed) std::cout << "FAILED " << test.name << std::endl;
  return passed;
}

inline bool IsWanted(const Test& test, int count, char** words) {
  for (int i = 1; i < count; ++i) {
    if (std::string_view(test.name).find(words[i]) != std::string_view::npos) return true;
  }
  return count <= 1;
}

inline int RunAll(int count, char** words) {
  int passed = 0;
  int failed = 0;
  for (const Test& test : Tests()) {
    if (IsWanted(test, count, words)) ++(Run(test) ? passed : failed);
  }
  std::cout << passed << " passed, " << failed << " failed" << std::endl;
  return failed == 0 && passed > 0 ? 0 : 1;
}

}  // namespace check

#define TEST(name)                                                  \
  static void name();                                               \
  static const check::Registration name##Registration{#name, name}; \
  static void name()

#define CHECK(condition)                                                              \
  do {                                                                                \
    if (!(condition)) check::Failed(__FILE__, __LINE__, #condition " does not hold"); \
  } while (false)

#define CHECK_EQ(actual, expected) check::CheckEqual(actual, expected, #actual, __FILE__, __LINE__)

#ifndef CHECK_NO_MAIN
int main(int count, char** words) {
  return check::RunAll(count, words);
}
#endif
