// A program with every kind of control, to try the desktop platform with.
#include <cstdlib>
#include <iostream>

#include "tests/desktop/probe.h"
#include "ui/qt/platform.h"
#include "ui/window.h"

namespace {

using namespace ui;

void Tell(const std::string& what) {
  std::cout << "* " << what << std::endl;
}

/// A dialog that layouts place.
class Dialog : public Window {
 public:
  explicit Dialog(Platform& platform) : Window(platform, "frmDialog") {
    Caption = "Scoring Options";
    NormalSize = OuterFor({420, 300});
    Resizable = false;
    cmdOK.DialogRole = Button::Role::Default;
    cmdCancel.DialogRole = Button::Role::Cancel;
    lblInfo.Wrap = true;
    cboList.Items = std::vector<std::string>{"None", "Alabama", "Wyoming"};
    cboList.Index = 0;
    txtBonus.OnGotFocus = [this] { txtBonus.SelectAll(); };
    txtBonus.Text = "1000";
    optOne.Checked = true;
    layout_.Row({&lblInfo});
    layout_.Row({&lblName, &txtName}, &fraValues);
    layout_.Row({&lblBonus, &txtBonus}, &fraValues);
    layout_.Row({&lblList, &cboList}, &fraValues);
    layout_.Row({&optOne}, &fraKind);
    layout_.Row({&optTwo}, &fraKind);
    layout_.Row({&chkSound});
    layout_.Row({&txtNotes});
    layout_.Buttons({&cmdOK, &cmdCancel});
    optOne.SetContainer(&fraKind);
    optTwo.SetContainer(&fraKind);
    txtNotes.Multiline = true;
  }

  void cmdOK_Click() {
    Tell("ok " + txtName.Text() + "/" + txtBonus.Text() + "/" + cboList.Text() + "/" +
         (optTwo.Checked() ? "two" : "one") + "/" + (chkSound.Checked() ? "sound" : "silent"));
    Unload();
  }
  void cmdCancel_Click() {
    Tell("cancel");
    Unload();
  }

  Label lblInfo{this, "lblInfo",
                "Please verify the information below. After making any changes click on the "
                "'OK' command button. A long explanation like this one is broken into lines."};
  Frame fraValues{this, "fraValues", "Values"};
  Label lblName{this, "lblName", "&Name:"};
  Field txtName{this, "txtName"};
  Label lblBonus{this, "lblBonus", "&Bonus for a set of cards:"};
  Field txtBonus{this, "txtBonus"};
  Label lblList{this, "lblList", "S&tate:"};
  List cboList{this, "cboList"};
  Frame fraKind{this, "fraKind", "Kind"};
  Option optOne{this, "optOne", "&Falling boxes"};
  Option optTwo{this, "optTwo", "&Sliding columns"};
  Check chkSound{this, "chkSound", "&Play sounds"};
  Field txtNotes{this, "txtNotes"};
  Button cmdOK{this, "cmdOK", "&OK", "Takes the values", &Dialog::cmdOK_Click};
  Button cmdCancel{this, "cmdCancel", "&Cancel", "", &Dialog::cmdCancel_Click};
};

/// A table with cards, counters, a clock and everything that can be operated.
class Table : public Window {
 public:
  explicit Table(Platform& platform) : Window(platform, "frmTable") {
    Caption = "Desktop demo";
    NormalSize = Size{9645, 7620};
    static const char* const cards[] = {"1S", "12H", "13D", "11C", "10H", "BACK1", "EMPTY"};
    imgCard.ForEach([&](int i, Picture& card) {
      card.Show(cards[i]);
      card.Border = i < 5;
      card.Pointer = "POINTER";
      card.Tip = std::to_string(100 * i) + " points";
    });
    frmPick.Show(false);
    for (int i = 0; i < 6; ++i) {
      lblNumber(i).Text = "1,234,567";
      lblNumber(i).Bold = true;
      lblNumber(i).FontSize = 11;
      lblNumber(i).Alignment = Align::Center;
      shpBox(i).ShapeLook = Shape::Look::Sunken;
      lblFelt(i).Text = "Score:";
    }
    static const Color colors[] = {Black, Blue, Red, Aqua, Lime, White};
    for (int i = 0; i < 6; ++i) {
      lblNumber(i).TextColor = colors[i];
      lblFelt(i).TextColor = colors[i];
    }
    lblMessage.FontSize = 20;
    lblMessage.Bold = true;
    lblMessage.Alignment = Align::Center;
    lblMessage.Text = "Game Paused";
    lblName.FontSize = 22;
    lblName.Bold = true;
    lblName.Alignment = lblBy.Alignment = Align::Center;
    for (Control* c : {(Control*)&lblName, (Control*)&lblBy}) c->SetContainer(&frmSplash);
    imgSplash.PutInto(frmSplash);
    imgSplash.ForEach([](int i, Picture& p) { p.Show(i % 2 ? "QDLE" : "BACK2"); });
    cboGame.Items = std::vector<std::string>{"Quick", "Normal", "Slow"};
    cboGame.Index = 1;
    txtLetter.Text = "Ä letter";
    optRed.Checked = true;
    optRed.SetContainer(&fraColor);
    optBlue.SetContainer(&fraColor);
    barLeft.Value = 40;
    mnuSounds.OnClick = Bind(this, &Table::mnuSounds_Click);
    mnuClose.OnClick = Bind(this, &Table::mnuClose_Click);
    frmSplash.Visible = std::getenv("DEMO_SPLASH") != nullptr;
    mnuSounds.Checked = true;
    mnuMore.StartsGroup = true;
    pnl1.Text = "Welcome to Demo!  ";
    pnl2.Text = "Click on exposed cards to total 11!   ";
    pnl3.Text = "5:04 PM";
    DrawClock(200);
    Boxes.OnMouseDown = [this](int x, int y) { Tell("box " + At(x, y)); };
    Boxes.OnMouseMoveAt = [this](int x, int y) { lblNote.Text = "box " + At(x, y); };
    Color colorsOfBoxes[] = {Red, Blue, Lime, Yellow};
    for (int i = 0; i < 12; ++i) {
      Boxes.DrawBox(4 + i % 4 * 24, 4 + i / 4 * 24, 22, &colorsOfBoxes[i % 4], i == 5);
    }
  }

  static std::string At(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }

  void DrawClock(int angle) {
    Clock.Clear();
    const double c = 45;
    Clock.DrawSector(c, c, 40, 0, 180, Lime);
    Clock.DrawSector(c, c, 40, 180, angle, Yellow);
    Clock.DrawLine(c, 5, c, 85, Silver);
    Clock.DrawLine(c, c, 5, c, Silver);
    Clock.DrawCircle(c, c, 40, Black);
  }

  void Activate() override { Tell("activate"); }
  void MouseMove() override { lblNote.Text = "table"; }
  void KeyTyped(char32_t letter) override { Tell(std::string("key ") + char(letter)); }
  bool QueryClose() override {
    return GetPlatform().MessageBox(Sign::Question, Buttons::YesNo, "Demo!",
                                    "Are you sure you want to quit now? <b>plain</b>") ==
           Answer::Yes;
  }
  void Unloading() override { GetPlatform().Quit(); }

  void Resized() override {
    const Size inner = InnerSize();
    Tell("resized " + At(inner.w, inner.h) + " state " + std::to_string(int(State())));
    if (State() == WindowState::Minimized) return;
    if (NormalSize().w < 9645 || NormalSize().h < 7620) {
      if (State() == WindowState::Normal) NormalSize = Size{9645, 7620};
      return;
    }
    const int right = inner.w - 100;
    int y = 16;
    for (Button* b : {&cmdCount, &cmdWait, &cmdServe, &cmdDialog, &cmdAsk, &cmdFile, &cmdOther,
                      &cmdOff}) {
      b->Place = Rect{right, y, 88, 28};
      y += 34;
    }
    imgCard.ForEach([&](int i, Picture& card) { card.Place = Rect{16 + i * 62, 16, 69, 94}; });
    frmPick.ForEach([&](int i, Shape& s) { s.Place = Rect{15 + i * 62, 15, 71, 97}; });
    for (int i = 0; i < 6; ++i) {
      shpBox(i).Place = Rect{16 + i * 84, 130, 80, 26};
      lblNumber(i).Place = Rect{16 + i * 84, 133, 80, 20};
      lblFelt(i).Place = Rect{24 + i * 84, 162, 64, 16};
    }
    lblMessage.Place = Rect{inner.w / 2 - 250, 190, 400, 36};
    Clock.Place = Rect{16, 190, 90, 90};
    Boxes.Place = Rect{120, 240, 104, 80};
    fraColor.Place = Rect{240, 240, 140, 84};
    optRed.Place = Rect{12, 22, 110, 22};
    optBlue.Place = Rect{12, 48, 110, 22};
    chkOn.Place = Rect{390, 250, 120, 22};
    cboGame.Place = Rect{390, 280, 120, 24};
    txtLetter.Place = Rect{390, 310, 120, 24};
    barLeft.Place = Rect{16, 290, 90, 18};
    lblCount.Place = Rect{16, 330, 200, 16};
    lblNote.Place = Rect{230, 335, 140, 16};
    lblHigh.Place = Rect{16, 350, 200, 16};
    frmSplash.Place = Rect{inner.w / 2 - 220, 60, 400, 260};
    lblName.Place = Rect{0, 20, 400, 40};
    lblBy.Place = Rect{0, 70, 400, 20};
    imgSplash.ForEach([](int i, Picture& p) { p.Place = Rect{60 + 50 * i, 110, 69, 94}; });
  }

  void imgCard_Click(int i) {
    Tell("card " + std::to_string(i));
    frmPick(i).LineColor = i % 2 ? Yellow : Red;
    frmPick(i).Visible = !frmPick(i).Visible();
  }
  void cmdCount_Click() {
    if (busy_) {
      Tell("dropped");
      return;
    }
    lblCount.Text = "Clicks: " + std::to_string(++clicks_);
    Tell("count " + std::to_string(clicks_));
  }
  void WaitAndServe(bool serve) {
    busy_ = true;
    Tell("wait begins");
    for (int i = 0; i < 10; ++i) {
      lblMessage.TextColor = i % 2 ? Red : Black;
      lblMessage.Text = "Counting " + std::to_string(i);
      GetPlatform().Wait(150);
    }
    Tell("wait ends");
    if (serve) GetPlatform().ServeEvents();
    busy_ = false;
    Tell("handler ends");
  }
  void cmdWait_Click() { WaitAndServe(false); }
  void cmdServe_Click() { WaitAndServe(true); }
  void cmdDialog_Click() {
    Dialog dialog(GetPlatform());
    GetPlatform().ShowModal(dialog);
    Tell("dialog closed");
  }
  void cmdAsk_Click() {
    const Answer answer = GetPlatform().MessageBox(Sign::Exclamation, Buttons::OkCancel, "Demo!",
                                                   "Unable to open music file 'x'.");
    Tell(answer == Answer::Ok ? "answer ok" : "answer cancel");
  }
  void cmdFile_Click() {
    FileDialog dialog;
    dialog.title = "Select Music File";
    dialog.filter = "Music File (*.mid)|*.mid";
    const auto path = GetPlatform().AskFile(dialog);
    Tell("file " + path.value_or("none"));
  }
  void cmdOther_Click();
  void cmdOff_Click() {
    fraColor.Enabled = !fraColor.Enabled();
    cmdAsk.Enabled = !cmdAsk.Enabled();
    mnuSounds.Enabled = !mnuSounds.Enabled();
  }
  void mnuSounds_Click() {
    mnuSounds.Checked = !mnuSounds.Checked();
    Tell(mnuSounds.Checked() ? "sounds on" : "sounds off");
  }
  void mnuClose_Click() { Unload(); }
  void tmrTick_Tick() { Tell("tick"); }
  void tmrSplash_Tick() {
    const int i = step_++ % 4;
    SendToBack(imgSplash(i));
    imgSplash(i).Show(step_ / 4 % 2 ? "QDLE" : "BACK2");
  }

  Menu mnuFile{this, nullptr, "mnuFile", "&Game"};
  Menu mnuClose{this, &mnuFile, "mnuClose", "E&xit"};
  Menu mnuOptions{this, nullptr, "mnuOptions", "&Options"};
  Menu mnuSounds{this, &mnuOptions, "mnuSounds", "&Play Sounds"};
  Menu mnuMore{this, &mnuOptions, "mnuMore", "&Time Limit"};
  Menu mnu30{this, &mnuMore, "mnu30", "&30 Seconds"};
  Menu mnu60{this, &mnuMore, "mnu60", "&60 Seconds"};
  Array<Picture> imgCard{this, "imgCard", 0, 6, &Table::imgCard_Click};
  Array<Shape> frmPick{this, "frmPick", 0, 6};
  Array<Shape> shpBox{this, "shpBox", 0, 5};
  Array<Label> lblNumber{this, "lblNumber", 0, 5};
  Array<Label> lblFelt{this, "lblFelt", 0, 5};
  Surface Clock{this, "Clock"};
  Surface Boxes{this, "Boxes"};
  Frame fraColor{this, "fraColor", "Colour"};
  Option optRed{this, "optRed", "&Red"};
  Option optBlue{this, "optBlue", "B&lue"};
  Check chkOn{this, "chkOn", "Ra&ndom"};
  List cboGame{this, "cboGame"};
  Field txtLetter{this, "txtLetter"};
  Bar barLeft{this, "barLeft", 0, 100};
  Label lblCount{this, "lblCount", "Clicks: 0"};
  Label lblNote{this, "lblNote", "note"};
  Label lblHigh{this, "lblHigh", "Current High Score: 50,000"};
  Label lblMessage{this, "lblMessage"};
  Button cmdCount{this, "cmdCount", "&Count", "Counts <clicks>", &Table::cmdCount_Click};
  Button cmdWait{this, "cmdWait", "&Wait", "Waits", &Table::cmdWait_Click};
  Button cmdServe{this, "cmdServe", "&Serve", "Waits, then serves", &Table::cmdServe_Click};
  Button cmdDialog{this, "cmdDialog", "&Dialog...", "", &Table::cmdDialog_Click};
  Button cmdAsk{this, "cmdAsk", "&Ask...", "", &Table::cmdAsk_Click};
  Button cmdFile{this, "cmdFile", "&File...", "", &Table::cmdFile_Click};
  Button cmdOther{this, "cmdOther", "Ot&her", "", &Table::cmdOther_Click};
  Button cmdOff{this, "cmdOff", "On/O&ff", "", &Table::cmdOff_Click};
  Frame frmSplash{this, "frmSplash", "", Frame::Look::Panel};
  Label lblName{this, "lblName", "Quindle!"};
  Label lblBy{this, "lblBy", "Corvane Presents"};
  Array<Picture> imgSplash{this, "imgSplash", 0, 3};
  Panel pnl1{this, "StatusBar1", 1};
  Panel pnl2{this, "StatusBar1", 2};
  Panel pnl3{this, "StatusBar1", 3};
  Timer tmrTick{this, "tmrTick", 1000, std::getenv("DEMO_TICK") ? Timer::At::On : Timer::At::Off,
                &Table::tmrTick_Tick};
  Timer tmrSplash{this, "tmrSplash", 250,
                  std::getenv("DEMO_SPLASH") ? Timer::At::On : Timer::At::Off,
                  &Table::tmrSplash_Tick};

 private:
  std::unique_ptr<Window> other_;
  int clicks_ = 0;
  int step_ = 0;
  bool busy_ = false;
};

/// A second window that brings the first one back when it closes.
class Other : public Window {
 public:
  Other(Platform& platform, Window& first) : Window(platform, "frmOther"), first_(first) {
    Caption = "Second window";
    NormalSize = OuterFor({300, 120});
    cmdBack.Place = Rect{20, 20, 120, 30};
  }
  void cmdBack_Click() { Unload(); }
  void Unloading() override { GetPlatform().Show(first_); }
  Button cmdBack{this, "cmdBack", "&Back", "", &Other::cmdBack_Click};

 private:
  Window& first_;
};

void Table::cmdOther_Click() {
  static_cast<Desk&>(GetPlatform()).Bury(std::move(other_));
  other_ = std::make_unique<Other>(GetPlatform(), *this);
  GetPlatform().Show(*other_);
  GetPlatform().Hide(*this);
}

}  // namespace

int main(int argc, char** argv) {
  const char* pictures = std::getenv("DEMO_PICTURES");
  qt::QtPlatform platform(argc, argv, {pictures ? pictures : "assets/pictures"});
  Table table(platform);
  platform.Show(table);
  const Probe probe(platform);
  return platform.Exec();
}
