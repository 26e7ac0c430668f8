// The help windows: the rules' text as a whole, and what the two windows show.
#define CHECK_NO_MAIN
#include "core/help/frm_about.h"
#include "core/help/frm_rules.h"
#include "core/help/rules_text.h"
#include "tests/check.h"
#include "tests/fake_desk.h"

TEST(RulesStandInTheirOrder) {
  core::RulesText parts;
  parts.introduction = "Intro.";
  parts.object = core::ObjectOfGame("Vermoy!", "There are two rounds", 75, "A bonus follows.");
  parts.points = {"A pair.", "A run."};
  parts.strategy = {"Think."};
  const std::string head = std::string(30, ' ') +
                           "Vermoy! Rules, Notes and Strategy\r\n\r\n\r\nRequirements: To run "
                           "Vermoy! you need Windows 95 or above and a mouse. Recommended: "
                           "Soundcard.\r\n\r\n";
  CHECK_EQ(core::ComposeRules("Vermoy!", parts),
           head +
               "Intro.\r\n\r\nAs with most games, the object of Vermoy! is to attain the highest "
               "number of points possible. There are two rounds, each lasting 75 seconds. A bonus "
               "follows.\r\n\r\nHow points are earned:\r\n\r\n1. A pair.\r\n\r\n2. A "
               "run.\r\n\r\nThink.\r\n\r\nGood luck and have fun!");
  CHECK_EQ(core::ComposeRules("Vermoy!", {}), head + "Good luck and have fun!");
}

TEST(HelpWindowsTellAndClose) {
  FakeDesk desk;
  core::Chance chance;
  core::Suite suite{desk, chance, {}};
  suite.shared.GameTitle = "Vermoy!";
  desk.player = [&](ui::Window& w) {
    auto& text = Get<ui::Field>(w, "lblRules");
    CHECK_EQ(w.Caption() + "|" + text.Text(), "Vermoy! Rules, Notes and Strategy|Body");
    CHECK(text.ReadOnly());
    for (const ui::Size inner : {ui::Size{640, 460}, ui::Size{900, 300}, ui::Size{1, 1}}) {
      desk.UserResize(w, w.OuterFor(inner));
      const ui::Rect ok = w.Find("cmdOK")->Place();
      CHECK_EQ(text.Place().w, inner.w);
      CHECK(text.Place().h >= 1);
      if (inner.h == 1) continue;  // too small for the button, but no harm
      CHECK(text.Place().Bottom() <= ok.y && ok.Bottom() <= inner.h);
      CHECK_EQ(ok.CenterX(), inner.w / 2);
    }
    desk.UserClick(*w.Find("cmdOK"));
    CHECK(!w.IsOpen());
  };
  core::frmRules rules(suite, "Body");
  suite.ShowModal(rules);

  struct {
    std::int64_t now;
    const char* minutes;
  } const sessions[] = {
      {1'000'000, "0"}, {1'059'999, "0"}, {1'060'000, "1"}, {8'200'000, "120"}, {5, "0"}};
  suite.shared.SessionStart = 1'000'000;
  for (const auto& session : sessions) {
    desk.now = session.now;
    desk.player = [&](ui::Window& w) {
      CHECK_EQ(w.Caption(), "About Vermoy!");
      CHECK_EQ(Get<ui::Label>(w, "lblStats").Text(), "This session has lasted " +
                                                         std::string(session.minutes) +
                                                         " minutes.Thanks for playing!");
      desk.UserClick(*w.Find("cmdCoolDude"));
      CHECK(!w.IsOpen());
    };
    core::frmAbout about(suite);
    suite.ShowModal(about);
  }
}
