# The small synthesiser behind make_waves.py: every sound is a list of float samples at RATE.

import math
import struct
import wave
from collections import namedtuple

from pitch import hertz

RATE = 44100
_FADE_IN_SECONDS = 0.001
_FADE_OUT_SECONDS = 0.008
_NOTE_RELEASE_SECONDS = 0.012

# partials: (frequency ratio, level, decay per second); attack in seconds.
Voice = namedtuple("Voice", "partials attack")


def note(voice, pitch, seconds):
    """One steady note; pitch is a name such as "Bb4" or a frequency in hertz."""
    frequency = hertz(pitch) if isinstance(pitch, str) else pitch
    return glide(voice, lambda _: frequency, seconds)


def glide(voice, frequency_at, seconds):
    """A note whose frequency in hertz follows frequency_at(progress 0..1)."""
    count = _samples(seconds)
    samples = []
    phase = 0.0
    for index in range(count):
        time = index / RATE
        samples.append(_voice_level(voice, phase, time) * _note_envelope(voice, time, seconds))
        phase += 2.0 * math.pi * frequency_at(index / count) / RATE
    return samples


def noise(rng, seconds):
    """White noise from the given generator, so that the same seed gives the same sound."""
    return [2.0 * rng.random() - 1.0 for _ in range(_samples(seconds))]


def fading(samples, decay):
    """The samples under an exponential fall of the given rate per second."""
    return [value * math.exp(-decay * index / RATE) for index, value in enumerate(samples)]


def shaped(samples, level_at):
    """The samples under the envelope level_at(seconds)."""
    return [value * level_at(index / RATE) for index, value in enumerate(samples)]


def band_pass(samples, centre, q):
    """A second-order band pass with unit gain at its centre frequency in hertz."""
    omega = 2.0 * math.pi * centre / RATE
    alpha = math.sin(omega) / (2.0 * q)
    scale = 1.0 + alpha
    gain, a1, a2 = alpha / scale, -2.0 * math.cos(omega) / scale, (1.0 - alpha) / scale
    result = []
    x1 = x2 = y1 = y2 = 0.0
    for x in samples:
        y = gain * (x - x2) - a1 * y1 - a2 * y2
        x1, x2, y1, y2 = x, x1, y, y1
        result.append(y)
    return result


def mix(parts):
    """The sum of (start seconds, level, samples) parts."""
    total = [0.0] * max(_samples(start) + len(samples) for start, _, samples in parts)
    for start, level, samples in parts:
        first = _samples(start)
        for index, value in enumerate(samples, first):
            total[index] += level * value
    return total


def finish(samples, peak_decibels):
    """Centres the samples on zero, fades both ends to silence and sets the peak level."""
    mean = sum(samples) / len(samples)
    seconds = len(samples) / RATE
    faded = shaped([value - mean for value in samples], lambda time: _edge_fade(time, seconds))
    peak = max(abs(value) for value in faded)
    scale = 10.0 ** (peak_decibels / 20.0) / peak
    return [value * scale for value in faded]


def write_wave(path, samples):
    """Writes samples of -1..1 as 16-bit mono PCM."""
    frames = [round(32767 * max(-1.0, min(1.0, value))) for value in samples]
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(struct.pack("<%dh" % len(frames), *frames))


def _samples(seconds):
    return round(seconds * RATE)


def _voice_level(voice, phase, time):
    return sum(
        level * math.exp(-decay * time) * math.sin(ratio * phase)
        for ratio, level, decay in voice.partials
    )


def _note_envelope(voice, time, seconds):
    rise = min(1.0, time / voice.attack)
    return rise * min(1.0, (seconds - time) / _NOTE_RELEASE_SECONDS)


def _edge_fade(time, seconds):
    return min(1.0, time / _FADE_IN_SECONDS, max(0.0, seconds - time) / _FADE_OUT_SECONDS)
