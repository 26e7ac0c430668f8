// The conversation with a script: commands are read and carried out, answers are written.
#pragma once

#include <functional>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "ui/script/player.h"
#include "ui/script/properties.h"
#include "ui/script/stage.h"
#include "ui/script/subject.h"
#include "ui/script/watch.h"
#include "ui/script/words.h"

namespace ui::script {

/// A box or a modal window that opens while a command is carried out ends that command's answer;
/// the commands that follow are read from within its call, until it is closed. Then the handler
/// that had opened it goes on, and the answer of the command that closed it ends when the outermost
/// command has come to its end.
class Interpreter {
 public:
  /// Owns none of its arguments. `leave` ends the process at the end of input, by default at once
  /// and with status 0; it must not return.
  Interpreter(Stage& stage, Subject& subject, std::istream& in, std::ostream& out,
              std::function<void()> leave = {});

  /// Sets a fault from the words that would follow the command `fault`; throws Refused.
  void SetFault(const std::string& words);
  /// Runs the start-up and then the script. Returns when the program has ended of itself.
  void Play(const std::function<void()>& startUp);

 private:
  using Over = std::function<bool()>;
  using Lines = std::vector<std::string>;
  struct Entry;
  enum class Outcome { Refused, Done, Queued };

  void Happened(const std::string& line);
  void Modal(const Over& over);
  void Converse(const Over& over);
  bool ReadCommand(std::string& line);
  Outcome CarryOut(const std::string& line);
  Outcome Dispatch(const Command& command);
  void EndAnswer();
  void Refuse(const std::string& reason);
  [[noreturn]] void Leave();

  void Queue(const Command& command);
  void Now(const Command& command);
  void Draws(const Command& command);
  void StageDeck(const Command& command);
  void Fault(const Command& command);
  void SetWatch(const Command& command);
  void Get(const Command& command);
  void Windows(const Command& command);
  void Controls(const Command& command);
  void TakePicture(const Command& command);
  void Quit(const Command& command);

  bool GetList(const std::string& name);
  void AddProperties(const Command& command, const Properties& properties);
  void Say(std::string line) { values_.push_back(std::move(line)); }

  Stage& stage_;
  Subject& subject_;
  std::istream& in_;
  std::ostream& out_;
  std::function<void()> leave_;
  Player player_;
  Watch watch_;
  Lines values_;  ///< the value lines of the answer: they stand behind what happened
};

}  // namespace ui::script
