// Conversations with a small program: what a script says, and what it is answered.
#include <sstream>

#include "tests/check.h"
#include "tests/fake_program.h"
#include "ui/script/interpreter.h"
#include "ui/script/options.h"

namespace {

struct LeftAtEnd {};

/// What the program answers to these commands, from its start to the end of input.
std::string Answers(const std::string& commands) {
  std::istringstream in(commands);
  std::ostringstream out;
  fake::Program program;
  ui::script::Interpreter interpreter(program.platform.Stage(), program.subject, in, out,
                                      [] { throw LeftAtEnd{}; });
  try {
    interpreter.Play([&] { program.Start(); });
    out << "(returned)\n";
  } catch (const LeftAtEnd&) {
  }
  return out.str();
}

/// Plays the lines that begin with "> " after the start-up, and compares the answers with the
/// other lines.
void CheckTalk(const std::string& talk, int line) {
  std::istringstream lines(talk);
  std::string commands, expected = "* show frmMain\n* wave once\nok\n";
  for (std::string each; std::getline(lines, each);) {
    if (each.empty()) continue;
    (each.starts_with("> ") ? commands : expected) += each.substr(each[0] == '>' ? 2 : 0) + "\n";
  }
  std::istringstream wanted(expected), got(Answers(commands));
  std::string want, have;
  while (true) {
    const bool more = static_cast<bool>(std::getline(wanted, want));
    const bool answered = static_cast<bool>(std::getline(got, have));
    if (!more && !answered) return;
    if (more && answered && want == have) continue;
    check::Failed(
        __FILE__, line,
        "answered " + (answered ? have : "nothing") + ", expected " + (more ? want : "nothing"));
    return;
  }
}

#define TALK(text) CheckTalk(text, __LINE__)

}  // namespace

TEST(ClicksReachOnlyWhatCanBeClicked) {
  TALK(R"TALK(
> click cmdInner
* wave inner
ok
> click imgCard(2)
* wave card 2
ok
> click mnuNew
ok
> click lblSeen
ok
> click imgCard(3)
no: there is no control "imgCard(3)"
> click StatusBar1(1)
no: a panel takes no clicks
> click tmrTick
no: tmrTick is a timer
> click cmdInner 1 1
no: cmdInner is not a surface
> click "cmdInner"
no: "cmdInner" must stand without quotes
> click board 59 0
* wave over 59 0
* wave down 59 0
* wave up 59 0
ok
> click board 60 0
no: "60" is not a whole number from 0 to 59
> click board 5
no: click doesn't take so many words
> move board
* wave over 30 20
ok
> move form
* wave beside
ok
> key "é"
* wave letter 233
ok
> minimize
ok
> click cmdInner
no: cmdInner is in a minimized window
> get frmMain state
frmMain.state = 1
ok
> restore
ok
> frobnicate
no: there is no command "frobnicate"
)TALK");
}

TEST(FieldsListsAndMarksAreUsedAsByAPlayer) {
  TALK(R"TALK(
> get focus
focus = cmdTick
ok
> type txtName "a \"b\" \\"
* wave changed to a "b" \
ok
> type txtName "a \"b\" \\"
* wave changed to a "b" \
ok
> type txtFixed "x"
no: txtFixed can't be written into
> type txtName "x\r\ny"
no: the text holds a character that can't be typed there
> type txtName x
no: "x" must stand between double quotes
> type txtName "x
no: a text lacks its closing quote
> type txtName "x"y
no: a blank must follow a text
> key "a"
no: txtName has the focus and takes the letter
> click cmdInner
* wave inner
ok
> focus txtName
ok
> get txtName selected
txtName.selected = "a \"b\" \\"
ok
> choose lstColors 1
ok
> choose lstColors 2
no: "2" is not a whole number from 0 to 1
> get lstColors text
lstColors.text = "light \"blue\""
ok
> check optOne on
ok
> check optTwo on
ok
> check optTwo off
no: an option button is cleared by another one alone
> get optOne checked
optOne.checked = false
ok
> check chkMark on
ok
> check chkMark on
ok
> get frmMain.chkMark checked
frmMain.chkMark.checked = true
ok
> focus lblSeen
no: lblSeen takes no focus
)TALK");
}

TEST(PropertiesAreTold) {
  TALK(R"TALK(
> get cmdTick
cmdTick.kind = button
cmdTick.visible = true
cmdTick.shown = true
cmdTick.enabled = true
cmdTick.x = 0
cmdTick.y = 0
cmdTick.w = 0
cmdTick.h = 0
cmdTick.tip = "Switches the tick"
cmdTick.pointer = ""
cmdTick.text = "&Tick"
ok
> get cmdInner x
cmdInner.x = 105
ok
> get lblSeen color
lblSeen.color = 0,0,255
ok
> get lstColors items
lstColors.items = "red" "light \"blue\""
ok
> get imgCard(2) picture
imgCard(2).picture = "12D"
ok
> get board drawing
board.drawing = 2
sector 10.5 20 8 0 90.123 0,255,0
box 1 2 20 none
ok
> get frmMain
frmMain.caption = "A \"fake\""
frmMain.state = 0
frmMain.width = 9540
frmMain.height = 7200
frmMain.innerwidth = 628
frmMain.innerheight = 403
frmMain.pointer = ""
ok
> maximize
ok
> get frmMain width
frmMain.width = 28800
ok
> resize 3000 3000
no: the window is not in normal state
> restore
ok
> resize 0 99
no: "0" is not a whole number from 1 to 245760
> resize 3000 3000
ok
> get frmMain innerwidth
frmMain.innerwidth = 192
ok
> get cmdTick color
no: cmdTick has no "color"
> get cmdNone
no: there is nothing of the name "cmdNone"
> get deck
deck = 1S 12D
ok
> get images
images = 1:FULL
ok
)TALK");
}

TEST(TimersFireInOrderAndWaitsHoldThemUp) {
  TALK(R"TALK(
> click cmdTick
ok
> wait 99
ok
> wait 1
* wave tick
ok
> wait 250
* wave tick
* wave tick
ok
> click cmdServe
* wait 300
* wave serving
* wave tick
* wave served
ok
> wait 99
ok
> wait 1
* wave tick
ok
> click cmdSlow
ok
> click cmdTick
ok
> wait 1000
* wave slow
* wait 1700
* wave slow done
* wave slow
* wait 1700
* wave slow done
* wave slow
ok
> wait 999
ok
> wait 1
* wave slow
ok
)TALK");
}

TEST(QueuedActsAreServedInsideTheNextCommand) {
  TALK(R"TALK(
> queue click cmdInner
ok
> queue click imgCard(9)
ok
> queue click imgCard(1)
ok
> click cmdServe
* wait 300
* wave serving
* wave inner
* wave card 1
* wave served
ok
> queue click cmdInner
ok
> click cmdWaitAsk
* wait 300
* box question okcancel "" "Really?"
ok
> answer ok
* wave ok
ok
> queue click cmdInner
ok
> wait 10
* wave inner
ok
> queue type txtName "x"
no: "type" is nothing that can be queued
> queue click
no: click doesn't take so many words
> queue queue close
no: "queue" is nothing that can be queued
> queue move form
ok
> get lblSeen text
* wave beside
lblSeen.text = "0"
ok
)TALK");
}

TEST(BoxesPileUpBehindHandlersAndAreAnsweredFromTheTop) {
  TALK(R"TALK(
> click cmdBoxes
ok
> click cmdTick
ok
> click cmdAsk
* box question okcancel "" "Really?"
ok
> answer yes
no: the box has no button "yes"
> click cmdInner
no: a message box stands
> close
no: a message box stands
> get cmdAsk enabled
cmdAsk.enabled = true
ok
> wait 5000
* wave tick
* wave tick
* wave tick
* wave tick
* wave tick
* wave tick
* wave tick
* wave tick
* wave tick
* wave tick
* box critical ok "Late" "a\r\nb"
ok
> windows
window box
window box
window frmMain
ok
> answer cancel
no: the box has no button "cancel"
> answer ok
* wave told
ok
> wait 100
* wave tick
ok
> answer cancel
* wave cancel
ok
> answer ok
no: nothing stands that could be answered
> click cmdWaitAsk
* wait 300
* box question okcancel "" "Really?"
* wave tick
ok
> answer ok
* wave ok
ok
> click cmdFail
* box plain ok "" "it failed"
ok
> answer ok
ok
)TALK");
}

TEST(DialogsAndWindowsComeAndGo) {
  TALK(R"TALK(
> click cmdFiles
* file open "Open it" "All|*.*"
ok
> answer ok
no: a file dialog takes a path between quotes, or cancel
> windows
window file
window frmMain
ok
> answer "/tmp/a b"
* file save "Save it" "All|*.*"
ok
> answer cancel
* wave /tmp/a b nothing
ok
> click cmdModal
* modal frmDialog
ok
> controls
control txtFirst field
control cmdOK button
control cmdMore button
ok
> get focus
focus = txtFirst
ok
> click frmMain.cmdInner
no: frmMain.cmdInner is not in the active window
> minimize
no: the window can't be minimized
> type txtFirst "Ann"
ok
> click cmdMore
* box plain okcancel "" "More?"
ok
> windows
window box
window frmDialog modal
window frmMain
ok
> answer ok
ok
> click cmdOK
* close frmDialog
* wave name Ann
ok
> get focus
focus = cmdModal
ok
> queue close
ok
> click cmdModal
* modal frmDialog
* close frmDialog
* wave name 
ok
> click cmdOther
* show frmOther
* hide frmMain
ok
> windows
window frmOther
window frmMain hidden
ok
> get frmMain.lblSeen text
frmMain.lblSeen.text = "0"
ok
> click cmdBack
* show frmMain
* close frmOther
ok
> click cmdQuit
* wave quitting
* end
ok
(returned)
)TALK");
}

TEST(WatchedControlsAreToldBeforeWaits) {
  TALK(R"TALK(
> watch lblSeen frmMain.barDone imgCard(2)
ok
> click cmdWait
* see lblSeen "1" 0,0,255
* see frmMain.barDone "1" -
* see imgCard(2) "12D" -
* wait 250
* see lblSeen "2" 0,0,255
* see frmMain.barDone "2" -
* wait 250
* see lblSeen hidden
* wait 50
ok
> watch cmdNone
no: there is no control "cmdNone"
> watch none
ok
> click cmdWait
* wait 250
* wait 250
* wait 50
ok
)TALK");
}

TEST(ChanceFaultsAndTheClockAreTheScripts) {
  TALK(R"TALK(
> draws 0 .5 0.999
ok
> draws 1
no: "1" is not a number from 0 to below 1
> draws nan
no: "nan" is not a number from 0 to below 1
> deck 1S 2S 3S
* deck not used
ok
> fault write High Scores ?.Txt
ok
> fault read "*.Ini"
ok
> fault mail Sending
no: there is no fault "mail Sending"
> fault mail
no: there is no fault "mail"
> fault mail Send
ok
> fault music
ok
> fault browser find
ok
> click cmdMachine
* music open "/home/a.mid"
* wave not opened
* wave page 1
* mail Send
* wave not sent
* mail MsgSubject "a \"b\""
* wave named
ok
> fault browser open
ok
> fault mail Send
ok
> fault none
ok
> click cmdMachine
* music open "/home/a.mid"
* wave opened
* page "http://a/b"
* wave page 0
* mail Send
* wave sent
* mail MsgSubject "a \"b\""
* wave named
ok
> get Log
Log = "draw 0;draw 0.5;draw 0.999;deck 3;write High Scores ?.Txt;read *.Ini;none;"
ok
> now "2026-02-29 00:00:00"
no: "2026-02-29 00:00:00" is not a moment as "2026-01-31 23:59:59"
> now "2028-02-29 23:59:59"
ok
)TALK");
}

TEST(TheClockStartsAtNoonAndIsSet) {
  ui::HeadlessPlatform platform;
  CHECK_EQ(platform.Now(), 1767268800000);
  platform.Stage().PassTime(1500);
  platform.Stage().SetNow(ui::script::TakeMoment({"2000-03-01 00:00:00", true}));
  platform.Wait(10);
  CHECK_EQ(platform.Now(), 951868800010);
  CHECK_EQ(platform.Ticks(), 1510);
}

TEST(TheEndComesAlsoBehindABox) {
  CHECK_EQ(Answers("click cmdAsk\nquit\nclick cmdInner\n"),
           "* show frmMain\n* wave once\nok\n* box question okcancel \"\" \"Really?\"\nok\n");
  TALK(R"TALK(
> click cmdModal
* modal frmDialog
ok
> focus cmdOK
ok
> key "q"
* wave name 
* end
ok
(returned)
)TALK");
  TALK(R"TALK(
> close
* box question yesno "Fake" "Close?"
ok
> answer no
ok
> close
* box question yesno "Fake" "Close?"
ok
> answer yes
* close frmMain
* end
ok
(returned)
)TALK");
}

TEST(NoLineDoesHarm) {
  std::string commands = "\n  \n# nothing\n";
  const std::string huge(1 << 20, 'x');
  for (const std::string& name : {huge, "\"" + huge, std::string("a\0b", 3),
                                  std::string("\xFF\xFE\\"), std::string("\"\\")}) {
    for (const char* command : {"", "click ", "get ", "watch ", "type txtName ", "fault ", "queue ",
                                "deck", "now ", "wait ", "choose lstColors ", "resize 1 "}) {
      commands += command + name + "\n";
    }
  }
  commands += "wait 99999999999999999999\nwait -1\nwait 1e3\nget\nwatch none none\nwindows x\nmove";
  std::istringstream answers(Answers(commands));
  int refused = 0;
  for (std::string line; std::getline(answers, line);) {
    if (line.starts_with("no: ")) ++refused;
    CHECK(line.size() < 200);
  }
  CHECK_EQ(refused, 5 * 12 + 7);
}

TEST(AStormOfBoxesIsSurvived) {
  std::string commands = "click cmdStorm\n", waits;
  for (int i = 0; i < 500; ++i) waits += "wait 10\n";
  for (int i = 0; i < 500; ++i) commands += "answer ok\n";
  std::istringstream answers(Answers(waits + commands + waits));
  int answered = 0;
  for (std::string line; std::getline(answers, line);) {
    if (line == "ok" || line.starts_with("no: ")) ++answered;
  }
  CHECK_EQ(answered, 1 + 500 + 1 + 500 + 500);
}

TEST(TheCommandLineIsTakenApart) {
  using ui::script::ScriptOptions;
  const auto options = ScriptOptions::Parse(
      {"--fault", "write *", "--home", "/tmp/p", "--fault", "music", "my", "game.qdl"});
  CHECK_EQ(options.home, "/tmp/p");
  CHECK(options.faults == std::vector<std::string>({"write *", "music"}));
  CHECK_EQ(options.savedGame, "my game.qdl");
  CHECK_EQ(options.error, "");
  CHECK(!ScriptOptions::Parse({"--home"}).error.empty());
  CHECK(!ScriptOptions::Parse({"--hme", "x"}).error.empty());
}
