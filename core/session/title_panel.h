// The title panel over an idle board, on which a row of pictures is dealt and taken back.
#pragma once

#include <functional>
#include <string>

#include "core/suite/suite.h"
#include "ui/controls.h"

namespace core {

/// Deals a row of pictures and takes it back, one step a tick: a pass of backs, a pass of faces.
class DealAnimation {
 public:
  /// The two show a picture in the place that they are given; `turned` runs when a pass is over.
  struct Passes {
    std::function<void(ui::Picture&)> showBack;
    std::function<void(ui::Picture&)> showFace;
    std::function<void(bool backsWereShown)> turned;
  };
  DealAnimation(ui::Array<ui::Picture>& row, Passes passes);
  void Step();

 private:
  void DealOne();
  void TakeOneBack();

  ui::Array<ui::Picture>& row_;
  Passes passes_;
  int Index = 0;
  bool Forward = false;
  bool ShowBack = false;
};

class TitlePanel {
 public:
  /// `face` is the key of the picture dealt in every other pass; empty for random cards.
  TitlePanel(ui::Window* window, Suite& suite, int pictures, std::string face);

  void Step() { animation_.Step(); }
  void Show(bool visible) { frmSplash.Visible = visible; }
  void CenterIn(ui::Size inner);

  ui::Frame frmSplash;
  ui::Label lblCompanyProduct;
  ui::Label lblProductName;
  ui::Label lblVersion;
  ui::Array<ui::Picture> imgSplashImage;

 private:
  void ShowFace(ui::Picture& picture);
  void LayOut();

  Suite& suite_;
  std::string face_;
  DealAnimation animation_;
};

}  // namespace core
