# The score of "Corvane", a relaxed card-table tune in F: form, harmony, melodies and rhythms.

BEATS_PER_BAR = 4
BEATS_PER_MINUTE = 104

# Chord qualities as semitones above the root. The first is the root; the bass takes the
# third entry as its fifth.
QUALITIES = {
    "maj7": (0, 4, 7, 11),
    "6": (0, 4, 7, 9),
    "69": (0, 4, 7, 9, 14),
    "7": (0, 4, 7, 10),
    "7b9": (0, 4, 7, 10, 13),
    "7sus": (0, 5, 7, 10),
    "m7": (0, 3, 7, 10),
    "m6": (0, 3, 7, 9),
    "m7b5": (0, 3, 6, 10),
}

# One string per section, bars parted by "|"; two chords in a bar share it evenly.
HARMONY = {
    "intro": "Fmaj7 | Bbm6 | Fmaj7 | C7sus C7",
    "theme": "Fmaj7 | Gm7 C7 | Am7 Dm7 | Bbmaj7 | Bbm6 | Am7 D7 | Gm7 | C7sus C7",
    "theme_again": "Fmaj7 | Gm7 C7 | Am7 Dm7 | Bbmaj7 | Bbm6 | Am7 D7b9 | Gm7 C7 | F6 A7",
    "bridge": "Dm7 | Gm7 | Em7b5 A7 | Dm7 | Bbmaj7 | Bm7b5 E7 | Am7 D7 | Gm7 C7",
    "theme_last": "Fmaj7 | Gm7 C7 | Am7 Dm7 | Bbmaj7 | Bbm6 | Am7 D7 | Gm7 C7 | F6",
    "outro": "Bbm6 | Fmaj7 | Bbm6 C7 | F69 | F69",
}

# Notes are PITCH/BEATS, "r" is a rest; a bar line must fall where the beats say it does.
MELODIES = {
    "intro": """
        r/4 | r/2 r/.5 Db5/.5 F5/.5 G5/.5 | E5/3 r/1 | r/1.5 G4/.5 Bb4/.5 D5/.5 E5/.5 D5/.5
    """,
    "theme": """
        C5/1.5 A4/.5 E5/1.5 D5/.5 | Bb4/1 D5/.5 F5/.5 E5/1 C5/1 |
        r/.5 C5/.5 E5/1 F5/1.5 E5/.5 | D5/3 r/.5 F5/.5 |
        Db5/1.5 F5/.5 G5/1.5 F5/.5 | E5/1 C5/.5 A4/.5 F#4/.5 A4/.5 C5/1 |
        Bb4/1.5 D5/.5 F5/1 D5/1 | C5/1 D5/.5 F5/.5 E5/1.5 D5/.5
    """,
    "theme_again": """
        C5/1 A4/.5 C5/.5 E5/1 D5/.5 E5/.5 | F5/1 D5/.5 Bb4/.5 E5/1 G5/1 |
        A5/1.5 G5/.5 F5/1 E5/.5 F5/.5 | D5/1.5 A5/.5 F5/1.5 r/.5 |
        G5/1.5 F5/.5 Db5/1.5 F5/.5 | E5/1.5 A5/.5 F#5/1 Eb5/1 |
        D5/1 Bb4/.5 D5/.5 E5/.5 D5/.5 C5/.5 Bb4/.5 | A4/2 r/.5 A4/.5 C#5/.5 E5/.5
    """,
    "bridge": """
        F5/3 E5/.5 D5/.5 | D5/1.5 F5/.5 Bb5/2 |
        Bb5/1 G5/1 C#5/.5 E5/.5 G5/1 | F5/1.5 E5/.5 D5/1 A4/1 |
        r/.5 Bb4/.5 D5/.5 F5/.5 A5/1.5 G5/.5 | F5/1 D5/1 E5/.5 G#5/.5 B5/1 |
        C6/1.5 A5/.5 F#5/1 A5/1 | Bb5/1 G5/1 E5/1.5 D5/.5
    """,
    "theme_last": """
        C5/1.5 A4/.5 E5/1.5 D5/.5 | Bb4/1 D5/.5 F5/.5 E5/1 G5/1 |
        A5/1.5 G5/.5 F5/1 E5/.5 F5/.5 | D5/2 r/.5 D5/.5 F5/.5 A5/.5 |
        G5/1.5 F5/.5 Db5/1.5 F5/.5 | E5/1 C5/1 F#5/1 A5/1 |
        Bb5/1 F5/.5 D5/.5 E5/1 G5/1 | F5/3 r/1
    """,
    "outro": """
        Db5/1.5 F5/.5 G5/2 | E5/1.5 D5/.5 C5/2 | r/.5 Db5/.5 F5/.5 G5/.5 E5/1 D5/1 |
        C5/.5 D5/.5 G5/.5 A5/6.5
    """,
}

# Guide tones below the melody, thirds and sevenths that mostly move by step.
COUNTER_LINES = {
    "bridge": """
        A4/4 | Bb4/4 | G4/2 G4/2 | F4/4 | D4/4 | D4/2 D4/2 | E4/2 F#4/2 | F4/2 E4/2
    """,
    "theme_last": """
        E4/4 | F4/2 E4/2 | G4/2 F4/2 | F4/4 | G4/4 | G4/2 F#4/2 | F4/2 E4/2 | D4/2 C4/2
    """,
    "outro": "Db4/4 | C4/4 | Db4/2 Bb3/2 | A3/8",
}

# Who plays in a section, each with a loudness factor. The clarinet has the counter line.
SECTIONS = (
    ("intro", {"vibraphone": 0.9, "guitar": 0.9, "bass": 0.85, "drums": 0.7, "pad": 0.9}),
    ("theme", {"vibraphone": 1.0, "guitar": 0.95, "bass": 1.0, "drums": 0.9}),
    ("theme_again", {"vibraphone": 1.0, "guitar": 1.0, "bass": 1.0, "drums": 1.0, "pad": 0.9}),
    ("bridge", {"piano": 1.0, "clarinet": 0.9, "bass": 1.0, "drums": 1.0, "pad": 1.0}),
    (
        "theme_last",
        {
            "vibraphone": 1.05,
            "clarinet": 1.0,
            "guitar": 1.0,
            "bass": 1.0,
            "drums": 1.0,
            "pad": 0.95,
        },
    ),
    (
        "outro",
        {
            "vibraphone": 0.9,
            "clarinet": 0.85,
            "guitar": 0.85,
            "bass": 0.9,
            "drums": 0.7,
            "pad": 0.9,
        },
    ),
)

# The last bars of the outro are held, so the rhythm players strike them once and stop.
HELD_BARS = 2

# Beats per minute from the given beat before the first held bar, for the slowing at the end.
SLOWING = ((4, 98), (3, 92), (2, 84), (1, 76), (0, 80))

# Guitar strokes over two bars as (beat, beats held).
GUITAR_STROKES = (
    (0, 0.9),
    (1.5, 0.4),
    (2.5, 0.4),
    (3.5, 0.9),
    (5, 0.9),
    (6.5, 0.4),
    (7.5, 0.45),
)

# Percussion over two bars in eighths: key, pattern; a digit 1..9 is the loudness, "." a rest.
DRUM_PATTERNS = (
    (70, "5353635353536353"),  # maracas
    (37, "6..5..5...5..5.."),  # side stick
    (36, "5..35..35..35..3"),  # bass drum
    (42, "..4...4...4...4."),  # closed hi-hat
)
FINAL_CYMBAL = 51
