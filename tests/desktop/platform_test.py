"""What the desktop platform promises, tried on the demo program with real clicks and keys."""

import os
import sys
import time

from desktop import Program, check, play

DEMO, PICTURES = sys.argv[1:3]


def demo(display, **environment):
    program = Program(display, [DEMO], DEMO_PICTURES=PICTURES, **environment)
    program.expect("resized 635,431 state 0", "activate")
    program.place("cmdCount")
    time.sleep(0.3)
    return program


def is_felt(color):
    red, green, blue = color
    return green > red + 30 and green > blue + 15


def waits_hold_input_back(display):
    """Clicks, letters and the close box in a wait: served at the handler's end, before timers."""
    program = demo(display)
    program.click("cmdCount")
    program.expect("count 1")

    program.click("cmdWait")
    program.expect("wait begins")
    time.sleep(0.2)
    program.click("cmdCount")
    program.click("imgCard(0)", 0.2)
    program.click("cmdCount")
    program.keys("x")
    program.expect("wait ends", "handler ends", "count 2", "card 0", "count 3", "key x")

    program.click("cmdServe")
    program.expect("wait begins")
    time.sleep(0.2)
    program.click("cmdCount")
    program.keys("alt+c")
    program.expect("wait ends", "dropped", "dropped", "handler ends")
    program.expect_nothing()


def waits_keep_painting(display):
    """The labels move on, an uncovered window is painted, and no timer fires."""
    program = demo(display, DEMO_TICK="1")
    program.expect("tick")
    program.click("cmdWait")
    program.expect("wait begins")
    seen = set()
    end = time.time() + 0.8
    while time.time() < end:
        seen.add(program.text("lblMessage"))
        time.sleep(0.02)
    check(len(seen) > 3, "the label stood still: %s" % seen)
    display.run("xdotool", "search", "--name", "Desktop demo", "windowmove", "40", "60")
    program.until(lambda: program.place("imgCard(0)")[0] < 200, "the window moved in a wait")
    program.until(lambda: is_felt(program.pixel("imgCard(6)", 1.5)), "it is painted where it went")
    program.expect("wait ends", "handler ends", "tick")
    program.expect_nothing(0.3)


def boxes_and_dialogs(display):
    program = demo(display)
    program.keys("alt+a")
    time.sleep(0.4)
    program.keys("Escape")
    program.expect("answer cancel")
    program.click("cmdDialog")
    program.place("txtName")
    time.sleep(0.3)
    program.type("Ann Lee")
    program.keys("alt+b")
    program.type("25")
    program.keys("alt+t", "w", "alt+s", "alt+p")
    program.keys("alt+n", "Return")
    program.expect("ok Ann Lee/25/Wyoming/two/sound", "dialog closed")
    program.click("cmdDialog")
    program.place("txtName")
    time.sleep(0.3)
    program.keys("Escape")
    program.expect("cancel", "dialog closed")


def menus_and_keys(display):
    program = demo(display)
    program.keys("alt+o")
    time.sleep(0.2)
    program.keys("p")
    program.expect("sounds off")
    program.keys("alt+o", "p")
    program.expect("sounds on")
    program.keys("Right", "Right", "space")
    program.expect("card 1")
    program.keys("q")
    program.expect("key q")


def closing(display):
    """Two windows in turn, and a question that keeps the window open."""
    program = demo(display)
    program.click("cmdOther")
    program.place("cmdBack")
    check(program.ask("windows") == "frmOther frmTable:hidden", program.ask("windows"))
    program.click("cmdBack")
    program.expect("activate")
    program.until(lambda: program.ask("windows") == "frmTable", "the first window is back")
    program.keys("alt+F4")
    time.sleep(0.4)
    program.keys("alt+n")
    program.click("cmdWait")
    program.expect("wait begins")
    time.sleep(0.2)
    program.keys("alt+F4")
    program.expect("wait ends", "handler ends")
    time.sleep(0.4)
    program.keys("Escape")
    time.sleep(0.2)
    program.expect_nothing()
    program.keys("alt+g", "x")
    time.sleep(0.4)
    program.keys("alt+y")
    check(program.ended() == 0, "exit status")


def sizes(display):
    """The player's sizes reach the program, and the program's reach the window."""
    program = demo(display)
    search = ["xdotool", "search", "--name", "Desktop demo"]
    display.run(*search, "windowsize", "800", "700")
    program.expect("resized 800,654 state 0")
    display.run(*search, "windowsize", "300", "200")
    program.expect("resized 300,154 state 0", "resized 635,431 state 0")
    program.until(lambda: program.place("cmdCount")[2] == 88, "buttons in place")


play([waits_hold_input_back, waits_keep_painting, boxes_and_dialogs, menus_and_keys, closing, sizes])
