"""A player at a real desktop: an X server of its own, a program with a probe, pointer and keys."""

import os
import queue
import subprocess
import sys
import tempfile
import threading
import time

# A window manager that grabs no clicks: when it replays one, the press may get the place before.
MANAGER = """<openbox_config><mouse/><keyboard>
<keybind key="A-F4"><action name="Close"/></keybind></keyboard></openbox_config>"""
PATIENCE = 8.0  # seconds until a thing that should happen counts as missing


class Failure(Exception):
    pass


class Display:
    """Xvfb and, if one is installed, a window manager."""

    def __init__(self, size="1280x1024"):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-dpi", "96"],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        self.name = ":" + os.read(read, 16).decode().strip()
        self.environment = dict(os.environ, DISPLAY=self.name, QT_QPA_PLATFORM="xcb")
        self.environment.setdefault("XDG_RUNTIME_DIR", tempfile.mkdtemp())
        self.manager = None
        self.programs = []
        try:
            config = os.path.join(tempfile.mkdtemp(), "rc.xml")
            with open(config, "w") as file:
                file.write(MANAGER)
            self.manager = subprocess.Popen(["openbox", "--config-file", config],
                                            env=self.environment, stdout=subprocess.DEVNULL,
                                            stderr=subprocess.DEVNULL)
            time.sleep(0.3)
        except FileNotFoundError:
            pass

    def close(self):
        for process in (self.manager, self.server):
            if process:
                process.terminate()
                process.wait()

    def run(self, *words):
        return subprocess.run(words, env=self.environment, check=True, capture_output=True).stdout

    def shot(self, path):
        subprocess.run(["import", "-window", "root", path], env=self.environment)


class Program:
    """A program with a probe; lines that it prints with a star are what happened in it."""

    def __init__(self, display, words, **environment):
        self.display = display
        display.programs.append(self)
        self.process = subprocess.Popen(
            words, env=dict(display.environment, **environment), stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, bufsize=1)
        self.told, self.answers = queue.Queue(), queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            (self.answers if line.startswith("= ") else self.told).put(line[2:].rstrip("\n"))

    def ask(self, question):
        self.process.stdin.write(question + "\n")
        try:
            return self.answers.get(timeout=PATIENCE)
        except queue.Empty:
            raise Failure("no answer to: " + question)

    def text(self, name):
        return self.ask("text " + name)

    def sees(self, name, text):
        self.until(lambda: self.text(name) == text, "%s = '%s'" % (name, text))

    def ready(self, active):
        """Waits until a window, or a box whose message begins so, stands still with the keyboard."""
        before = None
        end = time.time() + PATIENCE
        while time.time() < end:
            answer = self.ask("active")
            if answer == before and answer.startswith(active):
                return
            before = answer
            time.sleep(0.06)
        raise Failure("'%s' has not come up, but: %s" % (active, before))

    def place(self, name):
        """Left, top, width and height on the screen; waits until the control is shown."""
        end = time.time() + PATIENCE
        while time.time() < end:
            answer = self.ask("place " + name)
            if answer != "none":
                return [int(word) for word in answer.split()]
            time.sleep(0.02)
        raise Failure(name + " is not shown")

    def move(self, name, x=0.5, y=0.5):
        self.move_to(self.place(name), x, y)

    def move_to(self, place, x=0.5, y=0.5, *more):
        left, top, width, height = place
        self.display.run("xdotool", "mousemove", str(int(left + width * x)),
                         str(int(top + height * y)), *more)

    def click_at(self, place, x=0.5, y=0.5):
        """A click on a place that was asked for before."""
        self.move_to(place, x, y, "click", "--delay", "0", "1")

    def click(self, name, x=0.5, y=0.5):
        self.click_at(self.place(name), x, y)

    def keys(self, *names):
        self.display.run("xdotool", "key", *names)

    def type(self, text):
        self.display.run("xdotool", "type", "--delay", "5", "--", text)

    def pixel(self, name, x=0.5, y=0.5):
        """The colour that the screen shows at a place of a control, read from the screen itself."""
        left, top, width, height = self.place(name)
        raw = self.display.run("import", "-window", "root", "-crop",
                               "1x1+%d+%d" % (left + width * x, top + height * y), "-depth", "8",
                               "rgb:-")
        return tuple(raw[:3])

    def until(self, wanted, what):
        end = time.time() + PATIENCE
        while time.time() < end:
            if wanted():
                return
            time.sleep(0.02)
        raise Failure("this did not come about: " + what)

    def expect(self, *lines):
        """The next things that happen are these."""
        for line in lines:
            try:
                happened = self.told.get(timeout=PATIENCE)
            except queue.Empty:
                raise Failure("expected '%s', nothing happened" % line)
            if happened != line:
                raise Failure("expected '%s', but: %s" % (line, happened))

    def expect_nothing(self, seconds=0.3):
        try:
            raise Failure("unexpected: " + self.told.get(timeout=seconds))
        except queue.Empty:
            pass

    def happened(self):
        lines = []
        while not self.told.empty():
            lines.append(self.told.get())
        return lines

    def ended(self):
        try:
            return self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise Failure("the program has not ended")

    def close(self):
        self.process.kill()
        self.process.stdin.close()
        self.process.wait()


def check(condition, what):
    if not condition:
        raise Failure(what)


def play(tests):
    """Runs each test on one display; the exit status tells whether all went well.

    With PASTIMO_SHOTS naming a directory, what the display showed at a failure is kept there."""
    display = Display()
    failed = 0
    try:
        for test in tests:
            try:
                test(display)
                print("ok   " + test.__name__, flush=True)
            except Failure as failure:
                if "PASTIMO_SHOTS" in os.environ:
                    display.shot(os.path.join(os.environ["PASTIMO_SHOTS"], test.__name__ + ".png"))
                failed += 1
                print("FAIL %s: %s" % (test.__name__, failure), flush=True)
            while display.programs:
                display.programs.pop().close()
    finally:
        display.close()
    sys.exit(1 if failed else 0)
