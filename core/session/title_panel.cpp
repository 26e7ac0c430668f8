// The title panel over an idle board, on which a row of pictures is dealt and taken back.
#include "core/session/title_panel.h"

#include "core/session/counter_box.h"

namespace core {
namespace {

constexpr ui::Size PanelSize{430, 250};  // leaves the buttons of the smallest window free
constexpr ui::Size CardSize{69, 94};
constexpr int Spacing = 12;

}  // namespace

DealAnimation::DealAnimation(ui::Array<ui::Picture>& row, Passes passes)
    : row_(row), passes_(std::move(passes)) {}

void DealAnimation::Step() {
  ui::Picture& picture = row_(Index);
  picture.Owner().SendToBack(picture);
  Forward ? DealOne() : TakeOneBack();
}

void DealAnimation::DealOne() {
  (ShowBack ? passes_.showBack : passes_.showFace)(row_(Index));
  if (++Index <= row_.Last()) return;
  Forward = false;
  Index = row_.Last();
}

void DealAnimation::TakeOneBack() {
  if (--Index >= 0) return;
  Forward = true;
  Index = 0;
  if (passes_.turned) passes_.turned(ShowBack);
  ShowBack = !ShowBack;
}

TitlePanel::TitlePanel(ui::Window* window, Suite& suite, int pictures, std::string face)
    : frmSplash(window, "frmSplash", "", ui::Frame::Look::Panel),
      lblCompanyProduct(window, "lblCompanyProduct", "Corvane Presents"),
      lblProductName(window, "lblProductName"),
      lblVersion(window, "lblVersion", "Version 8.2"),
      imgSplashImage(window, "imgSplashImage", 0, pictures - 1),
      suite_(suite),
      face_(std::move(face)),
      animation_(imgSplashImage, {[](ui::Picture& picture) {
                                    picture.Show("BACK");
                                    picture.Border = false;
                                  },
                                  [this](ui::Picture& picture) { ShowFace(picture); },
                                  {}}) {
  LayOut();
}

void TitlePanel::ShowFace(ui::Picture& picture) {
  if (face_.empty()) {
    const int face = RandomBetween(suite_.chance, CardImages::firstFace, CardImages::lastFace);
    picture.Show(suite_.images.KeyAt(face));
  } else {
    picture.Show(face_);
  }
  picture.Border = face_.empty();
}

void TitlePanel::LayOut() {
  frmSplash.SetSize(PanelSize.w, PanelSize.h);
  for (ui::Control* control :
       {static_cast<ui::Control*>(&lblCompanyProduct), static_cast<ui::Control*>(&lblProductName),
        static_cast<ui::Control*>(&lblVersion)}) {
    control->SetContainer(&frmSplash);
  }
  core::CenterIn(lblCompanyProduct, {10, 14, PanelSize.w - 20, 24});
  core::CenterIn(lblProductName, {10, 40, PanelSize.w - 20, 48});
  core::CenterIn(lblVersion, {10, PanelSize.h - 34, PanelSize.w - 20, 20});
  lblCompanyProduct.FontSize = 12;
  lblProductName.FontSize = 26;
  lblProductName.Bold = true;
  lblProductName.TextColor = ui::Blue;
  imgSplashImage.PutInto(frmSplash);
  const int count = imgSplashImage.Last() + 1;
  const int width = count * CardSize.w + (count - 1) * Spacing;
  imgSplashImage.ForEach([&](int i, ui::Picture& picture) {
    picture.Place = {(PanelSize.w - width) / 2 + i * (CardSize.w + Spacing), 104, CardSize.w,
                     CardSize.h};
  });
}

void TitlePanel::CenterIn(ui::Size inner) {
  frmSplash.MoveTo((inner.w - PanelSize.w) / 2, (inner.h - PanelSize.h) / 2);
}

}  // namespace core
