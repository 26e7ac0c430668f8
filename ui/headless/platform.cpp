// The virtual clock, what stands in the player's way, and the events that are told.
#include "ui/headless/platform.h"

#include <algorithm>
#include <fstream>

#include "ui/script/words.h"

namespace ui {
namespace {

using script::Quote;
using script::Standing;

/// A program that piles boxes on boxes, or serves events while it serves events, would use up the
/// stack; no player gets that far.
constexpr std::size_t MostStanding = 200;
constexpr int MostServing = 50;
/// A tick whose handler waits longer than its interval is overdue again at once. A player's act
/// would come between at last.
constexpr int MostTicksAtOnce = 100;

constexpr const char* SignNames[] = {"plain", "information", "exclamation", "critical", "question"};
constexpr const char* ButtonsNames[] = {"ok", "okcancel", "yesno"};

/// What a box is answered when the program ends behind it.
constexpr Answer LastAnswers[] = {Answer::Ok, Answer::Cancel, Answer::No};

template <class E>
std::size_t Number(E value) {
  return static_cast<std::size_t>(value);
}

}  // namespace

void HeadlessPlatform::Tell(const std::string& line) const {
  if (listener_.happened) listener_.happened(line);
}

void HeadlessPlatform::Wait(int milliseconds) {
  if (milliseconds <= 0) return;
  if (listener_.beforeWait) listener_.beforeWait();
  Tell("wait " + std::to_string(milliseconds));
  ticks_ += milliseconds;
}

void HeadlessPlatform::ServeQueue() {
  while (!queue_.empty() && !ended_) {
    const auto act = std::move(queue_.front());
    queue_.pop_front();
    act();
  }
}

void HeadlessPlatform::ServeEvents() {
  if (serving_ >= MostServing) return;
  ++serving_;
  ServeQueue();
  TickAllDue();
  --serving_;
}

void HeadlessPlatform::Settle() {
  for (int i = 0; i < MostTicksAtOnce && !ended_; ++i) {
    ServeQueue();
    Timer* due = FirstDue(ticks_);
    if (!due || ended_) return;
    Tick(*due);
  }
}

void HeadlessPlatform::PassTime(std::int64_t milliseconds) {
  const std::int64_t target = ticks_ + milliseconds;
  const std::int64_t opened = opened_;
  while (!ended_ && opened == opened_) {
    Timer* due = FirstDue(target);
    ticks_ = std::max(ticks_, due ? due->Due() : target);
    if (!due) return;
    Tick(*due);
    if (opened == opened_) ServeQueue();
  }
}

void HeadlessPlatform::Start(const std::function<void()>& startUp) {
  Run(startUp);
  Settle();
  Timer* oneShot = FirstDue(ticks_ + 1);
  if (oneShot && oneShot->Interval() == 1 && !ended_) Tick(*oneShot);
  Settle();
}

void HeadlessPlatform::LetStand(Stand& stand, const std::function<bool()>& over,
                                const std::function<void()>& first) {
  if (!listener_.converse || standing_.size() >= MostStanding) return;
  ++opened_;
  const bool endedBefore = ended_;
  standing_.push_back(&stand);
  if (first) first();
  listener_.converse([&] { return over() || (ended_ && !endedBefore); });
  std::erase(standing_, &stand);
}

Answer HeadlessPlatform::MessageBox(Sign sign, Buttons buttons, const std::string& title,
                                    const std::string& text) {
  Tell(std::string("box ") + SignNames[Number(sign)] + " " + ButtonsNames[Number(buttons)] + " " +
       Quote(title) + " " + Quote(text));
  Stand stand{{Standing::What::Box, buttons, nullptr}, false, LastAnswers[Number(buttons)], {}};
  LetStand(stand, [&] { return stand.answered; });
  return stand.answer;
}

std::optional<std::string> HeadlessPlatform::AskFile(const FileDialog& dialog) {
  const bool open = dialog.purpose == FileDialog::Purpose::Open;
  Tell((open ? "file open " : "file save ") + Quote(dialog.title) + " " + Quote(dialog.filter));
  Stand stand{{Standing::What::FileDialog, Buttons::OkCancel, nullptr}, false, {}, {}};
  LetStand(stand, [&] { return stand.answered; });
  return stand.path;
}

void HeadlessPlatform::Open(Window& window, bool modal) {
  Opened(window, modal);
  // A window system gives the focus to the first control that takes it.
  if (!window.IsOpen() || window.IsHidden() || FocusOf(window)) return;
  const auto& controls = window.Controls();
  const auto first = std::find_if(controls.begin(), controls.end(), [](const Control* c) {
    return TakesFocus(c->GetKind()) && c->Usable();
  });
  if (first != controls.end()) SetFocus(**first);
}

void HeadlessPlatform::Show(Window& window) {
  if (!window.IsOpen() || window.IsHidden()) Tell("show " + window.Name());
  Open(window, false);
}

void HeadlessPlatform::ShowModal(Window& window) {
  Tell("modal " + window.Name());
  Stand stand{{Standing::What::ModalWindow, Buttons::Ok, &window}, false, {}, {}};
  LetStand(
      stand, [&] { return !window.IsOpen() || window.IsHidden(); },
      [&] { Run([&] { Open(window, true); }); });
  // It is only hidden, or the program ends behind it: its owner may destroy it from here on.
  if (window.IsOpen()) Closed(window);
}

void HeadlessPlatform::Hide(Window& window) {
  if (!window.IsOpen() || window.IsHidden()) return;
  Tell("hide " + window.Name());
  WasHidden(window);
}

void HeadlessPlatform::Close(Window& window) {
  if (!window.IsOpen()) return;
  Tell("close " + window.Name());
  Closed(window);
}

void HeadlessPlatform::PlayWave(const std::string& path) {
  Tell("wave " + (path.starts_with(home_) ? path.substr(home_.size()) : path));
}

bool HeadlessPlatform::OpenMusic(const std::string& path) {
  Tell("music open " + Quote(path));
  return !Fails("music");
}

PageResult HeadlessPlatform::OpenPage(const std::string& url) {
  if (Fails("browser find")) return PageResult::NoBrowser;
  if (Fails("browser open")) return PageResult::NotOpened;
  Tell("page " + Quote(url));
  return PageResult::Opened;
}

void HeadlessPlatform::ViewText(const std::string& path) {
  Tell("view " + Quote(path));
}

bool HeadlessPlatform::MailStep(const std::string& operation, std::optional<std::string> value) {
  Tell("mail " + operation + (value ? " " + Quote(*value) : ""));
  return !Fails("mail " + operation);
}

bool HeadlessPlatform::CanShowPicture(const std::string& path) const {
  using namespace std::string_literals;
  static const std::string signatures[] = {"BM"s, "GIF87a"s, "GIF89a"s, "\0\0\1\0"s,
                                           "\xFF\xD8\xFF"s};
  char buffer[8] = {};
  std::ifstream file(path, std::ios::binary);
  file.read(buffer, sizeof buffer);
  const std::string begin(buffer, static_cast<std::size_t>(file.gcount()));
  return std::any_of(std::begin(signatures), std::end(signatures),
                     [&](const std::string& signature) { return begin.starts_with(signature); });
}

std::vector<Standing> HeadlessPlatform::AllStanding() const {
  std::vector<Standing> all;
  for (const Stand* stand : standing_) all.insert(all.begin(), stand->standing);
  return all;
}

void HeadlessPlatform::PlayerPresses(Surface& surface, Point place) {
  UserPress(surface, place.x, place.y);
}

void HeadlessPlatform::PlayerMoves(Control& control, Point place) {
  if (control.GetKind() == Kind::Surface) {
    UserMove(static_cast<Surface&>(control), place.x, place.y);
  } else {
    UserMove(control);
  }
}

void HeadlessPlatform::PlayerMovesBeside(Window& window) {
  UserMoveBeside(window);
}

void HeadlessPlatform::PlayerStrikes(Window& window, char32_t letter) {
  UserStrike(window, letter);
}

void HeadlessPlatform::PlayerAnswers(Answer answer) {
  standing_.back()->answer = answer;
  standing_.back()->answered = true;
}

void HeadlessPlatform::PlayerGivesPath(std::optional<std::string> path) {
  standing_.back()->path = std::move(path);
  standing_.back()->answered = true;
}

}  // namespace ui
