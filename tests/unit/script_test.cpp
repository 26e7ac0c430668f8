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

/// The lines of a text but those that say no more than that all is well.
std::vector<std::string> LinesOf(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line != "ok") lines.push_back(line);
  }
  return lines;
}

/// Plays the lines that begin with "> ", and compares the answers behind the start-up's with the
/// other lines.
void CheckTalk(const std::string& talk, int line) {
  std::string commands, expected = "* show frmMain\n* wave once\n";
  for (const std::string& each : LinesOf(talk)) {
    (each[0] == '>' ? commands : expected) += each.substr(each[0] == '>' ? 2 : 0) + "\n";
  }
  check::CheckEqual(LinesOf(Answers(commands)), LinesOf(expected), "the talk", __FILE__, line);
}

#define TALK(text) CheckTalk(text, __LINE__)

}  // namespace

TEST(ClicksReachOnlyWhatCanBeClicked) {
  TALK(R"TALK(
> click cmdInner
* wave inner
> click imgCard(2)
* wave card 2
> click imgCard(3)
no: there is no control "imgCard(3)"
> click StatusBar1(1)
no: a panel takes no clicks
> click board 59 0
* wave over 59 0
* wave down 59 0
* wave up 59 0
> click board 60 0
no: "60" is not a whole number from 0 to 59
> move form
* wave beside
> key "é"
* wave letter 233
> minimize
> click cmdInner
no: cmdInner is in a minimized window
> restore
> frobnicate
no: there is no command "frobnicate"
)TALK");
}

TEST(FieldsListsAndMarksAreUsedAsByAPlayer) {
  TALK(R"TALK(
> type txtName "a \"b\" \\"
* wave changed to a "b" \
> type txtName "a \"b\" \\"
* wave changed to a "b" \
> type txtFixed "x"
no: txtFixed can't be written into
> type txtName "x\r\ny"
no: the text holds a character that can't be typed there
> type txtName "x
no: a text lacks its closing quote
> key "a"
no: txtName has the focus and takes the letter
> click cmdInner
* wave inner
> focus txtName
> get txtName selected
txtName.selected = "a \"b\" \\"
> choose lstColors 2
no: "2" is not a whole number from 0 to 1
> choose lstColors 1
> get lstColors text
lstColors.text = "light \"blue\""
> check optOne on
> check optTwo on
> check optTwo off
no: an option button is cleared by another one alone
> get optOne checked
optOne.checked = false
> check chkMark on
> check chkMark on
> get frmMain.chkMark checked
frmMain.chkMark.checked = true
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
> get cmdInner x
cmdInner.x = 105
> get board drawing
board.drawing = 2
sector 10.5 20 8 0 90.123 0,255,0
box 1 2 20 none
> get frmMain
frmMain.caption = "A \"fake\""
frmMain.state = 0
frmMain.width = 9540
frmMain.height = 7200
frmMain.innerwidth = 628
frmMain.innerheight = 403
frmMain.pointer = ""
> maximize
> restore
> resize 3000 3000
> get frmMain innerwidth
frmMain.innerwidth = 192
> get cmdTick color
no: cmdTick has no "color"
)TALK");
}

TEST(TimersFireInOrderAndWaitsHoldThemUp) {
  TALK(R"TALK(
> click cmdTick
> wait 99
> wait 251
* wave tick
* wave tick
* wave tick
> click cmdServe
* wait 300
* wave serving
* wave tick
* wave served
> wait 100
* wave tick
> click cmdSlow
> click cmdTick
> wait 1000
* wave slow
* wait 1700
* wave slow done
* wave slow
* wait 1700
* wave slow done
* wave slow
)TALK");
}

TEST(QueuedActsAreServedInsideTheNextCommand) {
  TALK(R"TALK(
> queue click cmdInner
> queue click imgCard(1)
> click cmdServe
* wait 300
* wave serving
* wave inner
* wave card 1
* wave served
> queue click cmdInner
> wait 10
* wave inner
> queue type txtName "x"
no: "type" is nothing that can be queued
)TALK");
}

TEST(BoxesPileUpBehindHandlersAndAreAnsweredFromTheTop) {
  TALK(R"TALK(
> click cmdBoxes
> wait 800
> click cmdTick
> click cmdAsk
* box question okcancel "" "Really?"
> answer yes
no: the box has no button "yes"
> close
no: a message box stands
> get cmdAsk enabled
cmdAsk.enabled = true
> wait 5000
* wave tick
* wave tick
* box critical ok "Late" "a\r\nb"
> windows
window box
window box
window frmMain
> answer ok
* wave told
> wait 100
* wave tick
> answer cancel
* wave cancel
> answer ok
no: nothing stands that could be answered
> click cmdWaitAsk
* wait 300
* box question okcancel "" "Really?"
* wave tick
> answer ok
* wave ok
> click cmdFail
* box plain ok "" "it failed"
)TALK");
}

TEST(ModalWindowsHoldUpTheirCallers) {
  TALK(R"TALK(
> click cmdModal
* modal frmDialog
> controls
control txtFirst field
control cmdOK button
control cmdMore button
> click frmMain.cmdInner
no: frmMain.cmdInner is not in the active window
> type txtFirst "Ann"
> click cmdMore
* box plain okcancel "" "More?"
> windows
window box
window frmDialog modal
window frmMain
> answer ok
> click cmdOK
* close frmDialog
* wave name Ann
> queue close
> click cmdModal
* modal frmDialog
* close frmDialog
* wave name 
> click cmdQuit
* wave quitting
* end
(returned)
)TALK");
}

TEST(WatchedControlsAreToldBeforeWaits) {
  TALK(R"TALK(
> watch lblSeen frmMain.barDone imgCard(2)
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
> watch none
> click cmdWait
* wait 250
* wait 250
* wait 50
)TALK");
}

TEST(ChanceFaultsAndTheClockAreTheScripts) {
  TALK(R"TALK(
> draws 0 .5 0.999
> draws nan
no: "nan" is not a number from 0 to below 1
> deck 1S 2S 3S
* deck not used
> fault write High Scores ?.Txt
> fault read "*.Ini"
> fault mail Sending
no: there is no fault "mail Sending"
> fault mail Send
> fault music
> fault browser find
> click cmdMachine
* music open "/home/a.mid"
* wave not opened
* wave page 1
* mail Send
* wave not sent
* mail MsgSubject "a \"b\""
* wave named
> fault none
> get Log
Log = "draw 0;draw 0.5;draw 0.999;deck 3;write High Scores ?.Txt;read *.Ini;none;"
> now "2026-02-29 00:00:00"
no: "2026-02-29 00:00:00" is not a moment as "2026-01-31 23:59:59"
)TALK");
}

TEST(TheEndComesAlsoBehindABox) {
  CHECK_EQ(Answers("click cmdAsk\nquit\nclick cmdInner\n"),
           "* show frmMain\n* wave once\nok\n* box question okcancel \"\" \"Really?\"\nok\n");
  TALK(R"TALK(
> click cmdModal
* modal frmDialog
> focus cmdOK
> key "q"
* wave name 
* end
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
