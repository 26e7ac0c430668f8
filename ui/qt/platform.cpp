// Event loops, waits and timers of the desktop.
#include "ui/qt/platform.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <limits>

#include "ui/qt/accessible.h"
#include "ui/qt/artwork.h"
#include "ui/qt/boxes.h"
#include "ui/qt/icon.h"
#include "ui/qt/mnemonics.h"
#include "ui/qt/preferences.h"
#include "ui/qt/qt_window.h"
#include "ui/qt/services.h"
#include "ui/qt/sound.h"
#include "ui/qt/strings.h"
#include "ui/qt/style.h"
#include "ui/qt/warm_up.h"

namespace ui::qt {
namespace {

constexpr int MostRounds = 200;         // of serving input that goes on causing events
constexpr int HandOverPatience = 3000;  // milliseconds; what takes a page may stay in foreground
constexpr std::int64_t LongestSleep = 60'000;

/// Input that a wait has held back arrives only after the dispatcher has been woken.
void WakeForHeldInput() {
  if (auto* dispatcher = QAbstractEventDispatcher::instance()) dispatcher->wakeUp();
}

}  // namespace

bool HasDisplay() {
  return !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
         !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

/// One of the three situations, as long as it lasts.
class QtPlatform::PumpScope {
 public:
  PumpScope(QtPlatform& platform, Pump pump) : platform_(platform), before_(platform.pump_) {
    platform_.pump_ = pump;
    if (pump == Pump::Free) Resume();
  }
  ~PumpScope() {
    const bool waited = platform_.pump_ == Pump::Waiting;
    platform_.pump_ = before_;
    if (waited) Resume();
  }
  PumpScope(const PumpScope&) = delete;

 private:
  void Resume() {
    WakeForHeldInput();
    platform_.SettleSoon();
  }

  QtPlatform& platform_;
  const Pump before_;
};

QtPlatform::QtPlatform(int& argc, char** argv, Installation installation,
                       std::unique_ptr<Clock> clock)
    : clock_(std::move(clock)), warmUp_(std::make_unique<WarmUp>()) {
  QApplication::setStyle(MakeStyle());
  application_ = std::make_unique<QApplication>(argc, argv);
  IntroduceProgram(installation.icons);
  QApplication::setPalette(PaperPalette());
  QApplication::setQuitOnLastWindowClosed(false);
  mnemonics_ = std::make_unique<InstantMnemonics>();
  application_->installEventFilter(mnemonics_.get());
  MakeBoardsAccessible();
  artwork_ = std::make_unique<Artwork>(ToQt(installation.pictures));
  preferences_ = std::make_unique<Preferences>(installation.preferences);
  timer_ = std::make_unique<QTimer>();
  timer_->setSingleShot(true);
  timer_->setTimerType(Qt::PreciseTimer);
  QObject::connect(timer_.get(), &QTimer::timeout, timer_.get(), [this] { TimersDue(); });
  sound_ = std::make_unique<Sound>();
  mail_ = std::make_unique<Mail>([this](QProcess& process) { return WaitFor(process); });
}

QtPlatform::~QtPlatform() {
  views_.clear();
  closed_.clear();
}

int QtPlatform::Exec() {
  Settle();
  warmUp_.reset();
  return quitting_ ? 0 : QApplication::exec();
}

void QtPlatform::Quit() {
  quitting_ = true;
  SettleSoon();
}

// --- Waiting and serving -----------------------------------------------------------------------

void QtPlatform::Wait(int milliseconds) {
  SyncAll();
  for (const auto& [window, view] : views_) view->PaintNow();
  const int real = clock_->BeginWait(std::max(0, milliseconds));
  if (real <= 0) return;
  const PumpScope waiting(*this, Pump::Waiting);
  QEventLoop loop;
  QTimer::singleShot(real, Qt::PreciseTimer, &loop, [&loop] { loop.quit(); });
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

bool QtPlatform::WaitFor(QProcess& process) {
  const PumpScope waiting(*this, Pump::Waiting);
  QEventLoop loop;
  QObject::connect(&process, &QProcess::stateChanged, &loop, [&loop](QProcess::ProcessState state) {
    if (state == QProcess::NotRunning) loop.quit();
  });
  QTimer::singleShot(HandOverPatience, &loop, [&loop] { loop.quit(); });
  if (process.state() != QProcess::NotRunning) loop.exec(QEventLoop::ExcludeUserInputEvents);
  return process.state() == QProcess::NotRunning;
}

void QtPlatform::ServeEvents() {
  ServeInput();
  TickAllDue();
  SyncAll();
}

void QtPlatform::ServeInput() {
  SyncAll();
  const PumpScope serving(*this, Pump::Serving);
  ServeHeldActs();
  WakeForHeldInput();
  for (int round = 0; round < MostRounds; ++round) {
    if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) break;
  }
  SyncAll();
}

void QtPlatform::Act(Window& window, std::function<void()> act) {
  if (!window.IsOpen()) return;
  if (pump_ == Pump::Waiting) {
    held_.push_back({&window, std::move(act)});
    return;
  }
  act();
  Settle();
}

void QtPlatform::ServeHeldActs() {
  while (pump_ != Pump::Waiting && !held_.empty()) {
    const HeldAct held = std::move(held_.front());
    held_.pop_front();
    held.act();
  }
}

// --- Timers ------------------------------------------------------------------------------------

void QtPlatform::TimersDue() {
  if (pump_ != Pump::Free) return;
  ServeInput();
  TickAllDue();
  Settle();
}

void QtPlatform::ArmTimer() {
  const Timer* first = FirstDue(std::numeric_limits<std::int64_t>::max());
  if (!first) {
    timer_->stop();
    return;
  }
  timer_->start(
      static_cast<int>(std::clamp<std::int64_t>(first->Due() - Ticks(), 0, LongestSleep)));
}

// --- Keeping in step ---------------------------------------------------------------------------

void QtPlatform::SyncAll() {
  for (const auto& [window, view] : views_) view->Sync();
}

void QtPlatform::Settle() {
  ServeHeldActs();
  SyncAll();
  ArmTimer();
  if (!closed_.empty() || quitting_) SettleSoon();
}

void QtPlatform::SettleSoon() {
  if (settleIsPosted_) return;
  settleIsPosted_ = true;
  QMetaObject::invokeMethod(
      timer_.get(),
      [this] {
        settleIsPosted_ = false;
        ServeHeldActs();
        SyncAll();
        ArmTimer();
        if (HandlerAtWork()) return;
        BuryViews();
        if (quitting_) QApplication::exit(0);
      },
      Qt::QueuedConnection);
}

void QtPlatform::BuryViews() {
  for (auto& view : closed_) view.release()->deleteLater();
  closed_.clear();
}

void QtPlatform::ControlChanged(Control& control) {
  if (QtWindow* view = ViewOf(control.Owner())) view->ControlChanged(control);
  SettleSoon();
}

void QtPlatform::WindowChanged(Window& window) {
  if (QtWindow* view = ViewOf(window)) view->WindowChanged();
  SettleSoon();
}

void QtPlatform::SetFocus(Control& control) {
  Desk::SetFocus(control);
  if (QtWindow* view = ViewOf(control.Owner())) view->TakeFocus(control);
}

void QtPlatform::Repaint(Window& window) {
  QtWindow* view = ViewOf(window);
  if (!view) return;
  view->Sync();
  view->PaintNow();
}

// --- Windows -----------------------------------------------------------------------------------

QtWindow* QtPlatform::ViewOf(const Window& window) const {
  const auto found = views_.find(&window);
  return found == views_.end() ? nullptr : found->second.get();
}

QtWindow& QtPlatform::Mirror(Window& window) {
  auto& view = views_[&window];
  if (!view) view = std::make_unique<QtWindow>(*this, window);
  return *view;
}

QtWindow* QtPlatform::ActiveView() const {
  const Window* active = ActiveWindow();
  return active ? ViewOf(*active) : nullptr;
}

void QtPlatform::Show(Window& window) {
  Mirror(window).Open(false, nullptr);
  Opened(window, false);
  FocusFirst(window);
  SettleSoon();
}

void QtPlatform::ShowModal(Window& window) {
  QtWindow* above = ActiveView();
  QtWindow& view = Mirror(window);
  view.Open(true, above);
  const PumpScope free(*this, Pump::Free);
  Opened(window, true);
  FocusFirst(window);
  SyncAll();
  HoldUp(view);
}

void QtPlatform::HoldUp(QtWindow& modal) {
  modal.WaitUntilClosed();
}

void QtPlatform::Hide(Window& window) {
  WasHidden(window);
  if (QtWindow* view = ViewOf(window)) view->hide();
  if (QtWindow* next = ActiveView()) next->ComeForward();
}

void QtPlatform::Close(Window& window) {
  Closed(window);
  std::erase_if(held_, [&](const HeldAct& held) { return held.window == &window; });
  const auto found = views_.find(&window);
  if (found == views_.end()) return;
  found->second->Detach();
  closed_.push_back(std::move(found->second));
  views_.erase(found);
  if (QtWindow* next = ActiveView()) next->ComeForward();
  SettleSoon();
}

void QtPlatform::Activated(Window& window) {
  if (window.IsOpen() && !window.IsHidden()) RaiseToTop(window);
}

Size QtPlatform::ScreenSize() const {
  if (screen_.w > 0) return screen_;
  const QSize size = QGuiApplication::primaryScreen()->availableSize();
  return {size.width(), size.height()};
}

void QtPlatform::SetScreenSize(Size size) {
  screen_ = size;
}

// --- Boxes, sound and the desktop's services ----------------------------------------------------

Answer QtPlatform::MessageBox(Sign sign, Buttons buttons, const std::string& title,
                              const std::string& text) {
  SyncAll();
  const PumpScope free(*this, Pump::Free);
  return AskBox(ActiveView(), sign, buttons, title, text,
                [this](QMessageBox& box) { return HoldUp(box); });
}

int QtPlatform::HoldUp(QMessageBox& box) {
  return box.exec();
}

std::optional<std::string> QtPlatform::AskFile(const FileDialog& dialog) {
  SyncAll();
  const PumpScope free(*this, Pump::Free);
  return AskForFile(ActiveView(), dialog);
}

void QtPlatform::PlayWave(const std::string& path) {
  sound_->PlayWave(path);
}
bool QtPlatform::OpenMusic(const std::string& path) {
  return sound_->OpenMusic(path);
}
void QtPlatform::PlayMusic() {
  sound_->PlayMusic();
}
void QtPlatform::PauseMusic() {
  sound_->StopMusic();
}
void QtPlatform::CloseMusic() {
  sound_->CloseMusic();
}

PageResult QtPlatform::OpenPage(const std::string& url) {
  return OpenInBrowser(url, [this](QProcess& process) { return WaitFor(process); });
}
void QtPlatform::ViewText(const std::string& path) {
  OpenInViewer(path);
}

bool QtPlatform::MailStep(const std::string& operation, std::optional<std::string> value) {
  return mail_->Step(operation, value);
}

bool QtPlatform::CanShowPicture(const std::string& path) const {
  return Artwork::CanRead(path);
}

}  // namespace ui::qt
