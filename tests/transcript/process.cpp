// Starting a program, sending it lines and reading its answers with a limit of time.
#include "tests/transcript/process.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace transcript {
namespace {

constexpr int Patience = 60000;  // milliseconds

[[noreturn]] void Become(const std::vector<std::string>& words, int in, int out) {
  std::vector<char*> arguments;
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  dup2(in, STDIN_FILENO);
  dup2(out, STDOUT_FILENO);
  execv(arguments[0], arguments.data());
  _exit(127);
}

}  // namespace

Process::Process(const std::vector<std::string>& words) {
  std::signal(SIGPIPE, SIG_IGN);
  int toIt[2], fromIt[2];
  if (pipe(toIt) != 0 || pipe(fromIt) != 0) throw std::runtime_error("no pipe");
  pid_ = fork();
  if (pid_ < 0) throw std::runtime_error("no process");
  if (pid_ == 0) {
    close(toIt[1]);
    close(fromIt[0]);
    Become(words, toIt[0], fromIt[1]);
  }
  close(toIt[0]);
  close(fromIt[1]);
  in_ = toIt[1];
  out_ = fromIt[0];
}

Process::~Process() {
  if (in_ >= 0) close(in_);
  if (out_ >= 0) close(out_);
  if (pid_ > 0) {
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
  }
}

void Process::Send(const std::string& line) {
  const std::string text = line + "\n";
  for (std::size_t sent = 0; sent < text.size();) {
    const ssize_t count = write(in_, text.data() + sent, text.size() - sent);
    if (count <= 0) return;  // it is gone, which its answer will tell
    sent += static_cast<std::size_t>(count);
  }
}

Process::Got Process::ReadLine(std::string& line) {
  while (true) {
    const auto end = pending_.find('\n');
    if (end != std::string::npos) {
      line = pending_.substr(0, end);
      pending_.erase(0, end + 1);
      return Got::Line;
    }
    pollfd ready{out_, POLLIN, 0};
    if (poll(&ready, 1, Patience) <= 0) return Got::Nothing;
    char buffer[65536];
    const ssize_t count = read(out_, buffer, sizeof buffer);
    if (count <= 0) return Got::End;
    pending_.append(buffer, static_cast<std::size_t>(count));
  }
}

std::vector<std::string> Process::ReadAnswer() {
  std::vector<std::string> lines;
  std::string line;
  while (true) {
    const Got got = ReadLine(line);
    if (got != Got::Line) {
      lines.push_back(got == Got::End ? "(ended)" : "(no answer)");
      return lines;
    }
    lines.push_back(line);
    if (line == "ok" || line.starts_with("no: ")) return lines;
  }
}

std::string Process::Finish() {
  close(in_);
  in_ = -1;
  std::string line;
  const Got got = ReadLine(line);
  if (got == Got::Line) return "it says at its end: " + line;
  if (got == Got::Nothing) return "it does not end";
  int status = 0;
  waitpid(pid_, &status, 0);
  pid_ = -1;
  if (WIFSIGNALED(status)) return "it was ended by signal " + std::to_string(WTERMSIG(status));
  if (WEXITSTATUS(status) != 0) return "it ended with " + std::to_string(WEXITSTATUS(status));
  return {};
}

}  // namespace transcript
