"""Small helpers that write SVG Tiny 1.2 text, the dialect that Qt SVG draws."""

import math
import re

INK = "#231c2b"
IVORY = "#fffdf4"
GOLD = "#e3b341"


def num(value):
    """A coordinate with at most two decimals and no trailing zeros."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def short(data):
    """The same path data in fewer letters."""
    return re.sub(r"(?<![\d.])0(?=\.\d)", "", data).replace(" -", "-")


def path(data, fill="none", stroke=None, width=0.55, extra=""):
    """One path; without a stroke colour it has no outline, with an empty fill it inherits one."""
    line = f' stroke="{stroke}" stroke-width="{num(width)}"' if stroke else ""
    paint = f' fill="{fill}"' if fill else ""
    return f'<path d="{short(data)}"{paint}{line}{extra}/>'


def circle(x, y, radius, fill, stroke=None, width=0.55, extra=""):
    line = f' stroke="{stroke}" stroke-width="{num(width)}"' if stroke else ""
    return f'<circle cx="{num(x)}" cy="{num(y)}" r="{num(radius)}" fill="{fill}"{line}{extra}/>'


def rect(x, y, width, height, radius=0, fill="none", stroke=None, line=1, extra=""):
    edge = f' stroke="{stroke}" stroke-width="{num(line)}"' if stroke else ""
    corner = f' rx="{num(radius)}"' if radius else ""
    size = f'width="{num(width)}" height="{num(height)}"'
    return f'<rect x="{num(x)}" y="{num(y)}" {size}{corner} fill="{fill}"{edge}{extra}/>'


def group(body, transform="", extra=""):
    where = f' transform="{transform}"' if transform else ""
    return f"<g{where}{extra}>{body}</g>"


def use(name, transform=""):
    where = f' transform="{transform}"' if transform else ""
    return f'<use xlink:href="#{name}"{where}/>'


def turned(body, centre_x, centre_y):
    """The body turned by half a circle about the point."""
    return group(body, f"rotate(180 {num(centre_x)} {num(centre_y)})")


def mirrored(body, axis):
    """The body mirrored at the vertical line x = axis."""
    return group(body, f"translate({num(2 * axis)} 0) scale(-1 1)")


def stops(*colours):
    """Evenly spread gradient stops; a colour may be written '#rrggbb/opacity'."""
    out = []
    for i, colour in enumerate(colours):
        colour, _, opacity = colour.partition("/")
        fade = f' stop-opacity="{opacity}"' if opacity else ""
        at = num(i / max(1, len(colours) - 1))
        out.append(f'<stop offset="{at}" stop-color="{colour}"{fade}/>')
    return "".join(out)


def linear(name, *colours, x2=0, y2=1):
    return (
        f'<linearGradient id="{name}" x1="0" y1="0" x2="{num(x2)}" y2="{num(y2)}">'
        f"{stops(*colours)}</linearGradient>"
    )


def radial(name, *colours, cx=0.5, cy=0.5, r=0.5):
    return (
        f'<radialGradient id="{name}" cx="{num(cx)}" cy="{num(cy)}" r="{num(r)}">'
        f"{stops(*colours)}</radialGradient>"
    )


def round_box(x, y, width, height, r):
    """Path data of a rounded rectangle, for rings cut out by the even-odd rule."""
    x, y, width, height, r = (float(v) for v in (x, y, width, height, r))
    right, bottom = x + width, y + height
    arc = f"A{num(r)} {num(r)} 0 0 1 "
    return (
        f"M{num(x + r)} {num(y)}L{num(right - r)} {num(y)}{arc}{num(right)} {num(y + r)}"
        f"L{num(right)} {num(bottom - r)}{arc}{num(right - r)} {num(bottom)}"
        f"L{num(x + r)} {num(bottom)}{arc}{num(x)} {num(bottom - r)}"
        f"L{num(x)} {num(y + r)}{arc}{num(x + r)} {num(y)}Z"
    )


def star(x, y, points, outer, inner, turn=-90.0):
    """Path data of a star whose first point looks at the angle turn (degrees)."""
    corners = []
    for i in range(2 * points):
        radius = outer if i % 2 == 0 else inner
        angle = math.radians(turn + 180.0 * i / points)
        corners.append(
            f"{x + radius * math.cos(angle):.1f} {y + radius * math.sin(angle):.1f}")
    return "M" + "L".join(corners) + "Z"


def document(width, height, body, defs="", comment=""):
    """A whole file; width and height are its size in pixels at a scale of one."""
    note = f"<!-- {comment} -->\n" if comment else ""
    shared = f"<defs>{defs}</defs>\n" if defs else ""
    return (
        '<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
        f'width="{width}" height="{height}" viewBox="0 0 {width} {height}" '
        'version="1.2">\n'
        f"{note}{shared}{body}\n</svg>\n"
    )
