"""What the program hands to a desktop of fakes: a page, a text, a mail; and a desktop that fails."""

import os
import sys
import tempfile
import time

from desktop import Program, check, play

REGRET = ("Sorry, but there was an error attempting to access your e-mail messaging system. The Pastimo "
          "cannot access all email systems. Please send your score through regular email to scores"
          "@pastimo.example. Be sure to include your name, score, game name and home state or country.")
MAIL = ["--utf8", "--subject", "Pastimo High Score Listing for Quindle!", "--body",
        "250,000 by Ann of Dover", "", "Quindle Enhanced Scoring is True", "",
        "It's \"50%\" luck & skill", "scores@pastimo.example"]


class Desktop(tempfile.TemporaryDirectory):
    """The only programs that can be found: each notes what it was given."""
    def has(self, name, ending="exit 0"):
        path = self.name + "/" + name
        with open(path, "w") as file:
            file.write("#!/bin/sh\nprintf '%%s\\n' \"$@\" >'%s.got'\n%s\n" % (path, ending))
        os.chmod(path, 0o755)

    def got(self, name):
        with open(self.name + "/" + name + ".got") as file:
            return file.read().splitlines()


def start(display):
    desktop, home = Desktop(), tempfile.mkdtemp()
    with open(home + "/Quindle Hi Score Table ES 11_90.Txt", "w") as file:
        file.write("Ann, 250000, Jan 01 2000 12:00 am\r\n" * 10 + "\r\n")
    return desktop, home, Program(display, sys.argv[1:], PASTIMO_HOME=home, PATH=desktop.name)


def open_quindle(program):
    program.click("cmdQuindle")
    program.ready("frmQuindle")


def says(program, text):
    program.ready("box " + text)
    program.keys("Return")
    program.until(lambda: not program.ask("active").startswith("box"), "the message is gone")


def a_page_and_a_text(display):
    desktop, home, program = start(display)
    program.click("cmdLaunchBrowser")
    says(program, "Unable to find default web Browser")
    desktop.has("firefox")
    desktop.has("xdg-open", "exit 1")
    program.click("cmdLaunchBrowser")
    says(program, "Unable to open web page 'https://pastimo.example/Pastimo.htm'.")
    desktop.has("xdg-open", "exec /bin/sleep 5")  # a browser that stays in the foreground
    program.click("cmdLaunchBrowser")
    time.sleep(3.5)
    check(program.ask("active").startswith("frmSelect"), "a browser at work is no failure")
    check(desktop.got("xdg-open") == ["https://pastimo.example/Pastimo.htm"], "the page")
    open_quindle(program)
    program.keys("alt+h", "v")
    program.until(lambda: desktop.got("xdg-open") == [home + "/Readme.txt"], "the text")


def a_mail(display):
    desktop, _, program = start(display)
    open_quindle(program)
    program.keys("alt+o", "v")
    program.click("cmdSendScore")
    program.click("txtScore")
    program.keys("Tab")
    program.type("Dover")
    program.click("txtOther")
    program.type("It's \"50%\" luck & skill")
    for composer in ("nothing", "xdg-email"):
        desktop.has(composer, "exit 1")
        program.keys("alt+s")
        says(program, REGRET)
    desktop.has("xdg-email", "/bin/sleep 4; : >'%s/written'" % desktop.name)  # stays in foreground
    program.keys("alt+s")
    says(program, "The message has been successfully placed in your out box.")
    check(desktop.got("xdg-email") == MAIL, "the mail")
    program.until(lambda: os.path.exists(desktop.name + "/written"), "time to write")


play([a_page_and_a_text, a_mail])
