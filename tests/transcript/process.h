// The program under test, spoken to through two pipes.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include <sys/types.h>

namespace transcript {

class Process {
 public:
  /// Starts it; throws std::runtime_error if that fails.
  explicit Process(const std::vector<std::string>& words);
  ~Process();
  Process(const Process&) = delete;

  void Send(const std::string& line);
  /// The lines up to `ok` or `no:`, that one included; the last one is `(ended)` if the program is
  /// gone. One that hangs is killed after some minutes.
  std::vector<std::string> ReadAnswer();
  /// Ends its input. What is wrong with its end is returned, empty if nothing is: it must say
  /// nothing more, and end with status 0.
  std::string Finish();

 private:
  bool ReadLine(std::string& line);

  pid_t pid_ = -1;
  std::FILE* in_ = nullptr;
  std::FILE* out_ = nullptr;
};

}  // namespace transcript
