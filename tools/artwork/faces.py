"""The 52 card faces: corners, pips, aces; the courts' figures come from their own module."""

from artwork import courts
from artwork.glyphs import RANKS, word
from artwork.pips import COLOURS, OUTLINES, PLACES, pip
from artwork.svg import (
    GOLD, IVORY, circle, document, group, linear, mirrored, path, rect, star, turned,
    use,
)

WIDTH, HEIGHT = 69, 94
EDGE = "#6f6a5f"


def blank_card():
    return rect(0.5, 0.5, WIDTH - 1, HEIGHT - 1, 5, IVORY, EDGE)


def corner(rank, suit):
    """Rank and small suit in the top left corner."""
    gap = 1.9 if rank == "10" else 1.6
    return word(rank, 7.8, 5, 9.6, COLOURS[suit], 1.75, gap) + pip(suit, 7.8, 22, 7.6)


def corners(rank, suit):
    one = corner(rank, suit)
    return one + turned(one, WIDTH / 2, HEIGHT / 2)


def pip_card(rank, suit):
    marks = [pip(suit, x, y, 13, turn=y > HEIGHT / 2 + 1) for x, y in PLACES[rank]]
    return blank_card() + corners(RANKS[rank - 1], suit) + "".join(marks)


def scrolls(colour):
    """Two curling leaves above an ace; the same turned stand below it."""
    curl = (
        "M34.5 19C30 19 27.5 16.8 24.8 16.8C22.6 16.8 21.4 18.2 21.4 19.7"
        "C21.4 21 22.4 21.8 23.5 21.8C24.5 21.8 25.1 21.1 25.1 20.3"
        "M34.5 19C39 19 41.5 16.8 44.2 16.8C46.4 16.8 47.6 18.2 47.6 19.7"
        "C47.6 21 46.6 21.8 45.5 21.8C44.5 21.8 43.9 21.1 43.9 20.3"
    )
    leaf = "M34.5 12C36.6 14.4 36.6 16.6 34.5 19C32.4 16.6 32.4 14.4 34.5 12Z"
    stem = path(curl, stroke=colour, width=0.9, extra=' stroke-linecap="round"')
    return stem + path(leaf, colour)


def plain_ace(suit):
    """A large pip with a pale line inside and a star at its heart."""
    colour = COLOURS[suit]
    line = path(
        OUTLINES[suit], stroke="#fffdf4", width=0.28,
        extra=' transform="translate(34.5 47) scale(2.75)" stroke-opacity="0.85"')
    heart_y = {"H": 45.2, "C": 48.2, "D": 47.0}[suit]
    gem = path(star(34.5, heart_y, 8, 5.2, 2.2), GOLD) + circle(34.5, heart_y, 1.5, colour)
    leaves = scrolls(colour)
    return pip(suit, 34.5, 47, 34, "url(#ink)") + line + gem + leaves + turned(leaves, 34.5, 47)


SPADE_LEAF = (
    "M0 -5C1 -3 4.7 -0.9 4.7 1.7C4.7 3.2 3.6 4 2.5 4C1.4 4 0.4 3.2 0 2.2"
    "C-0.4 3.2 -1.4 4 -2.5 4C-3.6 4 -4.7 3.2 -4.7 1.7C-4.7 -0.9 -1 -3 0 -5Z"
)
LAUREL_LEAF = "M0 0C1.2 -2.4 3.6 -2.8 5.4 -2C4.4 -0.2 2.4 0.9 0 0Z"
LAUREL = ((17, 70, -80), (18.6, 74.2, -62), (21.6, 78, -45), (25.6, 81, -28), (30.2, 82.9, -12))


def laurel_branch(colour):
    branch = path("M34.5 83.5C26 83.5 19 78 16.6 68", stroke=colour, width=0.8)
    for x, y, angle in LAUREL:
        for where in (f"rotate({angle - 150})", f"rotate({angle}) scale(1 -1)"):
            branch += use("leaf", f"translate({x} {y}) {where}")
    return branch


def spade_ace():
    """The grand ace: a crowned spade with gold tracery over two laurel branches."""
    dark = COLOURS["S"]
    spade = pip("S", 34.5, 46, 48, "url(#ink)")
    lines = "".join(
        path(SPADE_LEAF, stroke=colour, width=width,
             extra=f' transform="translate(34.5 {y}) scale({scale})"')
        for scale, y, width, colour in ((4.15, 46.2, 0.17, GOLD), (3.5, 46.9, 0.1, "#cfd8ff")))
    vine = (
        "M34.5 50C33.6 54 31.4 56.6 28 56.8C25 57 22.8 55 23.4 52.4C24 50.2 27 50.2 27.2 52.2"
        "C27.3 53.4 26.2 53.9 25.4 53.4M34.5 45C32 44.6 28.4 45.6 26.6 48.2"
        "M34.5 45C31.4 43 30 40.6 30.6 38.4C31 37 33 37.2 32.8 38.6"
    )
    side = path(vine, stroke=GOLD, width=0.7, extra=' stroke-linecap="round"')
    side += group(laurel_branch(dark), "translate(3.45 8.4) scale(0.9)")
    flower = path(star(34.5, 46.6, 8, 5, 2.2), GOLD) + circle(34.5, 46.6, 1.6, dark)
    bud = path("M34.5 29.4C36 31.6 36 33.6 34.5 36C33 33.6 33 31.6 34.5 29.4Z", GOLD)
    crown_line = "M28.6 18.6L27.4 12L31.4 14.8L34.5 9.8L37.6 14.8L41.6 12L40.4 18.6Z"
    crown = path(crown_line, GOLD, dark, 0.6) + path("M29.4 16.8L39.6 16.8", stroke=dark, width=0.6)
    return spade + lines + side + mirrored(side, 34.5) + bud + flower + crown


def ace(suit):
    dark, light = ("#18203f", "#34457f") if COLOURS[suit] == "#18203f" else ("#a80c26", "#e0354a")
    body = spade_ace() if suit == "S" else plain_ace(suit)
    defs = linear("ink", light, dark)
    if suit == "S":
        defs += path(LAUREL_LEAF, dark, extra=' id="leaf"')
    return blank_card() + corners("A", suit) + body, defs


def face(rank, suit):
    """The file of one card; rank 1 to 13."""
    defs = ""
    if rank == 1:
        body, defs = ace(suit)
    elif rank <= 10:
        body = pip_card(rank, suit)
    else:
        body, defs = courts.court(rank, suit)
        body = blank_card() + body + corners(RANKS[rank - 1], suit)
    return document(WIDTH, HEIGHT, body, defs)


def pictures():
    return {f"{rank}{suit}.svg": face(rank, suit) for suit in "SHCD" for rank in range(1, 14)}
