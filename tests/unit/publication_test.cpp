// Submitting a score: what the listing reads, which scores are refused, and what is mailed.
#include "core/suite/suite.h"
#include "publication/frm_compose_high_score.h"
#include "tests/check.h"
#include "tests/fake_desk.h"

namespace {

using Log = std::vector<std::string>;
using Rows = std::vector<publication::ListedRow>;

const Rows Table = {{"Cheat*", "9,000,000"}, {"Ann", "250,000"}, {"Bob", "200,000"}};

const std::string TooHigh =
    "exclamation [Quindle!] Sorry, but the score you have entered is greater than the highest "
    "valid "
    "score attained so far in this game. According to the High Score Table, the highest score "
    "attained using the default settings is '250,000'. Please enter a valid score.";

core::GameEntry Quindle() {
  core::GameEntry entry{};
  entry.title = "Quindle!";
  entry.listedFrom = 175000;
  entry.listedLimit = 90;
  return entry;
}

/// A player from Dover in Ohio, and the submission window over a table.
struct Fixture {
  FakeDesk desk;
  core::Chance chance;
  core::Suite suite{desk, chance, {}};
  core::GameEntry entry = Quindle();
  core::Shared& shared = suite.shared;

  Fixture() {
    shared.GameTitle = entry.title;
    shared.TimeLimit = 90;
    shared.PlayerName = "Zoe";
    shared.PlayerHometown = "Dover";
    shared.PlayerState = "Ohio";
  }
  void Open(const Rows& rows, std::function<void(ui::Window&)> player) {
    desk.player = std::move(player);
    publication::frmComposeHighScore window(suite, entry, rows);
    suite.ShowModal(window);
  }
  void Type(ui::Window& w, const std::string& name, const std::string& text) {
    desk.UserType(Get<ui::Field>(w, name), text);
  }
  void Click(ui::Window& w, const std::string& name) { desk.UserClick(*w.Find(name)); }
};

std::string TextOf(const ui::Window& w, const std::string& name) {
  return Get<ui::Field>(w, name).Text();
}

Log MailOf(const std::string& note) {
  return {"SignOn",
          "SessionID 1",
          "Compose",
          "RecipDisplayName Corvane High Scores",
          "RecipAddress scores@pastimo.example",
          "AddressResolveUI True",
          "ResolveName",
          "MsgSubject Pastimo High Score Listing for Quindle!",
          "MsgNoteText " + note,
          "Send",
          "SignOff"};
}

const std::string OutBox =
    "information [Quindle!] The message has been successfully placed in your out box.";

const std::string MailError =
    "critical [Quindle!] Sorry, but there was an error attempting to access your e-mail messaging "
    "system. The Pastimo cannot access all email systems. Please send your score through regular "
    "email to scores@pastimo.example. Be sure to include your name, score, game name and home "
    "state or country.";

}  // namespace

TEST(ListingFollowsTheFields) {
  Fixture f;
  f.Open(Table, [&](ui::Window& w) {
    CHECK_EQ(w.Caption(), "High score submission for Quindle!");
    CHECK_EQ(TextOf(w, "txtScore"), "250000");
    CHECK_EQ(TextOf(w, "txtSample"), "250,000 by Ann of Dover, Ohio");

    auto& states = Get<ui::List>(w, "cmboState");
    CHECK_EQ(states.Items().size(), std::size_t{52});
    CHECK_EQ(states.Items()[9], "District of Columbia");
    CHECK_EQ(states.Items().back(), "Wyoming");
    f.desk.UserChoose(states, 0);
    CHECK_EQ(TextOf(w, "txtSample"), "250,000 by Ann of Dover");
    f.Type(w, "txtCountry", "Malta");
    f.Type(w, "txtHomeTown", "");
    f.Type(w, "txtName", "Ann, Jr");
    CHECK_EQ(TextOf(w, "txtSample"), "250,000 by Ann, Jr of , Malta");

    struct {
      const char* typed;
      const char* kept;
      const char* shown;
    } const scores[] = {{"", "0", "0"},     {"12,345 points", "12345", "12,345"},
                        {"x9", "0", "0"},   {"2.5", "2", "2"},
                        {"-7", "-7", "-7"}, {"250,000", "250000", "250,000"}};
    for (const auto& score : scores) {
      f.Type(w, "txtScore", score.typed);
      CHECK_EQ(TextOf(w, "txtScore"), score.kept);
      CHECK_EQ(TextOf(w, "txtSample"), score.shown + std::string(" by Ann, Jr of , Malta"));
    }
    f.desk.UserFocus(*w.Find("txtName"));
    CHECK_EQ(Get<ui::Field>(w, "txtName").SelectedText(), "Ann, Jr");
    CHECK_EQ(f.desk.log, Log{});
    f.Click(w, "cmdCancel");
    CHECK(!w.IsOpen());
  });
  CHECK_EQ(f.desk.log, Log{});
  CHECK_EQ(f.shared.PlayerName + "|" + f.shared.PlayerHometown + "|" + f.shared.PlayerState + "|" +
               f.shared.PlayerCountry,
           "Ann, Jr||None|Malta");
}

TEST(ScoreAboveTheTableIsPutBackOnce) {
  Fixture f;
  f.Open(Table, [&](ui::Window& w) {
    for (const char* typed : {"250001", "9,000,000", "99999999999999999999999999", "300000x"}) {
      f.Type(w, "txtScore", typed);
      CHECK_EQ(f.desk.TakeLog(), Log{TooHigh});
      CHECK_EQ(Get<ui::Field>(w, "txtScore").SelectedText(), "250000");
      CHECK(f.desk.Focus() == w.Find("txtScore"));
      CHECK_EQ(TextOf(w, "txtSample"), "250,000 by Ann of Dover, Ohio");
    }
    // Another change, also above the table, while the box stands; and then the end of the window.
    f.desk.behindBox = [&] { f.Type(w, "txtScore", "400000"); };
    f.Type(w, "txtScore", "300000");
    CHECK_EQ(f.desk.TakeLog(), (Log{TooHigh, TooHigh}));
    CHECK_EQ(TextOf(w, "txtScore"), "250000");
    f.desk.behindBox = [&] { f.desk.UserClose(w); };
    f.Type(w, "txtScore", "300000");
  });
  CHECK_EQ(f.desk.TakeLog(), Log{TooHigh});
  CHECK(f.desk.Focus() == nullptr);
  CHECK_EQ(f.shared.PlayerName, "Zoe");  // the close box keeps nothing
}

TEST(TableWithoutAValidScoreCannotBeSubmitted) {
  for (const Rows& rows : {Rows(10, {"Cheat*", "9,000,000"}), Rows{{"Cheat*", "5"}, {"", ""}}}) {
    Fixture f;
    f.shared.PlayerState = "Atlantis";
    f.Open(rows, [&](ui::Window& w) {
      CHECK_EQ(f.desk.TakeLog(),
               Log{"information [Quindle!] There are no valid scores in the High Score Table. They "
                   "all appear to have been attained after customizing the scoring. The 'Submit' "
                   "command button will be disabled."});
      CHECK(!w.Find("cmdSubmit")->Usable());
      CHECK_EQ(TextOf(w, "txtSample"), "0 by Zoe of Dover");
      f.Type(w, "txtScore", "1");
      CHECK_EQ(f.desk.TakeLog().size(), std::size_t{1});
      CHECK_EQ(TextOf(w, "txtScore"), "0");
    });
  }
}

TEST(EachRefusalComesInItsOrderAndKeepsTheWindow) {
  Fixture f;
  const std::string custom =
      "plain [] Sorry, we are unable to submit this score because custom scoring was enabled when "
      "it was achieved.";
  f.Open(Table, [&](ui::Window& w) {
    const auto submit = [&] {
      f.Click(w, "cmdSubmit");
      CHECK(w.IsOpen());
      return f.desk.TakeLog();
    };
    f.Type(w, "txtScore", "174999");
    f.shared.TimeLimit = 60;
    f.shared.CustomScoring = true;
    CHECK_EQ(submit(), Log{custom});
    f.shared.CustomScoring = false;
    f.shared.PlayerName = "Zoe*";
    CHECK_EQ(submit(), Log{custom});
    f.shared.PlayerName = "Zoe";
    f.Type(w, "txtName", "Zoe*");  // only the shared name is tested
    CHECK_EQ(submit(), Log{"information [Quindle!] Sorry, in order to list your Quindle! high "
                           "score on the web you must achieve a minimum score of 175,000.\r\nKeep "
                           "playing, you can do it!"});
    f.Type(w, "txtScore", "175000");
    CHECK_EQ(submit(), Log{"information [Quindle!] Sorry, in order to list your Quindle! high "
                           "score on the web you must be using the default time limit of 90 "
                           "seconds."});
    CHECK_EQ(f.shared.PlayerName, "Zoe");
  });
}

TEST(MailGoesOutInOrderAndAFailureAtAnyStepAllowsAnotherTry) {
  for (const bool enhanced : {true, false}) {
    Fixture f;
    f.shared.EnhancedScoring = enhanced;
    const std::string note =
        std::string("175,000 by Ann of Dover, Ohio\r\n\r\nQuindle Enhanced Scoring is ") +
        (enhanced ? "True" : "False") + "\r\n\r\nHello\r\nthere";
    const Log mail = MailOf(note);
    f.Open(Table, [&](ui::Window& w) {
      f.Type(w, "txtScore", "175000");
      f.Type(w, "txtOther", "Hello\r\nthere");
      for (std::size_t step = 0; step < mail.size(); ++step) {
        f.desk.failingMailStep = mail[step].substr(0, mail[step].find(' '));
        f.Click(w, "cmdSubmit");
        Log expected(mail.begin(), mail.begin() + static_cast<std::ptrdiff_t>(step) + 1);
        expected.push_back(MailError);
        CHECK_EQ(f.desk.TakeLog(), expected);
        CHECK(w.IsOpen());
        CHECK_EQ(f.shared.PlayerName, "Zoe");
      }
      f.desk.failingMailStep.clear();
      f.desk.behindBox = [&] { CHECK(w.IsOpen() && f.shared.PlayerName == "Ann"); };
      f.Click(w, "cmdSubmit");
      CHECK(!w.IsOpen());
    });
    Log expected = mail;
    expected.push_back(OutBox);
    CHECK_EQ(f.desk.log, expected);
  }
}
