// The small program of the script tests, as a program of its own to be played by transcripts.
#include <iostream>

#include "tests/fake_program.h"
#include "ui/script/interpreter.h"

int main() {
  fake::Program program;
  ui::script::Interpreter interpreter(program.platform.Stage(), program.subject, std::cin,
                                      std::cout);
  interpreter.Play([&] { program.Start(); });
}
