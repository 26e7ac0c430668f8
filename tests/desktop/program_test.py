"""The desktop program at one player's table: keyboard alone, dialogs, files, sizes and sounds."""

import array
import os
import sys
import tempfile
import time

from desktop import Program, check, play

PASTIMO = sys.argv[1]


def start(display, **environment):
    home = tempfile.mkdtemp()
    program = Program(display, [PASTIMO], PASTIMO_HOME=home, PASTIMO_PACE="10", **environment)
    program.ready("frmSelect")
    return program, home


def open_quindle(program):
    program.click("cmdQuindle")
    program.ready("frmQuindle")


def play_quindle(program):
    program.keys("alt+p")
    program.sees("lblCardCount", "Cards: 30")


def close_game(program):
    program.keys("alt+F4")
    program.ready("box Giving up so soon?")
    program.keys("alt+y")
    program.ready("frmSelect")


def settings(home, file):
    """What a settings file holds: each key and the line behind it."""
    with open(os.path.join(home, file)) as lines:
        rows = lines.read().split("\n")
    return {row: rows[i + 1] for i, row in enumerate(rows) if row.startswith("[")}


def without_a_mouse(display):
    """From the launcher into a game, through its dialog, over its cards, and out again."""
    program, home = start(display)
    program.keys("alt+h")
    program.ready("frmHarvel@")
    program.keys("alt+o", "u")
    program.ready("frmHarvelCustomScoring")
    program.keys("Tab")
    program.type("1234")
    program.keys("alt+s", "Return")
    program.ready("box The scoring options for Harvel! are not set to their default settings.")
    program.keys("Return")
    program.ready("frmHarvel@")
    close_game(program)
    kept = settings(home, "Harvel.Ini")
    check((kept["[TwentyOne Bonus Value]"], kept["[Timer Speed]"]) == ("1234", "180"), kept)

    program.keys("alt+q")
    program.ready("frmQuindle")
    program.ask("deck" + " 9D" * 52)
    play_quindle(program)
    check(program.ask("spoken FieldCardPicture(21)").startswith("button "), "a card is spoken of")
    program.keys("shift+Tab", "Down", "Down", "Right", "space")
    program.sees("lblCurrentTotal", "9")
    program.keys("alt+F4")
    program.ready("box You have a game in progress. Are you sure you want to quit now?")
    program.keys("Escape")
    program.until(lambda: program.text("cmdPause") == "Pau&se", "the game goes on")
    program.ready("frmQuindle")
    program.keys("alt+F4")
    program.ready("box You have a game in progress. Are you sure you want to quit now?")
    program.keys("alt+y")
    program.ready("frmSelect")
    program.keys("alt+F4")
    check(program.ended() == 0, "exit status")


def dialog_by_mouse(display):
    """A refused value is told of and replaced; what OK takes is kept."""
    program, home = start(display)
    program.click("cmdHarvel")
    program.ready("frmHarvel@")

    def enter(text, message):
        program.click("txtNumberOfCardsToPass")
        program.keys("ctrl+a")
        program.type(text)
        program.click("cmdOK")
        program.ready("box " + message)
        program.keys("Return")

    program.click("mnuOptions")
    program.click("mnuUserOptions")
    program.ready("frmHarvelCustomScoring")
    program.click("optSlowest", 0.1)
    program.click("chkCountScore", 0.1)
    enter("-1", "Sorry, you cannot pass fewer than 0 cards.")
    program.ready("box The scoring options for Harvel! are not set to their default settings.")
    program.keys("Return")
    program.ready("frmHarvelCustomScoring")
    check(program.text("txtNumberOfCardsToPass") == "0", "the refused value is replaced")
    enter("5", "The scoring options for Harvel! are not set to their default settings.")
    program.ready("frmHarvel@")
    close_game(program)
    kept = settings(home, "Harvel.Ini")
    check((kept["[Cards To Pass]"], kept["[Timer Speed]"], kept["[Count Down Score]"])
          == ("5", "360", "False"), kept)


def files_and_sizes(display):
    """The rules are read, a game is saved and opened by typed paths, the size is kept."""
    program, home = start(display)
    open_quindle(program)
    program.click("mnuHelp")
    program.click("mnuRules")
    program.ready("frmRules")
    program.click("cmdOK")
    program.ready("frmQuindle")
    program.ask("deck" + " 9D" * 52)
    play_quindle(program)
    program.keys("alt+t")
    program.sees("lblCurrentRound", "2")
    program.until(lambda: program.ask("busy") == "no", "round two")
    program.keys("alt+t")
    program.sees("cmdTakeScore", "&Replay")
    program.until(lambda: program.ask("busy") == "no", "the end of the game")

    saved = os.path.join(home, "mine.qdl")
    for letter in "vo":
        program.keys("alt+g", letter)
        program.ready("QFileDialog")
        program.type(saved)
        while program.ask("busy") == "yes":  # a list of what the name could become takes one
            program.keys("Return")
            time.sleep(0.5)
        check(os.path.exists(saved), "the game is saved")
    program.sees("cmdPlay", "&End Game")
    program.sees("FieldCardPicture(0)", "9D")

    search = ["xdotool", "search", "--name", "^Quindle!"]
    display.run(*search, "windowsize", "900", "700")
    program.until(lambda: program.ask("active").endswith(" 900 700"), "a larger window")
    program.keys("alt+F4")
    program.ready("box You have a game in progress.")
    program.keys("alt+y")
    program.ready("frmSelect")
    check(int(settings(home, "Quindle.Ini")["[Width]"]) >= 900 * 15, "the width is kept")
    open_quindle(program)
    display.run(*search, "windowsize", "300", "200")
    program.until(lambda: program.ask("active").endswith(" 635 477"), "the smallest size")


def loudest(path):
    with open(path, "rb") as file:
        raw = file.read()
    samples = array.array("h", raw[: len(raw) // 2 * 2])
    return max(map(abs, samples), default=0)


def sounds(display):
    """What is played is heard where sounds are on, and nothing is where they are off."""
    record = os.path.join(tempfile.mkdtemp(), "sound")
    heard = dict(SDL_AUDIODRIVER="disk", SDL_DISKAUDIOFILE=record)
    program, _ = start(display, **heard)
    check(not os.path.exists(record), "the sound device is opened at the start")
    open_quindle(program)
    play_quindle(program)
    program.click("PlayCardPicture")
    program.until(lambda: os.path.exists(record) and loudest(record) > 1000, "a wave is heard")
    program.close()

    os.remove(record)
    program, _ = start(display, **heard)
    open_quindle(program)
    program.keys("alt+o", "p")
    play_quindle(program)
    program.click("PlayCardPicture")
    time.sleep(0.7)
    check(not os.path.exists(record) or loudest(record) == 0, "sounds are off")
    program.close()

    program, _ = start(display, **heard)
    open_quindle(program)
    program.keys("alt+o", "p")
    program.keys("alt+o", "m")
    program.keys("alt+p")
    program.until(lambda: os.path.exists(record) and loudest(record) > 1000, "music is heard")


play([without_a_mouse, dialog_by_mouse, files_and_sizes, sounds])
