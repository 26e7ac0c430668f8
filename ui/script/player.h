// The commands that are acts of the player, and what a player can't do.
#pragma once

#include <string>

#include "ui/script/stage.h"
#include "ui/script/words.h"

namespace ui::script {

class Player {
 public:
  explicit Player(Stage& stage) : stage_(stage) {}

  /// Carries out the act and returns true, or returns false if the command is no act. Throws
  /// Refused, and changes nothing, if the act can't be done now.
  bool Act(const Command& command);
  /// Throws Refused unless the command is an act, rightly formed, that can be queued.
  static void CheckQueueable(const Command& command);

 private:
  struct Entry;
  static const Entry* Find(const std::string& name);
  static void CheckForm(const Entry& entry, const Command& command);

  void Click(const Command& command);
  void Move(const Command& command);
  void Type(const Command& command);
  void Key(const Command& command);
  void Choose(const Command& command);
  void Check(const Command& command);
  void Focus(const Command& command);
  void AnswerStanding(const Command& command);
  void Close(const Command& command);
  void Minimize(const Command& command);
  void Maximize(const Command& command);
  void Restore(const Command& command);
  void Resize(const Command& command);
  void Wait(const Command& command);

  /// The window that takes the player's acts; refused where there is none.
  Window& Reached();
  /// A control that the player can see there; refused if it isn't.
  Control& Seen(const Word& name);
  /// A control that the player can use; refused if it isn't.
  Control& Usable(const Word& name);
  template <class T>
  T& UsableAs(const Word& name, Kind kind);
  void AnswerBox(const Standing& box, const Word& word);
  void AnswerFile(const Word& word);

  Stage& stage_;
};

}  // namespace ui::script
