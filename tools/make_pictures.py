#!/usr/bin/env python3
"""Draws every SVG picture of the program again: tools/make_pictures.py [folder]."""

import sys
from pathlib import Path

from artwork import backs, emblems, faces

DEFAULT_FOLDER = Path(__file__).resolve().parent.parent / "assets" / "pictures"
SOURCES = (faces, backs, emblems)


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FOLDER
    folder.mkdir(parents=True, exist_ok=True)
    for source in SOURCES:
        for name, text in source.pictures().items():
            (folder / name).write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
