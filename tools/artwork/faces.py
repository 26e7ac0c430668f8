"""The 52 card faces: corners, pips, aces; the courts' figures come from their own module."""

from artwork import courts
from artwork.glyphs import RANKS, word
from artwork.pips import COLOURS, OUTLINES, PLACES, pip
from artwork.svg import GOLD, IVORY, document, linear, path, rect, star, turned, use, circle

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
        "M34.5 19C30 19 27.5 16.8 24.8 16.8C22.6 16.8 21.4 18.2 21.4 19.7C21.4 21 22.4 21.8 23.5 21.8"
        "C24.5 21.8 25.1 21.1 25.1 20.3M34.5 19C39 19 41.5 16.8 44.2 16.8C46.4 16.8 47.6 18.2 47.6 19.7"
        "C47.6 21 46.6 21.8 45.5 21.8C44.5 21.8 43.9 21.1 43.9 20.3"
    )
    leaf = "M34.5 12C36.6 14.4 36.6 16.6 34.5 19C32.4 16.6 32.4 14.4 34.5 12Z"
    return path(curl, stroke=colour, width=0.9, extra=' stroke-linecap="round"') + path(leaf, colour)


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


def spade_ace():
    """The grand ace: a spade filled with filigree between two laurel branches."""
    spade = pip("S", 34.5, 46, 48, "url(#ink)")
    lines = "".join(
        path(OUTLINES["S"], stroke=colour, width=width,
             extra=f' transform="translate(34.5 {y}) scale({scale})"')
        for scale, y, width, colour in ((4.2, 45.7, 0.16, GOLD), (2.5, 46.6, 0.24, "#dfe6ff")))
    vine = (
        "M34.5 64C31 60 28.5 59.5 25 59.8C22 60 20.5 57.5 21.6 55.4C22.6 53.6 25 54.4 24.8 56"
        "M28 45C25.2 47 23 48.6 21.2 51M34.5 37C34.5 34 34.5 32 34.5 29"
    )
    flower = path(star(34.5, 47.4, 8, 6, 2.6), GOLD) + circle(34.5, 47.4, 1.9, "#18203f")
    half = path(vine, stroke=GOLD, width=0.7, extra=' stroke-linecap="round"')
    branch = path("M34.5 83.5C26 83.5 19 78 16.6 68", stroke="#18203f", width=0.8)
    for x, y, angle in ((17, 70, -80), (18.6, 74.2, -62), (21.6, 78, -45), (25.6, 81, -28),
                        (30.2, 82.9, -12)):
        leaf = "M0 0C1.2 -2.4 3.6 -2.8 5.4 -2C4.4 -0.2 2.4 0.9 0 0Z"
        where = f' transform="translate({x} {y}) rotate({angle - 150})"'
        branch += path(leaf, "#18203f", extra=where)
        where = f' transform="translate({x} {y}) rotate({angle}) scale(1 -1)"'
        branch += path(leaf, "#18203f", extra=where)
    crown = path("M28.6 18.6L27.4 12L31.4 14.8L34.5 9.8L37.6 14.8L41.6 12L40.4 18.6Z", GOLD, "#18203f", 0.6)
    side = half + branch
    flipped = f'<g transform="translate(69 0) scale(-1 1)">{side}</g>'
    return spade + lines + side + flipped + flower + crown


def ace(suit):
    dark, light = ("#18203f", "#34457f") if COLOURS[suit] == "#18203f" else ("#a80c26", "#e0354a")
    body = spade_ace() if suit == "S" else plain_ace(suit)
    return blank_card() + corners("A", suit) + body, linear("ink", light, dark)


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
