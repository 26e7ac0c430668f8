// The writing of files: complete under another name first, then renamed over the old file.
#include <fcntl.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "core/files/files.h"
#include "core/files/system.h"

namespace core {

std::function<void(int step)> writeStepForTests;

namespace {

constexpr int mostNamesTried = 1000;

// Names of temporary files hold nothing of the name that is meant, so that no pattern for the one
// finds the other, and a name of the greatest length is no trouble.
std::string TemporaryName(const std::string& directory) {
  static unsigned count = 0;
  return directory + ".pastimo-" + std::to_string(::getpid()) + "-" + std::to_string(++count);
}

// The file that a path stands for, so that a link stays a link when its file is replaced.
std::string BehindLinks(const std::string& path) {
  struct stat about {};
  if (::lstat(path.c_str(), &about) != 0 || !S_ISLNK(about.st_mode)) return path;
  std::error_code failed;
  const std::filesystem::path target = std::filesystem::canonical(path, failed);
  return failed ? path : target.string();
}

// Syncs a file. A file system that knows no syncing is no failure.
bool Sync(const Descriptor& file) {
  return Retry([&] { return ::fsync(file.Number()); }) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// The new content on its way to its name. What has not taken the name is removed in the end.
// Each step returns false with errno set if it fails.
class Replacement {
 public:
  explicit Replacement(const std::string& path)
      : path_(path), directory_(path.substr(0, path.rfind('/') + 1)) {}
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    if (!temporary_.empty()) ::unlink(temporary_.c_str());
  }

  bool Create() {
    TellStep();
    for (int tried = 0; tried < mostNamesTried; ++tried) {
      std::string name = TemporaryName(directory_);
      file_ = Descriptor(Retry(
          [&] { return ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666); }));
      if (file_.IsOpen()) {
        temporary_ = std::move(name);
        return true;
      }
      if (errno != EEXIST) return false;
    }
    return false;
  }

  // The old file's permissions hold for the new one; where they cannot be had, no harm is done.
  void TakePermissions(mode_t mode) {
    TellStep();
    static_cast<void>(::fchmod(file_.Number(), mode & 07777));
  }

  bool Write(std::string_view content) {
    while (!content.empty()) {
      TellStep();
      const std::size_t size = std::min(content.size(), chunkSize);
      const ssize_t put = Retry([&] { return ::write(file_.Number(), content.data(), size); });
      if (put == 0) errno = EIO;
      if (put <= 0) return false;
      content.remove_prefix(static_cast<std::size_t>(put));
    }
    TellStep();
    if (!Sync(file_)) return false;
    TellStep();
    return file_.Close();
  }

  bool TakeName() {
    TellStep();
    if (std::rename(temporary_.c_str(), path_.c_str()) != 0) return false;
    temporary_.clear();
    TellStep();
    SyncDirectory();
    TellStep();
    return true;
  }

 private:
  // The new name is made lasting. It is in force by now, so a failure changes nothing.
  void SyncDirectory() {
    const std::string name = directory_.empty() ? "." : directory_;
    const Descriptor directory(
        Retry([&] { return ::open(name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (directory.IsOpen()) Sync(directory);
  }

  void TellStep() {
    if (writeStepForTests) writeStepForTests(step_);
    ++step_;
  }

  std::string path_;
  std::string directory_;
  std::string temporary_;
  Descriptor file_;
  int step_ = 0;
};

}  // namespace

bool WriteWhole(const std::string& path, std::string_view content, std::string* error) {
  if (!CanBeMeant(path)) return Fail(EINVAL, error);
  if (WriteIsDenied(path)) return Fail(EACCES, error);
  struct stat old {};
  const bool replaces = ::stat(path.c_str(), &old) == 0;
  if (replaces) {
    if (const int reason = ReasonAgainst(old); reason != 0) return Fail(reason, error);
    if (::access(path.c_str(), W_OK) != 0) return Fail(errno, error);
  }
  Replacement replacement(BehindLinks(path));
  if (!replacement.Create()) return Fail(errno, error);
  if (replaces) replacement.TakePermissions(old.st_mode);
  if (!replacement.Write(content)) return Fail(errno, error);
  return replacement.TakeName() || Fail(errno, error);
}

}  // namespace core
