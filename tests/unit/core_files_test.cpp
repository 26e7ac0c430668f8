// Tests of the file routines: whatever goes wrong, a file is the old one or the new one.
#define CHECK_NO_MAIN
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

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
    int step = 0;
    int olds = 0;
    int news = 0;
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
      CHECK(isNew || (there ? content == "old" : !Exists(path)));
      CHECK(isNew || !finished);
      ++(isNew ? news : olds);
      // What a killed writer left behind may not stand in the way of the next.
      CHECK(WriteWhole(path, "next"));
      CHECK_EQ(ReadWhole(path), "next");
    }
    CHECK(olds >= 7 && news >= 3 && step < 100);
  }
}

TEST(WhatAKilledNamesakeLeftIsNotInTheWay) {
  const Scratch scratch;  // in a container each run of the program can have the same process id
  for (int i = 1; i <= 300; ++i) {
    const std::string leftOver = ".pastimo-" + std::to_string(::getpid()) + "-" + std::to_string(i);
    CHECK(WriteWhole(scratch / leftOver, "half"));
  }
  CHECK(WriteWhole(scratch / "User.ini", "whole"));
  CHECK_EQ(scratch.Entries(), 301);
}

TEST(AWriteThatFailsKeepsTheOldFile) {
  const Scratch scratch;
  const std::string path = scratch / "User.ini";
  CHECK(WriteWhole(path, "old"));
  CHECK_EQ(::chmod(path.c_str(), 0640), 0);
  const int status = StatusOfChild([&] {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{400000, 400000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::string error;
    return !WriteWhole(path, std::string(700000, 'n'), &error) && error == "File too large";
  });
  CHECK_EQ(status, 0);
  CHECK_EQ(ReadWhole(path), "old");
  CHECK_EQ(scratch.Entries(), 1);

  std::string error;
  CHECK(!WriteWhole(scratch / "no/such/file", "x", &error));
  CHECK_EQ(error, "No such file or directory");
  CHECK(!WriteWhole(scratch / "", "x", &error));
  CHECK_EQ(error, "Is a directory");
  CHECK(!WriteWhole(scratch / std::string(300, 'l'), "x", &error));
  CHECK_EQ(error, "File name too long");
  CHECK(!WriteWhole("", "x") && !WriteWhole(path + std::string("\0x", 2), "x"));
  CHECK_EQ(::mkfifo((scratch / "pipe").c_str(), 0600), 0);
  CHECK(!WriteWhole(scratch / "pipe", "x"));
  CHECK(!ReadWhole(scratch / "pipe"));
  CHECK_EQ(scratch.Entries(), 2);
}

TEST(AFileKeepsItsPermissionsItsLinkAndItsBytes) {
  const Scratch scratch;
  const std::string real = scratch / "real";
  const std::string link = scratch / "link";
  std::string content;
  for (int i = 0; i < 1000000; ++i) content += static_cast<char>(i * 7);
  CHECK(WriteWhole(real, content));
  CHECK_EQ(::chmod(real.c_str(), 0640), 0);
  fs::create_symlink("real", link);
  CHECK_EQ(ReadWhole(link), content);
  content.resize(262144);
  CHECK(WriteWhole(link, content));
  CHECK(fs::is_symlink(link));
  CHECK_EQ(ReadWhole(real), content);
  CHECK(fs::status(real).permissions() == fs::perms(0640));
  std::string error;
  CHECK(!ReadWhole(scratch / "missing", &error));
  CHECK_EQ(error, "No such file or directory");
  CHECK(!ReadWhole(scratch / "", &error));
  CHECK_EQ(error, "Is a directory");
  CHECK(!ReadWhole("/dev/zero", &error));
  fs::resize_file(real, largestFile + 1);
  CHECK(!ReadWhole(real, &error));
  CHECK_EQ(error, "File too large");
}

TEST(InstallingTouchesNothingThatIsThere) {
  const Scratch scratch;
  CHECK(MakeDirectories(scratch / "a/b/c") && MakeDirectories(scratch / "a/b/c"));
  CHECK(WriteWhole(scratch / "from", "installed"));
  CHECK(!MakeDirectories(scratch / "from/x"));
  CHECK(InstallIfMissing(scratch / "from", scratch / "a/b/c/to"));
  CHECK_EQ(ReadWhole(scratch / "a/b/c/to"), "installed");
  CHECK(WriteWhole(scratch / "a/b/c/to", "changed"));
  CHECK(InstallIfMissing(scratch / "from", scratch / "a/b/c/to"));
  CHECK_EQ(ReadWhole(scratch / "a/b/c/to"), "changed");
  CHECK(!InstallIfMissing(scratch / "missing", scratch / "other") && !Exists(scratch / "other"));
}

TEST(FaultsAreAskedByTheNameThatIsMeant) {
  struct Patterns : FileFaults {
    std::string read, write;
    bool FailRead(std::string_view name) override { return WildcardMatch(read, name); }
    bool FailWrite(std::string_view name) override { return WildcardMatch(write, name); }
  } faults;
  const Scratch scratch;
  CHECK(WriteWhole(scratch / "Harvel Hi Score Table 90.Txt", "old"));
  SetFileFaults(&faults);
  faults.write = "*Hi Score Table ??.Txt";
  std::string error;
  CHECK(!WriteWhole(scratch / "Harvel Hi Score Table 90.Txt", "new", &error));
  CHECK_EQ(error, "Permission denied");
  CHECK_EQ(ReadWhole(scratch / "Harvel Hi Score Table 90.Txt"), "old");
  faults.write = ".*";  // no fault for the names that stand in between
  CHECK(WriteWhole(scratch / "User.ini", "u"));
  faults.read = "U*";
  CHECK(!ReadWhole(scratch / "User.ini", &error));
  CHECK(Exists(scratch / "User.ini"));
  SetFileFaults(nullptr);
  CHECK_EQ(ReadWhole(scratch / "User.ini"), "u");
  CHECK_EQ(scratch.Entries(), 2);

  for (const char* fits : {"*", "GMP.Dat", "G*", "*.Dat", "???.Dat", "*M*.*t", "G**?.D*"}) {
    CHECK(WildcardMatch(fits, "GMP.Dat"));
  }
  for (const char* fails : {"", "gmp.dat", "?", "*.dat", "????.Dat", "GMP.Dat?", "*x*", "*.D"}) {
    CHECK(!WildcardMatch(fails, "GMP.Dat"));
  }
}
