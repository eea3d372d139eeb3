#!/usr/bin/env python3
"""Draws every picture of the program and of its manual.

Needs Pillow (Debian: python3-pil) and the Liberation fonts (Debian: fonts-liberation).
Run it from any folder. It writes pictures/*.gif, pictures/trabeon.* and help/*.png next to this file.
"""

from drawing import example, manual, windows
from drawing.sheet import HELP, PICTURES


def main():
    PICTURES.mkdir(exist_ok=True)
    HELP.mkdir(exist_ok=True)
    windows.draw()
    manual.draw()
    example.draw()


if __name__ == "__main__":
    main()
