// A small test runner: tests register themselves, checks go on after a failure.
//
//   TEST(name) { CHECK(condition); CHECK_EQ(actual, expected); }
//
// Each executable is one or more such files; all but one define CHECK_NO_MAIN before including
// this. Run with a word as argument to run only the tests whose names hold it.
#pragma once

#include <cstdint>
#include <exception>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace check {

struct Test {
  const char* name;
  void (*body)();
};

inline std::vector<Test> tests;
inline int failedChecks = 0;

struct Registration {
  Registration(const char* name, void (*body)()) { tests.push_back({name, body}); }
};

inline std::string Shown(std::string_view text) {
  std::ostringstream out;
  out << '"' << std::uppercase << std::hex;
  for (const char c : text.substr(0, 300)) {
    const bool plain = c >= 0x20 && c != 0x7F;
    plain ? out << c : out << "\\x" << (c >> 4 & 15) << (c & 15);
  }
  out << (text.size() > 300 ? "\"..." : "\"");
  return out.str();
}

template <class T>
std::string ShownValue(const T& value) {
  std::ostringstream out;
  out.precision(17);
  if constexpr (requires { std::string_view(value); }) {
    out << Shown(value);
  } else if constexpr (requires { out << value; }) {
    out << std::boolalpha << value;
  } else if constexpr (requires { value.has_value(); }) {
    return value ? ShownValue(*value) : "nothing";
  } else if constexpr (requires { value.begin(); }) {
    for (const auto& each : value) out << "[" << ShownValue(each) << "]";
  }
  return out.str();
}

template <class A, class B>
bool Equal(const A& actual, const B& expected) {
  if constexpr (std::is_integral_v<A> && std::is_integral_v<B> && !std::is_same_v<A, B>) {
    return std::int64_t(actual) == std::int64_t(expected) && (actual < A{}) == (expected < B{});
  } else {
    return actual == expected;
  }
}

inline void Failed(const char* file, int line, const std::string& what) {
  ++failedChecks;
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
  const int before = failedChecks;
  try {
    test.body();
  } catch (const std::exception& error) {
    Failed(test.name, 0, std::string("exception: ") + error.what());
  }
  if (failedChecks > before) std::cout << "FAILED " << test.name << std::endl;
  return failedChecks == before;
}

// Runs the tests whose names hold the word, the empty one for all.
inline int RunAll(const std::string& word) {
  int passed = 0, failed = 0;
  for (const Test& test : tests) {
    if (std::string(test.name).find(word) == std::string::npos) continue;
    ++(Run(test) ? passed : failed);
  }
  std::cout << passed << " passed, " << failed << " failed" << std::endl;
  return failed == 0 && passed > 0 ? 0 : 1;
}

}  // namespace check

#define TEST(name)                                                  \
  static void name();                                               \
  static const check::Registration name##Registration{#name, name}; \
  static void name()

#define CHECK(condition) \
  ((condition) ? void() : check::Failed(__FILE__, __LINE__, #condition " does not hold"))

#define CHECK_EQ(actual, expected) check::CheckEqual(actual, expected, #actual, __FILE__, __LINE__)

#ifndef CHECK_NO_MAIN
int main(int count, char** words) {
  return check::RunAll(count > 1 ? words[1] : "");
}
#endif
