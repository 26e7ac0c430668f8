// A window whose buttons wait, to try what the desktop does with input, painting and timers then.
#include <iostream>

#include "tests/desktop/probe.h"
#include "ui/qt/platform.h"
#include "ui/window.h"

namespace {

using namespace ui;

void Tell(const std::string& what) {
  std::cout << "* " << what << std::endl;
}

class Table : public Window {
 public:
  explicit Table(Platform& platform) : Window(platform, "frmTable") {
    Caption = "Desktop demo";
    NormalSize = OuterFor({400, 200});
    cmdCount.Place = Rect{20, 20, 100, 30};
    cmdWait.Place = Rect{140, 20, 100, 30};
    cmdServe.Place = Rect{260, 20, 100, 30};
    imgCard.Place = Rect{20, 70, 69, 94};
    imgCard.Show("1S");
    lblMessage.Place = Rect{140, 70, 220, 30};
  }

 private:
  void KeyTyped(char32_t letter) override { Tell(std::string("key ") + char(letter)); }
  bool QueryClose() override {
    Tell(busy_ ? "close while busy" : "close");
    return false;
  }
  void imgCard_Click() { Tell("card"); }
  void cmdCount_Click() { Tell(busy_ ? "dropped" : "count " + std::to_string(++clicks_)); }
  void cmdWait_Click() { WaitAndServe(false); }
  void cmdServe_Click() { WaitAndServe(true); }
  void tmrTick_Tick() {
    Tell("tick");
    tmrTick.Enabled = false;
  }

  void WaitAndServe(bool serve) {
    busy_ = true;
    tmrTick.Enabled = true;
    Tell("wait begins");
    for (int i = 0; i < 10; ++i) {
      lblMessage.Text = "Counting " + std::to_string(i);
      GetPlatform().Wait(150);
    }
    Tell("wait ends");
    if (serve) GetPlatform().ServeEvents();
    busy_ = false;
    Tell("handler ends");
  }

  Button cmdCount{this, "cmdCount", "&Count", "", &Table::cmdCount_Click};
  Button cmdWait{this, "cmdWait", "&Wait", "", &Table::cmdWait_Click};
  Button cmdServe{this, "cmdServe", "&Serve", "", &Table::cmdServe_Click};
  Picture imgCard{this, "imgCard", &Table::imgCard_Click};
  Label lblMessage{this, "lblMessage"};
  Timer tmrTick{this, "tmrTick", 500, Timer::At::Off, &Table::tmrTick_Tick};
  int clicks_ = 0;
  bool busy_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  qt::QtPlatform platform(argc, argv, {argv[1]});
  Table table(platform);
  platform.Show(table);
  const Probe probe(platform);
  return platform.Exec();
}
