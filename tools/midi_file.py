# A minimal Standard MIDI File writer: format 1, one Track per part, times in ticks.

import struct

TICKS_PER_BEAT = 480

# Events of one tick are written in this order, so a repeated key is let go before it sounds again.
_SETUP, _RELEASE, _STRIKE = range(3)


class Track:
    """Collects the events of one part; they may be added in any order of time."""

    def __init__(self, name):
        self._events = []
        self._meta(0, 0x03, name.encode("ascii"))

    def tempo(self, tick, beats_per_minute):
        self._meta(tick, 0x51, round(60_000_000 / beats_per_minute).to_bytes(3, "big"))

    def time_signature(self, tick, beats):
        """Quarter-note bars of the given number of beats."""
        self._meta(tick, 0x58, bytes((beats, 2, 24, 8)))

    def key_signature(self, tick, sharps):
        """A major key by its number of sharps, flats counting as negative."""
        self._meta(tick, 0x59, struct.pack("bb", sharps, 0))

    def program(self, tick, channel, number):
        """General MIDI program 0..127."""
        self._add(tick, _SETUP, bytes((0xC0 | channel, number)))

    def control(self, tick, channel, controller, value):
        self._add(tick, _SETUP, bytes((0xB0 | channel, controller, value)))

    def note(self, tick, length, channel, key, velocity):
        self._add(tick, _STRIKE, bytes((0x90 | channel, key, velocity)))
        self._add(tick + length, _RELEASE, bytes((0x80 | channel, key, 64)))

    def chunk(self):
        body = bytearray()
        now = 0
        for tick, _, data in sorted(self._events, key=lambda event: event[:2]):
            body += _variable_length(tick - now) + data
            now = tick
        body += b"\x00\xff\x2f\x00"
        return b"MTrk" + struct.pack(">I", len(body)) + bytes(body)

    def _meta(self, tick, kind, data):
        self._add(tick, _SETUP, bytes((0xFF, kind)) + _variable_length(len(data)) + data)

    def _add(self, tick, order, data):
        self._events.append((tick, order, data))


def write_midi(path, tracks):
    header = struct.pack(">4sIHHH", b"MThd", 6, 1, len(tracks), TICKS_PER_BEAT)
    path.write_bytes(header + b"".join(track.chunk() for track in tracks))


def _variable_length(value):
    groups = [value & 0x7F]
    while value > 0x7F:
        value >>= 7
        groups.insert(0, 0x80 | (value & 0x7F))
    return bytes(groups)
