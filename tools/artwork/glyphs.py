"""The letters and digits of the cards and of the word-mark, drawn as strokes ten units high.

A glyph is its advance width and the path data of its centre lines (M, L, C and Z only, absolute),
so that the same outlines serve the SVG pictures and the bitmap writer.
"""

from artwork.svg import num

GLYPHS = {
    "A": (6.4, "M0.2 10L3.2 0L6.2 10M1.4 6.5L5 6.5"),
    "2": (6, "M0.3 2.7C0.3 1 1.5 0 3 0C4.6 0 5.7 1.1 5.7 2.7C5.7 4.2 4.7 5.2 3.5 6.5"
             "L0.3 10L5.9 10"),
    "3": (6, "M0.5 0L5.4 0L2.6 3.9C4.6 3.9 5.7 5.2 5.7 6.9C5.7 8.8 4.5 10 2.8 10"
             "C1.5 10 0.6 9.3 0.2 8.1"),
    "4": (6, "M4.3 10L4.3 0L0.1 7L6 7"),
    "5": (6, "M5.3 0L1.1 0L0.8 4.6C1.3 4.1 2.1 3.7 2.9 3.7C4.7 3.7 5.7 5 5.7 6.8"
             "C5.7 8.8 4.5 10 2.8 10C1.5 10 0.6 9.4 0.2 8.3"),
    "6": (6, "M5 0.1C2.3 0.9 0.3 3.7 0.3 6.8C0.3 8.8 1.4 10 3 10C4.6 10 5.7 8.8 5.7 7"
             "C5.7 5.2 4.6 4.1 3.1 4.1C1.5 4.1 0.3 5.3 0.3 7"),
    "7": (6, "M0.2 0L5.8 0C4 2.8 2.7 6 2.4 10"),
    "8": (6, "M3 4.6C1.5 4.6 0.7 3.6 0.7 2.4C0.7 1 1.6 0 3 0C4.4 0 5.3 1 5.3 2.4"
             "C5.3 3.6 4.5 4.6 3 4.6C1.3 4.6 0.3 5.7 0.3 7.2C0.3 8.9 1.4 10 3 10"
             "C4.6 10 5.7 8.9 5.7 7.2C5.7 5.7 4.7 4.6 3 4.6Z"),
    "9": (6, "M1 9.9C3.7 9.1 5.7 6.3 5.7 3.2C5.7 1.2 4.6 0 3 0C1.4 0 0.3 1.2 0.3 3"
             "C0.3 4.8 1.4 5.9 2.9 5.9C4.5 5.9 5.7 4.7 5.7 3"),
    "1": (2.2, "M0 2.2L1.8 0L1.8 10"),
    "0": (4.2, "M2.1 0C0.7 0 0 1.8 0 5C0 8.2 0.7 10 2.1 10C3.5 10 4.2 8.2 4.2 5C4.2 1.8 3.5 0 2.1 0"
               "Z"),
    "J": (5.6, "M2.2 0L5.6 0M4.3 0L4.3 7.1C4.3 9 3.5 10 2.2 10C0.9 10 0.1 9.1 0.1 7.4"),
    "Q": (6.4, "M3.2 0C1.3 0 0.2 1.9 0.2 5C0.2 8.1 1.3 10 3.2 10C5.1 10 6.2 8.1 6.2 5"
               "C6.2 1.9 5.1 0 3.2 0ZM3.4 6.9L6.2 10.7"),
    "K": (6.2, "M0.7 0L0.7 10M5.7 0L0.8 6M2.6 4L6 10"),
    "P": (6, "M0.7 10L0.7 0L3.2 0C4.9 0 5.8 1.1 5.8 2.8C5.8 4.5 4.9 5.6 3.2 5.6L0.7 5.6"),
    "S": (6, "M5.5 1.9C5.1 0.7 4.2 0 3 0C1.5 0 0.5 1 0.5 2.5C0.5 4.1 1.7 4.6 3 5"
             "C4.5 5.4 5.7 6.1 5.7 7.6C5.7 9 4.6 10 3 10C1.6 10 0.6 9.2 0.2 7.9"),
    "T": (6.2, "M0 0L6.2 0M3.1 0L3.1 10"),
    "I": (1.4, "M0.7 0L0.7 10"),
    "M": (8, "M0.6 10L0.9 0L4 7.4L7.1 0L7.4 10"),
    "O": (7, "M3.5 0C1.5 0 0.3 1.9 0.3 5C0.3 8.1 1.5 10 3.5 10C5.5 10 6.7 8.1 6.7 5"
             "C6.7 1.9 5.5 0 3.5 0Z"),
}

RANKS = ["A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K"]


def text_width(text, gap=1.6):
    """Advance of a word in glyph units."""
    return sum(GLYPHS[letter][0] for letter in text) + gap * (len(text) - 1)


def placed(text, gap=1.6):
    """Each letter of a word with its left edge in glyph units."""
    left = 0.0
    for letter in text:
        width, data = GLYPHS[letter]
        yield left, data
        left += width + gap


def word(text, centre_x, top, height, colour, weight=1.6, gap=1.6):
    """A word centred on centre_x; weight is the stroke width in glyph units."""
    scale = height / 10.0
    left = centre_x - scale * text_width(text, gap) / 2.0
    out = []
    for offset, data in placed(text, gap):
        move = f"translate({num(left + scale * offset)} {num(top)}) scale({scale:.3f})"
        out.append(f'<path d="{data}" transform="{move}"/>')
    style = f'fill="none" stroke="{colour}" stroke-width="{num(weight)}" stroke-linejoin="round"'
    return f"<g {style}>{''.join(out)}</g>"
