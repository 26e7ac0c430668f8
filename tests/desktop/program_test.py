"""The desktop program played by a person: pointer, keys, questions, dialogs and sounds."""

import array
import itertools
import os
import sys
import tempfile
import time

from desktop import Program, check, play

PASTIMO = sys.argv[1]
GOAL = 11
FIELD = ["FieldCardPicture(%d)" % i for i in range(22)]


def start(display, **environment):
    home = tempfile.mkdtemp()
    return Program(display, [PASTIMO], PASTIMO_HOME=home, **environment), home


def open_quindle(program):
    program.click("cmdQuindle")
    program.place("cmdPlay")
    program.until(lambda: program.ask("windows") == "frmQuindle frmSelect:hidden", "the game alone")
    time.sleep(0.3)


def rank(key):
    return int(key[:-1])


def exposed(program):
    """The cards of the field that no later card lies upon."""
    places = []
    for name in FIELD:
        answer = program.ask("place " + name)
        places.append(None if answer == "none" else [int(word) for word in answer.split()])

    def overlap(a, b):
        return abs(a[0] - b[0]) < a[2] and abs(a[1] - b[1]) < a[3]

    return [name for i, name in enumerate(FIELD) if places[i] and not any(
        later and overlap(places[i], later) for later in places[i + 1:])]


def a_set(program):
    """Cards that can be selected and make the goal; nothing if there are none."""
    names = [name for name in exposed(program) + ["UpCardPicture"]
             if program.text(name)[-1:] in tuple("SHCD")]
    for count in range(1, len(names) + 1):
        for cards in itertools.combinations(names, count):
            if sum(rank(program.text(card)) for card in cards) == GOAL:
                return cards
    return ()


def make_sets(program, wanted):
    """Makes so many sets, and draws as often as it takes."""
    while int(program.text("lblCurrentElevens")) < wanted:
        before = program.text("lblCurrentElevens")
        cards = a_set(program)
        for card in cards:
            program.click(card, 0.5, 0.85)
        if cards:
            program.until(lambda: program.text("lblCurrentElevens") != before, "a set: %s" % (cards,))
        else:
            count = program.text("lblCardCount")
            program.click("PlayCardPicture")
            program.until(lambda: program.text("lblCardCount") != count, "a draw")
        time.sleep(0.05)


def a_game_of_quindle(display):
    program, home = start(display)
    open_quindle(program)
    program.keys("alt+o", "d")
    program.keys("alt+p")
    program.until(lambda: program.text("lblCardCount") == "Cards: 30", "thirty cards to draw")
    check(program.ask("spoken " + FIELD[21]).startswith("button "), "a card is spoken of")

    make_sets(program, 2)
    left = int(program.text("lblCardCount").split()[1])
    program.click("PlayCardPicture")
    program.until(lambda: program.text("lblCardCount") == "Cards: %d" % (left - 1), "one drawn")

    program.keys("alt+s")
    program.until(lambda: program.text("lblMessage") == "Game Paused", "a pause")
    check(program.text(FIELD[0]) == "BACK", "a paused card is turned down")
    program.keys("alt+r")
    program.until(lambda: program.text("cmdPause") == "Pau&se", "the game goes on")

    pile, card = program.place("PlayCardPicture"), program.place(exposed(program)[0])
    program.keys("alt+t")
    program.until(lambda: "Speed Bonus" in program.text("lblMessage"), "the bonus is counted")
    for place in (pile, card, program.place("cmdExit"), card):
        program.click_at(place)
    check("Speed Bonus" in program.text("lblMessage"), "a click has disturbed the count")
    program.until(lambda: program.text("lblCurrentRound") == "2", "round two")
    program.until(lambda: program.text("lblCardCount") == "Cards: 30", "a fresh deck")
    check(program.text("lblCurrentTotal") == "0", "a click came late")
    check(program.ask("windows") == "frmQuindle frmSelect:hidden", "a click came late")

    time.sleep(0.3)
    program.click("cmdPlay")
    time.sleep(0.5)
    program.keys("alt+y")
    program.until(lambda: program.text("cmdPlay") == "&Play", "the game is over")
    time.sleep(0.3)
    program.keys("alt+F4")
    time.sleep(0.5)
    program.keys("alt+y")
    program.until(lambda: program.ask("windows") == "frmSelect", "back in the launcher")
    time.sleep(0.3)
    program.click("cmdClose")
    check(program.ended() == 0, "exit status")
    check(os.path.exists(os.path.join(home, "Quindle.Ini")), "settings are written")


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
    program.keys("alt+p")
    program.until(lambda: program.text("lblCardCount") == "Cards: 30", "a game")
    program.click("PlayCardPicture")
    program.until(lambda: os.path.exists(record) and loudest(record) > 1000, "a wave is heard")
    program.close()

    os.remove(record)
    program, _ = start(display, **heard)
    open_quindle(program)
    program.keys("alt+o", "p")
    program.keys("alt+p")
    program.until(lambda: program.text("lblCardCount") == "Cards: 30", "a game")
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


# Of each game: its button and window, what is clicked, and the text that some click must change.
GAMES = [
    ("cmdMozaro", "frmMozaro", None, "lblTotalScore"),
    ("cmdBrenlock", "frmBrenlock", ["cmdHit(0)"], "ColumnTotal(0)"),
    ("cmdHarvel", "frmHarvel", ["cmdHit(0)"], "lblCardsUsedCount"),
    ("cmdOstrel", "frmOstrel", ["CardStackPicture"], "lblCards"),
    ("cmdPellow", "frmPellow", ["CardStackPicture"], "lblCards"),
    ("cmdVermoy", "frmVermoy", ["PlayCards(0)"], "lblCards"),
    ("cmdKestrane", "frmKestrane", ["UpCard(2)", "PlayCard(0)"], "lblCardCount"),
    ("cmdPhrase", "frmPhrase", ["cmdLetter(%d)" % i for i in (19, 13, 17, 18, 11, 2)],
     "lblCurrentScore"),
    ("cmdFandrel", "frmFandrel", ["imgPlayCard(1)", "imgUpperCard(1)"], "lblCardCount"),
]


def clicks_on(program, controls):
    """The places to be clicked in turn: those controls, or points all over Mozaro's grid."""
    if controls:
        return [(name, 0.5, 0.5) for name in controls]
    return [("PlayingSurface", x / 14 + 0.03, y / 8 + 0.05) for y in range(8) for x in range(14)]


def every_game(display):
    """Each game opens, is played by a click on its board, stands still paused, and closes."""
    program, home = start(display)
    for button, window, controls, counter in GAMES:
        program.click(button)
        program.until(lambda: program.ask("windows") == window + " frmSelect:hidden", window)
        time.sleep(0.3)
        program.click("cmdPlay")
        program.until(lambda: program.text("cmdPlay") != "&Play", window + " is played")
        time.sleep(0.2)
        before = program.text(counter)
        for name, x, y in clicks_on(program, controls):
            if program.text(counter) == before:
                program.click(name, x, y)
                time.sleep(0.15)
        program.until(lambda: program.text(counter) != before, counter + " of " + window)
        program.click("cmdPause")
        program.until(lambda: program.text("cmdPause") == "&Resume", window + " is paused")
        program.click("cmdPause")
        program.until(lambda: program.text("cmdPause") != "&Resume", window + " goes on")
        program.keys("alt+F4")
        time.sleep(0.6)
        program.keys("alt+y")
        program.until(lambda: program.ask("windows") == "frmSelect", "back from " + window)
        time.sleep(0.3)
    settings = [name for name in os.listdir(home) if name.endswith(".Ini")]
    check(len(settings) == len(GAMES), "every game has written its settings: %s" % settings)


def windows_and_dialogs(display):
    """A score enters its table, and each window of a game is opened, used and closed."""
    home = tempfile.mkdtemp()
    with open(os.path.join(home, "Quindle.Ini"), "w") as file:
        file.write("[DrawTimer]\r\nFalse\r\n\r\n")
    table = os.path.join(home, "Quindle Hi Score Table ES 11_90.Txt")
    with open(table, "w") as file:
        file.write("Corvane, 10, Jan 01 2000 12:00 am\r\n" * 10 + "\r\n")
    program = Program(display, [PASTIMO], PASTIMO_HOME=home)
    open_quindle(program)

    def opened(window):
        program.until(lambda: program.ask("windows").startswith(window), window)
        time.sleep(0.3)

    def alone():
        program.until(lambda: program.ask("windows") == "frmQuindle frmSelect:hidden", "the game")
        time.sleep(0.3)

    program.keys("alt+h", "r")
    opened("frmRules")
    program.click("cmdOK")
    alone()

    program.keys("alt+p")
    program.until(lambda: program.text("cmdPlay") != "&Play", "a game")
    time.sleep(0.3)
    for _ in range(2):
        program.keys("alt+t")
        time.sleep(6.5)
    opened("frmHiScoreName")
    program.type("Ann")
    program.click("cmdOK")
    opened("frmHighScores")
    program.click("cmdDone")
    program.until(lambda: program.text("cmdTakeScore") == "&Replay", "the end of the game")
    with open(table) as file:
        check(file.readline().startswith("Ann, 18000, "), "the score stands in the table")

    time.sleep(2.5)
    saved = os.path.join(home, "mine.qdl")
    program.keys("alt+g", "v")
    time.sleep(1.5)
    program.type(saved)
    program.keys("Return")
    program.until(lambda: os.path.exists(saved), "the game is saved")
    time.sleep(0.3)
    program.keys("alt+g", "o")
    time.sleep(1.5)
    program.type(saved)
    program.keys("Return")
    time.sleep(1)
    program.keys("Return")
    program.until(lambda: program.text("cmdPlay") == "&End Game", "the saved game is played")


play([a_game_of_quindle, sounds, every_game, windows_and_dialogs])
