# Writes the background music: python3 tools/make_music.py [file]
# Without an argument the file is assets/music/Corvane.mid.

import sys
from pathlib import Path

import corvane_score as score
from midi_file import Track, write_midi
from music_players import PLAYERS, ticks
from score_reader import hold_start, read_score

DEFAULT_FILE = Path(__file__).resolve().parent.parent / "assets" / "music" / "Corvane.mid"

VOLUME, PAN, REVERB = 7, 10, 91


def conductor_track(hold):
    track = Track("Corvane")
    track.time_signature(0, score.BEATS_PER_BAR)
    track.key_signature(0, -1)
    track.tempo(0, score.BEATS_PER_MINUTE)
    for beats_before, tempo in score.SLOWING:
        track.tempo(ticks(hold - beats_before), tempo)
    return track


def player_track(player, sections, hold):
    track = Track(player.name.capitalize())
    track.program(0, player.channel, player.program)
    track.control(0, player.channel, VOLUME, player.volume)
    track.control(0, player.channel, PAN, player.pan)
    track.control(0, player.channel, REVERB, player.reverb)
    for section in sections:
        if player.name in section.cast:
            player.play(track, player, section, hold)
    return track


def main():
    path = Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FILE
    path.parent.mkdir(parents=True, exist_ok=True)
    sections = read_score()
    hold = hold_start(sections)
    tracks = [conductor_track(hold)]
    tracks += [player_track(player, sections, hold) for player in PLAYERS]
    write_midi(path, tracks)


if __name__ == "__main__":
    main()
