// Reading and rewriting files of commands and answers.
#include "tests/transcript/talk.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace transcript {
namespace {

using Kind = Part::Kind;

const std::string Question = "? ";

bool IsNote(const std::string& line) {
  return line.empty() || line[0] == '#';
}

bool HoldsLines(Kind kind) {
  return kind == Kind::File || kind == Kind::ExpectFile;
}

bool IsAnswered(Kind kind) {
  return kind == Kind::Start || kind == Kind::Command;
}

struct Opening {
  const char* text;
  Kind kind;
};
constexpr Opening Openings[] = {{"@args ", Kind::Args},
                                {"@file ", Kind::File},
                                {"@expect-file ", Kind::ExpectFile},
                                {"@no-file ", Kind::NoFile}};

class Reader {
 public:
  explicit Reader(std::string path) : path_(std::move(path)) {}

  std::vector<Part> Read() {
    std::ifstream file(path_, std::ios::binary);
    if (!file) Fail("it can't be opened");
    for (std::string line; std::getline(file, line);) {
      ++line_;
      inFile_ ? TakeFileLine(line) : TakeLine(line);
    }
    if (inFile_) Fail("@end is missing");
    NeedStart();
    return std::move(parts_);
  }

 private:
  [[noreturn]] void Fail(const std::string& why) const {
    throw std::runtime_error(path_ + ":" + std::to_string(line_) + ": " + why);
  }

  void Begin(Kind kind, std::string text) {
    parts_.push_back({kind, std::move(text), line_, {}, {}, {}});
  }

  /// What comes from here on needs a program that runs.
  void NeedStart() {
    if (!HasStarted()) Begin(Kind::Start, "");
  }

  void TakeFileLine(const std::string& line) {
    parts_.back().original.push_back(line);
    inFile_ = line != "@end";
    if (inFile_) parts_.back().expected.push_back(line);
  }

  void TakeLine(const std::string& line) {
    if (TakeCommands(line) || TakeQuestion(line)) return;
    for (const Opening& opening : Openings) {
      if (!line.starts_with(opening.text)) continue;
      Open(opening.kind, line.substr(std::string(opening.text).size()));
      parts_.back().original.push_back(line);
      return;
    }
    if (!line.empty() && line[0] == '@') Fail("there is no " + line);
    if (IsNote(line)) {
      if (parts_.empty() || !IsAnswered(parts_.back().kind)) Begin(Kind::Note, "");
    } else if (parts_.empty() || !IsAnswered(parts_.back().kind)) {
      if (!parts_.empty() && HasStarted()) Fail("an answer belongs right behind its command");
      Begin(Kind::Start, "");
    }
    parts_.back().original.push_back(line);
    if (!IsNote(line)) parts_.back().expected.push_back(line);
  }

  bool TakeQuestion(const std::string& line) {
    if (!line.starts_with(Question)) return false;
    const std::string answer = line.substr(Question.size());
    std::string asked = answer.substr(0, answer.find(" = "));
    if (const auto point = asked.rfind('.'); point != std::string::npos) asked[point] = ' ';
    Send("get " + asked);
    parts_.back().original.push_back(line);
    parts_.back().expected.push_back(answer);
    return true;
  }

  bool TakeCommands(const std::string& line) {
    const auto space = line.find(' ');
    if (!line.starts_with('>') || space == std::string::npos) return false;
    Send(line.substr(space + 1), space == 1 ? 1 : std::stoi(line.substr(1, space - 1)));
    parts_.back().original.push_back(line);
    return true;
  }

  /// The commands in turn, so many times.
  void Send(const std::string& commands, int times = 1) {
    Open(Kind::Command, commands);
    for (; times > 0; --times) {
      for (std::size_t begin = 0, end = 0; end != std::string::npos; begin = end + 3) {
        end = commands.find(" ; ", begin);
        parts_.back().commands.push_back(commands.substr(begin, end - begin));
      }
    }
  }

  bool HasStarted() const {
    return std::any_of(parts_.begin(), parts_.end(),
                       [](const Part& part) { return IsAnswered(part.kind); });
  }

  void Open(Kind kind, std::string text) {
    if (kind == Kind::Args && HasStarted()) Fail("@args comes too late");
    if (kind == Kind::Command && IsNote(text)) Fail("such a command is not answered");
    if (kind != Kind::Args && kind != Kind::File) NeedStart();
    Begin(kind, std::move(text));
    inFile_ = HoldsLines(kind);
  }

  std::string path_;
  int line_ = 0;
  bool inFile_ = false;
  std::vector<Part> parts_;
};

}  // namespace

std::vector<Part> ReadTalk(const std::string& path) {
  return Reader(path).Read();
}

void SetExpected(Part& part, const std::vector<std::string>& expected) {
  std::vector<std::string> lines;
  const bool asks = part.kind != Kind::Start && part.original.front().starts_with(Question);
  if (asks && expected.size() == 1) {
    lines.push_back(Question + expected.front());
  } else {
    if (part.kind != Kind::Start) lines.push_back(asks ? "> " + part.text : part.original.front());
    lines.insert(lines.end(), expected.begin(), expected.end());
  }
  if (HoldsLines(part.kind)) {
    lines.push_back("@end");
  } else {
    std::copy_if(part.original.begin(), part.original.end(), std::back_inserter(lines), IsNote);
  }
  part.original = std::move(lines);
  part.expected = expected;
}

void WriteTalk(const std::string& path, const std::vector<Part>& parts) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  for (const Part& part : parts) {
    for (const std::string& line : part.original) file << line << '\n';
  }
  if (!file.flush()) throw std::runtime_error(path + ": it can't be written");
}

}  // namespace transcript
