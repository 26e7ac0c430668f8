// The small program of the script tests, as a program of its own to be played by transcripts.
#include <fstream>
#include <iostream>

#include "tests/fake_program.h"
#include "ui/script/interpreter.h"
#include "ui/script/options.h"

int main(int count, char** words) {
  using ui::script::ScriptOptions;
  const auto options = ScriptOptions::Parse(std::vector<std::string>(words + 1, words + count));
  fake::Program program;
  ui::script::Interpreter interpreter(program.platform.Stage(), program.subject, std::cin, std::cout);
  for (const std::string& fault : options.faults) interpreter.SetFault(fault);
  interpreter.Play([&] {
    std::ifstream preset(options.home + "/preset.txt");
    for (std::string line; std::getline(preset, line);)
      program.platform.ViewText(options.home + "/" + line.substr(0, line.size() - 1));
    std::ofstream(options.home + "/written.txt", std::ios::binary) << "one\r\ntwo\r\nthree\r\n";
    program.Start();
  });
}
