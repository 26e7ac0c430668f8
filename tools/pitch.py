# Note names for the sound tools: "C4" is middle C, MIDI key 60, and A4 is 440 Hz.

_STEPS = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
_ACCIDENTALS = {"b": -1, "#": 1}


def pitch_class(name):
    """The pitch class 0..11 of a name without octave such as "Bb"."""
    return (_STEPS[name[0]] + sum(_ACCIDENTALS[mark] for mark in name[1:])) % 12


def key_number(name):
    """The MIDI key number of a name with octave such as "Bb4"."""
    letter, marks, octave = name[0], name[1:-1], int(name[-1])
    return 12 * (octave + 1) + _STEPS[letter] + sum(_ACCIDENTALS[mark] for mark in marks)


def hertz(name):
    """The frequency of a name with octave, in equal temperament."""
    return 440.0 * 2.0 ** ((key_number(name) - key_number("A4")) / 12.0)
