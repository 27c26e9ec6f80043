"""Builds the catalog's logo from its drawing: make_logo.py DRAWING OUT_FILE"""
import os
import pathlib
import struct
import subprocess
import sys

import png


FACE = 0xF0  # of the usual desktop's windows: a bitmap of this kind has no alpha, and the corners are round


def pixel(red, green, blue, alpha):
    return bytes((part * alpha + FACE * (255 - alpha) + 127) // 255 for part in (blue, green, red))


def bitmap(rows):
    """A Windows bitmap of 24 bits a pixel."""
    width, height = len(rows[0]) // 4, len(rows)
    padding = bytes(-width * 3 % 4)
    lines = [b"".join(pixel(*row[i : i + 4]) for i in range(0, width * 4, 4)) + padding for row in reversed(rows)]
    content = b"".join(lines)
    start = 14 + 40
    return (struct.pack("<2sIHHI", b"BM", start + len(content), 0, 0, start) +
            struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(content), 2835, 2835, 0, 0) + content)


def main():
    drawing, target = map(pathlib.Path, sys.argv[1:])
    drawn = subprocess.run(["rsvg-convert", str(drawing)], check=True, capture_output=True).stdout
    target.parent.mkdir(parents=True, exist_ok=True)
    unfinished = target.with_suffix(".part")
    unfinished.write_bytes(bitmap(png.decode(drawn)[2]))
    os.replace(unfinished, target)


if __name__ == "__main__":
    main()
