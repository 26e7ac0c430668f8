// Starting a program, sending it lines and reading its answers.
#include "tests/transcript/process.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace transcript {
namespace {

constexpr unsigned Patience = 300;  // seconds: a program that hangs is killed by its own alarm

[[noreturn]] void Become(const std::vector<std::string>& words, int in, int out) {
  std::vector<char*> arguments;
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  dup2(in, STDIN_FILENO);
  dup2(out, STDOUT_FILENO);
  alarm(Patience);
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
  in_ = fdopen(toIt[1], "w");
  out_ = fdopen(fromIt[0], "r");
}

Process::~Process() {
  if (in_) fclose(in_);
  fclose(out_);
  if (pid_ > 0) {
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
  }
}

void Process::Send(const std::string& line) {
  // If it is gone, its answer will tell.
  fputs((line + "\n").c_str(), in_);
  fflush(in_);
}

bool Process::ReadLine(std::string& line) {
  line.clear();
  int c = 0;
  while ((c = getc(out_)) != EOF && c != '\n') line.push_back(static_cast<char>(c));
  return c != EOF;
}

std::vector<std::string> Process::ReadAnswer() {
  std::vector<std::string> lines;
  for (std::string line; ReadLine(line);) {
    lines.push_back(line);
    if (line == "ok" || line.starts_with("no: ")) return lines;
  }
  lines.push_back("(ended)");
  return lines;
}

std::string Process::Finish() {
  fclose(in_);
  in_ = nullptr;
  std::string line;
  if (ReadLine(line)) return "it says at its end: " + line;
  int status = 0;
  waitpid(pid_, &status, 0);
  pid_ = -1;
  if (WIFSIGNALED(status)) return "it was ended by signal " + std::to_string(WTERMSIG(status));
  if (WEXITSTATUS(status) != 0) return "it ended with " + std::to_string(WEXITSTATUS(status));
  return {};
}

}  // namespace transcript
