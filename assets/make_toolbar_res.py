"""Builds Toolbar.res from the drawings: make_toolbar_res.py OUT_FILE"""
import os
import pathlib
import sys

import resource_file
import strips


def main():
    target = pathlib.Path(sys.argv[1])
    target.parent.mkdir(parents=True, exist_ok=True)
    data = resource_file.write(strips.Strips(pathlib.Path(__file__).parent).all_bitmaps())
    unfinished = target.with_suffix(".part")
    unfinished.write_bytes(data)
    os.replace(unfinished, target)


if __name__ == "__main__":
    main()
