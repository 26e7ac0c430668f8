// A program of three windows that does all that a script can meet.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "ui/headless/platform.h"
#include "ui/script/subject.h"
#include "ui/script/words.h"

namespace fake {

class frmDialog : public ui::Window {
 public:
  explicit frmDialog(ui::Platform& platform) : ui::Window(platform, "frmDialog") {
    Resizable = false;
  }
  ui::Field txtFirst{this, "txtFirst"};
  ui::Button cmdOK{this, "cmdOK", "&OK", "", &frmDialog::cmdOK_Click};
  ui::Button cmdMore{this, "cmdMore", "&More", "", &frmDialog::cmdMore_Click};

 private:
  void KeyTyped(char32_t) override { GetPlatform().Quit(); }
  void cmdOK_Click() { Unload(); }
  void cmdMore_Click() {
    GetPlatform().MessageBox(ui::Sign::Plain, ui::Buttons::OkCancel, "", "More?");
  }
};

class frmMain : public ui::Window {
 public:
  explicit frmMain(ui::Platform& platform) : ui::Window(platform, "frmMain") {
    Caption = "A \"fake\"";
    grpMore.Place = ui::Rect{100, 200, 50, 40};
    cmdInner.Place = ui::Rect{5, 6, 20, 10};
    cmdInner.SetContainer(&grpMore);
    lstColors.Items = std::vector<std::string>{"red", "light \"blue\""};
    txtFixed.Text = "fixed";
    txtFixed.ReadOnly = true;
    txtName.OnGotFocus = [this] { txtName.SelectAll(); };
    txtName.OnChange = [this] { Say("changed to " + txtName.Text()); };
    board.Place = ui::Rect{0, 0, 60, 40};
    board.OnMouseMoveAt = [this](int x, int y) { SayAt("over", x, y); };
    board.OnMouseDown = [this](int x, int y) { SayAt("down", x, y); };
    board.OnMouseUp = [this](int x, int y) { SayAt("up", x, y); };
    board.DrawSector(10.5, 20, 8, 0, 90.12345, ui::Lime);
    board.DrawBox(1, 2, 20, nullptr);
    imgCard(2).Show(" 12D");
    lblSeen.TextColor = ui::Blue;
  }

  ui::Menu mnuFile{this, nullptr, "mnuFile", "&File"};
  ui::Menu mnuNew = {this, &mnuFile, "mnuNew", "&New"};
  ui::Timer tmrOnce{this, "tmrOnce", 1, ui::Timer::At::On, &frmMain::tmrOnce_Timer};
  ui::Timer tmrTick{this, "tmrTick", 100, ui::Timer::At::Off, &frmMain::tmrTick_Timer};
  ui::Timer tmrSlow{this, "tmrSlow", 1000, ui::Timer::At::Off, &frmMain::tmrSlow_Timer};
  ui::Timer tmrBox{this, "tmrBox", 1000, ui::Timer::At::Off, &frmMain::tmrBox_Timer};
  ui::Timer tmrStorm{this, "tmrStorm", 10, ui::Timer::At::Off, &frmMain::tmrStorm_Timer};
  ui::Button cmdTick{this, "cmdTick", "&Tick", "Switches the tick", &frmMain::cmdTick_Click};
  ui::Button cmdSlow{this, "cmdSlow", "", "", &frmMain::cmdSlow_Click};
  ui::Button cmdBoxes{this, "cmdBoxes", "", "", &frmMain::cmdBoxes_Click};
  ui::Button cmdAsk{this, "cmdAsk", "", "", &frmMain::cmdAsk_Click};
  ui::Button cmdFiles{this, "cmdFiles", "", "", &frmMain::cmdFiles_Click};
  ui::Button cmdModal{this, "cmdModal", "", "", &frmMain::cmdModal_Click};
  ui::Button cmdWait{this, "cmdWait", "", "", &frmMain::cmdWait_Click};
  ui::Button cmdServe{this, "cmdServe", "", "", &frmMain::cmdServe_Click};
  ui::Button cmdWaitAsk{this, "cmdWaitAsk", "", "", &frmMain::cmdWaitAsk_Click};
  ui::Button cmdMachine{this, "cmdMachine", "", "", &frmMain::cmdMachine_Click};
  ui::Button cmdStorm{this, "cmdStorm", "", "", &frmMain::cmdStorm_Click};
  ui::Button cmdFail{this, "cmdFail", "", "", &frmMain::cmdFail_Click};
  ui::Button cmdQuit{this, "cmdQuit", "", "", &frmMain::cmdQuit_Click};
  ui::Frame grpMore{this, "grpMore", "More"};
  ui::Button cmdInner{this, "cmdInner", "", "", &frmMain::cmdInner_Click};
  ui::Field txtName{this, "txtName"};
  ui::Field txtFixed{this, "txtFixed"};
  ui::Check chkMark{this, "chkMark", "&Mark"};
  ui::Option optOne{this, "optOne", "One"};
  ui::Option optTwo{this, "optTwo", "Two"};
  ui::List lstColors{this, "lstColors"};
  ui::Array<ui::Picture> imgCard{this, "imgCard", 1, 2, &frmMain::imgCard_Click};
  ui::Surface board{this, "board"};
  ui::Bar barDone{this, "barDone", 0, 20};
  ui::Label lblSeen{this, "lblSeen", "0"};
  ui::Array<ui::Panel> StatusBar1{this, "StatusBar1", 1, 2};

 private:
  bool QueryClose() override {
    return GetPlatform().MessageBox(ui::Sign::Question, ui::Buttons::YesNo, "Fake", "Close?") ==
           ui::Answer::Yes;
  }
  void Unloading() override { GetPlatform().Quit(); }
  void MouseMove() override { Say("beside"); }
  void KeyTyped(char32_t letter) override { Say("letter " + std::to_string(letter)); }

  void Say(const std::string& text) { GetPlatform().PlayWave("/home/" + text); }
  void SayAt(const std::string& what, int x, int y) {
    Say(what + " " + std::to_string(x) + " " + std::to_string(y));
  }
  void tmrOnce_Timer() {
    tmrOnce.Enabled = false;
    Say("once");
  }
  void tmrTick_Timer() { Say("tick"); }
  void tmrSlow_Timer() {
    Say("slow");
    if (++slowTicks_ > 2) return;
    GetPlatform().Wait(1700);
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
    throw std::runtime_error("storm");
  }
  void cmdStorm_Click() { tmrStorm.Enabled = true; }
  void cmdTick_Click() { tmrTick.Enabled = !tmrTick.Enabled(); }
  void cmdSlow_Click() { tmrSlow.Enabled = !tmrSlow.Enabled(); }
  void cmdBoxes_Click() { tmrBox.Enabled = true; }
  void cmdAsk_Click() {
    const auto answer =
        GetPlatform().MessageBox(ui::Sign::Question, ui::Buttons::OkCancel, "", "Really?");
    Say(answer == ui::Answer::Ok ? "ok" : "cancel");
  }
  void cmdFiles_Click() {
    using Purpose = ui::FileDialog::Purpose;
    const auto from = GetPlatform().AskFile({Purpose::Open, "Open it", "All|*.*", "", ""});
    const auto to = GetPlatform().AskFile({Purpose::Save, "Save it", "All|*.*", "", ""});
    Say(from.value_or("nothing") + " " + to.value_or("nothing"));
  }
  void cmdModal_Click() {
    frmDialog dialog(GetPlatform());
    GetPlatform().ShowModal(dialog);
    Say("name " + dialog.txtFirst.Text());
  }
  void cmdWait_Click() {
    for (int i = 1; i <= 2; ++i) {
      lblSeen.Text = std::to_string(i);
      barDone.Value = i;
      GetPlatform().Wait(250);
      GetPlatform().Wait(0);
    }
    lblSeen.Visible = false;
    GetPlatform().Wait(50);
    lblSeen.Visible = true;
  }
  void cmdServe_Click() {
    GetPlatform().Wait(300);
    Say("serving");
    GetPlatform().ServeEvents();
    Say("served");
  }
  void cmdWaitAsk_Click() {
    GetPlatform().Wait(300);
    cmdAsk_Click();
  }
  void cmdMachine_Click() {
    Say(GetPlatform().OpenMusic("/home/a.mid") ? "opened" : "not opened");
    Say("page " + std::to_string(static_cast<int>(GetPlatform().OpenPage("http://a/b"))));
    Say(GetPlatform().MailStep("Send", std::nullopt) ? "sent" : "not sent");
    Say(GetPlatform().MailStep("MsgSubject", "a \"b\"") ? "named" : "not named");
  }
  void cmdFail_Click() { throw std::runtime_error("it failed"); }
  void cmdQuit_Click() {
    GetPlatform().Quit();
    Say("quitting");
  }
  void cmdInner_Click() { Say("inner"); }
  void imgCard_Click(int i) { Say("card " + std::to_string(i)); }

  int slowTicks_ = 0;
};

/// Keeps what it is given, and shows it as values.
class Subject : public ui::script::Subject {
 public:
  std::optional<std::string> Value(const std::string& name) override {
    if (name == "Log") return ui::script::Quote(log);
    return std::nullopt;
  }
  std::vector<std::string> DeckKeys() override { return {"1S", "12D"}; }
  std::string ImageKeys() override { return "1:FULL"; }
  void AddDraws(const std::vector<double>& draws) override {
    for (const double draw : draws) log += "draw " + ui::script::NumberText(draw) + ";";
  }
  void StageDeck(const std::vector<std::string>& keys, std::function<void()> notUsed) override {
    log += "deck " + std::to_string(keys.size()) + ";";
    if (keys.size() != 2) notUsed();
  }
  void SetWriteFault(const std::string& pattern) override { log += "write " + pattern + ";"; }
  void SetReadFault(const std::string& pattern) override { log += "read " + pattern + ";"; }
  void ClearFaults() override { log += "none;"; }

  std::string log;
};

/// The whole program.
struct Program {
  ui::HeadlessPlatform platform;
  Subject subject;
  frmMain main{platform};

  Program() { platform.Stage().SetHome("/home/"); }
  void Start() { platform.Show(main); }
};

}  // namespace fake
