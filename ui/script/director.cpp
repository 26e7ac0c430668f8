// The virtual clock, what stands in the player's way, and the events that are told.
#include "ui/script/director.h"

#include <algorithm>

#include "ui/script/words.h"

namespace ui::script {
namespace {

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

void Director::Tell(const std::string& line) const {
  if (listener_.happened) listener_.happened(line);
}

void Director::Wait(int milliseconds) {
  if (milliseconds <= 0) return;
  if (listener_.beforeWait) listener_.beforeWait();
  Tell("wait " + std::to_string(milliseconds));
  ticks_ += milliseconds;
}

// --- Events and time ---------------------------------------------------------------------------

void Director::ServeQueue() {
  while (!queue_.empty() && !ended_) {
    const auto act = std::move(queue_.front());
    queue_.pop_front();
    act();
  }
}

void Director::ServeEvents(const std::function<void()>& timers) {
  if (serving_ >= MostServing) return;
  ++serving_;
  ServeQueue();
  timers();
  --serving_;
}

void Director::Settle() {
  for (int i = 0; i < MostTicksAtOnce && !ended_; ++i) {
    ServeQueue();
    Timer* due = desk_.FirstDue(ticks_);
    if (!due || ended_) return;
    desk_.Tick(*due);
  }
}

void Director::PassTime(std::int64_t milliseconds) {
  const std::int64_t target = ticks_ + milliseconds;
  const std::int64_t opened = opened_;
  while (!ended_ && opened == opened_) {
    Timer* due = desk_.FirstDue(target);
    ticks_ = std::max(ticks_, due ? due->Due() : target);
    if (!due) return;
    desk_.Tick(*due);
    if (opened == opened_) ServeQueue();
  }
}

void Director::Start(const std::function<void()>& startUp) {
  desk_.Run(startUp);
  Settle();
  Timer* oneShot = desk_.FirstDue(ticks_ + 1);
  if (oneShot && oneShot->Interval() == 1 && !ended_) desk_.Tick(*oneShot);
  Settle();
}

// --- What stands -------------------------------------------------------------------------------

void Director::LetStand(Stand& stand, const std::function<bool()>& over, const HoldUp& holdUp) {
  if (!listener_.converse || standing_.size() >= MostStanding) return;
  ++opened_;
  const bool endedBefore = ended_;
  standing_.push_back(&stand);
  holdUp([&] { listener_.converse([&] { return over() || (ended_ && !endedBefore); }); });
  std::erase(standing_, &stand);
}

Answer Director::MessageBox(Sign sign, Buttons buttons, const std::string& title,
                            const std::string& text, const HoldUp& holdUp) {
  Tell(std::string("box ") + SignNames[Number(sign)] + " " + ButtonsNames[Number(buttons)] + " " +
       Quote(title) + " " + Quote(text));
  Stand stand{{Standing::What::Box, buttons, nullptr}, false, LastAnswers[Number(buttons)], {}};
  LetStand(
      stand, [&] { return stand.answered; }, holdUp);
  return stand.answer;
}

std::optional<std::string> Director::AskFile(const FileDialog& dialog) {
  const bool open = dialog.purpose == FileDialog::Purpose::Open;
  Tell((open ? "file open " : "file save ") + Quote(dialog.title) + " " + Quote(dialog.filter));
  Stand stand{{Standing::What::FileDialog, Buttons::OkCancel, nullptr}, false, {}, {}};
  LetStand(
      stand, [&] { return stand.answered; }, [](const auto& converse) { converse(); });
  return stand.path;
}

void Director::ShowModal(Window& window, const HoldUp& holdUp) {
  Tell("modal " + window.Name());
  Stand stand{{Standing::What::ModalWindow, Buttons::Ok, &window}, false, {}, {}};
  LetStand(
      stand, [&] { return !window.IsOpen() || window.IsHidden(); }, holdUp);
}

std::vector<Standing> Director::AllStanding() const {
  std::vector<Standing> all;
  for (const Stand* stand : standing_) all.insert(all.begin(), stand->standing);
  return all;
}

// --- What is told ------------------------------------------------------------------------------

void Director::TellShow(const Window& window) const {
  if (!window.IsOpen() || window.IsHidden()) Tell("show " + window.Name());
}

void Director::TellHide(const Window& window) const {
  Tell("hide " + window.Name());
}

void Director::TellClose(const Window& window) const {
  Tell("close " + window.Name());
}

void Director::PlayWave(const std::string& path) const {
  Tell("wave " + (path.starts_with(home_) ? path.substr(home_.size()) : path));
}

bool Director::OpenMusic(const std::string& path) {
  Tell("music open " + Quote(path));
  return !Fails("music");
}

PageResult Director::OpenPage(const std::string& url) {
  if (Fails("browser find")) return PageResult::NoBrowser;
  if (Fails("browser open")) return PageResult::NotOpened;
  Tell("page " + Quote(url));
  return PageResult::Opened;
}

void Director::ViewText(const std::string& path) const {
  Tell("view " + Quote(path));
}

bool Director::MailStep(const std::string& operation, const std::optional<std::string>& value) {
  Tell("mail " + operation + (value ? " " + Quote(*value) : ""));
  return !Fails("mail " + operation);
}

// --- The player's acts -------------------------------------------------------------------------

void Director::PlayerPresses(Surface& surface, Point place) {
  desk_.UserPress(surface, place.x, place.y);
}

void Director::PlayerMoves(Control& control, Point place) {
  if (control.GetKind() == Kind::Surface) {
    desk_.UserMove(static_cast<Surface&>(control), place.x, place.y);
  } else {
    desk_.UserMove(control);
  }
}

void Director::PlayerSetsState(Window& window, WindowState state) {
  desk_.UserState(window, state);
}

void Director::PlayerResizes(Window& window, Size outerTwips) {
  desk_.UserResize(window, outerTwips);
}

void Director::PlayerAnswers(Answer answer) {
  standing_.back()->answer = answer;
  standing_.back()->answered = true;
}

void Director::PlayerGivesPath(std::optional<std::string> path) {
  standing_.back()->path = std::move(path);
  standing_.back()->answered = true;
}

}  // namespace ui::script
