"""The four suits: their outlines in a box from -5 to 5, their colours, and where the pips stand."""

from artwork.svg import num, path

BLACK = "#18203f"
RED = "#c4122f"

OUTLINES = {
    "S": "M0 -5C1 -3 4.7 -0.9 4.7 1.7C4.7 3.2 3.6 4 2.5 4C1.7 4 0.9 3.6 0.5 2.9C0.6 4 1.1 4.6 1.9 5"
         "L-1.9 5C-1.1 4.6 -0.6 4 -0.5 2.9C-0.9 3.6 -1.7 4 -2.5 4C-3.6 4 -4.7 3.2 -4.7 1.7"
         "C-4.7 -0.9 -1 -3 0 -5Z",
    "H": "M0 5C-1 3 -4.8 0.9 -4.8 -1.9C-4.8 -3.7 -3.6 -4.7 -2.3 -4.7C-1.1 -4.7 -0.3 -4 0 -2.9"
         "C0.3 -4 1.1 -4.7 2.3 -4.7C3.6 -4.7 4.8 -3.7 4.8 -1.9C4.8 0.9 1 3 0 5Z",
    "C": "M-0.5 2.2C-1 3.2 -1.8 3.7 -2.6 3.7A2.4 2.4 0 1 1 -1.75 -0.95A2.4 2.4 0 1 1 1.75 -0.95"
         "A2.4 2.4 0 1 1 2.6 3.7C1.8 3.7 1 3.2 0.5 2.2C0.6 3.7 1.1 4.5 1.9 5L-1.9 5"
         "C-1.1 4.5 -0.6 3.7 -0.5 2.2Z",
    "D": "M0 -5C0.9 -3.3 2.3 -1.5 3.9 0C2.3 1.5 0.9 3.3 0 5C-0.9 3.3 -2.3 1.5 -3.9 0"
         "C-2.3 -1.5 -0.9 -3.3 0 -5Z",
}

COLOURS = {"S": BLACK, "H": RED, "C": BLACK, "D": RED}

LEFT, MIDDLE, RIGHT = 22.8, 34.5, 46.2
ROW = {"top": 17.5, "bottom": 76.5, "upper": 37.2, "lower": 56.8, "centre": 47.0}


def _pairs(*rows):
    return [(x, ROW[row]) for row in rows for x in (LEFT, RIGHT)]


PLACES = {
    2: [(MIDDLE, ROW["top"]), (MIDDLE, ROW["bottom"])],
    3: [(MIDDLE, ROW["top"]), (MIDDLE, ROW["centre"]), (MIDDLE, ROW["bottom"])],
    4: _pairs("top", "bottom"),
    5: _pairs("top", "bottom") + [(MIDDLE, ROW["centre"])],
    6: _pairs("top", "centre", "bottom"),
    7: _pairs("top", "centre", "bottom") + [(MIDDLE, 32.2)],
    8: _pairs("top", "centre", "bottom") + [(MIDDLE, 32.2), (MIDDLE, 61.8)],
    9: _pairs("top", "upper", "lower", "bottom") + [(MIDDLE, ROW["centre"])],
    10: _pairs("top", "upper", "lower", "bottom") + [(MIDDLE, 27.3), (MIDDLE, 66.7)],
}


def pip(suit, x, y, size, fill=None, turn=False, stroke=None, width=0.5):
    """One pip of the given height in pixels; turn stands it on its head."""
    scale = size / 10.0
    flip = -scale if turn else scale
    where = f' transform="translate({num(x)} {num(y)}) scale({flip:.3f})"'
    return path(OUTLINES[suit], fill or COLOURS[suit], stroke, width, where)
