// Each act: first all that could forbid it, then the act itself.
#include "ui/script/player.h"

#include <algorithm>

#include "ui/script/names.h"

namespace ui::script {
namespace {

/// Some eleven days: enough for every clock of the program, and soon gone by.
constexpr std::int64_t LongestWait = 1'000'000'000;
/// The outer size of the largest window, in twips.
constexpr std::int64_t LargestSize = 16384 * TwipsPerPixel;

bool IsIn(Kind kind, std::initializer_list<Kind> kinds) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

/// The place that the command names, or the middle; only on a surface does it count.
Point PlaceOn(const Control& control, const Command& command) {
  const Rect place = control.Place();
  if (command.Arguments() == 1 || control.GetKind() != Kind::Surface)
    return {place.w / 2, place.h / 2};
  return {static_cast<int>(TakeNumber(command.words[2], 0, std::max(0, place.w - 1))),
          static_cast<int>(TakeNumber(command.words[3], 0, std::max(0, place.h - 1)))};
}

/// What can be typed: a text of one line, or of several where the field has room for them.
void CheckTypeable(const std::string& text, bool multiline) {
  for (const char c : text) {
    const bool lineEnd = c == '\r' || c == '\n';
    if (lineEnd ? !multiline : static_cast<unsigned char>(c) < ' ' && c != '\t') {
      throw Refused{"the text holds a character that can't be typed there"};
    }
  }
}

/// The one letter of a text in UTF-8.
char32_t TakeLetter(const Word& word) {
  const std::string& text = TakeText(word);
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const Refused refusal{QuoteShort(text) + " is not one letter"};
  if (text.empty() || byte(0) < ' ' || (byte(0) >= 0x7F && byte(0) < 0xC2)) throw refusal;
  const std::size_t size = byte(0) < 0x80 ? 1 : byte(0) < 0xE0 ? 2 : byte(0) < 0xF0 ? 3 : 4;
  if (text.size() != size) throw refusal;
  if (size == 1) return byte(0);
  char32_t letter = byte(0) & (0xFFu >> (size + 1));
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0) != 0x80) throw refusal;
    letter = letter << 6 | (byte(i) & 0x3F);
  }
  return letter;
}

}  // namespace

struct Player::Entry {
  const char* name;
  std::size_t least, most;  ///< how many arguments it takes
  void (Player::*act)(const Command&);
  bool queueable = false;
};

const Player::Entry* Player::Find(const std::string& name) {
  static constexpr Entry entries[] = {
      {"click", 1, 3, &Player::Click, true}, {"move", 1, 3, &Player::Move, true},
      {"type", 2, 2, &Player::Type},         {"key", 1, 1, &Player::Key},
      {"choose", 2, 2, &Player::Choose},     {"check", 2, 2, &Player::Check},
      {"focus", 1, 1, &Player::Focus},       {"answer", 1, 1, &Player::AnswerStanding},
      {"close", 0, 0, &Player::Close, true}, {"minimize", 0, 0, &Player::Minimize, true},
      {"maximize", 0, 0, &Player::Maximize}, {"restore", 0, 0, &Player::Restore, true},
      {"resize", 2, 2, &Player::Resize},     {"wait", 1, 1, &Player::Wait},
  };
  const auto found = std::find_if(std::begin(entries), std::end(entries),
                                  [&](const Entry& entry) { return name == entry.name; });
  return found == std::end(entries) ? nullptr : found;
}

void Player::CheckForm(const Entry& entry, const Command& command) {
  const std::size_t count = command.Arguments();
  // A place takes two numbers, so that one alone is wrong.
  const bool halfPlace = entry.most == 3 && count == 2;
  if (count < entry.least || count > entry.most || halfPlace) {
    throw Refused{std::string(entry.name) + " doesn't take so many words"};
  }
  if (entry.queueable) {
    if (count > 0) TakeBare(command.words[1]);
    for (std::size_t i = 2; i <= count; ++i) TakeNumber(command.words[i], 0, LargestSize);
  }
}

bool Player::Act(const Command& command) {
  const Entry* entry = command.words.front().quoted ? nullptr : Find(command.Name());
  if (!entry) return false;
  CheckForm(*entry, command);
  (this->*entry->act)(command);
  return true;
}

void Player::CheckQueueable(const Command& command) {
  const Entry* entry = command.words.front().quoted ? nullptr : Find(command.Name());
  if (!entry || !entry->queueable) {
    throw Refused{QuoteShort(command.Name()) + " is nothing that can be queued"};
  }
  CheckForm(*entry, command);
}

Window& Player::Reached() {
  const auto standing = stage_.AllStanding();
  if (!standing.empty()) {
    if (standing.front().what == Standing::What::Box) throw Refused{"a message box stands"};
    if (standing.front().what == Standing::What::FileDialog) throw Refused{"a file dialog stands"};
  }
  Window* window = stage_.TheDesk().ActiveWindow();
  if (!window) throw Refused{"no window is shown"};
  return *window;
}

Control& Player::Seen(const Word& name) {
  const Window& window = Reached();
  Control* control = FindControl(stage_.TheDesk(), TakeBare(name));
  if (!control) throw Refused{"there is no control " + QuoteShort(name.text)};
  const auto refuse = [&](const char* why) { throw Refused{name.text + " " + why}; };
  if (&control->Owner() != &window) refuse("is not in the active window");
  if (window.State() == WindowState::Minimized) refuse("is in a minimized window");
  if (control->GetKind() == Kind::Timer) refuse("is a timer");
  if (!control->Shown()) refuse("is hidden");
  return *control;
}

Control& Player::Usable(const Word& name) {
  Control& control = Seen(name);
  if (!control.Usable()) throw Refused{name.text + " is disabled"};
  return control;
}

template <class T>
T& Player::UsableAs(const Word& name, Kind kind) {
  Control& control = Usable(name);
  if (control.GetKind() != kind) {
    throw Refused{name.text + " is not a " + std::string(KindName(kind))};
  }
  return static_cast<T&>(control);
}

void Player::Click(const Command& command) {
  Control& control = Usable(command.words[1]);
  if (control.GetKind() == Kind::Panel) throw Refused{"a panel takes no clicks"};
  if (control.GetKind() == Kind::Surface) {
    stage_.PlayerPresses(static_cast<Surface&>(control), PlaceOn(control, command));
  } else if (command.Arguments() > 1) {
    throw Refused{command.words[1].text + " is not a surface"};
  } else {
    stage_.PlayerClicks(control);
  }
}

void Player::Move(const Command& command) {
  if (command.words[1].text == "form" && command.Arguments() == 1) {
    Window& window = Reached();
    if (window.State() == WindowState::Minimized) throw Refused{"the window is minimized"};
    stage_.PlayerMovesBeside(window);
    return;
  }
  Control& control = Seen(command.words[1]);
  if (control.GetKind() == Kind::Menu) throw Refused{"the pointer does nothing over a menu"};
  const Point place = PlaceOn(control, command);
  // The pointer can be there, but what is disabled takes no notice of it.
  if (control.Usable()) stage_.PlayerMoves(control, place);
}

void Player::Type(const Command& command) {
  auto& field = UsableAs<Field>(command.words[1], Kind::Field);
  if (field.ReadOnly()) throw Refused{command.words[1].text + " can't be written into"};
  const std::string& text = TakeText(command.words[2]);
  CheckTypeable(text, field.Multiline);
  stage_.PlayerTypes(field, text);
}

void Player::Key(const Command& command) {
  Window& window = Reached();
  const char32_t letter = TakeLetter(command.words[1]);
  if (window.State() == WindowState::Minimized) throw Refused{"the window is minimized"};
  const Control* focus = stage_.TheDesk().Focus();
  if (focus && IsIn(focus->GetKind(), {Kind::Field, Kind::List}) && focus->Usable()) {
    throw Refused{focus->FullName() + " has the focus and takes the letter"};
  }
  stage_.PlayerStrikes(window, letter);
}

void Player::Choose(const Command& command) {
  auto& list = UsableAs<List>(command.words[1], Kind::List);
  if (list.Items().empty()) throw Refused{command.words[1].text + " has no entries"};
  const auto last = static_cast<std::int64_t>(list.Items().size()) - 1;
  stage_.PlayerChooses(list, static_cast<int>(TakeNumber(command.words[2], 0, last)));
}

void Player::Check(const Command& command) {
  Control& control = Usable(command.words[1]);
  const std::string& mark = TakeBare(command.words[2]);
  if (!IsIn(control.GetKind(), {Kind::Check, Kind::Option})) {
    throw Refused{command.words[1].text + " is not a check box"};
  }
  if (mark != "on" && mark != "off") throw Refused{"check takes on or off"};
  if (mark == "off" && control.GetKind() == Kind::Option) {
    throw Refused{"an option button is cleared by another one alone"};
  }
  stage_.PlayerChecks(static_cast<ui::Check&>(control), mark == "on");
}

void Player::Focus(const Command& command) {
  Control& control = Usable(command.words[1]);
  if (!TakesFocus(control.GetKind())) throw Refused{command.words[1].text + " takes no focus"};
  stage_.PlayerFocuses(control);
}

void Player::AnswerBox(const Standing& box, const Word& word) {
  struct Choice {
    const char* word;
    Answer answer;
    Buttons buttons;
  };
  static constexpr Choice choices[] = {
      {"ok", Answer::Ok, Buttons::Ok},
      {"ok", Answer::Ok, Buttons::OkCancel},
      {"cancel", Answer::Cancel, Buttons::OkCancel},
      {"yes", Answer::Yes, Buttons::YesNo},
      {"no", Answer::No, Buttons::YesNo},
  };
  const std::string& text = TakeBare(word);
  for (const Choice& choice : choices) {
    if (choice.buttons == box.buttons && text == choice.word) {
      stage_.PlayerAnswers(choice.answer);
      return;
    }
  }
  throw Refused{"the box has no button " + QuoteShort(text)};
}

void Player::AnswerFile(const Word& word) {
  if (word.quoted) {
    if (word.text.find('\0') != std::string::npos) throw Refused{"no path holds such a character"};
    stage_.PlayerGivesPath(word.text);
  } else if (word.text == "cancel") {
    stage_.PlayerGivesPath(std::nullopt);
  } else {
    throw Refused{"a file dialog takes a path between quotes, or cancel"};
  }
}

void Player::AnswerStanding(const Command& command) {
  const auto standing = stage_.AllStanding();
  if (standing.empty() || standing.front().what == Standing::What::ModalWindow) {
    throw Refused{"nothing stands that could be answered"};
  }
  if (standing.front().what == Standing::What::Box) {
    AnswerBox(standing.front(), command.words[1]);
  } else {
    AnswerFile(command.words[1]);
  }
}

void Player::Close(const Command&) {
  stage_.PlayerCloses(Reached());
}

void Player::Minimize(const Command&) {
  Window& window = Reached();
  if (window.IsModal() && !window.Resizable) throw Refused{"the window can't be minimized"};
  stage_.PlayerSetsState(window, WindowState::Minimized);
}

void Player::Maximize(const Command&) {
  Window& window = Reached();
  if (!window.Resizable) throw Refused{"the window can't be maximized"};
  stage_.PlayerSetsState(window, WindowState::Maximized);
}

void Player::Restore(const Command&) {
  stage_.PlayerSetsState(Reached(), WindowState::Normal);
}

void Player::Resize(const Command& command) {
  Window& window = Reached();
  const Size size{static_cast<int>(TakeNumber(command.words[1], 1, LargestSize)),
                  static_cast<int>(TakeNumber(command.words[2], 1, LargestSize))};
  if (!window.Resizable) throw Refused{"the window can't be resized"};
  if (window.State() != WindowState::Normal) throw Refused{"the window is not in normal state"};
  stage_.PlayerResizes(window, size);
}

void Player::Wait(const Command& command) {
  stage_.PassTime(TakeNumber(command.words[1], 0, LongestWait));
}

}  // namespace ui::script
