// One random user for any window: clicks, types, chooses, answers, closes and waits.
#include "tests/monkey/monkey.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "core/files/files.h"
#include "core/scores/score_table.h"
#include "core/text/text.h"

namespace monkey {
namespace {

constexpr int StepsBetweenFileChecks = 2000;
constexpr int DeepestTalk = 12;  // then a standing box is answered

bool IsGameWindow(const ui::Window& window) {
  return window.Name() != "frmSelect" && !window.IsModal();
}

}  // namespace

/// One run of the program, from its start to its end.
struct Monkey::Run {
  Run(Monkey& monkey) : program(platform, chance, monkey.catalogue_, monkey.home_, "") {}

  ui::HeadlessPlatform platform;
  ui::script::Stage& stage = platform.Stage();
  core::Chance chance;
  core::Program program;
};

Monkey::Monkey(std::uint64_t seed, std::string home, core::Catalogue catalogue)
    : random_(seed), home_(std::move(home)), catalogue_(catalogue) {}

bool Monkey::Play(std::int64_t steps) {
  steps_ = steps;
  while (!Enough()) PlayOneRun();
  CheckFiles();
  return !failed_;
}

void Monkey::PlayOneRun() {
  Run run(*this);
  run_ = &run;
  run.stage.Listen({[](const std::string&) {},
                       [this](const std::function<bool()>& over) { Converse(over); }, [] {}});
  run.stage.Start([&run] { run.program.Start(); });
  while (!Enough() && !run.stage.Ended()) {
    Step();
    if (run.platform.HandlerAtWork()) Fail("a handler is left at work");
  }
  // What still stands is let go, so that no handler is at work when the program is destroyed.
  run_ = nullptr;
}

/// Something stands that holds up a handler: the monkey goes on beneath it, or answers it.
void Monkey::Converse(const std::function<bool()>& over) {
  ++depth_;
  while (!over()) {
    if (!run_ || Enough() || depth_ > DeepestTalk || Below(3) == 0) {
      const auto standing =
          run_ ? run_->stage.AllStanding() : std::vector<ui::script::Standing>();
      if (standing.empty()) break;
      Answer(standing.front());
    } else {
      Step();
    }
  }
  --depth_;
}

void Monkey::Answer(const ui::script::Standing& standing) {
  using What = ui::script::Standing::What;
  ++done_;
  if (standing.what == What::ModalWindow) {
    if (Enough() || depth_ > DeepestTalk) {
      run_->platform.Close(*standing.window);
    } else {
      Step();
    }
  } else if (standing.what == What::FileDialog) {
    if (Below(2)) {
      run_->stage.PlayerGivesPath(AnyPath());
    } else {
      run_->stage.PlayerGivesPath(std::nullopt);
    }
  } else if (standing.buttons == ui::Buttons::YesNo) {
    run_->stage.PlayerAnswers(Below(2) ? ui::Answer::Yes : ui::Answer::No);
  } else {
    run_->stage.PlayerAnswers(standing.buttons == ui::Buttons::OkCancel && Below(2)
                                     ? ui::Answer::Cancel
                                     : ui::Answer::Ok);
  }
}

void Monkey::Step() {
  ++done_;
  if (!run_->platform.ActiveWindow()) {
    run_->stage.PassTime(10);
    run_->stage.Settle();
    return;
  }
  static constexpr Act acts[] = {&Monkey::UseControl,
                                 &Monkey::UseControl,
                                 &Monkey::UseControl,
                                 &Monkey::UseControl,
                                 &Monkey::UseControl,
                                 &Monkey::UseControl,
                                 &Monkey::UseSomethingThatIsNot,
                                 &Monkey::UseWindow,
                                 &Monkey::Wait,
                                 &Monkey::QueueSomething};
  (this->*acts[Below(static_cast<int>(std::size(acts)))])();
  if (depth_ == 0) run_->stage.Settle();
  CheckWindows();
  if (done_ % StepsBetweenFileChecks == 0) CheckFiles();
}

ui::Control* Monkey::AnyControl(bool usable) {
  const ui::Window* window = run_->platform.ActiveWindow();
  std::vector<ui::Control*> fit;
  for (ui::Control* control : window->Controls()) {
    const bool canBeUsed = control->Usable() && control->GetKind() != ui::Kind::Timer &&
                           control->GetKind() != ui::Kind::Panel;
    if (canBeUsed == usable) fit.push_back(control);
  }
  return fit.empty() ? nullptr : fit[static_cast<std::size_t>(Below(static_cast<int>(fit.size())))];
}

/// A message box or a file dialog: the windows beneath take no input.
bool Monkey::BoxStands() const {
  const auto standing = run_->stage.AllStanding();
  return !standing.empty() && standing.front().what != ui::script::Standing::What::ModalWindow;
}

void Monkey::UseControl() {
  if (BoxStands()) {
    Wait();
    return;
  }
  ++visits_[run_->platform.ActiveWindow()->Name()];
  if (ui::Control* control = AnyControl(true)) Use(*control);
}

void Monkey::Use(ui::Control& control) {
  ui::script::Stage& stage = run_->stage;
  if (Below(8) == 0) {
    stage.PlayerMoves(control, {Below(control.Place().w + 2), Below(control.Place().h + 2)});
    return;
  }
  switch (control.GetKind()) {
    case ui::Kind::Field: {
      auto& field = static_cast<ui::Field&>(control);
      if (!field.ReadOnly()) stage.PlayerTypes(field, AnyText());
      break;
    }
    case ui::Kind::List: {
      auto& list = static_cast<ui::List&>(control);
      if (!list.Items().empty()) {
        stage.PlayerChooses(list, Below(static_cast<int>(list.Items().size())));
      }
      break;
    }
    case ui::Kind::Surface:
      stage.PlayerPresses(static_cast<ui::Surface&>(control),
                             {Below(control.Place().w + 2), Below(control.Place().h + 2)});
      break;
    default:
      stage.PlayerClicks(control);
  }
}

/// A player can't do these; the window layer must stand them all the same.
void Monkey::UseSomethingThatIsNot() {
  ui::Window* window = run_->platform.ActiveWindow();
  switch (Below(3)) {
    case 0:
      run_->stage.PlayerMovesBeside(*window);
      break;
    case 1:
      run_->stage.PlayerStrikes(*window, static_cast<char32_t>('A' + Below(60)));
      break;
    default:
      if (ui::Control* control = AnyControl(true)) {
        run_->stage.PlayerMoves(*control, {-5, 100000});
      }
  }
}

void Monkey::UseWindow() {
  if (BoxStands()) return;
  ui::Window* window = run_->platform.ActiveWindow();
  switch (Below(6)) {
    case 0:
      if (Below(4) == 0) run_->stage.PlayerCloses(*window);
      break;
    case 1:
      if (window->Resizable) {
        run_->stage.PlayerResizes(*window, {Below(20000), Below(20000)});
      }
      break;
    default:
      if (window->Resizable) {
        run_->stage.PlayerSetsState(*window, static_cast<ui::WindowState>(Below(3)));
      }
  }
}

void Monkey::Wait() {
  static constexpr int times[] = {0, 1, 90, 250, 1000, 5000, 30000};
  run_->stage.PassTime(times[Below(static_cast<int>(std::size(times)))]);
}

void Monkey::QueueSomething() {
  ui::Control* control = AnyControl(true);
  if (!control) return;
  ui::Window* window = &control->Owner();
  run_->stage.Queue([this, window, control] {
    if (!run_ || run_->platform.ActiveWindow() != window || BoxStands()) return;
    const auto& controls = window->Controls();
    const bool there = std::find(controls.begin(), controls.end(), control) != controls.end();
    if (!there || !control->Usable()) return;
    Use(*control);
  });
}

// --- what must always hold ----------------------------------------------------------------------

void Monkey::CheckWindows() {
  const auto& windows = run_->platform.Windows();
  if (std::count_if(windows.begin(), windows.end(),
                    [](const ui::Window* w) { return IsGameWindow(*w); }) > 1) {
    Fail("two game windows are open");
  }
}

void Monkey::CheckFiles() {
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(home_, error)) {
    const std::string name = entry.path().filename().string();
    const auto text = core::ReadWhole(entry.path().string());
    if (!text) continue;
    if (name.find(" Hi Score Table ") != std::string::npos) {
      const auto rows = core::ParseTable(*text);
      if (rows.size() != core::scoreRows || core::FormatTable(rows) != *text) Fail(name);
      // Tables within reach, so that the monkey comes to the windows behind a good score.
      core::WriteWhole(entry.path().string(), core::FormatTable(core::NewTable(Below(500))));
    }
    const bool settings = core::EndsWith(name, ".ini") || core::EndsWith(name, ".Ini");
    if (settings && !core::EndsWith(*text, "\r\n\r\n")) Fail(name);
    if (name.starts_with(".pastimo-")) Fail("left over: " + name);
  }
}

void Monkey::Fail(const std::string& what) {
  if (!failed_) std::cerr << "step " << done_ << ": " << what << '\n';
  failed_ = true;
}

std::string Monkey::AnyText() {
  static const char* const texts[] = {"",
                                      "0",
                                      "1",
                                      "100",
                                      "-5",
                                      "5000001",
                                      "32768",
                                      "2.5",
                                      "99999999999999999999",
                                      "abc",
                                      "Ann*",
                                      "a,b",
                                      "***",
                                      "\"quoted",
                                      "\xff\xfe\x01",
                                      "J\xc3\xb6rg",
                                      "line\r\nline"};
  if (Below(40) == 0) return std::string(static_cast<std::size_t>(Below(5000)), 'x');
  return texts[Below(static_cast<int>(std::size(texts)))];
}

std::string Monkey::AnyPath() {
  static const char* const names[] = {"saved.qdl", "User.ini", "Corvane.mid",       "Pastimo.gif",
                                      "none",      "",         "no/such/folder.qdl"};
  return home_ + names[Below(static_cast<int>(std::size(names)))];
}

}  // namespace monkey
