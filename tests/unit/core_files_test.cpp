// Tests of the file routines: whatever goes wrong, a file is the old one or the new one.
#define CHECK_NO_MAIN
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "core/files/files.h"
#include "tests/check.h"

using namespace core;
namespace fs = std::filesystem;

namespace {

// A directory of its own for each test.
class Scratch {
 public:
  Scratch() {
    std::string name = (fs::temp_directory_path() / "core-files-XXXXXX").string();
    path_ = ::mkdtemp(name.data());
  }
  ~Scratch() { fs::remove_all(path_); }

  std::string operator/(const std::string& name) const { return path_ + "/" + name; }
  int Entries() const {
    return static_cast<int>(std::distance(fs::directory_iterator(path_), fs::directory_iterator()));
  }

 private:
  std::string path_;
};

// Runs the action in a child process and gives its wait status. The child leaves by _exit, 0 if
// the action said true.
template <class Action>
int StatusOfChild(Action action) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(action() ? 0 : 1);
  int status = -1;
  while (::waitpid(child, &status, 0) == -1 && errno == EINTR) continue;
  return status;
}

}  // namespace

TEST(AKilledWriterLeavesTheOldFileOrTheNewOne) {
  const std::string newContent(700000, 'n');  // several writes
  for (const bool there : {true, false}) {
    int step = 0, olds = 0, news = 0;
    for (bool finished = false; !finished && step < 100; ++step) {
      const Scratch scratch;
      const std::string path = scratch / "Quindle.Ini";
      if (there) CHECK(WriteWhole(path, "old"));
      const int status = StatusOfChild([&] {
        writeStepForTests = [step](int at) {
          if (at == step) ::raise(SIGKILL);
        };
        return WriteWhole(path, newContent);
      });
      finished = WIFEXITED(status);
      const std::optional<std::string> content = ReadWhole(path);
      const bool isNew = content == newContent;
      CHECK(isNew || (!finished && (there ? content == "old" : !Exists(path))));
      ++(isNew ? news : olds);
      // What a killed writer left behind may not stand in the way of the next.
      CHECK(WriteWhole(path, "next") && ReadWhole(path) == "next");
    }
    CHECK(olds >= 7 && news >= 3 && step < 100);
  }
}

TEST(WhatAKilledNamesakeLeftIsNotInTheWay) {
  const Scratch scratch;  // in a container each run of the program can have the same process id
  for (int i = 1; i <= 300; ++i) {
    const std::string leftOver = ".pastimo-" + std::to_string(::getpid()) + "-" + std::to_string(i);
    std::ofstream(scratch / leftOver) << "half";
  }
  CHECK(WriteWhole(scratch / "User.ini", "whole") && scratch.Entries() == 301);
}

TEST(AWriteThatFailsKeepsTheOldFile) {
  const Scratch scratch;
  const std::string path = scratch / "User.ini", longName(300, 'l');
  CHECK(WriteWhole(path, "old"));
  const int status = StatusOfChild([&] {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{400000, 400000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::string error;
    return !WriteWhole(path, std::string(700000, 'n'), &error) && error == "File too large";
  });
  CHECK(status == 0 && ReadWhole(path) == "old");

  for (const auto& [name, expected] : {std::pair{"no/such/file", "No such file or directory"},
                                       {"", "Is a directory"},
                                       {longName.c_str(), "File name too long"}}) {
    std::string writing, reading;
    CHECK(!WriteWhole(scratch / name, "x", &writing) && !ReadWhole(scratch / name, &reading));
    CHECK_EQ(writing + reading, std::string(expected) + expected);
  }
  CHECK(!WriteWhole("", "x") && !WriteWhole(path + std::string("\0x", 2), "x"));
  CHECK_EQ(::mkfifo((scratch / "pipe").c_str(), 0600), 0);
  CHECK(!WriteWhole(scratch / "pipe", "x") && !ReadWhole(scratch / "pipe"));
  CHECK_EQ(scratch.Entries(), 2);
}

TEST(AFileKeepsItsPermissionsItsLinkAndItsBytes) {
  const Scratch scratch;
  const std::string real = scratch / "real", link = scratch / "link";
  std::string content;
  for (int i = 0; i < 1000000; ++i) content += static_cast<char>(i * 7);
  CHECK(WriteWhole(real, content) && ::chmod(real.c_str(), 0640) == 0);
  fs::create_symlink("real", link);
  CHECK_EQ(ReadWhole(link), content);
  content.resize(262144);
  CHECK(WriteWhole(link, content) && fs::is_symlink(link));
  CHECK_EQ(ReadWhole(real), content);
  CHECK(fs::status(real).permissions() == fs::perms(0640));
  fs::resize_file(real, largestFile + 1);
  std::string error;
  CHECK(!ReadWhole("/dev/zero") && !ReadWhole(real, &error));
  CHECK_EQ(error, "File too large");
}

TEST(InstallingTouchesNothingThatIsThere) {
  const Scratch scratch;
  CHECK(MakeDirectories(scratch / "a/b/c") && MakeDirectories(scratch / "a/b/c"));
  CHECK(WriteWhole(scratch / "from", "installed") && !MakeDirectories(scratch / "from/x"));
  const std::string to = scratch / "a/b/c/to";
  CHECK(InstallIfMissing(scratch / "from", to) && ReadWhole(to) == "installed");
  CHECK(WriteWhole(to, "changed"));
  CHECK(InstallIfMissing(scratch / "from", to) && ReadWhole(to) == "changed");
  CHECK(!InstallIfMissing(scratch / "missing", scratch / "other") && !Exists(scratch / "other"));
}

TEST(FaultsAreAskedByTheNameThatIsMeant) {
  struct Patterns : FileFaults {
    std::string write;
    bool FailRead(std::string_view) override { return false; }
    bool FailWrite(std::string_view name) override { return WildcardMatch(write, name); }
  } faults;
  const Scratch scratch;
  SetFileFaults(&faults);
  faults.write = ".*";  // no fault for the names that stand in between
  CHECK(WriteWhole(scratch / "User.ini", "old"));
  faults.write = "U*";
  CHECK(!WriteWhole(scratch / "User.ini", "new"));
  SetFileFaults(nullptr);
  CHECK(ReadWhole(scratch / "User.ini") == "old" && scratch.Entries() == 1);

  for (const char* fits : {"*", "GMP.Dat", "G*", "*.Dat", "???.Dat", "*M*.*t", "G**?.D*"}) {
    CHECK(WildcardMatch(fits, "GMP.Dat"));
  }
  for (const char* fails : {"", "gmp.dat", "?", "*.dat", "????.Dat", "GMP.Dat?", "*x*", "*.D"}) {
    CHECK(!WildcardMatch(fails, "GMP.Dat"));
  }
}
