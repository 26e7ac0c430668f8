// A script's acts, done to real widgets; and what those show.
#pragma once

#include <functional>

#include "ui/script/director.h"

class QPoint;
class QWidget;

namespace ui::qt {

class QtWindow;
class ScriptedDesktop;

/// What can't be done to a widget (a place that is covered, a change to the text that stands
/// there) is done to the control, as on every platform.
class Hands : public script::Director {
 public:
  explicit Hands(ScriptedDesktop& desktop);

  void Settle() override;
  script::Properties Look(const Control& control) override;
  bool TakePicture(const std::string& path) override;

  void PlayerClicks(Control& control) override;
  void PlayerPresses(Surface& surface, Point place) override;
  void PlayerMoves(Control& control, Point place) override;
  void PlayerTypes(Field& field, const std::string& text) override;
  void PlayerStrikes(Window& window, char32_t letter) override;
  void PlayerChooses(List& list, int index) override;
  void PlayerChecks(Check& check, bool checked) override;
  void PlayerFocuses(Control& control) override;
  void PlayerCloses(Window& window) override;
  void PlayerAnswers(Answer answer) override;

 private:
  /// The view with everything in step.
  QtWindow& ViewOf(const Window& window);
  /// The real widget of a control; null if it is painted, or a part of the menu or status bar.
  QWidget* WidgetOf(const Control& control);
  bool ClickPainted(Control& control);

  ScriptedDesktop& desktop_;
};

}  // namespace ui::qt
