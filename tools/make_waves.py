# Writes the sound effects of the games: python3 tools/make_waves.py [folder]
# Without an argument the folder is assets/waves.

import math
import random
import sys
from pathlib import Path

from wave_synth import Voice, band_pass, fading, finish, glide, mix, noise, note, shaped, write_wave

DEFAULT_FOLDER = Path(__file__).resolve().parent.parent / "assets" / "waves"

# Partials are (frequency ratio, level, decay per second).
FELT = Voice(((1, 1.0, 6), (2, 0.35, 9), (3, 0.12, 14)), 0.008)
PLUCK = Voice(((1, 1.0, 22), (2, 0.45, 34), (3, 0.22, 50), (4, 0.1, 70)), 0.002)
BELL = Voice(((1, 1.0, 5), (2, 0.4, 8), (3.01, 0.2, 12), (5.4, 0.08, 24)), 0.003)
MARIMBA = Voice(((1, 1.0, 7), (3.93, 0.28, 26), (9.2, 0.06, 60)), 0.002)
BRASS = Voice(
    (
        (1, 1.0, 0.8),
        (2, 0.75, 1.2),
        (3, 0.55, 1.8),
        (4, 0.36, 2.6),
        (5, 0.22, 3.6),
        (6, 0.13, 5.0),
        (7, 0.07, 7.0),
    ),
    0.022,
)
WHISTLE = Voice(((1, 1.0, 0.9), (2, 0.12, 1.5), (3, 0.05, 2.0)), 0.02)
COIN = Voice(((1, 1.0, 18), (3, 0.25, 30), (5, 0.08, 45)), 0.002)
THUMP = Voice(((1, 1.0, 55), (1.7, 0.4, 80)), 0.001)


def phrase(voice, notes):
    """Mixes a table of (start, pitch, seconds, level) rows."""
    return mix([(start, level, note(voice, pitch, time)) for start, pitch, time, level in notes])


def chord():
    """A soft "no": a rubbing second low down with the tritone above it."""
    return phrase(
        FELT,
        (
            (0.0, "E3", 0.36, 1.0),
            (0.0, "F3", 0.36, 0.9),
            (0.012, "B3", 0.34, 0.7),
        ),
    )


def click():
    """A card set down on the table: a dry tap over a small wooden thump."""
    rng = random.Random(11)
    tap = fading(band_pass(noise(rng, 0.06), 3200, 0.8), 170)
    edge = fading(band_pass(noise(rng, 0.02), 6500, 1.0), 420)
    return mix(((0.004, 1.0, tap), (0.0, 0.5, edge), (0.005, 0.45, note(THUMP, 210.0, 0.06))))


def markq():
    return phrase(PLUCK, ((0.0, "G5", 0.09, 0.7), (0.05, "C6", 0.14, 1.0)))


def tick():
    return phrase(PLUCK, ((0.0, "C6", 0.09, 0.7), (0.05, "F5", 0.14, 1.0)))


def twenty_one():
    return phrase(
        BELL,
        (
            (0.0, "C6", 0.25, 0.8),
            (0.1, "E6", 0.28, 0.85),
            (0.2, "A6", 0.5, 1.0),
            (0.2, "C6", 0.5, 0.35),
        ),
    )


def snap():
    """Shorter than the 75 ms step of a count-up, so that each step is heard on its own."""
    rng = random.Random(7)
    crack = fading(band_pass(noise(rng, 0.05), 2300, 1.6), 130)
    air = fading(band_pass(noise(rng, 0.02), 5200, 1.0), 300)
    return mix(((0.0, 1.0, crack), (0.0, 0.35, air)))


def win_game():
    """A fanfare of three pick-up notes and a broad chord."""
    return phrase(
        BRASS,
        (
            (0.0, "G4", 0.12, 0.75),
            (0.14, "C5", 0.12, 0.8),
            (0.28, "E5", 0.12, 0.85),
            (0.42, "G5", 0.2, 0.9),
            (0.42, "C5", 0.2, 0.4),
            (0.64, "F5", 0.1, 0.8),
            (0.76, "G5", 0.5, 0.95),
            (0.76, "E5", 0.5, 0.5),
            (0.76, "C5", 0.5, 0.5),
            (0.76, "C4", 0.5, 0.4),
        ),
    )


def high_score():
    """A marimba arpeggio over two octaves that opens into a ringing bell chord."""
    climb = ("D5", "F#5", "A5", "B5", "D6", "F#6", "A6", "B6")
    arpeggio = [(0.085 * step, pitch, 0.35, 0.8) for step, pitch in enumerate(climb)]
    close = [(0.7, pitch, 0.8, 0.55) for pitch in ("D5", "A5", "F#6")] + [(0.7, "D7", 0.8, 0.5)]
    return mix(((0.0, 1.0, phrase(MARIMBA, arpeggio)), (0.0, 1.0, phrase(BELL, close))))


def applause():
    """A small room of people, each clapping at a pace and with hands of their own."""
    rng = random.Random(1912)
    seconds = 2.0
    parts = []
    for _ in range(34):
        parts += clapper(rng, seconds - 0.1)
    parts.append((0.0, 0.05, band_pass(noise(rng, seconds), 1500, 0.5)))
    return shaped(mix(parts), lambda time: applause_level(time, seconds))


def clapper(rng, until):
    """The claps of one person, as parts of a mix."""
    centre = 750.0 + 1500.0 * rng.random()
    pace = 0.17 + 0.12 * rng.random()
    distance = 0.35 + 0.65 * rng.random()
    time = 0.3 * rng.random()
    parts = []
    while time < until:
        level = distance * (0.75 + 0.25 * rng.random())
        parts.append((time, level, clap(rng, centre * (0.92 + 0.16 * rng.random()))))
        time += pace * (0.9 + 0.2 * rng.random())
    return parts


def clap(rng, centre):
    """The slap of two palms: a bright edge, the hollow between the hands, a short room tail."""
    burst = noise(rng, 0.07)
    edge = fading(burst, 420)
    hollow = fading(band_pass(burst, centre, 1.8), 120)
    room = fading(band_pass(burst, 1300, 0.6), 60)
    return mix(((0.0, 0.25, edge), (0.0, 1.7, hollow), (0.011, 0.3, room)))


def applause_level(time, seconds):
    """A quick swell, then a long dying away once the first second has passed."""
    swell = min(1.0, 0.35 + time / 0.35)
    left = min(1.0, (seconds - time) / 0.9)
    return swell * left**1.2


def slide():
    """A slide whistle that falls a little over two octaves."""
    seconds = 0.8

    def falling(progress):
        wobble = 1.0 + 0.012 * math.sin(2.0 * math.pi * 7.0 * seconds * progress)
        return 1320.0 * (260.0 / 1320.0) ** (progress**1.2) * wobble

    breath = shaped(
        band_pass(noise(random.Random(5), seconds), 2600, 0.7),
        lambda time: (1.0 - time / seconds) * min(1.0, time / 0.03),
    )
    whistle = shaped(
        glide(WHISTLE, falling, seconds), lambda time: min(1.0, (seconds - time) / 0.2)
    )
    return mix(((0.0, 1.0, whistle), (0.0, 0.06, breath)))


def busted():
    """Two sulking low brass notes, then one that sags away with a wobble."""
    sag_seconds = 0.6

    def sagging(progress):
        wobble = 1.0 + 0.03 * progress * math.sin(2.0 * math.pi * 6.5 * sag_seconds * progress)
        return 155.6 * (92.5 / 155.6) ** (progress**1.6) * wobble

    sag = shaped(
        glide(BRASS, sagging, sag_seconds), lambda time: min(1.0, (sag_seconds - time) / 0.18)
    )
    steps = phrase(BRASS, ((0.0, "F3", 0.13, 0.85), (0.16, "E3", 0.13, 0.85)))
    return mix(((0.0, 1.0, steps), (0.32, 1.0, sag)))


def count_score():
    return phrase(COIN, ((0.0, "B5", 0.035, 0.8), (0.028, "E6", 0.052, 1.0)))


# File name, sound, peak level in decibels below full scale. Sounds that repeat in quick
# succession are quieter than those that stand alone.
WAVES = (
    ("Chord.wav", chord, -5.0),
    ("Click.wav", click, -6.0),
    ("Markq.wav", markq, -8.0),
    ("Tick.wav", tick, -8.0),
    ("TwentyOne.wav", twenty_one, -4.0),
    ("Snap.wav", snap, -10.0),
    ("Wingame.wav", win_game, -3.0),
    ("HighScore.wav", high_score, -3.0),
    ("Applause.wav", applause, -3.0),
    ("Slide.wav", slide, -6.0),
    ("Busted.wav", busted, -3.0),
    ("CountScore.wav", count_score, -10.0),
)


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FOLDER
    folder.mkdir(parents=True, exist_ok=True)
    for name, sound, peak in WAVES:
        write_wave(folder / name, finish(sound(), peak))


if __name__ == "__main__":
    main()
