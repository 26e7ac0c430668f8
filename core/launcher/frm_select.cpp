// The launcher: the program's first window and its last.
#include "core/launcher/frm_select.h"

#include <stdexcept>

#include "core/files/files.h"
#include "core/session/counter_box.h"
#include "core/settings/settings_file.h"
#include "core/suite/deployment.h"

namespace core {
namespace {

constexpr ui::Size Inner{664, 424};
constexpr ui::Size CardSize{69, 94};
constexpr int Backs[] = {2, 5, 8};  // positions in the picture store, dealt in turn

std::vector<SettingsKey> UserKeys(Shared& shared) {
  return {Text("[User Name]", shared.PlayerName), Text("[Hometown]", shared.PlayerHometown),
          Text("[State]", shared.PlayerState), Text("[Country]", shared.PlayerCountry),
          Text("[MIDI]", shared.MidiFile)};
}

}  // namespace

frmSelect::frmSelect(Suite& suite)
    : ui::Window(suite.platform, "frmSelect"),
      suite_(suite),
      animation_(imgSplashImage, {[this](ui::Picture& picture) { ShowBackOf(picture); },
                                  [this](ui::Picture& picture) { ShowRandomFace(picture); },
                                  [this](bool backsWereShown) { NextBack(backsWereShown); }}) {
  suite.launcher = this;
  NormalSize = OuterFor(Inner);
  Resizable = false;
  for (const GameEntry& entry : suite.catalogue) {
    auto button = std::make_unique<ui::Button>(this, entry.button);
    button->SetContainer(&frmGameChoice);
    button->OnClick = [this, &entry] { StartGame(entry); };
    gameButtons_.push_back(std::move(button));
  }
}

void frmSelect::Load() {
  Shared& shared = suite_.shared;
  shared.NewHighScoreRank = -1;
  Hourglass = true;
  Caption = "Corvane's Pastimo Version 8.2";
  shared.MidiFile = suite_.PathOf("Corvane.MID");
  suite_.platform.Show(*this);
  for (std::size_t i = 0; i < gameButtons_.size(); ++i) {
    gameButtons_[i]->Text = suite_.catalogue[i].caption;
    gameButtons_[i]->Tip = "Play " + suite_.catalogue[i].title;
  }
  if (!Exists(suite_.PathOf("User.ini"))) WriteUserIni();
  ReadUserIni();
  if (!Exists(shared.MidiFile)) shared.MidiFile = suite_.PathOf("Corvane.mid");
}

void frmSelect::ReadUserIni() {
  std::string error;
  if (const auto text = ReadWhole(suite_.PathOf("User.ini"), &error)) {
    ReadSettings(*text, UserKeys(suite_.shared));
  } else {
    suite_.TellPlainly(error);
  }
}

void frmSelect::WriteUserIni() {
  std::string error;
  const std::string text = FormatSettings(UserKeys(suite_.shared));
  if (!WriteWhole(suite_.PathOf("User.ini"), text, &error)) suite_.TellPlainly(error);
}

void frmSelect::Resized() {
  const ui::Size inner = InnerSize();
  const int spacing = (inner.w - 8 * CardSize.w) / 9;
  imgSplashImage.ForEach([&](int i, ui::Picture& picture) {
    picture.Place = {spacing + i * (CardSize.w + spacing), 16, CardSize.w, CardSize.h};
  });
  frmGameChoice.Place = {16, 124, inner.w - 32, 190};
  const int columns = 5;
  const int width = (inner.w - 32 - 12 * (columns + 1)) / columns;
  for (std::size_t i = 0; i < gameButtons_.size(); ++i) {
    const int column = static_cast<int>(i) % columns;
    const int row = static_cast<int>(i) / columns;
    gameButtons_[i]->Place = {12 + column * (width + 12), 34 + row * 74, width, 60};
  }
  CenterIn(lblInit, {16, 326, inner.w - 32, 24});
  cmdLaunchBrowser.Place = {16, inner.h - 52, 220, 36};
  cmdClose.Place = {inner.w - 136, inner.h - 52, 120, 36};
}

void frmSelect::Timer2_Timer() {
  Hourglass = true;
  Timer2.Enabled = false;
  suite_.OpenMidi();
  lblInit.Visible = false;
  Hourglass = false;
}

void frmSelect::Timer1_Timer() {
  animation_.Step();
  suite_.shared.ScoringBusy = false;
}

void frmSelect::ShowBackOf(ui::Picture& picture) {
  picture.ShowArtwork(CardImages::ArtworkAt(BackPosition), suite_.images.KeyAt(BackPosition));
  picture.Border = false;
}

void frmSelect::ShowRandomFace(ui::Picture& picture) {
  const int face = RandomBetween(suite_.chance, CardImages::firstFace, CardImages::lastFace);
  picture.Show(suite_.images.KeyAt(face));
  picture.Border = true;
}

void frmSelect::NextBack(bool backsWereShown) {
  if (!backsWereShown) return;
  BackPosition += Backs[1] - Backs[0];
  if (BackPosition > Backs[2]) BackPosition = Backs[0];
}

void frmSelect::StartGame(const GameEntry& entry) {
  // A window that is just being loaded can ask the player something: no second one meanwhile.
  if (Hourglass() || (game_ && game_->IsOpen())) return;
  Hourglass = true;
  suite_.shared.GameTitle = entry.title;
  try {
    auto window = entry.makeWindow(suite_, entry);
    window->Load();
    suite_.platform.Bury(std::move(game_));
    game_ = std::move(window);
    suite_.platform.Show(*game_);
  } catch (const std::exception& e) {
    Hourglass = false;
    suite_.TellPlainly(e.what());
    return;
  }
  Hourglass = false;
  suite_.platform.Hide(*this);
}

void frmSelect::cmdLaunchBrowser_Click() {
  suite_.OpenWebPage(deployment::SuitePage);
}

void frmSelect::Unloading() {
  WriteUserIni();
  suite_.CloseMidi();
  suite_.platform.Quit();
}

}  // namespace core
