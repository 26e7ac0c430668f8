// What the file routines share of the system's calls. Not for use outside core/files.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace core {

inline constexpr std::size_t chunkSize = 256u << 10;

// Repeats a system call that a signal has interrupted.
template <class Call>
auto Retry(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

// Gives the system's text for the error, where one is wanted; always false.
inline bool Fail(int code, std::string* error) {
  if (error != nullptr) *error = std::generic_category().message(code);
  return false;
}

// Owns an open file; -1 is none.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&& other) noexcept {
    Close();
    number_ = std::exchange(other.number_, -1);
    return *this;
  }
  ~Descriptor() { Close(); }

  bool IsOpen() const { return number_ != -1; }
  int Number() const { return number_; }

  // False with errno set if the system reports an error that it had kept back until now. Never
  // repeated: the number is free in any case.
  bool Close() {
    const int number = std::exchange(number_, -1);
    return number == -1 || ::close(number) == 0 || errno == EINTR;
  }

 private:
  int number_;
};

// A path with a zero byte would reach the system cut short and mean another file.
inline bool CanBeMeant(const std::string& path) {
  return path.find('\0') == std::string::npos;
}

// 0, or the error for what is no file to read from or to replace.
inline int ReasonAgainst(const struct stat& about) {
  if (S_ISDIR(about.st_mode)) return EISDIR;
  return S_ISREG(about.st_mode) ? 0 : EINVAL;
}

// Whether the faults in force deny opening this file for output.
bool WriteIsDenied(const std::string& path);

}  // namespace core
