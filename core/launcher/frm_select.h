// The launcher: the program's first window and its last.
#pragma once

#include <memory>
#include <vector>

#include "core/session/title_panel.h"
#include "core/suite/suite.h"
#include "ui/window.h"

namespace core {

class frmSelect : public ui::Window {
 public:
  explicit frmSelect(Suite& suite);

  /// Starts the program up; shows the window in the midst of it.
  void Load() override;

 private:
  void Unloading() override;
  void Resized() override;

  void ReadUserIni();
  void WriteUserIni();
  void StartGame(const GameEntry& entry);
  void ShowBackOf(ui::Picture& picture);
  void ShowRandomFace(ui::Picture& picture);
  void NextBack(bool backsWereShown);

  void cmdLaunchBrowser_Click();
  void cmdClose_Click() { Unload(); }
  void Timer1_Timer();
  void Timer2_Timer();

  Suite& suite_;
  std::unique_ptr<ui::Window> game_;
  int BackPosition = 2;  ///< in the picture store

  ui::Frame frmGameChoice{this, "frmGameChoice", "Select your game"};
  std::vector<std::unique_ptr<ui::Button>> gameButtons_;  ///< one for each row of the catalogue
  ui::Button cmdLaunchBrowser{this, "cmdLaunchBrowser", "&Go to Corvane's website",
                              "Go to the Pastimo Web Site", &frmSelect::cmdLaunchBrowser_Click};
  ui::Button cmdClose{this, "cmdClose", "Cl&ose", "Close the Pastimo", &frmSelect::cmdClose_Click};
  ui::Label lblInit{this, "lblInit", "Initializing Games..."};
  ui::Array<ui::Picture> imgSplashImage{this, "imgSplashImage", 0, 7};
  ui::Timer Timer1{this, "Timer1", 250, ui::Timer::At::On, &frmSelect::Timer1_Timer};
  ui::Timer Timer2{this, "Timer2", 1, ui::Timer::At::On, &frmSelect::Timer2_Timer};
  DealAnimation animation_;
};

}  // namespace core
