// run_transcript: plays scripts with a program, and compares what it answers with the transcripts.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
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

/// The lines of a file; what is no CR LF of its own is shown.
Lines LinesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return {"(no such file)"};
  Lines lines;
  for (std::string line; std::getline(file, line);) {
    if (file.eof() || !line.ends_with('\r')) {
      line += file.eof() ? "(no line end)" : "(no CR)";
    } else {
      line.pop_back();
    }
    lines.push_back(Replaced(line, "\r", "\\r"));
  }
  return lines;
}

/// One script at play.
class Player {
 public:
  Player(const std::string& program, std::string path)
      : path_(std::move(path)), words_{program, "--home", home_.path} {}

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
        return TakeArgs(Meant(part.text));
      case Part::Kind::File:
        return WriteFile(part);
      case Part::Kind::ExpectFile:
        return Judge(part, Compare(part.expected, Told(LinesOf(PathOf(part)))));
      case Part::Kind::NoFile:
        if (fs::exists(PathOf(part))) Complain(part, {"  the file is there"});
        return;
      case Part::Kind::Start:
        process_ = std::make_unique<Process>(words_);
        break;
      case Part::Kind::Command:
        return Judge(part, CompareAnswer(part.expected, Told(AnswersTo(part))));
    }
    Judge(part, CompareAnswer(part.expected, Told(process_->ReadAnswer())));
  }

  /// Words between double quotes are one.
  void TakeArgs(const std::string& text) {
    std::istringstream in(text);
    for (std::string word; in >> std::quoted(word);) words_.push_back(word);
  }

  /// The answers in a row, with only the last one's `ok`.
  Lines AnswersTo(const Part& part) {
    Lines all;
    for (const std::string& command : part.commands) {
      if (!all.empty()) all.pop_back();
      process_->Send(Meant(command));
      const Lines answer = process_->ReadAnswer();
      all.insert(all.end(), answer.begin(), answer.end());
      if (answer.back() != "ok") break;
    }
    return all;
  }

  std::string PathOf(const Part& part) const { return home_.path + "/" + part.text; }

  void WriteFile(const Part& part) {
    std::ofstream file(PathOf(part), std::ios::binary | std::ios::trunc);
    for (const std::string& line : part.expected) file << Meant(line) << "\r\n";
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

  std::string path_;
  TemporaryHome home_;
  std::vector<std::string> words_;  ///< the command line
  std::unique_ptr<Process> process_;
  bool failed_ = false;
};

int Main(std::vector<std::string> words) {
  const bool update = std::erase(words, "--update") > 0;
  if (words.size() < 2) {
    std::cerr << "usage: run_transcript [--update] PROGRAM SCRIPT...\n";
    return 2;
  }
  std::size_t failed = 0;
  for (std::size_t i = 1; i < words.size(); ++i) {
    try {
      failed += !Player(words[0], words[i]).Play(update);
    } catch (const std::exception& error) {
      std::cout << error.what() << '\n';
      ++failed;
    }
  }
  std::cout << words.size() - 1 - failed << " passed, " << failed << " failed" << std::endl;
  return failed == 0 ? 0 : 1;
}

}  // namespace
}  // namespace transcript

int main(int count, char** words) {
  return transcript::Main(std::vector<std::string>(words + 1, words + count));
}
