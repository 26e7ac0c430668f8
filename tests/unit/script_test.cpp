// The scripted player where no transcript reaches: ends within its calls, lines that do harm.
#include <sstream>

#include "tests/check.h"
#include "tests/fake_program.h"
#include "ui/script/interpreter.h"
#include "ui/script/options.h"

namespace {

struct LeftAtEnd {};

/// What the small program answers to these commands, from its start to the end of input.
std::string Answers(const std::string& commands) {
  std::istringstream in(commands);
  std::ostringstream out;
  fake::Program program;
  ui::script::Interpreter interpreter(program.platform.Stage(), program.subject, in, out,
                                      [] { throw LeftAtEnd{}; });
  try {
    interpreter.Play([&] { program.Start(); });
    out << "(returned)\n";
  } catch (const LeftAtEnd&) {
  }
  return out.str();
}

/// How many of an answer's lines begin like this.
int LinesWith(const std::string& begin, const std::string& answers) {
  std::istringstream in(answers);
  int count = 0;
  for (std::string line; std::getline(in, line);) {
    CHECK(line.size() < 200);
    count += line.starts_with(begin);
  }
  return count;
}

}  // namespace

TEST(TheEndComesAlsoBehindABoxOrAModalWindow) {
  const std::string start = "* show frmMain\n* wave once\nok\n";
  CHECK_EQ(Answers("click cmdAsk\nquit\nclick cmdInner\n"),
           start + "* wait 300\n* box question okcancel \"\" \"Really?\"\nok\n");
  CHECK_EQ(Answers("click cmdModal\nfocus cmdOK\nkey \"q\"\n"),
           start + "* modal frmDialog\nok\nok\n* wave name \n* end\nok\n(returned)\n");
}

TEST(NoLineDoesHarm) {
  std::string commands = "\n  \n# nothing\n";
  const std::string huge(1 << 20, 'x');
  for (const std::string& name : {huge, "\"" + huge, std::string("a\0b", 3),
                                  std::string("\xFF\xFE\\"), std::string("\"\\")}) {
    for (const char* command : {"", "click ", "get ", "watch ", "type txtName ", "fault ", "queue ",
                                "deck", "now ", "wait ", "choose lstColors ", "resize 1 "}) {
      commands += command + name + "\n";
    }
  }
  commands += "wait 99999999999999999999\nwait -1\nwait 1e3\nget\nwatch none none\nwindows x\nmove";
  const std::string answers = Answers(commands);
  CHECK_EQ(LinesWith("no: ", answers), 5 * 12 + 7);
}

TEST(AStormOfBoxesIsSurvived) {
  std::string waits, answers;
  for (int i = 0; i < 500; ++i) {
    waits += "wait 10\n";
    answers += "answer ok\n";
  }
  const std::string storm = Answers(waits + "click cmdTimer(3)\n" + answers + waits);
  CHECK_EQ(LinesWith("ok", storm) + LinesWith("no: ", storm), 1 + 500 + 1 + 500 + 500);
}

TEST(TheCommandLineIsTakenApart) {
  using ui::script::ScriptOptions;
  const auto options = ScriptOptions::Parse(
      {"--fault", "write *", "--home", "/tmp/p", "--fault", "music", "my", "game.qdl"});
  CHECK_EQ(options.faults, (std::vector<std::string>{"write *", "music"}));
  CHECK_EQ(options.home + options.savedGame + options.error, "/tmp/pmy game.qdl");
  CHECK(!ScriptOptions::Parse({"--home"}).error.empty());
  CHECK(!ScriptOptions::Parse({"--hme", "x"}).error.empty());
}
