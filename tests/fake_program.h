// A program of two windows that does all that a script can meet.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "ui/headless/platform.h"
#include "ui/script/subject.h"

namespace fake {

class frmDialog : public ui::Window {
 public:
  explicit frmDialog(ui::Platform& platform) : ui::Window(platform, "frmDialog") {
    cmdOK.OnClick = [this] { Unload(); };
  }
  ui::Field txtFirst{this, "txtFirst"};
  ui::Button cmdOK{this, "cmdOK"};

 private:
  void KeyTyped(char32_t) override { GetPlatform().Quit(); }
};

class frmMain : public ui::Window {
 public:
  explicit frmMain(ui::Platform& platform) : ui::Window(platform, "frmMain") {
    grpMore.Place = ui::Rect{100, 200, 50, 40};
    cmdInner.Place = ui::Rect{5, 6, 20, 10};
    cmdInner.SetContainer(&grpMore);
    cmdInner.OnClick = [this] { Say("inner"); };
    cmdFail.OnClick = [] { throw std::runtime_error("it failed"); };
    lstColors.Items = std::vector<std::string>{"red", "light \"blue\""};
    txtFixed.ReadOnly = true;
    txtName.OnChange = [this] { Say("changed to " + txtName.Text()); };
    board.Place = ui::Rect{0, 0, 60, 40};
    board.OnMouseMoveAt = [this](int x, int y) { SayAt("over", x, y); };
    board.OnMouseDown = [this](int x, int y) { SayAt("down", x, y); };
    board.OnMouseUp = [this](int x, int y) { SayAt("up", x, y); };
    imgCard(2).Show(" 12D");
    lblSeen.TextColor = ui::Blue;
  }

  ui::Timer tmrOnce{this, "tmrOnce", 1, ui::Timer::At::On, &frmMain::tmrOnce_Timer};
  ui::Timer tmrTick{this, "tmrTick", 100, ui::Timer::At::Off, &frmMain::tmrTick_Timer};
  ui::Timer tmrSlow{this, "tmrSlow", 1000, ui::Timer::At::Off, &frmMain::tmrSlow_Timer};
  ui::Timer tmrBox{this, "tmrBox", 1000, ui::Timer::At::Off, &frmMain::tmrBox_Timer};
  ui::Timer tmrStorm{this, "tmrStorm", 10, ui::Timer::At::Off, &frmMain::tmrStorm_Timer};
  ui::Array<ui::Button> cmdTimer{this, "cmdTimer", 0, 3, &frmMain::cmdTimer_Click};
  ui::Button cmdAsk{this, "cmdAsk", "&Ask", "Asks late", &frmMain::cmdAsk_Click};
  ui::Button cmdFile{this, "cmdFile", "", "", &frmMain::cmdFile_Click};
  ui::Button cmdModal{this, "cmdModal", "", "", &frmMain::cmdModal_Click};
  ui::Button cmdWait{this, "cmdWait", "", "", &frmMain::cmdWait_Click};
  ui::Button cmdFail{this, "cmdFail"};
  ui::Frame grpMore{this, "grpMore", "More"};
  ui::Button cmdInner{this, "cmdInner"};
  ui::Field txtName{this, "txtName"};
  ui::Field txtFixed{this, "txtFixed"};
  ui::Check chkMark{this, "chkMark", "&Mark"};
  ui::Option optOne{this, "optOne", "One"};
  ui::List lstColors{this, "lstColors"};
  ui::Array<ui::Picture> imgCard{this, "imgCard", 1, 2, &frmMain::imgCard_Click};
  ui::Surface board{this, "board"};
  ui::Bar barDone{this, "barDone", 0, 20};
  ui::Label lblSeen{this, "lblSeen", "0"};

 private:
  void KeyTyped(char32_t letter) override { Say("letter " + std::to_string(letter)); }

  void Say(const std::string& text) { GetPlatform().PlayWave(text); }
  void SayAt(const std::string& what, int x, int y) {
    Say(what + " " + std::to_string(x) + " " + std::to_string(y));
  }
  void tmrOnce_Timer() {
    tmrOnce.Enabled = false;
    Say("once");
  }
  void tmrTick_Timer() { Say("tick"); }
  void tmrSlow_Timer() {
    GetPlatform().Wait(700);
    Say("slow done");
  }
  void tmrBox_Timer() {
    tmrBox.Enabled = false;
    GetPlatform().MessageBox(ui::Sign::Critical, ui::Buttons::Ok, "Late", "a\r\nb");
    Say("told");
  }
  void tmrStorm_Timer() {
    GetPlatform().ServeEvents();
    GetPlatform().Wait(20);
    GetPlatform().ServeEvents();
    cmdAsk_Click();
  }
  void cmdTimer_Click(int i) {
    ui::Timer* const timers[] = {&tmrTick, &tmrSlow, &tmrBox, &tmrStorm};
    timers[i]->Enabled = !timers[i]->Enabled();
  }
  void cmdAsk_Click() {
    GetPlatform().Wait(300);
    const bool yes = GetPlatform().MessageBox(ui::Sign::Question, ui::Buttons::OkCancel, "",
                                              "Really?") == ui::Answer::Ok;
    Say(yes ? "ok" : "cancel");
  }
  void cmdFile_Click() {
    const ui::FileDialog dialog{ui::FileDialog::Purpose::Save, "Save it", "All|*.*", "", ""};
    Say(GetPlatform().AskFile(dialog).value_or("nothing"));
  }
  void cmdModal_Click() {
    frmDialog dialog(GetPlatform());
    GetPlatform().ShowModal(dialog);
    Say("name " + dialog.txtFirst.Text());
  }
  void cmdWait_Click() {
    lblSeen.Text = "1";
    barDone.Value = 1;
    GetPlatform().Wait(250);
    GetPlatform().Wait(0);
    Say("serving");
    GetPlatform().ServeEvents();
    Say("served");
    lblSeen.Visible = false;
    GetPlatform().Wait(50);
    lblSeen.Visible = true;
  }
  void imgCard_Click(int i) { Say("card " + std::to_string(i)); }
};

/// A deck of two cards is all that it has.
class Subject : public ui::script::Subject {
 public:
  std::optional<std::string> Value(const std::string&) override { return std::nullopt; }
  std::vector<std::string> DeckKeys() override { return {"1S", "12D"}; }
  std::string ImageKeys() override { return ""; }
  void AddDraws(const std::vector<double>&) override {}
  void StageDeck(const std::vector<std::string>& keys, std::function<void()> notUsed) override {
    if (keys.size() != 2) notUsed();
  }
  void SetWriteFault(const std::string&) override {}
  void SetReadFault(const std::string&) override {}
  void ClearFaults() override {}
};

/// The whole program.
struct Program {
  ui::HeadlessPlatform platform;
  Subject subject;
  frmMain main{platform};

  void Start() { platform.Show(main); }
};

}  // namespace fake
