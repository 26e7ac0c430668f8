// run_transcript: plays scripts with a program, and compares what it answers with the transcripts.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>

#include "tests/transcript/compare.h"
#include "tests/transcript/process.h"
#include "tests/transcript/talk.h"

namespace transcript {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Home = "$HOME_DIR";

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
  for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

/// A fresh directory that goes when this goes.
class TemporaryHome {
 public:
  TemporaryHome() {
    std::string name = (fs::temp_directory_path() / "transcript-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no temporary directory");
    path = fs::canonical(name).string();
  }
  ~TemporaryHome() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  std::string path;
};

/// The words of a command line; those between double quotes are one.
std::vector<std::string> SplitArgs(const std::string& text) {
  std::vector<std::string> words;
  bool quoted = false, inWord = false;
  for (const char c : text) {
    if (c == ' ' && !quoted) {
      inWord = false;
      continue;
    }
    if (!inWord) words.emplace_back();
    inWord = true;
    c == '"' ? void(quoted = !quoted) : words.back().push_back(c);
  }
  return words;
}

/// The lines of a file with CR LF; single ones of the two are shown.
Lines LinesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return {"(no such file)"};
  std::stringstream buffer;
  buffer << file.rdbuf();
  const std::string text = buffer.str();
  Lines lines;
  std::size_t at = 0;
  for (auto end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", at)) {
    lines.push_back(text.substr(at, end - at));
    at = end + 2;
  }
  if (at < text.size()) lines.push_back(text.substr(at) + "(no line end)");
  for (std::string& line : lines) line = Replaced(Replaced(line, "\r", "\\r"), "\n", "\\n");
  return lines;
}

/// One script at play.
class Player {
 public:
  Player(std::string program, std::string path)
      : program_(std::move(program)), path_(std::move(path)) {}

  /// True if all was as expected. With `update`, the file is rewritten where it was not.
  bool Play(bool update) {
    auto parts = ReadTalk(path_);
    for (Part& part : parts) PlayPart(part);
    const std::string end = process_->Finish();
    if (!end.empty()) Complain(parts.back(), {"  " + end});
    if (update && failed_) WriteTalk(path_, parts);
    return !failed_ || (update && end.empty());
  }

 private:
  std::string Meant(const std::string& text) const { return Replaced(text, Home, home_.path); }
  Lines Told(Lines lines) const {
    for (std::string& line : lines) line = Replaced(line, home_.path, Home);
    return lines;
  }

  void PlayPart(Part& part) {
    switch (part.kind) {
      case Part::Kind::Note:
        return;
      case Part::Kind::Args:
        for (const std::string& word : SplitArgs(Meant(part.text))) args_.push_back(word);
        return;
      case Part::Kind::File:
        return WriteFile(part);
      case Part::Kind::ExpectFile:
        return Judge(part, Compare(part.expected, Told(LinesOf(PathOf(part)))));
      case Part::Kind::NoFile:
        if (fs::exists(PathOf(part))) Complain(part, {"  the file is there"});
        return;
      case Part::Kind::Repeat:
        for (int times = std::stoi(part.text); times > 0; --times) PlayLines(part);
        return;
      case Part::Kind::Start:
        Start();
        break;
      case Part::Kind::Command:
        return Judge(part, CompareAnswer(part.expected, Told(AnswersTo(part))));
    }
    Judge(part, CompareAnswer(part.expected, Told(process_->ReadAnswer())));
  }

  /// The answers in a row, with only the last one's `ok`.
  Lines AnswersTo(const Part& part) {
    Lines all;
    for (int i = 0; i < part.times; ++i) {
      if (!all.empty()) all.pop_back();
      process_->Send(Meant(part.text));
      const Lines answer = process_->ReadAnswer();
      all.insert(all.end(), answer.begin(), answer.end());
      if (answer.empty() || answer.back() != "ok") break;
    }
    return all;
  }

  void PlayLines(const Part& part) {
    for (const std::string& command : part.expected) {
      process_->Send(Meant(command));
      const Comparison comparison = CompareAnswer({}, Told(process_->ReadAnswer()));
      if (!comparison.same) Complain(part, comparison.difference);
    }
  }

  std::string PathOf(const Part& part) const { return home_.path + "/" + part.text; }

  void WriteFile(const Part& part) {
    std::ofstream file(PathOf(part), std::ios::binary | std::ios::trunc);
    for (const std::string& line : part.expected) file << Meant(line) << "\r\n";
  }

  void Start() {
    std::vector<std::string> words{program_, "--home", home_.path};
    words.insert(words.end(), args_.begin(), args_.end());
    process_ = std::make_unique<Process>(words);
  }

  void Judge(Part& part, const Comparison& comparison) {
    if (comparison.same) return;
    Complain(part, comparison.difference);
    SetExpected(part, comparison.updated);
  }

  void Complain(const Part& part, const Lines& difference) {
    failed_ = true;
    const bool start = part.kind == Part::Kind::Start;
    std::cout << path_ << ":" << part.line << ": "
              << (start ? std::string("the start-up") : part.original.front()) << '\n';
    for (const std::string& line : difference) std::cout << "    " << line << '\n';
  }

  std::string program_;
  std::string path_;
  TemporaryHome home_;
  std::vector<std::string> args_;
  std::unique_ptr<Process> process_;
  bool failed_ = false;
};

int Main(std::vector<std::string> words) {
  const bool update = std::erase(words, "--update") > 0;
  if (words.size() < 2) {
    std::cerr << "usage: run_transcript [--update] PROGRAM SCRIPT...\n";
    return 2;
  }
  int passed = 0, failed = 0;
  for (std::size_t i = 1; i < words.size(); ++i) {
    bool good = false;
    try {
      good = Player(words[0], words[i]).Play(update);
    } catch (const std::exception& error) {
      std::cout << error.what() << '\n';
    }
    ++(good ? passed : failed);
  }
  std::cout << passed << " passed, " << failed << " failed" << std::endl;
  return failed == 0 ? 0 : 1;
}

}  // namespace
}  // namespace transcript

int main(int count, char** words) {
  return transcript::Main(std::vector<std::string>(words + 1, words + count));
}
