// One random user for any window: clicks, types, chooses, answers, closes and waits.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "core/launcher/program.h"
#include "ui/headless/platform.h"

namespace monkey {

/// Plays until so many steps are done, starting the program again whenever it has ended.
class Monkey {
 public:
  Monkey(std::uint64_t seed, std::string home, core::Catalogue catalogue);

  /// True if all that must always hold held after every step.
  bool Play(std::int64_t steps);

 private:
  struct Run;
  using Act = void (Monkey::*)();

  void PlayOneRun();
  void Step();
  void UseControl();
  void UseSomethingThatIsNot();
  void UseWindow();
  void Wait();
  void QueueSomething();
  void Use(ui::Control& control);
  void Answer(const ui::script::Standing& standing);
  void Converse(const std::function<bool()>& over);
  bool BoxStands() const;
  bool Enough() const { return done_ >= steps_ || failed_; }

  void CheckWindows();
  void CheckFiles();
  void Fail(const std::string& what);

  int Below(std::int64_t n) { return static_cast<int>(random_() % static_cast<std::uint64_t>(n)); }
  ui::Control* AnyControl(bool usable);
  std::string AnyText();
  std::string AnyPath();

  std::mt19937_64 random_;
  std::string home_;
  core::Catalogue catalogue_;
  Run* run_ = nullptr;
  std::int64_t steps_ = 0;
  std::int64_t done_ = 0;
  int depth_ = 0;
  bool failed_ = false;
  std::map<std::string, std::int64_t> visits_;  ///< how often each window was used
};

}  // namespace monkey
