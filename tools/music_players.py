# The players of the background music: each writes one section of its part into a Track.

import itertools
from collections import namedtuple

import corvane_score as score
from midi_file import TICKS_PER_BEAT
from pitch import key_number
from score_reader import chord_at, parse_line, section_end

_DRUM_CHANNEL = 9
_BASS_RANGE = range(key_number("E2"), key_number("E3"))

Player = namedtuple("Player", "name channel program volume pan reverb velocity play")


def ticks(beats):
    return round(beats * TICKS_PER_BEAT)


def loudness(player, factor, beat):
    """Velocity of a note: down beats weigh a little more than off beats."""
    accent = 6 if beat % score.BEATS_PER_BAR == 0 else 0 if beat % 1 == 0 else -5
    return max(1, min(127, round(player.velocity * factor) + accent))


def play_line(track, player, section, lines, legato):
    """A melody or counter line; legato is the share of each note that sounds."""
    factor = section.cast[player.name]
    for start, beats, key in parse_line(lines[section.name]):
        beat = section.start + start
        velocity = loudness(player, factor, beat)
        track.note(ticks(beat), ticks(beats * legato), player.channel, key, velocity)


def play_melody(track, player, section, _):
    play_line(track, player, section, score.MELODIES, 0.95)


def play_counter(track, player, section, _):
    play_line(track, player, section, score.COUNTER_LINES, 0.97)


def play_pad(track, player, section, _):
    """Sustained chords; voices shared by neighbouring chords are tied over."""
    factor = section.cast[player.name]
    sounding = {}
    for chord in section.chords:
        for key in set(sounding) - set(chord.keys):
            pad_note(track, player, factor, key, sounding.pop(key), chord.start)
        for key in chord.keys:
            sounding.setdefault(key, chord.start)
    for key in sorted(sounding):
        pad_note(track, player, factor, key, sounding[key], section_end(section))


def pad_note(track, player, factor, key, start, end):
    velocity = max(1, round(player.velocity * factor))
    track.note(ticks(start), ticks(end - start) - 10, player.channel, key, velocity)


def play_guitar(track, player, section, hold):
    """Broken-up strokes in a two-bar rhythm, each chord spread by a few ticks."""
    for start in range(int(section.start), int(section_end(section)), 2 * score.BEATS_PER_BAR):
        for offset, beats in score.GUITAR_STROKES:
            beat = start + offset
            if beat < min(hold, section_end(section)):
                strum(track, player, section, beat, min(beats, hold - beat))
    if section_end(section) > hold:
        strum(track, player, section, hold, section_end(section) - hold)


def strum(track, player, section, beat, beats):
    """An off-beat stroke before a new chord already belongs to that chord."""
    ahead = beat + 0.5 if beat % score.BEATS_PER_BAR == 3.5 else beat
    velocity = loudness(player, section.cast[player.name], beat)
    for place, key in enumerate(chord_at(section, ahead).keys):
        first = ticks(beat) + 6 * place
        track.note(first, ticks(beats) - 6 * place, player.channel, key, velocity)


def play_bass(track, player, section, hold):
    """Root and fifth, with a step into the next root from a half step away."""
    for chord, following in itertools.zip_longest(section.chords, section.chords[1:]):
        if chord.start >= hold:
            bass_note(track, player, section, hold, section_end(section) - hold, chord.root)
            return
        target = following.root if following else section.next_root
        for offset, beats, pitch in bass_pattern(chord, target):
            bass_note(track, player, section, chord.start + offset, beats, pitch)


def bass_pattern(chord, target):
    """(offset, beats, pitch class) rows under one chord."""
    fifth = chord.pitches[2]
    approach = fifth if target == chord.root else (target + 1) % 12
    if target != chord.root and (target - 1) % 12 in chord.pitches:
        approach = (target - 1) % 12
    if chord.beats == score.BEATS_PER_BAR:
        return (
            (0, 1.4, chord.root),
            (1.5, 0.45, fifth),
            (2, 1.4, fifth),
            (3.5, 0.45, approach),
        )
    return ((0, 1.4, chord.root), (1.5, 0.45, approach))


def bass_note(track, player, section, beat, beats, pitch):
    key = next(key for key in _BASS_RANGE if key % 12 == pitch)
    velocity = loudness(player, section.cast[player.name], beat)
    track.note(ticks(beat), ticks(beats), player.channel, key, velocity)


def play_drums(track, player, section, hold):
    factor = section.cast[player.name]
    end = min(hold, section_end(section))
    for key, pattern in score.DRUM_PATTERNS:
        for step in range(int(2 * (end - section.start))):
            mark = pattern[step % len(pattern)]
            if mark != ".":
                velocity = round(player.velocity * factor * int(mark) / 6)
                first = ticks(section.start + step / 2)
                track.note(first, ticks(0.25), player.channel, key, velocity)
    if section_end(section) > hold:
        velocity = round(player.velocity * factor * 0.7)
        track.note(ticks(hold), ticks(4), player.channel, score.FINAL_CYMBAL, velocity)


# Channel 0..15, General MIDI program 0..127, the controllers 0..127, usual velocity, and the
# function play(track, player, section, hold) that writes a section; hold is the beat from
# which the last chord is held.
PLAYERS = (
    Player("vibraphone", 0, 11, 106, 70, 50, 90, play_melody),
    Player("piano", 1, 4, 112, 58, 45, 94, play_melody),
    Player("clarinet", 2, 71, 92, 44, 50, 78, play_counter),
    Player("guitar", 3, 24, 92, 86, 35, 66, play_guitar),
    Player("bass", 4, 32, 108, 64, 15, 92, play_bass),
    Player("pad", 5, 89, 66, 64, 60, 60, play_pad),
    Player("drums", _DRUM_CHANNEL, 0, 112, 64, 30, 88, play_drums),
)
