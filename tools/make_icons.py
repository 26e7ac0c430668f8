#!/usr/bin/env python3
"""Draws the program's icon again, in every size: tools/make_icons.py [folder].

Needs rsvg-convert (Debian: librsvg2-bin).
"""

import subprocess
import sys
from pathlib import Path

from artwork import icon

DEFAULT_FOLDER = Path(__file__).resolve().parent.parent / "assets" / "icons"
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FOLDER
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "pastimo.svg").write_text(icon.large(), encoding="utf-8", newline="\n")
    for size in SIZES:
        target = folder / str(size)
        target.mkdir(exist_ok=True)
        subprocess.run(
            ["rsvg-convert", "--width", str(size), "--height", str(size), "--output",
             str(target / "pastimo.png")],
            input=icon.drawing_for(size).encode(), check=True)


if __name__ == "__main__":
    main()
