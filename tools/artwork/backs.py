"""The four card backs and the stacks of cards that wear them.

A scene paints freely over the middle of the card; the ivory frame laid over it cuts it to its
window, so no clipping is needed.
"""

import math

from artwork.pips import pip
from artwork.svg import (
    GOLD, IVORY, circle, document, group, linear, num, path, radial, rect, round_box, star, turned,
    use,
)

EDGE = "#6f6a5f"
ROUND_ENDS = ' stroke-linecap="round" stroke-linejoin="round"'


def twinkle(places, colour):
    """Four-pointed stars at (x, y) of the given reach."""
    return path("".join(star(x, y, 4, reach, reach * 0.3) for x, y, reach in places), colour)


def specks(places, size, colour):
    """Round dots; as ends of very short lines they take little room in the file."""
    dots = "".join(f"M{x} {y}h.1" for x, y in places)
    return path(dots, stroke=colour, width=size, extra=' stroke-linecap="round"')


# --- Palm Tree, 71 x 96 ---

def frond(x, y, angle, length, colour):
    """A hanging palm leaf: a spine bent by its weight, with leaflets below it."""
    turn = math.radians(angle)
    tip = (x + length * math.cos(turn), y - length * math.sin(turn) + length * 0.55)
    bend = (x + length * 0.6 * math.cos(turn), y - length * 0.75 * math.sin(turn) - length * 0.22)
    points = []
    steps = 7
    for i in range(steps + 1):
        t = i / steps
        points.append(tuple(
            (1 - t) ** 2 * a + 2 * t * (1 - t) * b + t * t * c
            for a, b, c in zip((x, y), bend, tip)))
    data = f"M{num(x)} {num(y)}Q{num(bend[0])} {num(bend[1])} {num(tip[0])} {num(tip[1])}"
    for i in range(steps - 1, 0, -1):
        (px, py), (nx, ny) = points[i], points[i + 1]
        drop = length * 0.3 * math.sin(math.pi * i / (steps + 1)) + 0.8
        lean = math.copysign(0.9, math.cos(turn))
        data += f"L{num(nx + lean)} {num(ny + drop)}L{num(px + lean * 0.4)} {num(py + 0.9)}"
    return path(data + "Z", colour)


def palm_scene():
    sea = rect(3, 58, 65, 35, 0, "url(#sea)")
    sun = circle(43, 57, 13.5, "url(#sun)")
    sun += circle(43, 57, 19, "#ffe9a0", extra=' fill-opacity="0.22"')
    clouds = path("M8 24C11 21.6 15 21.6 18 23.4C22 22.2 26 23 28 25Z"
                  "M44 33C48 31 53 31.2 56 32.6C60 31.8 64 32.6 66 34.4Z", "#ffd9c2",
                  extra=' fill-opacity="0.65"')
    birds = path("M46 17C47.4 15.6 48.6 15.8 49.4 17C50.2 15.8 51.6 15.6 52.8 16.8"
                 "M54.6 22.4C55.6 21.4 56.4 21.6 57 22.4C57.6 21.6 58.6 21.4 59.4 22.2",
                 stroke="#4a2150", width=0.8, extra=ROUND_ENDS)
    glints = path("M34 61L52 61M37 64.4L50 64.4M33 68L47 68M40 71.6L53 71.6M36 75L45 75"
                  "M8 62L15 62M60 66L65 66",
                  stroke="#ffe3a3", width=1.1, extra=' stroke-linecap="round" stroke-opacity="0.8"')
    island = path("M3 82C10 75 22 72.6 33 75.4C45 78 56 83 68 82.4L68 93L3 93Z", "#f0c77e")
    island += path("M3 88C16 82 36 82 50 87C58 89.6 64 89 68 88L68 93L3 93Z", "#dba85a")
    trunk = path("M22.4 79C25.6 66 26.6 52 24.4 34L28.2 33C31 50 30.4 66 28.6 79.6"
                 "C26.6 80.4 24.2 80.2 22.4 79Z", "#6b3d22")
    rings = path("M25.4 41L29.2 40.4M26 47L29.8 46.6M26.3 53L30.1 52.8M26 59L29.8 59"
                 "M25.4 65L29.4 65.2M24.4 71L29 71.4",
                 stroke="#a56b3d", width=0.9)
    back = "".join(frond(26.4, 33.4, angle, length, "#14584a")
                   for angle, length in ((62, 20), (118, 19), (20, 21), (160, 20)))
    front = "".join(frond(26.4, 34, angle, length, "#1f8a5b")
                    for angle, length in ((88, 15), (42, 24), (138, 22), (-4, 20), (184, 18)))
    nuts = (circle(25, 35.4, 1.8, "#5a3018") + circle(28.4, 35.8, 1.8, "#5a3018")
            + circle(26.8, 37.2, 1.8, "#7a4424"))
    defs = (linear("sky", "#2a2a78", "#a5408c", "#ff8f5a", "#ffd37a")
            + linear("sea", "#e9856b", "#2f6f9c", "#134a78") + linear("sun", "#fff6c0", "#ffb13d"))
    sky = rect(3, 3, 65, 60, 0, "url(#sky)")
    palm = trunk + rings + back + front + nuts
    return sky + clouds + sun + sea + glints + birds + island + palm, defs


# --- Magic Hands, 69 x 94 ---

FINGERS = (  # knuckle, middle joint, tip of each finger of the lower hand
    (27.4, 74.6, 22.6, 67.2, 22.2, 59.6),
    (31.2, 72.4, 28.2, 64.0, 28.4, 56.0),
    (36.0, 72.2, 35.6, 63.4, 36.2, 55.6),
    (40.2, 73.8, 42.0, 66.0, 43.2, 58.8),
)
THUMB = (42.6, 80.0, 48.6, 75.4, 51.0, 68.6)


def finger_lines(lines, colour, width):
    data = "".join(f"M{a} {b}Q{c} {d} {e} {f}" for a, b, c, d, e, f in lines)
    return path(data, stroke=colour, width=width, extra=ROUND_ENDS)


def gloved_hand():
    """A white glove reaching up out of a dark sleeve."""
    palm = (
        "M26.2 74C29 69.8 38.6 69.4 41.6 73.2C44 76.2 44 80 41.4 84.4L28.8 84.4"
        "C26.4 81 25 77 26.2 74Z"
    )
    ink = "#2a1650"
    white = "#fdfcff"
    out = finger_lines(FINGERS, ink, 6) + finger_lines((THUMB,), ink, 6.4)
    out += path(palm, ink, ink, 1.5)
    out += finger_lines(FINGERS, white, 4.7) + finger_lines((THUMB,), white, 5.1)
    out += path(palm, white)
    out += path("M31.2 76L31.6 80.6M34.9 75.4L34.9 80.6M38.6 76L38.2 80.6", stroke="#a79ac6",
                width=0.9, extra=ROUND_ENDS)
    cuff = path("M26.6 83.2C31 85.2 39 85.2 43.4 83.2L44.2 87C39 89 31 89 25.8 87Z", "#e9e4f7", ink,
                0.7)
    sleeve = path("M25 86.4C31 89 39 89 45 86.4L47 91L23 91Z", "#171029", GOLD, 0.8)
    return out + sleeve + cuff + circle(35, 86, 1, GOLD)


def ray(angle, half_width):
    """Path data of one beam from the middle of the card to the edge of the scene."""
    data = "M34.5 47"
    for turn in (angle - half_width, angle + half_width):
        dx, dy = math.cos(math.radians(turn)), math.sin(math.radians(turn))
        reach = min(31 / max(abs(dx), 0.01), 43.5 / max(abs(dy), 0.01))
        data += f"L{34.5 + reach * dx:.1f} {47 + reach * dy:.1f}"
    return data + "Z"


def magic_scene():
    rays = "".join(ray(30 * i, 6) for i in range(12))
    rays = path(rays, "#d7a8ff", extra=' fill-opacity="0.16"')
    glow = circle(34.5, 47, 24, "url(#glow)")
    sparkle = path(star(34.5, 47, 4, 11.5, 2.6) + star(34.5, 47, 4, 6.4, 2.4, -45), "#fff3b0")
    sparkle += circle(34.5, 47, 2.6, "#ffffff")
    half = gloved_hand()
    half += pip("H", 14.4, 72, 8, "#ff5c7a") + pip("S", 55.6, 57, 8, "#bfe2ff")
    half += path(star(11.6, 56, 4, 3.4, 0.9) + star(57, 77, 4, 3, 0.8) + star(14, 85, 4, 2.2, 0.6)
                 + star(50.5, 49.4, 4, 2.4, 0.6) + star(19, 64, 4, 1.8, 0.5), "#ffe38a")
    defs = (radial("deep", "#8c4fd0", "#4a2396", "#1a0d45", r=0.75)
            + radial("glow", "#fff6c8", "#ffd76e/0.75", "#c583ff/0.3", "#8c4fd0/0")
            + group(half, extra=' id="hand"'))
    hands = use("hand") + turned(use("hand"), 34.5, 47)
    return rect(3, 3, 63, 88, 0, "url(#deep)") + rays + glow + hands + sparkle, defs


# --- Night Castle, 69 x 94 ---

def tower_shape():
    """A tower eight wide with a pointed roof; its roof stands on the line y = 0."""
    return (path("M0 0L8 0L8 32L0 32Z", "")
            + path("M5 0L8 0L8 32L5 32Z", "#0a0e26", extra=' fill-opacity="0.35"')
            + path("M-1.3 0.4L4 -13L9.3 0.4Z", "#a0365a")
            + path("M4.6 0.4L4 -13L9.3 0.4Z", "#0a0e26", extra=' fill-opacity="0.3"')
            + path("M4 -12L4 -17L4 -17L8.4 -15.7L4 -14.4Z", "#ff5a6e", "#d9def5", 0.4))


def tower(x, y, scale, wall):
    """A tower in the colour of its wall, taken from the shared shape."""
    where = f"translate({num(x)} {num(y)}) scale({num(scale)})"
    return f'<use xlink:href="#tower" fill="{wall}" transform="{where}"/>'


def battlement(x, top, width, bottom, teeth, wall):
    """A wall with teeth along its top."""
    step = width / (2 * teeth - 1)
    data = f"M{num(x)} {num(bottom)}"
    for i in range(2 * teeth - 1):
        level = top if i % 2 == 0 else top + 2
        data += f"L{x + i * step:.1f} {num(level)}L{x + (i + 1) * step:.1f} {num(level)}"
    return path(data + f"L{num(x + width)} {num(bottom)}Z", wall)


def castle_scene():
    sky = rect(3, 3, 63, 88, 0, "url(#night)")
    moon = circle(47.5, 23, 18, "url(#halo)") + circle(47.5, 23, 10.5, "url(#moon)")
    moon += "".join(circle(x, y, r, "#e3cf8e", extra=' fill-opacity="0.7"')
                    for x, y, r in ((44, 20, 2), (50.6, 26.4, 2.4), (51.4, 18.6, 1.2)))
    stars = twinkle(((12, 12, 2.4), (62, 42, 1.8), (30, 15, 1.8)), "#f4f0ff") + specks(
        ((24, 9), (9, 27), (18, 20), (60, 9), (35, 29), (8, 42), (20, 29), (37, 10), (63, 33)), 1,
        "#f4f0ff")
    cloud = path("M36 33C40 30.6 44 31 46 32.4C50 30.4 56 31 58 33.2C61 32.6 64 33.4 67 34.6"
                 "L67 36.4L33 36.4C33.4 34.6 34.6 33.4 36 33Z",
                 "#5b6bb5", extra=' fill-opacity="0.7"')
    bat = path("M14 34C15.4 32.4 17.4 32.6 18.4 34L19 33L19.6 34C20.6 32.6 22.6 32.4 24 34"
                "C22.6 34 21.4 34.8 19 36.4C16.6 34.8 15.4 34 14 34Z", "#0c1030")
    hills = path("M3 74C14 66 24 64 34 66C46 68 56 64 66 68L66 91L3 91Z", "#1b2559")
    wall = "#46508f"
    far, near = "#3a4380", "#525da3"
    castle = (tower(18.4, 44, 0.75, far) + tower(43.6, 42, 0.8, far)
              + battlement(22, 52, 24, 72, 6, wall)
              + tower(29.6, 36, 1.1, near) + tower(12.6, 57, 0.92, near) + tower(48, 56, 0.92, near)
              + battlement(18.4, 62, 31.6, 78, 8, near))
    windows = path("".join(f"M{x} {y}v{h}h{w}v-{h}q-{w / 2} -1.2 -{w} 0Z" for x, y, w, h in (
        (33, 41, 2, 3.4), (33, 50, 2, 3), (20.4, 48.6, 1.6, 2.8), (45.8, 47, 1.6, 3),
        (15.3, 62, 2, 3), (50.7, 61, 2, 3), (25.4, 57, 1.4, 2.4), (41.4, 57, 1.4, 2.4))), "#ffd75e")
    gate = path("M30.6 77L30.6 70.6C30.6 65.4 37.6 65.4 37.6 70.6L37.6 77Z", "#1a1430")
    gate += path("M32.4 77L32.4 68.2M34.1 77L34.1 67M35.8 77L35.8 68.2M30.6 71L37.6 71"
                 "M30.6 74L37.6 74", stroke="#c9a14a", width=0.45)
    ground = path("M3 79C14 73.6 22 75.4 34 76C48 76 56 73.4 66 77L66 91L3 91Z", "#101740")
    road = path("M31 76.4C29.6 80 36.4 82 31 85.4C28.6 87 27 89 26.4 91L41 91"
                "C40.6 88.6 42.6 87 43.6 85C45.2 81.6 38 79.6 37.4 76.4Z", "#6f79b8")
    trees = path("M8 91L8 84L6.2 84L9.6 77.6L13 84L11.2 84L11.2 91Z"
                 "M54 91L54 85L52 85L56 77L60 85L58 85L58 91Z", "#0a0f2c")
    defs = (linear("night", "#0b1140", "#27358a", "#6f5fb0", "#c07a9c")
            + radial("halo", "#fff3c4/0.8", "#fff3c4/0.3", "#fff3c4/0")
            + radial("moon", "#fffbe3", "#f6e6ad", cx=0.4, cy=0.4, r=0.7)
            + group(tower_shape(), extra=' id="tower"'))
    land = hills + castle + windows + gate + ground + road + trees
    return sky + stars + moon + cloud + bat + land, defs


# --- Hot Cards, 69 x 94 ---

def small_card(suit, x, y, angle):
    """One of the burning cards; its foot stands at (x, y)."""
    body = rect(-11, -35, 22, 32, 2.4, "#fff8e6", "#4a0d0a", 0.8)
    body += pip(suit, 0, -19, 14) + pip(suit, -7.3, -30.4, 5)
    return group(body, f"translate({num(x)} {num(y)}) rotate({angle})")


FLAMES_BACK = (
    "M3 91L3 46C6 50 9 52 9 58C13 50 8 40 13 28C15 36 19 38 19 46C24 38 20 24 28 10"
    "C28 20 34 24 34 34C38 28 37 20 42 14C41 26 48 30 47 42C52 38 52 30 56 25"
    "C55 36 61 42 59 54C62 52 64 48 66 44L66 91Z")
FLAMES_MIDDLE = (
    "M3 91L3 62C6 64 8 67 8 71C12 64 10 56 15 48C16 55 20 57 20 63C24 56 22 46 28 37"
    "C29 45 34 48 34 55C38 50 37 44 42 39C41 48 47 51 46 60C51 56 51 50 55 46"
    "C55 55 61 59 59 68C62 66 64 63 66 60L66 91Z")
FLAMES_FRONT = (
    "M3 91L3 78C6 79 8 81 9 84C12 79 11 74 15 69C16 74 20 76 20 80C24 75 22 70 27 65"
    "C28 71 33 73 34 77C37 74 37 70 41 66C41 72 46 74 46 79C50 76 50 72 54 69"
    "C54 75 59 78 59 83C62 82 64 80 66 77L66 91Z")


def hot_scene():
    night = rect(3, 3, 63, 88, 0, "url(#dusk)")
    sparks = twinkle(((10, 18, 1.8), (58, 14, 1.9)), "#ffc857") + specks(
        ((49, 9), (14, 9), (62, 28), (7, 32), (36, 8), (20, 12), (54, 22)), 1.2,
        "#ffc857")
    cards = (small_card("S", 32, 74, -27) + small_card("H", 34.5, 72, 0)
             + small_card("C", 37, 74, 27))
    glow = circle(34.5, 56, 34, "url(#glow)")
    defs = (linear("dusk", "#2b0612", "#6b0f16", "#c22a12")
            + radial("glow", "#ffd15c/0.7", "#ff7a1f/0.35", "#ff7a1f/0")
            + linear("f1", "#ff5a1f", "#c91f12", "#7d0b12")
            + linear("f2", "#ffb02e", "#f6621a", "#d22a12")
            + linear("f3", "#fff2a0", "#ffc53a", "#ff8a1f"))
    behind = path(FLAMES_BACK, "url(#f1)") + path(FLAMES_MIDDLE, "url(#f2)") + glow
    return night + sparks + behind + cards + path(FLAMES_FRONT, "url(#f3)"), defs


# --- frames and stacks ---

DESIGNS = {  # number: scene, card width and height, colour of the inner line
    1: (palm_scene, 71, 96, "#2c6e6a"),
    2: (magic_scene, 69, 94, "#5a2ea6"),
    3: (castle_scene, 69, 94, "#27358a"),
    4: (hot_scene, 69, 94, "#a3200f"),
}
STACKS = {  # name: size of the picture by card width
    "FULL": {71: (76, 98), 69: (75, 97)},
    "HALF": {71: (74, 97), 69: (73, 97)},
}


def framed(scene, width, height, colour):
    """One whole card back: the scene seen through the ivory frame."""
    ring = round_box(0.5, 0.5, width - 1, height - 1, 5)
    ring += round_box(4.5, 4.5, width - 9, height - 9, 2.5)
    return (scene + path(ring, IVORY, extra=' fill-rule="evenodd"')
            + rect(0.5, 0.5, width - 1, height - 1, 5, stroke=EDGE)
            + rect(4.5, 4.5, width - 9, height - 9, 2.5, stroke=colour, line=1.2)
            + rect(2.6, 2.6, width - 5.2, height - 5.2, 3.6, stroke=colour, line=0.5))


def edges(right, below):
    """The rims of the cards under the top one, one pixel to the right each, light and dark."""
    layers = ""
    for i in range(right, 0, -1):
        paint = ' stroke="#5f594e"' if i == right else ' fill="#c9c1ae"' if i % 2 else ""
        layers += f'<use xlink:href="#rim" x="{i}" y="{below * i / right:.1f}"{paint}/>'
    return group(layers, extra=' fill="#fffdf4" stroke="#857e70" stroke-width=".5"')


def rim(width, height):
    """The outline that all rims of a stack share; its colours come from their group."""
    return f'<rect id="rim" x=".25" y=".25" width="{width - 0.5}" height="{height - 0.5}" rx="5"/>'


def pictures():
    out = {}
    for number, (scene, width, height, colour) in DESIGNS.items():
        drawing, defs = scene()
        card = framed(drawing, width, height, colour)
        out[f"BACK{number}.svg"] = document(width, height, card, defs)
        for name, sizes in STACKS.items():
            full_width, full_height = sizes[width]
            rims = edges(full_width - width, full_height - height)
            out[f"{name}{number}.svg"] = document(
                full_width, full_height, rims + card, defs + rim(width, height))
    return out
