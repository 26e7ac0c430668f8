#!/usr/bin/env python3
"""Takes pictures of every window and dialog in a few states, on a display that nobody sees.

Usage: tools/take_pictures.py [FOLDER]   (FOLDER is build/pictures unless given)

It finds its way by what the windows hold, so a new game or dialog needs no line here. Scale factors
and styles come from the environment, as QT_SCALE_FACTOR=2. The pictures of README.md are copies of
launcher.png and of each game's NAME-play.png.
"""
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
PLAYER = ROOT / "build/apps/pastimo-script-widgets"
LONG_ROUND = 130  # steps of five seconds: more than the longest round


class Script:
    """The program under a script, one conversation long."""

    def __init__(self, folder, home):
        self.folder = folder
        self.taken = set()
        self.process = subprocess.Popen([PLAYER, "--home", home], text=True, cwd=folder,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.answer()

    def answer(self):
        lines = []
        for line in self.process.stdout:
            line = line.rstrip("\n")
            if line == "ok" or line.startswith("no: "):
                return lines, line == "ok"
            lines.append(line)
        return lines, False

    def say(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        return self.answer()

    def top(self):
        return self.say("windows")[0][0].split()[1]

    def texts(self, kind):
        """Name and caption of the active window's controls of a kind, those that can be used."""
        for line in self.say("controls")[0]:
            name, its_kind = line.split()[1:]
            if its_kind != kind:
                continue
            properties = dict(p.split(" = ", 1) for p in self.say(f"get {name}")[0])
            if properties[f"{name}.shown"] == properties[f"{name}.enabled"] == "true":
                yield name, properties.get(f"{name}.text", '""').strip('"')

    def picture(self, name):
        if name not in self.taken:
            self.taken.add(name)
            self.say(f'picture "{name}.png"')

    def clear(self, game, window):
        """Takes a picture of whatever stands over the window, and closes it."""
        number = 0
        while self.top() != window and number < 30:
            number += 1
            self.picture(f"{game}-{self.top()}" + (f"-{number}" if self.top() == "box" else ""))
            if self.top() == "box":
                any(self.say(f"answer {word}")[1] for word in ("ok", "yes"))
            elif self.top() == "file":
                self.say("answer cancel")
            else:
                self.say("close")


def tour(script):
    """One game, just opened: its dialogs, its states, and a round that nobody plays."""
    window = script.top()
    game = window.removeprefix("frm").lower()
    script.say("wait 3000")
    script.picture(f"{game}-idle")
    for name, caption in list(script.texts("menu")):
        if caption.endswith("...") or "About" in caption or "ules" in caption or "Score" in caption:
            script.say(f"click {name}")
            script.clear(game, window)
    buttons = {caption.replace("&", ""): name for name, caption in script.texts("button")}
    start = next(name for caption, name in buttons.items() if caption.startswith("Play"))
    script.say(f"click {start}")
    script.say("wait 2600")
    script.picture(f"{game}-play")
    script.say("maximize")
    script.picture(f"{game}-maximized")
    script.say("restore")
    script.say("resize 1 1")
    script.picture(f"{game}-smallest")
    pause = next((name for name, caption in script.texts("button") if "ause" in caption.replace("&", "")), None)
    if pause:
        script.say(f"click {pause}")
        script.picture(f"{game}-paused")
        script.say(f"click {pause}")
    for _ in range(LONG_ROUND):
        script.say("wait 5000")
        script.clear(game, window)
    script.picture(f"{game}-over")
    script.say("close")
    while script.top() != "frmSelect":
        script.say("answer yes")


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build/pictures").resolve()
    folder.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as home:
        script = Script(folder, home)
        script.say("wait 3000")
        script.picture("launcher")
        for button in [name for name, _ in script.texts("button") if name != "cmdClose"]:
            script.say(f"click {button}")
            if script.top() != "frmSelect":
                tour(script)
        script.say("quit")
    print(f"{len(script.taken)} pictures in {folder}")


main()
