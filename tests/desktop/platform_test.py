"""What becomes of input, painting and timers while a handler waits."""

import sys
import time

from desktop import Program, check, play

DEMO, PICTURES = sys.argv[1:3]


def demo(display):
    program = Program(display, [DEMO, PICTURES])
    program.ready("frmTable")
    return program


def wait(program, button):
    program.click(button)
    program.expect("wait begins")
    time.sleep(0.2)


def input_is_held_back(display):
    """Clicks, letters and the close box: served in order at the handler's end, before the timer."""
    program = demo(display)
    wait(program, "cmdWait")
    program.click("cmdCount")
    program.click("imgCard")
    program.click("cmdCount")
    program.keys("x", "alt+c", "alt+F4")
    program.expect("wait ends", "handler ends", "count 1", "card", "count 2", "key x", "count 3",
                   "close", "tick")

    wait(program, "cmdServe")
    program.click("cmdCount")
    program.keys("alt+c", "alt+F4")
    program.expect("wait ends", "dropped", "dropped", "close while busy", "tick", "handler ends")
    program.expect_nothing()


def a_wait_keeps_painting(display):
    """The label moves on, and a window that is moved is painted where it went."""
    program = demo(display)
    wait(program, "cmdWait")
    seen = {program.text("lblMessage")}
    display.run("xdotool", "search", "--name", "Desktop demo", "windowmove", "40", "60")
    program.until(lambda: program.place("imgCard")[0] < 200, "the window moved in a wait")
    program.until(lambda: is_felt(program.pixel("imgCard", 2.0)), "it is painted where it went")
    program.until(lambda: not seen.add(program.text("lblMessage")) and len(seen) > 2, "counting")
    check(program.happened() == [], "the wait was over by then")
    program.expect("wait ends", "handler ends", "tick")


def is_felt(color):
    red, green, blue = color
    return green > red + 30 and green > blue + 15


play([input_is_held_back, a_wait_keeps_painting])
