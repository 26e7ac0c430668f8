"""What is no card: empty places, hand pointer, emblem, guess tokens and table cloth."""

import math

from artwork.glyphs import word
from artwork.pips import COLOURS, pip
from artwork.svg import (
    GOLD, INK, IVORY, circle, document, group, linear, path, radial, rect, star,
)

ROUND_ENDS = ' stroke-linecap="round" stroke-linejoin="round"'


def empty_place(width, height):
    """A recess pressed into the table: a dark rim, lit on its lower right, and nothing inside."""
    shade = rect(1.5, 1.5, width - 4, height - 4, 6, stroke="#000000", line=1.4,
                 extra=' stroke-opacity="0.38"')
    light = rect(2.5, 2.5, width - 4, height - 4, 6, stroke="#ffffff", line=1,
                 extra=' stroke-opacity="0.34"')
    inner = rect(5, 5, width - 10.5, height - 10.5, 4, stroke="#ffffff", line=0.6,
                 extra=' stroke-opacity="0.22" stroke-dasharray="3 2.4"')
    return document(width, height, light + shade + inner)


def pointer():
    glove = (
        "M8 18.6L8 3.8C8 1 12.4 1 12.4 3.8L12.4 12.4C13.2 11 16.4 11.2 16.6 13.4"
        "C17.4 12.2 20.5 12.4 20.6 14.8C21.8 13.8 24.6 14.4 24.6 17L24.6 21.6"
        "C24.6 24 23.8 25.6 23 27L11 27C9.6 25.4 7.4 24 6 21.8"
        "C4.8 20 3.2 18.4 2.8 17C2.2 15 4.8 14 6.2 15.6Z")
    folds = "M12.4 12.4L12.4 17.6M16.6 13.6L16.6 18M20.6 15L20.6 18.4"
    cuff = "M10.4 26.6L23.6 26.6L24.2 30.8L9.8 30.8Z"
    body = (path(glove, "#ffffff", INK, 1.3, ROUND_ENDS)
            + path(folds, stroke=INK, width=1, extra=ROUND_ENDS)
            + path(cuff, "#c4122f", INK, 1.1, ROUND_ENDS) + circle(20.6, 28.7, 0.9, GOLD))
    return document(32, 32, body, comment="hot spot: the finger tip, x 10, y 1")


def little_card(rank, suit, angle):
    body = (rect(-7, -10.5, 14, 20, 1.8, IVORY, INK, 0.7)
            + word(rank, 0, -8, 8, COLOURS[suit], 1.9) + pip(suit, 0, 4.6, 6.4))
    return group(body,
                 f"translate(35.5 45) rotate({angle}) translate({6.4 if angle > 0 else -6.4} 0)")


def quindle():
    """The emblem: a golden Q around a five and a six, with eleven stars about it."""
    stars = "".join(
        star(35.5 + 27.4 * math.sin(turn), 45 - 27.4 * math.cos(turn), 5, 3.1, 1.3)
        for turn in (math.radians((i + 0.5) * 360 / 11) for i in range(11)))
    ring = (circle(35.5, 45, 20.5, "none", "#5b3a08", 6.6)
            + circle(35.5, 45, 20.5, "none", "url(#gold)", 5.2))
    tail_line = "M43 55C48 57 51 65 59.4 66.4C60.4 70 55 73.6 50.6 70.6C45.6 67 46 60.6 40.4 58.6Z"
    tail = group(path(tail_line, "url(#gold)", "#5b3a08", 0.8, ROUND_ENDS), "rotate(-9 35.5 45)")
    name = word("11", 35.5, 77.6, 8, GOLD, 1.7, 3.4)
    rule = path("M11 81.6L26 81.6M45 81.6L60 81.6", stroke=GOLD, width=1)
    rule += path(star(11, 81.6, 4, 2, 0.8) + star(60, 81.6, 4, 2, 0.8), GOLD)
    suits = pip("S", 11, 12, 7, GOLD) + pip("H", 60, 12, 7, "#ff6b7d")
    suits += path("M20 12L51 12", stroke=GOLD, width=0.8) + path(star(35.5, 12, 8, 3.6, 1.5), GOLD)
    body = (rect(0.5, 0.5, 70, 95, 5, IVORY, "#6f6a5f")
            + rect(3.5, 3.5, 64, 89, 3, "url(#velvet)", GOLD, 1)
            + circle(35.5, 45, 30, "#0d1f3d", extra=' fill-opacity="0.4"')
            + path(stars, "#ffe9a6") + ring
            + little_card("5", "S", -14) + little_card("6", "H", 14) + tail + suits + name + rule)
    defs = (radial("velvet", "#2f6fb5", "#17407c", "#0c2148", r=0.75)
            + linear("gold", "#fff3b0", "#e3b341", "#a8701a"))
    return document(71, 96, body, defs)


def happy():
    rays = path(star(20, 20, 12, 19, 13.4), "#f39a1c", "#a85a08", 0.8, ROUND_ENDS)
    face = circle(20, 20, 12.6, "url(#sun)", "#a85a08", 0.9)
    eyes = path("M14.4 17.8C15 16 17 16 17.6 17.8M22.4 17.8C23 16 25 16 25.6 17.8",
                stroke="#5a2f06", width=1.5, extra=ROUND_ENDS)
    smile = path("M13.2 22C15 29 25 29 26.8 22C23 23.4 17 23.4 13.2 22Z", "#8e1f1a", "#5a2f06", 0.8,
                 ROUND_ENDS)
    teeth = path("M15 23.4C18 24.2 22 24.2 25 23.4L24.4 24.8C22 25.4 18 25.4 15.6 24.8Z", "#ffffff")
    return document(40, 40, rays + face + eyes + smile + teeth,
                    radial("sun", "#fff3a6", "#ffcf3d", cx=0.4, cy=0.35, r=0.7))


def unhappy():
    cloud = ("M9.6 27C4.6 27 1.6 23.6 2 19.6C2.4 16 5.4 13.8 8.6 13.8C9.4 8.4 14 5 19 5.2"
             "C23.4 5.4 27 8 28.4 12C33.6 11.4 38 15 38 19.6C38 24 34.8 27 30.6 27Z")
    drop = "M0 0C1.8 2.6 2 3.8 1.4 5C0.8 6.2 -1.2 6.2 -1.6 4.8C-2 3.6 -1.2 2.2 0 0Z"
    drops = "".join(group(path(drop, "#4aa3e8", "#1b4f86", 0.6), f"translate({x} {y})")
                    for x, y in ((10, 29.4), (20, 31.4), (30, 29.4)))
    face = path("M12.4 15.6L16 13.8M27.6 15.6L24 13.8M15.4 23.8C17 20.6 23 20.6 24.6 23.8",
                stroke="#2a3350", width=1.5, extra=ROUND_ENDS)
    face += circle(15, 18.2, 1.5, "#2a3350") + circle(25, 18.2, 1.5, "#2a3350")
    return document(40, 40, drops + path(cloud, "url(#grey)", "#47536f", 1, ROUND_ENDS) + face,
                    linear("grey", "#dfe6f2", "#8d9bb8"))


def unhappy_other():
    turns = [math.radians(22.5 + 45 * i) for i in range(8)]
    corners = [
        f"{20 + 18.4 * math.cos(turn):.1f} {20 + 18.4 * math.sin(turn):.1f}" for turn in turns]
    octagon = "M" + "L".join(corners) + "Z"
    small = group(path(octagon, "none", "#ffd9dd", 1, ROUND_ENDS), "translate(3 3) scale(0.85)")
    eyes = path("M12 13.4L16.4 17.8M16.4 13.4L12 17.8M23.6 13.4L28 17.8M28 13.4L23.6 17.8",
                stroke="#ffffff", width=2, extra=ROUND_ENDS)
    mouth = path("M11.4 27.4L14.2 24.2L17.2 27.2L20 24.2L22.8 27.2L25.8 24.2L28.6 27.4",
                 stroke="#ffffff", width=1.8, extra=ROUND_ENDS)
    sign = path(octagon, "url(#red)", "#5f0c1c", 1, ROUND_ENDS)
    return document(40, 40, sign + small + eyes + mouth, linear("red", "#e0485c", "#9c1630"))


def blank():
    ring = circle(20, 20, 14.5, "#808890", extra=' fill-opacity="0.12"')
    ring += circle(20, 20, 14.5, "none", "#434b57", 1.4,
                   ' stroke-dasharray="4 3.6" stroke-opacity="0.8"')
    tick = path("M14.4 20.6L18.4 24.4L26 15.8", stroke="#434b57", width=2.2,
                extra=ROUND_ENDS + ' stroke-opacity="0.7"')
    return document(40, 40, ring + tick)


def felt():
    """A tile of the table cloth; it repeats without a seam."""
    lattice = path("M0 0L28 28L0 56M28 28L56 0M28 28L56 56", stroke="#1f7a50", width=1)
    thread = path("M0 28L28 0L56 28L28 56Z", stroke="#15603d", width=1)
    marks = (pip("S", 28, 14, 7, "#16643f") + pip("H", 14, 28, 7, "#1e774d")
             + pip("C", 28, 42, 7, "#16643f") + pip("D", 42, 28, 7, "#1e774d"))
    return document(56, 56, rect(0, 0, 56, 56, 0, "#1a6d46") + lattice + thread + marks)


def field():
    """A soft oval of cloth behind three towers of cards."""
    rim = "".join(
        f'<ellipse cx="320" cy="180" rx="{rx}" ry="{ry}" fill="{fill}"{edge}/>'
        for rx, ry, fill, edge in (
            (318, 178, "url(#rim)", ""),
            (304, 165, "url(#cloth)", f' stroke="{GOLD}" stroke-width="2" stroke-opacity="0.7"'),
            (294, 156, "none", f' stroke="{GOLD}" stroke-width="0.8" stroke-opacity="0.5"')))
    peak = "M0 0L-84 164L84 164Z"
    peaks = "".join(path(peak, "#ffffff",
                         extra=f' fill-opacity="0.05" transform="translate({x} {y})"')
                    for x, y in ((152, 84), (320, 84), (488, 84)))
    corners = (("S", 56, 180), ("D", 584, 180), ("H", 320, 40), ("C", 320, 320))
    marks = group("".join(pip(suit, x, y, 18, GOLD) for suit, x, y in corners),
                  extra=' fill-opacity="0.45"')
    defs = (radial("rim", "#0b3d28", "#0b3d28", "#0b3d28/0")
            + radial("cloth", "#2b8a5c", "#1f7249", "#12502f"))
    return document(640, 360, rim + peaks + marks, defs)


def pictures():
    return {
        "EMPTY.svg": empty_place(71, 96),
        "EmptyLarge.svg": empty_place(76, 100),
        "POINTER.svg": pointer(),
        "QDLE.svg": quindle(),
        "HAPPY.svg": happy(),
        "UNHAPPY.svg": unhappy(),
        "UNHAPPY2.svg": unhappy_other(),
        "BLANK.svg": blank(),
        "felt.svg": felt(),
        "background.svg": field(),
    }
