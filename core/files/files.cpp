// Reading and finding of files, and the faults that tests can set.
#include "core/files/files.h"

#include <fcntl.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>

#include "core/files/system.h"

namespace core {
namespace {

FileFaults* faultsInForce = nullptr;

// Appends all that is left of the file. False with errno set if that fails.
bool ReadRest(const Descriptor& file, std::string& content) {
  for (;;) {
    const std::size_t before = content.size();
    content.resize(before + chunkSize);
    const ssize_t got =
        Retry([&] { return ::read(file.Number(), content.data() + before, chunkSize); });
    content.resize(before + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    if (got <= 0) return got == 0;
    if (content.size() > largestFile) {
      errno = EFBIG;
      return false;
    }
  }
}

std::optional<std::string> ReadRegular(const std::string& path, std::string* error) {
  const auto fail = [error](int code) {
    Fail(code, error);
    return std::nullopt;
  };
  if (!CanBeMeant(path)) return fail(EINVAL);
  // Opened without blocking: a pipe that nobody writes to would hold up the program for ever.
  const Descriptor file(
      Retry([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); }));
  struct stat about {};
  if (!file.IsOpen() || ::fstat(file.Number(), &about) != 0) return fail(errno);
  if (const int reason = ReasonAgainst(about); reason != 0) return fail(reason);
  const auto size = static_cast<std::uintmax_t>(about.st_size);
  if (size > largestFile) return fail(EFBIG);
  std::string content;
  content.reserve(size + chunkSize);
  if (!ReadRest(file, content)) return fail(errno);
  return content;
}

}  // namespace

std::optional<std::string> ReadWhole(const std::string& path, std::string* error) {
  if (faultsInForce != nullptr && faultsInForce->FailRead(FileName(path))) {
    Fail(EACCES, error);
    return std::nullopt;
  }
  return ReadRegular(path, error);
}

bool Exists(const std::string& path) {
  struct stat about {};
  return CanBeMeant(path) && ::stat(path.c_str(), &about) == 0;
}

bool MakeDirectories(const std::string& path) {
  std::error_code ignored;
  std::filesystem::create_directories(path, ignored);
  return std::filesystem::is_directory(path, ignored);
}

bool InstallIfMissing(const std::string& from, const std::string& to) {
  if (Exists(to)) return true;
  const std::optional<std::string> content = ReadRegular(from, nullptr);
  return content && WriteWhole(to, *content);
}

std::string FileName(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

bool WildcardMatch(std::string_view pattern, std::string_view name) {
  std::size_t p = 0;
  std::size_t n = 0;
  std::size_t star = std::string_view::npos;  // the last star passed
  std::size_t taken = 0;                      // where the name went on behind that star
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      taken = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

void SetFileFaults(FileFaults* faults) {
  faultsInForce = faults;
}

bool WriteIsDenied(const std::string& path) {
  return faultsInForce != nullptr && faultsInForce->FailWrite(FileName(path));
}

}  // namespace core
