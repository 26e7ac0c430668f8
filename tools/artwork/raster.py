"""Soft-edged masks of outlines, for the pictures that are no SVG.

Path data may hold absolute M, L, C, circular A and Z. A mask is a dictionary from the pixel (x, y)
to its coverage between 0 and 1; pixels that are not touched are not in it.
"""

import math
import re

STEPS = 12


def _arc(start, radius, large, sweep, end):
    """Points of a circular arc after its start."""
    (x1, y1), (x2, y2) = start, end
    chord = math.hypot(x2 - x1, y2 - y1)
    radius = max(radius, chord / 2)
    rise = math.sqrt(max(0.0, radius * radius - chord * chord / 4))
    side = 1 if large != sweep else -1
    cx = (x1 + x2) / 2 - side * rise * (y2 - y1) / chord
    cy = (y1 + y2) / 2 + side * rise * (x2 - x1) / chord
    first = math.atan2(y1 - cy, x1 - cx)
    turn = (math.atan2(y2 - cy, x2 - cx) - first) % (2 * math.pi)
    if not sweep:
        turn -= 2 * math.pi
    angles = [first + turn * i / STEPS for i in range(1, STEPS + 1)]
    return [(cx + radius * math.cos(a), cy + radius * math.sin(a)) for a in angles]


def _cubic(start, one, two, end):
    points = []
    for i in range(1, STEPS + 1):
        t = i / STEPS
        weights = ((1 - t) ** 3, 3 * t * (1 - t) ** 2, 3 * t * t * (1 - t), t ** 3)
        points.append(tuple(
            sum(w * p[axis] for w, p in zip(weights, (start, one, two, end))) for axis in (0, 1)))
    return points


def flatten(data, scale=1.0, dx=0.0, dy=0.0):
    """The outline as lists of points, one list for each subpath."""
    lines = []
    for letter, tail in re.findall(r"([MLCAZ])([^MLCAZ]*)", data):
        values = [float(v) for v in re.findall(r"-?[\d.]+", tail)]
        pairs = list(zip(values[::2], values[1::2]))
        if letter == "M":
            lines.append(pairs[:1])
        elif letter == "L":
            lines[-1].extend(pairs)
        elif letter == "C":
            for i in range(0, len(pairs), 3):
                lines[-1].extend(_cubic(lines[-1][-1], *pairs[i:i + 3]))
        elif letter == "A":
            for i in range(0, len(values), 7):
                radius, _, _, large, sweep, x, y = values[i:i + 7]
                lines[-1].extend(_arc(lines[-1][-1], radius, large, sweep, (x, y)))
        else:
            lines[-1].append(lines[-1][0])
    return [[(x * scale + dx, y * scale + dy) for x, y in line] for line in lines]


def _inside(x, y, line):
    """Even-odd test of a point against one closed outline."""
    odd = False
    for (x1, y1), (x2, y2) in zip(line, line[1:] + line[:1]):
        if (y1 > y) != (y2 > y) and x < x1 + (y - y1) * (x2 - x1) / (y2 - y1):
            odd = not odd
    return odd


def filled(lines, samples=4):
    """The mask of the area inside any of the outlines."""
    mask = {}
    for line in lines:
        xs, ys = [p[0] for p in line], [p[1] for p in line]
        for py in range(math.floor(min(ys)), math.ceil(max(ys)) + 1):
            for px in range(math.floor(min(xs)), math.ceil(max(xs)) + 1):
                hits = sum(
                    _inside(px + (i + 0.5) / samples, py + (j + 0.5) / samples, line)
                    for i in range(samples) for j in range(samples))
                if hits:
                    mask[px, py] = max(mask.get((px, py), 0.0), hits / samples ** 2)
    return mask


def _distance(x, y, start, end):
    (x1, y1), (x2, y2) = start, end
    dx, dy = x2 - x1, y2 - y1
    length = dx * dx + dy * dy
    t = max(0.0, min(1.0, ((x - x1) * dx + (y - y1) * dy) / length)) if length else 0.0
    return math.hypot(x - x1 - t * dx, y - y1 - t * dy)


def stroked(lines, width):
    """The mask of a line of the given width, with round ends, along the outlines."""
    mask, half = {}, width / 2
    for line in lines:
        for start, end in zip(line, line[1:]):
            for py in range(math.floor(min(start[1], end[1]) - half - 1),
                            math.ceil(max(start[1], end[1]) + half + 1)):
                for px in range(math.floor(min(start[0], end[0]) - half - 1),
                                math.ceil(max(start[0], end[0]) + half + 1)):
                    soft = half + 0.5 - _distance(px + 0.5, py + 0.5, start, end)
                    if soft > mask.get((px, py), 0.0):
                        mask[px, py] = min(1.0, soft)
    return mask
