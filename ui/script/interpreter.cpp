// Reading, carrying out and answering; and the commands that ask or prepare something.
#include "ui/script/interpreter.h"

#include <algorithm>
#include <cstdlib>

#include "ui/script/names.h"

namespace ui::script {
namespace {

constexpr const char* MailOperations[] = {
    "SignOn",           "SessionID",   "Compose",    "RecipDisplayName", "RecipAddress",
    "AddressResolveUI", "ResolveName", "MsgSubject", "MsgNoteText",      "Send",
    "SignOff"};

std::string Joined(const std::vector<std::string>& words) {
  std::string joined;
  for (const std::string& word : words) joined += (joined.empty() ? "" : " ") + word;
  return joined;
}

/// The step of the platform that the words after `fault` name; empty if they name none.
std::string FaultyStep(const Command& command) {
  const std::string words = command.Arguments() == 1
                                ? command.words[1].text
                                : command.words[1].text + " " + command.words[2].text;
  if (words == "music" || words == "browser find" || words == "browser open") return words;
  for (const char* operation : MailOperations) {
    if (words == std::string("mail ") + operation) return words;
  }
  return {};
}

}  // namespace

struct Interpreter::Entry {
  const char* name;
  std::size_t least, most;  ///< how many arguments it takes
  void (Interpreter::*command)(const Command&);
};

Interpreter::Interpreter(Stage& stage, Subject& subject, std::istream& in, std::ostream& out,
                         std::function<void()> leave)
    : stage_(stage),
      subject_(subject),
      in_(in),
      out_(out),
      leave_(std::move(leave)),
      player_(stage) {
  stage_.Listen({[this](const std::string& line) { Happened(line); },
                 [this](const Over& over) { Modal(over); },
                 [this] {
                   for (const auto& line : watch_.Changes(stage_.TheDesk()))
                     Happened("see " + line);
                 }});
}

void Interpreter::Play(const std::function<void()>& startUp) {
  const Over ended = [this] { return stage_.Ended(); };
  stage_.Start(startUp);
  if (!ended()) {
    EndAnswer();
    Converse(ended);
  }
  Happened("end");
  EndAnswer();
}

void Interpreter::Happened(const std::string& line) {
  out_ << "* " << line << '\n';
}

void Interpreter::Modal(const Over& over) {
  // What the caller's waits have held up is served behind the box.
  if (!over()) stage_.Settle();
  if (over()) return;
  EndAnswer();
  Converse(over);
}

void Interpreter::Converse(const Over& over) {
  std::string line;
  while (!over()) {
    if (!ReadCommand(line)) Leave();
    const Outcome outcome = CarryOut(line);
    if (outcome == Outcome::Refused) continue;
    if (outcome == Outcome::Done && !over()) stage_.Settle();
    if (!over()) EndAnswer();
  }
}

bool Interpreter::ReadCommand(std::string& line) {
  while (std::getline(in_, line)) {
    const auto first = line.find_first_not_of(" \t\r");
    if (first != std::string::npos && line[first] != '#') return true;
  }
  return false;
}

Interpreter::Outcome Interpreter::CarryOut(const std::string& line) {
  try {
    return Dispatch(ParseCommand(line));
  } catch (const Refused& refused) {
    Refuse(refused.reason);
    return Outcome::Refused;
  }
}

Interpreter::Outcome Interpreter::Dispatch(const Command& command) {
  static constexpr std::size_t any = static_cast<std::size_t>(-1);
  static constexpr Entry entries[] = {
      {"queue", 1, any, &Interpreter::Queue},     {"now", 1, 1, &Interpreter::Now},
      {"draws", 1, any, &Interpreter::Draws},     {"deck", 1, any, &Interpreter::StageDeck},
      {"fault", 1, any, &Interpreter::Fault},     {"watch", 1, any, &Interpreter::SetWatch},
      {"get", 1, 2, &Interpreter::Get},           {"windows", 0, 0, &Interpreter::Windows},
      {"controls", 0, 0, &Interpreter::Controls}, {"picture", 1, 1, &Interpreter::TakePicture},
      {"quit", 0, 0, &Interpreter::Quit},
  };
  if (player_.Act(command)) return Outcome::Done;
  for (const Entry& entry : entries) {
    if (command.words.front().quoted || command.Name() != entry.name) continue;
    if (command.Arguments() < entry.least || command.Arguments() > entry.most) {
      throw Refused{command.Name() + " doesn't take so many words"};
    }
    (this->*entry.command)(command);
    return entry.command == &Interpreter::Queue ? Outcome::Queued : Outcome::Done;
  }
  throw Refused{"there is no command " + QuoteShort(command.Name())};
}

void Interpreter::EndAnswer() {
  for (const std::string& line : values_) out_ << line << '\n';
  values_.clear();
  out_ << "ok" << std::endl;
}

void Interpreter::Refuse(const std::string& reason) {
  out_ << "no: " << reason << std::endl;
}

void Interpreter::Leave() {
  out_.flush();
  if (leave_) leave_();
  std::_Exit(0);
}

void Interpreter::Queue(const Command& command) {
  const Command queued = ParseCommand(command.From(1));
  Player::CheckQueueable(queued);
  stage_.Queue([this, queued] {
    try {
      player_.Act(queued);
    } catch (const Refused&) {
      // It can't be done any more: what the player did then went nowhere.
    }
  });
}

void Interpreter::Now(const Command& command) {
  stage_.SetNow(TakeMoment(command.words[1]));
}

void Interpreter::Draws(const Command& command) {
  std::vector<double> draws;
  for (std::size_t i = 1; i < command.words.size(); ++i) {
    draws.push_back(TakeFraction(command.words[i]));
  }
  subject_.AddDraws(draws);
}

void Interpreter::StageDeck(const Command& command) {
  Lines keys;
  for (std::size_t i = 1; i < command.words.size(); ++i) keys.push_back(command.words[i].text);
  subject_.StageDeck(keys, [this] { Happened("deck not used"); });
}

void Interpreter::SetFault(const std::string& words) {
  const Command command = ParseCommand("fault " + words);
  if (command.Arguments() == 0) throw Refused{"a fault takes more words"};
  Fault(command);
}

void Interpreter::Fault(const Command& command) {
  const std::string& what = TakeBare(command.words[1]);
  const bool write = what == "write";
  if ((write || what == "read") && command.Arguments() > 1) {
    // Names of files hold blanks: what is not quoted goes on to the end of the line.
    const bool quoted = command.words[2].quoted;
    if (quoted && command.Arguments() > 2) throw Refused{"a fault takes one pattern"};
    const std::string pattern = quoted ? command.words[2].text : command.From(2);
    write ? subject_.SetWriteFault(pattern) : subject_.SetReadFault(pattern);
    return;
  }
  if (what == "none" && command.Arguments() == 1) {
    subject_.ClearFaults();
    stage_.FailNothing();
    return;
  }
  const std::string step = command.Arguments() <= 2 ? FaultyStep(command) : std::string();
  if (step.empty()) throw Refused{"there is no fault " + QuoteShort(command.From(1))};
  stage_.FailNext(step);
}

void Interpreter::SetWatch(const Command& command) {
  Lines names;
  for (std::size_t i = 1; i < command.words.size(); ++i) {
    names.push_back(TakeBare(command.words[i]));
  }
  if (names.size() == 1 && names[0] == "none") {
    watch_.Clear();
  } else {
    watch_.Set(stage_.TheDesk(), names);
  }
}

bool Interpreter::GetList(const std::string& name) {
  std::string value;
  if (name == "deck") {
    value = Joined(subject_.DeckKeys());
  } else if (name == "images") {
    value = subject_.ImageKeys();
  } else if (name == "focus") {
    const Control* focus = stage_.TheDesk().Focus();
    if (focus) value = focus->FullName();
  } else {
    return false;
  }
  Say(name + " = " + value);
  return true;
}

void Interpreter::Get(const Command& command) {
  const std::string& name = TakeBare(command.words[1]);
  const bool whole = command.Arguments() == 1;
  if (whole && GetList(name)) return;
  if (const Control* control = FindControl(stage_.TheDesk(), name)) {
    AddProperties(command, stage_.Look(*control));
  } else if (const Window* window = FindWindow(stage_.TheDesk(), name)) {
    AddProperties(command, PropertiesOf(*window));
  } else if (const auto value = whole ? subject_.Value(name) : std::nullopt) {
    Say(name + " = " + *value);
  } else {
    throw Refused{"there is nothing of the name " + QuoteShort(name)};
  }
}

void Interpreter::AddProperties(const Command& command, const Properties& properties) {
  const std::string& name = command.words[1].text;
  bool found = false;
  for (const PropertyText& property : properties) {
    if (command.Arguments() == 2 && property.name != TakeBare(command.words[2])) continue;
    found = true;
    Say(name + "." + property.name + " = " + property.value);
    for (const std::string& line : property.lines) Say(line);
  }
  if (!found) throw Refused{name + " has no " + QuoteShort(command.words[2].text)};
}

void Interpreter::Windows(const Command&) {
  const auto standing = stage_.AllStanding();
  const auto stands = [&](const Window* window) {
    return std::any_of(standing.begin(), standing.end(),
                       [&](const Standing& s) { return s.window == window; });
  };
  const auto tell = [this](const Window& window) {
    Say("window " + window.Name() + (window.IsModal() ? " modal" : "") +
        (window.IsHidden() ? " hidden" : ""));
  };
  for (const Standing& s : standing) {
    if (s.what == Standing::What::Box) Say("window box");
    if (s.what == Standing::What::FileDialog) Say("window file");
    if (s.window && s.window->IsOpen()) tell(*s.window);
  }
  for (const bool hidden : {false, true}) {
    for (const Window* window : stage_.TheDesk().Windows()) {
      if (window->IsHidden() == hidden && !stands(window)) tell(*window);
    }
  }
}

void Interpreter::Controls(const Command&) {
  const Window* window = stage_.TheDesk().ActiveWindow();
  if (!window) throw Refused{"no window is shown"};
  for (const Control* control : window->Controls()) {
    Say("control " + control->FullName() + " " + std::string(KindName(control->GetKind())));
  }
}

void Interpreter::TakePicture(const Command& command) {
  if (!stage_.TakePicture(TakeText(command.words[1]))) throw Refused{"no picture was written"};
}

void Interpreter::Quit(const Command&) {
  Leave();
}

}  // namespace ui::script
