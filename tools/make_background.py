#!/usr/bin/env python3
"""Draws the background picture of the card table again: tools/make_background.py [file].

Every pixel is a level of the cloth's green and a share of gold; the palette is the grid of both.
"""

import math
import sys
from pathlib import Path

from artwork.gif import gif
from artwork.glyphs import placed, text_width
from artwork.pips import OUTLINES
from artwork.raster import filled, flatten, stroked

DEFAULT_FILE = Path(__file__).resolve().parent.parent / "assets" / "pictures" / "Pastimo.gif"
WIDTH, HEIGHT = 640, 400
MIDDLE_X, MIDDLE_Y = WIDTH / 2, HEIGHT / 2
TILE = 64
DARK, LIGHT, GOLD = (9, 48, 34), (48, 140, 98), (214, 178, 92)
LEVELS, GILDING = 42, 6
MOST_GOLD = 0.62
WORD, LETTER_HEIGHT = "PASTIMO", 58


def mix(one, two, amount):
    return tuple(round(a + (b - a) * amount) for a, b in zip(one, two))


def palette():
    cloth = [mix(DARK, LIGHT, i / (LEVELS - 1)) for i in range(LEVELS)]
    amounts = [MOST_GOLD * g / (GILDING - 1) for g in range(GILDING)]
    return [mix(green, GOLD, amount) for amount in amounts for green in cloth]


def share(value):
    return max(0.0, min(1.0, value))


def line(distance, width=1.0):
    """Coverage of a line at a distance from its middle."""
    return share(width / 2 + 0.5 - abs(distance))


def tile_levels():
    """What the repeating pattern adds to the cloth: a lattice with one suit in each field."""
    added = {}
    half = TILE / 2
    for y in range(TILE):
        for x in range(TILE):
            across = ((x + y + 1) % TILE) - half
            along = ((x - y) % TILE) - half
            lattice = max(line(across / math.sqrt(2)), line(along / math.sqrt(2)))
            added[x, y] = 0.075 * lattice
    places = {"S": (half, half), "H": (0, half), "C": (0, 0), "D": (half, 0)}
    for suit, (x, y) in places.items():
        for (px, py), cover in filled(flatten(OUTLINES[suit], 1.5, x, y)).items():
            at = px % TILE, py % TILE
            added[at] += (0.09 if suit in "SC" else -0.08) * cover
    return added


def oval(x, y, half_width, half_height):
    """Roughly the distance in pixels from an ellipse about the middle; negative inside."""
    dx, dy = (x - MIDDLE_X) / half_width, (y - MIDDLE_Y) / half_height
    reach = math.hypot(dx, dy)
    slope = math.hypot(dx / half_width, dy / half_height)
    return reach * (reach - 1) / slope if slope else -min(half_width, half_height)


def border(x, y, inset):
    """Distance inward from a rectangle with round corners that lies inset from the rim."""
    radius = 18
    dx = max(abs(x - MIDDLE_X) - (MIDDLE_X - inset - radius), 0)
    dy = max(abs(y - MIDDLE_Y) - (MIDDLE_Y - inset - radius), 0)
    if dx or dy:
        return radius - math.hypot(dx, dy)
    return radius


def word_mask():
    scale = LETTER_HEIGHT / 10
    left = MIDDLE_X - scale * text_width(WORD, 2.6) / 2
    outlines = []
    for offset, data in placed(WORD, 2.6):
        outlines += flatten(data, scale, left + scale * offset, MIDDLE_Y - LETTER_HEIGHT / 2)
    return stroked(outlines, 10), stroked(outlines, 13.5)


def corner_masks():
    mask = {}
    for suit, x, y in (("S", 36, 36), ("H", 604, 36), ("D", 36, 364), ("C", 604, 364)):
        mask.update(filled(flatten(OUTLINES[suit], 2.0, x, y)))
    return mask


def draw():
    """All pixels, row by row, as indices of the palette."""
    pattern, (letters, shadow), corners = tile_levels(), word_mask(), corner_masks()

    def level(x, y, at):
        """How light the cloth is: brightest in the middle, calm in the oval and on the border."""
        inside, outside = share(0.5 - oval(x, y, 246, 92)), share(0.5 - border(x, y, 14))
        here = 0.74 - 0.36 * math.hypot((x - MIDDLE_X) / MIDDLE_X, (y - MIDDLE_Y) / MIDDLE_Y)
        here += pattern[at[0] % TILE, at[1] % TILE] * (1 - max(inside, outside))
        here -= 0.13 * inside + 0.08 * outside
        letter = letters.get(at, 0.0)
        return here + 0.2 * letter - 0.2 * max(0.0, shadow.get(at, 0.0) - letter)

    def gold(x, y, at):
        return max(
            line(oval(x, y, 246, 92), 2.4) * 0.8, line(oval(x, y, 236, 84)) * 0.55,
            line(border(x, y, 14), 2) * 0.8, line(border(x, y, 19)) * 0.5,
            corners.get(at, 0.0) * 0.75, letters.get(at, 0.0) * 0.5)

    pixels = bytearray()
    for py in range(HEIGHT):
        for px in range(WIDTH):
            place = px + 0.5, py + 0.5, (px, py)
            green = round(share(level(*place)) * (LEVELS - 1))
            pixels.append(round(gold(*place) * (GILDING - 1)) * LEVELS + green)
    return pixels


def main():
    target = Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FILE
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_bytes(gif(WIDTH, HEIGHT, palette(), draw()))


if __name__ == "__main__":
    main()
