// The windows that all games share, on the headless platform: each game's own table and limits,
// what the rules' text is made of, and a mail that fails at any of its steps.
#include <cstdlib>
#include <filesystem>

#include "core/files/files.h"
#include "core/help/rules_text.h"
#include "core/launcher/program.h"
#include "games/catalogue.h"
#include "publication/frm_compose_high_score.h"
#include "tests/check.h"
#include "ui/headless/platform.h"

namespace {

/// A platform that keeps what it tells. Boxes are answered and modal windows closed at once.
struct Fixture {
  std::vector<std::string> told;
  ui::HeadlessPlatform platform;
  core::Chance chance;

  Fixture() {
    platform.Stage().Listen({[this](const std::string& line) { told.push_back(line); }, {}, {}});
  }
};

}  // namespace

TEST(EachGameHasItsOwnTableUnderItsLimits) {
  struct {
    const char* button;
    const char* table;
    const char* topScore;
    std::vector<int> limits;
    int limit;
  } const games[] = {
      {"cmdQuindle", "Quindle Hi Score Table ES 11_", "50000", {30, 60, 90, 120, 150, 180}, 90},
      {"cmdMozaro", "Mozaro Hi Score Table ", "50000", {15, 30, 45, 60, 75, 90}, 60},
      {"cmdBrenlock", "Brenlock Hi Score Table ", "50000", {15, 30, 45, 60, 75}, 60},
      {"cmdHarvel", "Harvel Hi Score Table ", "50000", {15, 30, 60, 90, 120}, 90},
      {"cmdOstrel", "Ostrel Hi Score Table ", "30000", {30, 45, 60, 90}, 45},
      {"cmdPellow", "Pellow Hi Score Table ", "30000", {30, 45, 60, 75, 90, 105, 120}, 45},
      {"cmdVermoy", "Vermoy Hi Score Table ", "30000", {30, 45, 60, 75, 90, 105, 120}, 75},
      {"cmdKestrane",
       "Kestrane Hi Score Table ",
       "50000",
       {60, 75, 90, 105, 120, 135, 150, 180},
       120},
      {"cmdPhrase", "Glimmard Hi Score Table ", "30000", {30, 45, 60, 75, 90, 105, 120}, 45},
      {"cmdFandrel", "Fandrel Hi Score Table ", "50000", {60, 75, 90, 105, 120}, 90},
  };
  for (const auto& game : games) {
    std::string home = (std::filesystem::temp_directory_path() / "windows-XXXXXX").string();
    CHECK(::mkdtemp(home.data()) != nullptr);
    Fixture f;
    core::Program program(f.platform, f.chance, games::AllGames(), home + "/", "");
    f.platform.Stage().Start([&] { program.Start(); });
    f.platform.UserClick(*f.platform.ActiveWindow()->Find(game.button));
    ui::Window& window = *f.platform.ActiveWindow();
    const auto mark = [&](int seconds) {
      return static_cast<ui::Menu*>(window.Find("mnu" + std::to_string(seconds)));
    };
    const auto table = [&](int limit) {
      return core::ReadWhole(home + "/" + game.table + std::to_string(limit) + ".Txt").value_or("");
    };
    CHECK(mark(game.limit)->Checked());
    for (const int limit : game.limits) {
      CHECK_EQ(table(limit).empty(), limit != game.limit);
      f.platform.UserClick(*mark(limit));
      CHECK(table(limit).starts_with(std::string("Corvane, ") + game.topScore + ", Jan 01 2000"));
      CHECK_EQ(program.suite.shared.CustomScoring, limit != game.limit);
      f.platform.UserClick(*mark(game.limit));
      CHECK(limit == game.limit || !mark(limit)->Checked());
    }
    std::filesystem::remove_all(home);
  }
}

TEST(RulesStandInTheirOrder) {
  core::RulesText parts;
  parts.introduction = "Intro.";
  parts.object = core::ObjectOfGame("Vermoy!", "There are two rounds", 75, "A bonus follows.");
  parts.points = {"A pair.", "A run."};
  parts.strategy = {"Think."};
  CHECK_EQ(core::ComposeRules("Vermoy!", parts),
           std::string(30, ' ') +
               "Vermoy! Rules, Notes and Strategy\r\n\r\n\r\nRequirements: To run Vermoy! you need "
               "Windows 95 or above and a mouse. Recommended: Soundcard.\r\n\r\nIntro.\r\n\r\nAs "
               "with most games, the object of Vermoy! is to attain the highest number of points "
               "possible. There are two rounds, each lasting 75 seconds. A bonus follows.\r\n\r\n"
               "How points are earned:\r\n\r\n1. A pair.\r\n\r\n2. A run.\r\n\r\nThink.\r\n\r\n"
               "Good luck and have fun!");
}

TEST(AMailThatFailsAtAnyStepCanBeSentAgain) {
  Fixture f;
  core::Suite suite(f.platform, f.chance, {});
  core::GameEntry entry{};
  suite.shared.GameTitle = entry.title = "Quindle!";
  suite.shared.PlayerName = "Zoe";
  publication::frmComposeHighScore compose(suite, entry, {{"Cheat*", "900"}, {"Ann", "250"}});
  ui::Window& window = compose;
  window.Load();
  f.platform.Show(window);
  for (const char* step :
       {"SignOn", "SessionID", "Compose", "RecipDisplayName", "RecipAddress", "AddressResolveUI",
        "ResolveName", "MsgSubject", "MsgNoteText", "Send", "SignOff"}) {
    f.told.clear();
    f.platform.Stage().FailNext(std::string("mail ") + step);
    f.platform.UserClick(*window.Find("cmdSubmit"));
    CHECK(f.told[f.told.size() - 2].starts_with(std::string("mail ") + step));
    CHECK(
        f.told.back().starts_with("box critical ok \"Quindle!\" \"Sorry, but there was an error"));
    CHECK_EQ(suite.shared.PlayerName, "Zoe");
  }
  f.platform.UserClick(*window.Find("cmdSubmit"));
  CHECK_EQ(f.told.back(), "close frmComposeHighScore");
  CHECK_EQ(suite.shared.PlayerName, "Ann");
}
