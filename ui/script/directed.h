// What both scripted platforms hand on to their director.
#pragma once

#include <memory>
#include <utility>

#include "ui/script/director.h"

namespace ui::script {

/// A platform over `Base` whose machine is a director: its clock, its sound, its other programs.
/// Windows and boxes are the derived class's affair; it makes the director in its constructor.
template <class Base>
class Directed : public Base {
 public:
  /// The stage on which a script plays.
  Director& Stage() const { return *director_; }

  std::int64_t Now() const override { return director_->Now(); }
  std::int64_t Ticks() const override { return director_->Ticks(); }
  Size ScreenSize() const override { return {1920, 1080}; }
  void PlayWave(const std::string& path) override { director_->PlayWave(path); }
  bool OpenMusic(const std::string& path) override { return director_->OpenMusic(path); }
  void PlayMusic() override { director_->Tell("music play"); }
  void PauseMusic() override { director_->Tell("music pause"); }
  void CloseMusic() override { director_->Tell("music close"); }
  PageResult OpenPage(const std::string& url) override { return director_->OpenPage(url); }
  void ViewText(const std::string& path) override { director_->ViewText(path); }
  bool MailStep(const std::string& operation, std::optional<std::string> value) override {
    return director_->MailStep(operation, value);
  }
  void Quit() override { director_->Quit(); }

 protected:
  template <class... Arguments>
  explicit Directed(Arguments&&... arguments) : Base(std::forward<Arguments>(arguments)...) {}

  std::unique_ptr<Director> director_;
};

}  // namespace ui::script
