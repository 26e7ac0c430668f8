// The one door to files: nothing else in the program opens, writes or looks for one.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace core {

// The largest file that ReadWhole takes, in bytes.
inline constexpr std::size_t largestFile = 256u << 20;

// The whole content of a regular file, following links. On failure nothing, with the system's
// error text in *error if error is given: no such file, a directory, a device, too large.
std::optional<std::string> ReadWhole(const std::string& path, std::string* error = nullptr);

// Replaces the whole file, or makes it. The content is complete on disk under another name before
// it takes the file's name, so whatever ends the program, the file is the old one or the new one.
// On failure the old file is as it was, nothing is left beside it, and *error, if given, holds the
// system's error text. A file that may not be written, a directory and a device are refused.
bool WriteWhole(const std::string& path, std::string_view content, std::string* error = nullptr);

// Whether there is anything of that name.
bool Exists(const std::string& path);

// Makes the directory and all above it. True if it is there afterwards.
bool MakeDirectories(const std::string& path);

// Copies a file to a place where there is none yet; what is there is never touched. True if there
// is a file afterwards.
bool InstallIfMissing(const std::string& from, const std::string& to);

// The name of a file without its directory.
std::string FileName(const std::string& path);

// Whether the whole name fits a pattern in which '*' stands for any characters, or none, and '?'
// for any one. All else is compared exactly.
bool WildcardMatch(std::string_view pattern, std::string_view name);

// Asked before each file is opened, by the name of the file that is meant, without its directory:
// true makes ReadWhole or WriteWhole fail as if the system had denied permission. A copy by
// InstallIfMissing asks only for the file that it makes.
struct FileFaults {
  virtual ~FileFaults() = default;
  virtual bool FailRead(std::string_view /*fileName*/) { return false; }
  virtual bool FailWrite(std::string_view /*fileName*/) { return false; }
};

// From now on these faults are asked; none with nullptr. The caller owns them and outlives the use.
void SetFileFaults(FileFaults* faults);

// For tests: called in WriteWhole between any two steps that change something on disk, with the
// count of steps done, from 0. Not called while empty.
extern std::function<void(int step)> writeStepForTests;

}  // namespace core
