# Reads the tables of corvane_score.py: melodies, chord symbols and voiced sections, in beats.

import itertools
import re
from collections import namedtuple

import corvane_score as score
from pitch import key_number, pitch_class

# The chords keep between these keys, most of the time below the melody.
_CHORD_RANGE = range(key_number("F3"), key_number("B4"))
_WIDEST_CHORD = 14
_RUBS = (1, 13)
_FIRST_KEYS = tuple(key_number(name) for name in ("F3", "A3", "C4", "E4"))

# start and beats are in beats from the start of the piece; root and pitches are pitch
# classes 0..11, keys are MIDI keys from low to high.
Chord = namedtuple("Chord", "start beats root pitches keys")

# cast maps each player's name to a loudness factor; next_root leads the bass onwards.
Section = namedtuple("Section", "name start chords cast next_root")


def parse_line(text):
    """(start, beats, key) rows of a melody; ValueError when a bar line is out of place."""
    rows = []
    now = 0.0
    for token in text.split():
        if token == "|":
            if now % score.BEATS_PER_BAR:
                raise ValueError("bar line at beat %g in %s" % (now, text))
            continue
        name, beats = token.split("/")
        if name != "r":
            rows.append((now, float(beats), key_number(name)))
        now += float(beats)
    return rows


def parse_chord(symbol):
    """The root pitch class of a chord symbol and its pitch classes in order."""
    root_name, quality = re.fullmatch(r"([A-G][b#]?)(.+)", symbol).groups()
    root = pitch_class(root_name)
    return root, tuple((root + step) % 12 for step in score.QUALITIES[quality])


def voicings(pitches):
    """Every close setting of a chord's last four pitches without half-step rubs."""
    places = [[key for key in _CHORD_RANGE if key % 12 == pitch] for pitch in pitches[-4:]]
    for keys in itertools.product(*places):
        ordered = tuple(sorted(keys))
        rubs = any(b - a in _RUBS for a, b in itertools.combinations(ordered, 2))
        if not rubs and ordered[-1] - ordered[0] <= _WIDEST_CHORD:
            yield ordered


def nearest_voicing(previous, pitches):
    """The voicing whose voices move least in sum from the previous chord."""
    return min(
        voicings(pitches),
        key=lambda keys: (sum(abs(a - b) for a, b in zip(keys, previous)), keys),
    )


def read_section(name, start, cast, previous, next_root):
    """A section with its chords voiced on from the keys of the chord before it."""
    chords = []
    for bar, text in enumerate(score.HARMONY[name].split("|")):
        symbols = text.split()
        beats = score.BEATS_PER_BAR / len(symbols)
        for place, symbol in enumerate(symbols):
            root, pitches = parse_chord(symbol)
            previous = nearest_voicing(previous, pitches)
            begin = start + bar * score.BEATS_PER_BAR + place * beats
            chords.append(Chord(begin, beats, root, pitches, previous))
    return Section(name, start, chords, cast, next_root)


def read_score():
    """The sections of the piece in order."""
    sections = []
    start = 0.0
    previous = _FIRST_KEYS
    for place, (name, cast) in enumerate(score.SECTIONS):
        following = score.SECTIONS[(place + 1) % len(score.SECTIONS)][0]
        section = read_section(name, start, cast, previous, first_root(following))
        previous = section.chords[-1].keys
        start = section_end(section)
        sections.append(section)
    return sections


def first_root(name):
    return parse_chord(score.HARMONY[name].split()[0])[0]


def section_end(section):
    return section.chords[-1].start + section.chords[-1].beats


def hold_start(sections):
    """The beat from which the last chord is held."""
    return section_end(sections[-1]) - score.HELD_BARS * score.BEATS_PER_BAR


def chord_at(section, beat):
    return max(chord for chord in section.chords if chord.start <= beat)
