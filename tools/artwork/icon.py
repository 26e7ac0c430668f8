"""The program's icon: two fanned cards and a coloured box on a gold-rimmed tile of table cloth."""

from artwork.emblems import ROUND_ENDS
from artwork.pips import COLOURS, pip
from artwork.svg import GOLD, IVORY, document, group, linear, path, rect

EDGE = "#0a3a26"
CARD_EDGE = "#20303a"
CLOTH = linear("felt", "#3fae74", "#14633f")
SMALL_CLOTH = linear("felt", "#37a06a", "#17704a")


def card(suit, angle, x, y, pip_x):
    shade = rect(-11.5, -16, 25, 35, 3.6, "#000000", extra=' fill-opacity="0.22"')
    body = (shade + rect(-12.5, -17.5, 25, 35, 3.6, IVORY, CARD_EDGE, 1.2)
            + pip(suit, pip_x, -2.5, 17))
    return group(body, f"translate({x} {y}) rotate({angle})")


def box():
    """A box seen from above one corner, its top towards the light."""
    edges = "M43 34L56 39.6L56 52L43 58L30 52L30 39.6ZM30 39.6L43 45.4L56 39.6M43 45.4L43 58"
    return (path("M43 34L56 39.6L43 45.4L30 39.6Z", "#ffd669")
            + path("M30 39.6L43 45.4L43 58L30 52Z", "#f28a1e")
            + path("M56 39.6L43 45.4L43 58L56 52Z", "#b8530c")
            + path(edges, stroke="#5a2604", width=1.5, extra=ROUND_ENDS))


def large():
    """For 32 pixels and more."""
    tile = (rect(1, 1, 62, 62, 13, "url(#felt)", EDGE, 2)
            + rect(3.4, 3.4, 57.2, 57.2, 10.8, stroke=GOLD, line=1.6))
    cards = card("S", -14, 22, 31, -2.6) + card("H", 12, 40, 28, 0)
    return document(64, 64, tile + cards + box(), CLOTH)


# For fewer pixels the suits are drawn pixel by pixel, 5 and 7 wide.
PIXELS = {
    ("S", 5): ("..#..", ".###.", "#####", "#####", "..#..", ".###."),
    ("H", 5): ("##.##", "#####", "#####", ".###.", "..#.."),
    ("S", 7): ("...#...", "..###..", ".#####.", "#######", "#######", "##.#.##", "...#...",
               "..###.."),
    ("H", 7): (".##.##.", "#######", "#######", "#######", ".#####.", "..###..", "...#..."),
}


def pixels(suit, width, x, y):
    rows = PIXELS[suit, width]
    return "".join(
        rect(x + across, y + down, 1, 1, 0, COLOURS[suit])
        for down, row in enumerate(rows) for across, dot in enumerate(row) if dot == "#")


def small(size, wide, high, pip_width):
    """No rim and no slant: every edge lies between two pixels. The right card covers the left one's
    last column with its outline."""
    left = (size - 2 * wide) // 2
    top = (size - high) // 2
    cards = ""
    for suit, x, seen, y in (("S", left, wide - 1, top + 1), ("H", left + wide, wide, top - 1)):
        cards += rect(x - 1, y - 1, wide + 2, high + 2, 2, EDGE, extra=' fill-opacity="0.6"')
        cards += rect(x, y, wide, high, 1, IVORY)
        cards += pixels(suit, pip_width, x + (seen - pip_width + 1) // 2,
                        y + (high - len(PIXELS[suit, pip_width])) // 2)
    tile = rect(0, 0, size, size, size / 5, "url(#felt)")
    return document(size, size, tile + cards, SMALL_CLOTH)


SMALL = {16: (7, 10, 5), 22: (9, 14, 7), 24: (10, 16, 7)}


def drawing_for(size):
    return small(size, *SMALL[size]) if size in SMALL else large()
