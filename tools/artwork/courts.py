"""The twelve court cards: two-headed figures, point-symmetric about the middle of the card.

Each half is drawn upright into the upper part of the frame and ends at a slanting line through the
middle; a sash hides the seam. Rank shows in the headgear and the dress (King: crown, beard, ermine;
Queen: long hair, tiara, flower; Jack: feathered cap, ruff, two-coloured doublet), suit in the
palette, the hair and what the hand holds.
"""

from dataclasses import dataclass

from artwork.pips import COLOURS, OUTLINES, pip
from artwork.svg import (
    GOLD, INK, circle, group, mirrored, num, path, rect, round_box, turned, use,
)

MIDDLE_X, MIDDLE_Y = 34.5, 47.0
LEFT, TOP, RIGHT, BOTTOM = 13.5, 6.5, 55.5, 87.5
FACE_PAPER = "#fffdf4"


@dataclass(frozen=True)
class Palette:
    """Colours of one suit's court."""

    main: str
    deep: str
    second: str
    paper: str
    hair: str
    skin: str
    jewel: str


PALETTES = {
    "S": Palette("#2d4aa3", "#1b2d6b", "#b9cbee", "#e9eefb", "#2a2530", "#f4d2b4", "#7fb2ff"),
    "H": Palette("#c2223a", "#86122a", "#f7cf6b", "#fdeee4", "#f0c869", "#f9dcc2", "#e8304a"),
    "C": Palette("#1f7a50", "#0f4a33", "#dfe59a", "#eaf5e6", "#4b2b1b", "#b57a52", "#35c07f"),
    "D": Palette("#7a3a9a", "#4d1f69", "#f2a33c", "#fbf0de", "#b5481f", "#f0c39c", "#b864e0"),
}
CAP = ' stroke-linejoin="round" stroke-linecap="round"'


def shape(data, fill, width=0.55):
    """A filled shape with the ink outline all figures share."""
    return path(data, fill, INK, width, CAP)


def line(data, colour=INK, width=0.55):
    return path(data, "none", colour, width, CAP)


def features(skin_line, mouth_y, brow_lift=0.0):
    """Eyes, brows, nose and mouth of a head whose middle is at (34.5, 23)."""
    out = ""
    for x in (31.5, 37.5):
        out += f'<ellipse cx="{x}" cy="22.7" rx="1.45" ry="0.95" fill="#fff"/>'
        out += circle(x, 22.7, 0.85, INK)
    brows = f"M29.8 {21.2 - brow_lift}C30.8 {20.3 - brow_lift} 32 {20.4 - brow_lift} 33 21" \
            f"M36 21C37 {20.4 - brow_lift} 38.2 {20.3 - brow_lift} 39.2 {21.2 - brow_lift}"
    out += line(brows, INK, 0.7)
    out += line("M34.6 22.6L33.8 25.4C34.2 25.8 34.8 25.8 35.2 25.6", skin_line, 0.6)
    out += line(f"M33 {mouth_y}C34 {mouth_y + 0.5} 35 {mouth_y + 0.5} 36 {mouth_y}", "#b3202e",
                0.95)
    return out


def hand(x, y, skin):
    """A closed hand around something upright."""
    fist = (
        "M-2.6 -1.8C-1 -2.8 1.8 -2.8 2.4 -1.4C3 0.6 2 2.6 0 2.6C-2.2 2.6 -3 0.4 -2.6 -1.8Z"
    )
    fingers = "M-2.4 -0.3L0.6 -0.4M-2.3 1.1L0.4 1"
    drawn = shape(fist, skin, 0.5) + line(fingers, INK, 0.35)
    return group(drawn, f"translate({num(x)} {num(y)})")


# --- what the right hand holds, about the upright line x = 50 ---

def sword(p):
    return (shape("M50 8.6L51.6 11.4L51.6 32L48.4 32L48.4 11.4Z", "#e6ebf2", 0.5)
            + line("M50 10.5L50 32", "#8d97a8", 0.5)
            + shape("M45.6 32C47 31.2 53 31.2 54.4 32L54.2 34C53 33.4 47 33.4 45.8 34Z", GOLD, 0.5)
            + shape("M49 33.6L51 33.6L51 41L49 41Z", p.deep, 0.45)
            + circle(50, 41.6, 1.4, GOLD, INK, 0.45))


def sceptre(p):
    return (shape("M49.2 17L50.8 17L50.8 43L49.2 43Z", GOLD, 0.45)
            + group(path(OUTLINES["H"], p.jewel, INK, 0.7), "translate(50 13) scale(0.85)")
            + shape("M47.6 18L52.4 18L51.6 20L48.4 20Z", GOLD, 0.45)
            + circle(50, 12.2, 1, "#ffd9dc"))


def mace(p):
    knobs = "".join(circle(50 + dx, 13.4 + dy, 1.1, GOLD, INK, 0.4)
                    for dx, dy in ((0, -4.6), (4, -2), (4, 2.6), (-4, -2), (-4, 2.6)))
    return (shape("M49.1 17L50.9 17L50.9 43L49.1 43Z", "#8a5a32", 0.45) + knobs
            + circle(50, 13.6, 3.8, p.main, INK, 0.5)
            + line("M46.3 13.6L53.7 13.6M50 9.9L50 17.3", GOLD, 0.8)
            + shape("M48 18L52 18L51.5 19.8L48.5 19.8Z", GOLD, 0.4))


def axe(p):
    return (shape("M49.2 8.8L50.8 8.8L50.8 43L49.2 43Z", "#8a5a32", 0.45)
            + shape("M50.8 11.2C53 11.4 54 10.4 54.8 9.2C55.6 13 55.6 17 54.8 20.6"
                    "C54 19.4 53 18.4 50.8 18.6Z", "#e6ebf2", 0.5)
            + shape("M49.2 11.4C47.6 11.8 46.6 11.4 45.6 10.6C45 13.6 45 16.2 45.6 19.2"
                    "C46.6 18.4 47.6 18 49.2 18.4Z", "#e6ebf2", 0.5)
            + circle(50, 15, 1.2, p.second, INK, 0.4))


def stem(p):
    return line("M50 39C49 33 49.4 27 49.6 20", "#2f7d3b", 1.1) + shape(
        "M49.4 31C52 30.6 53.4 28.6 53.6 26C51 26.4 49.6 28.2 49.4 31ZM49.4 34"
        "C46.6 33.2 45.6 31.4 45.4 29.4C47.8 29.6 49 31.4 49.4 34Z",
        "#4aa35a", 0.4)


def lily(p):
    bloom = (
        "M49.6 21.6C45.4 20 44.4 15.4 45.2 11.6C47 12.8 48.2 14 48.6 15.4"
        "C48.8 12.6 49.2 10.8 50 9.4C50.8 10.8 51.2 12.6 51.4 15.4C51.8 14 53 12.8 54.8 11.6"
        "C55.2 15.4 54 20 49.6 21.6Z"
    )
    return (stem(p) + shape(bloom, "#f4f7ff", 0.5)
            + line("M48.6 15.4L49.4 19.6M51.4 15.4L50.2 19.6", p.main, 0.6)
            + circle(50, 15.2, 0.8, GOLD))


def rose(p):
    petals = "".join(circle(50 + dx, 15.4 + dy, 2.5, p.jewel, INK, 0.45)
                     for dx, dy in ((0, -2.9), (2.8, -0.9), (1.8, 2.3), (-1.8, 2.3), (-2.8, -0.9)))
    return stem(p) + petals + circle(50, 15.4, 1.9, GOLD, INK, 0.45)


def clover(p):
    leaves = "".join(circle(50 + dx, 15.4 + dy, 2.7, "#3fb072", INK, 0.45)
                     for dx, dy in ((2.5, -2.3), (2.5, 2.3), (-2.5, 2.3), (-2.5, -2.3)))
    return stem(p) + leaves + line("M48 13.4L52 17.4M52 13.4L48 17.4", "#dff0d8", 0.7)


def fan(p):
    ribs = "M50 31L43.8 15.4M50 31L46.8 13M50 31L50 12.2M50 31L53 13.2M50 31L55.6 16"
    return (shape("M50 31.4L42.6 16.4C44 13.6 47 12 50 11.6C52.4 12 54.4 13 55.8 14.6L55.8 19Z",
                  p.second, 0.5)
            + line("M44.4 20C46.4 17.6 52.4 16.6 54.8 19", p.main, 1.3) + line(ribs, INK, 0.35)
            + shape("M49.2 30L50.8 30L50.6 38L49.4 38Z", GOLD, 0.45))


def halberd(p):
    return (shape("M49.3 13L50.7 13L50.7 45L49.3 45Z", "#8a5a32", 0.45)
            + shape("M50 7.4L51.4 12L51.4 15C53.4 15 54.6 14.2 55.4 13"
                    "C55.8 16.6 55.6 19.6 54.6 22.4C53.6 20.8 52.6 20.2 51.2 20.2"
                    "L48.8 20.2L48.8 18.6L45.4 16.8L48.6 15L48.6 12Z", "#e6ebf2", 0.5))


def arrow(p):
    return (shape("M49.4 12L50.6 12L50.6 45L49.4 45Z", "#8a5a32", 0.4)
            + group(path(OUTLINES["H"], p.jewel, INK, 0.9), "translate(50 11.4) scale(0.62 -0.62)")
            + shape("M50 36L53 38.6L53 44L50 41.8L47 44L47 38.6Z", "#fff6df", 0.45))


def staff(p):
    return (shape("M49.2 14L50.8 14L50.8 45L49.2 45Z", "#8a5a32", 0.45)
            + line("M50 15C46 14.6 45.4 9 49.6 8.6C53 8.4 53.6 12 51.2 12.4", "#8a5a32", 1.9)
            + line("M48.4 24L51.6 21.6M48.4 28L51.6 25.6", GOLD, 0.9))


def torch(p):
    return (shape("M48.4 20L51.6 20L50.8 44L49.2 44Z", "#8a5a32", 0.45)
            + shape("M50 7.4C50.6 10.4 54.4 11.8 54 15.8C53.8 18.6 52.2 20 50 20"
                    "C47.8 20 46.2 18.6 46 16C45.8 13.4 47.8 12.6 47.8 10.4"
                    "C49 11 49.4 11.6 49.6 12.4C50.2 11 50.4 9.4 50 7.4Z", "#f26a21", 0.5)
            + path("M50 13C50.8 14.6 52.2 15.4 52 17.2C51.8 18.6 51 19.2 50 19.2"
                   "C49 19.2 48.2 18.6 48 17.4C47.9 16 49.6 15.2 50 13Z", "#ffd84a")
            + shape("M47.6 19.6L52.4 19.6L51.8 22L48.2 22Z", GOLD, 0.45))


HELD = {
    (13, "S"): sword, (13, "H"): sceptre, (13, "C"): mace, (13, "D"): axe,
    (12, "S"): lily, (12, "H"): rose, (12, "C"): clover, (12, "D"): fan,
    (11, "S"): halberd, (11, "H"): arrow, (11, "C"): staff, (11, "D"): torch,
}


# --- dress ---

TORSO = "M29.6 32.6C22 34 15.6 36 11 42L11 53L58 42.2L58 39C53.6 35.6 47 34 39.4 32.6Z"


def arm(fill, p):
    """The right sleeve with its cuff, up to the hand at (50, 37)."""
    sleeve = "M45 35.4C49 35.6 54 37 58 41L58 45L46.8 46Z"
    return shape(sleeve, fill) + shape("M46.4 40.2L53.6 39.4L54.2 42L46.6 43Z", p.second, 0.5)


def king_dress(p):
    spots = "".join(f"M{x} {y}l-0.6 1.8l1.2 0z" for x, y in (
        (26.6, 35.2), (24.4, 38.4), (23.2, 42.4), (22.8, 46.6), (42.4, 35.2), (44.8, 38.4),
        (45.6, 41.6)))
    ermine = ("M29 31.6L25 33.2C21.8 37.6 20.2 43 19.8 50.6L25.6 49.2C26 44 28.4 40 34.5 37"
              "C39.4 39.6 41.8 42.4 42.8 45.2L48.2 44C47.6 40.4 46.4 36.6 44 33.2L40 31.6Z")
    tunic = "M34.5 36C28.6 39.4 25.6 44 25.4 49.4L43 45.2C42 42 39.6 39 34.5 36Z"
    folds = "M15.4 40C14.6 44 14.6 48 15 52M18 38.4C17 42 16.8 47 17 51.6"
    return (shape(TORSO, p.main) + line(folds, p.second, 0.8)
            + shape(tunic, p.second) + line("M34.5 40L34.5 48", p.deep, 0.6)
            + "".join(circle(34.5, y, 0.9, p.deep) for y in (42.2, 45.2))
            + shape(ermine, "#fffdf6") + path(spots, INK))


def queen_dress(p):
    bodice = "M27.4 34C26 39 25.8 44 26.2 49.2L43.6 45C43.4 41 43 37.6 41.6 34Z"
    puff = "M26.6 34.4C19.4 34.6 14 39 12 46L12 53L26.2 49.4C25.6 44 25.8 39 26.6 34.4Z"
    other = "M42.4 34.4C49 34.6 54.6 37 58 41L58 42.4L43.6 45.4C43.6 41 43.4 38 42.4 34.4Z"
    neck = (
        "M31.4 29L37.6 29L38 33C39.6 33.6 41 34 42 34.4C40 39.2 37.4 41.8 34.5 43"
        "C31.6 41.8 29 39.2 27 34.4C28 34 29.4 33.6 31 33Z"
    )
    slashes = (
        "M22.8 36.4C19.6 39 17.6 43 17 50.6M18.6 37.6C15.6 41 14.2 45 14 51M25 39"
        "C23 42 22 46 21.8 50"
    )
    return (shape(puff, p.second) + shape(other, p.second) + line(slashes, p.main, 1.1)
            + shape(bodice, p.main) + shape(neck, p.skin)
            + line("M27 34.4C29 39.6 31.6 42.2 34.5 43.4C37.4 42.2 40 39.6 42 34.4", GOLD, 1.2)
            + line("M30.6 34.2C32 36.4 37 36.4 38.4 34.2", p.deep, 0.7)
            + circle(34.5, 37.2, 1.3, p.jewel, INK, 0.4))


def jack_dress(p):
    left = "M34.5 33L34.5 47.4L11 53L11 42C15.6 36 22 34 29.6 32.6Z"
    right = "M34.5 33L34.5 47.4L58 42L58 39C53.6 35.6 47 34 39.4 32.6Z"
    stripes = "M18 37.4L16.8 51.2M22.6 35.4L21.8 50M27.2 34.6L27 48.8"
    slants = "M38 35L38 46.2M42 35.4L42 45.2"
    ruff = "".join(circle(x, y, 1.9, "#fffdf6", INK, 0.4) for x, y in (
        (27.8, 33.4), (30, 35), (32.4, 36.1), (41.2, 33.4), (39, 35), (36.6, 36.1), (34.5, 36.4)))
    return (shape(left, p.main) + shape(right, p.second) + line(stripes, p.second, 1.2)
            + line(slants, p.main, 1.2) + ruff + circle(34.5, 41, 0.9, GOLD, INK, 0.35)
            + circle(34.5, 44.6, 0.9, GOLD, INK, 0.35))


# --- heads ---

FACE = "M28.2 18C27.6 25 29.6 32.4 34.5 33.6C39.4 32.4 41.4 25 40.8 18Z"

BEARDS = {
    "S": "M28.2 24.6C29.6 27 32 27.6 34.5 26.8C37 27.6 39.4 27 40.8 24.6C41.4 31 38.6 37 34.5 41.6"
         "C30.4 37 27.6 31 28.2 24.6Z",
    "H": "M28 24C28.8 27.4 32 27.8 34.5 26.8C37 27.8 40.2 27.4 41 24C42.6 28 42 32 40 34.4"
         "C38.6 37 36.4 36.4 34.5 37.8C32.6 36.4 30.4 37 29 34.4C27 32 26.4 28 28 24Z",
    "C": "M28.2 24.4C29.6 27.4 32 27.8 34.5 26.8C37 27.8 39.4 27.4 40.8 24.4"
         "C41.6 30 41 36 39.2 40.4C37.4 38.6 35.6 36.6 34.5 34.4C33.4 36.6 31.6 38.6 29.8 40.4"
         "C28 36 27.4 30 28.2 24.4Z",
    "D": "M28.4 24.8C29.8 27.2 32 27.8 34.5 26.8C37 27.8 39.2 27.2 40.6 24.8C41 29 40 32 38.4 34"
         "L38.2 38.4C35.6 39.6 33.4 39.6 30.8 38.4L30.6 34C29 32 28 29 28.4 24.8Z",
}


def king_head(p, suit):
    locks = "M28.8 18C24.6 19 23.4 23 24.6 26.4C23.4 29 25 32.6 29.4 32.4L30 24Z"
    curls = "M25.6 22C26.6 23.4 28 23.6 28.8 23M25.4 27.4C26.6 28.6 28 28.6 29 27.8"
    moustache = (
        "M34.5 26.4C32.4 25.4 29.8 26.4 28.8 29C31.2 29.6 33.4 29 34.5 27.8"
        "C35.6 29 37.8 29.6 40.2 29C39.2 26.4 36.6 25.4 34.5 26.4Z"
    )
    hair = shape(locks, p.hair) + line(curls, "#fff", 0.35)
    beard_lines = "M34.5 31L34.5 36M31.8 31.4L32.6 35M37.2 31.4L36.4 35"
    face = shape(FACE, p.skin) + shape(BEARDS[suit], p.hair) + line(beard_lines, "#ffffff", 0.3)
    return (hair + mirrored(hair, 34.5) + face + features("#9a5a3c", 30)
            + shape(moustache, p.hair, 0.4) + crown(p))


def crown(p):
    lining = "M27.6 17L27.4 12C30 9.6 39 9.6 41.6 12L41.4 17Z"
    gold = ("M27.2 19.6L25 9.8L29.6 13.6L31.2 9.4L34.5 13L37.8 9.4L39.4 13.6L44 9.8L41.8 19.6"
            "C38 21.2 31 21.2 27.2 19.6Z")
    tips = "".join(circle(x, y, 1, p.jewel, INK, 0.4)
                   for x, y in ((25, 9.4), (31.2, 8.9), (37.8, 8.9), (44, 9.4)))
    band = line("M27 17C31 18.4 38 18.4 42 17", p.deep, 0.6)
    gems = (circle(34.5, 16, 1.2, p.jewel, INK, 0.4) + circle(30, 15.6, 0.8, p.jewel)
            + circle(39, 15.6, 0.8, p.jewel))
    return shape(lining, p.main) + shape(gold, GOLD) + band + gems + tips


def queen_back_hair(p):
    hair = (
        "M34.5 12C26 12 24.4 19 25 25C25.4 30 22.6 33 23.4 39C25.4 40.6 29 39.6 30 36L34.5 30L39 36"
        "C40 39.6 43.6 40.6 45.6 39C46.4 33 43.6 30 44 25C44.6 19 43 12 34.5 12Z"
    )
    waves = "M26.6 21C26.4 27 25.4 31 25.6 37M42.4 21C42.6 27 43.6 31 43.4 37"
    return shape(hair, p.hair) + line(waves, "#ffffff", 0.3)


def queen_head(p):
    face = "M28.8 19C28.2 26 30.4 31.6 34.5 32.8C38.6 31.6 40.8 26 40.2 19Z"
    parting = (
        "M34.5 14.4C29.4 14.6 27.4 19 27.6 25C29.4 23.4 33 21.4 34.5 17.4C36 21.4 39.6 23.4 41.4 25"
        "C41.6 19 39.6 14.6 34.5 14.4Z"
    )
    blush = "".join(circle(x, 26, 1.2, "#e8657a", extra=' fill-opacity="0.45"')
                    for x in (30.4, 38.6))
    earrings = circle(28, 28.4, 0.9, GOLD, INK, 0.35) + circle(41, 28.4, 0.9, GOLD, INK, 0.35)
    return (shape(face, p.skin) + blush + features("#9a5a3c", 29.2, -0.1)
            + shape(parting, p.hair) + earrings + tiara(p))


def tiara(p):
    gold = ("M27.6 17.4C29 15 31.4 13.8 34.5 13.6C37.6 13.8 40 15 41.4 17.4"
            "C42 14.6 42.4 12.6 43 10.8C41 11.6 39.6 12 38.4 12.2C37 10.8 35.6 9.4 34.5 7.4"
            "C33.4 9.4 32 10.8 30.6 12.2C29.4 12 28 11.6 26 10.8C26.6 12.6 27 14.6 27.6 17.4Z")
    pearls = "".join(circle(x, y, 0.85, "#fffdf6", INK, 0.35)
                     for x, y in ((26, 10.6), (30.6, 11.8), (38.4, 11.8), (43, 10.6)))
    return shape(gold, GOLD) + circle(34.5, 11.4, 1.3, p.jewel, INK, 0.4) + pearls


def jack_head(p):
    bob = (
        "M28.6 17C25.2 18 24.8 22 25 26C25.2 29.4 24.6 30.6 23.8 31.8"
        "C26.4 33 29 32.2 30.2 30L30 22Z"
    )
    bob_side = shape(bob, p.hair)
    fringe = (
        "M28 18L41 18C41 20 40.4 21 39.8 21.6C38.6 20 37 19.6 34.5 19.8C32 19.6 30.4 20 29.2 21.6"
        "C28.6 21 28 20 28 18Z"
    )
    return (bob_side + mirrored(bob_side, 34.5) + shape(FACE, p.skin)
            + features("#9a5a3c", 29.4, 0.2) + shape(fringe, p.hair, 0.4) + cap(p))


def cap(p):
    feather = (
        "M27 13.6C24.6 10.8 25.6 8 29.6 7.4C35 6.8 41 7.6 46.4 12.4C43.4 12 41.4 12.6 39.4 14.2"
        "C36 11.6 31 11.4 27 13.6Z"
    )
    hat = (
        "M25.6 17.4C24.4 13.4 28.4 10.8 34.5 10.8C40.6 10.8 44.4 13.2 43.4 17.2"
        "C43 18.2 42.4 18.4 41.6 18.2C37 17.2 32 17.2 27.4 18.4C26.6 18.6 26 18.4 25.6 17.4Z"
    )
    brim = "M25.6 18.6C30 16.2 39 16.2 43.4 18.4L43 20.4C38.6 18.6 30.4 18.6 26 20.6Z"
    quill = "M28.6 10.6C33 8.8 39 9.4 43.8 11.8"
    return (shape(hat, p.main) + shape(brim, p.second) + shape(feather, "#fffaf0")
            + line(quill, p.main, 0.6) + circle(28.4, 14.4, 1.4, GOLD, INK, 0.4))


def half_figure(rank, suit):
    """The upper half of a court; its lower edge lies on the slanting line."""
    p = PALETTES[suit]
    if rank == 13:
        body, head = king_dress(p), king_head(p, suit)
        sleeve = p.main
    elif rank == 12:
        body, head = queen_back_hair(p) + queen_dress(p), queen_head(p)
        sleeve = p.second
    else:
        body, head = jack_dress(p), jack_head(p)
        sleeve = p.second
    return body + head + arm(sleeve, p) + HELD[(rank, suit)](p) + hand(50, 37.2, p.skin)


def sash(p):
    """The band that hides the seam; it is its own image when turned."""
    band = "M11 49.8L58 39L58 44.2L11 55Z"
    marks = "".join(
        path(f"M{x - 2.2} {y}L{x} {y - 1.5}L{x + 2.2} {y}L{x} {y + 1.5}Z", p.deep)
        for x, y in ((MIDDLE_X + d, MIDDLE_Y - d * 0.2298) for d in (-16.5, -8.25, 8.25, 16.5)))
    buckle = circle(34.5, 47, 2.3, p.jewel, INK, 0.5) + circle(34.5, 47, 1, "#fff")
    return shape(band, GOLD, 0.6) + marks + buckle


def court(rank, suit):
    """Body and shared definitions of a court card; rank 11, 12 or 13."""
    p = PALETTES[suit]
    half = half_figure(rank, suit) + pip(suit, 19.4, 13.4, 9.4)
    window = (LEFT, TOP, RIGHT - LEFT, BOTTOM - TOP, 1.6)
    frame = round_box(0.9, 0.9, 67.2, 92.2, 4.6) + round_box(*window)
    figures = use("half") + turned(use("half"), MIDDLE_X, MIDDLE_Y) + sash(p)
    body = (rect(*window, p.paper) + figures
            + path(frame, FACE_PAPER, extra=' fill-rule="evenodd"')
            + rect(*window, stroke=COLOURS[suit], line=0.9))
    return body, group(half, extra=' id="half"')
