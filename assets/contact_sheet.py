"""Lays all drawings out on button face grey, at 100, 150 and 200 %, each pixel magnified: contact_sheet.py OUT_PNG [ZOOM]"""
import pathlib
import sys

import png
import strips

FACE = (0xF0, 0xF0, 0xF0)
CLASSIC_FACE = (0xD4, 0xD0, 0xC8)
COLUMNS = 6


def blend(pixel, face):
    alpha = pixel[3]
    return bytes((pixel[i] * alpha + face[i] * (255 - alpha) + 127) // 255 for i in range(3)) + b"\xff"


def place(sheet, rows, left, top, zoom, face):
    for y, row in enumerate(rows):
        line = b"".join(blend(row[x : x + 4], face) * zoom for x in range(0, len(row), 4))
        for copy in range(zoom):
            sheet[top + y * zoom + copy][left * 4 : left * 4 + len(line)] = line


def sheet_of(table, zoom):
    icons = table.icons()
    cells = [(table.scaled(table.icon_size[0], scale) + 6) * zoom for scale in table.scales]
    cell_width, cell_height = sum(cells) + 8 * zoom, (table.scaled(table.icon_size[1], max(table.scales)) + 8) * zoom
    lines = -(-len(icons) // COLUMNS)
    sheet = []
    for y in range(lines * cell_height):
        face = CLASSIC_FACE if y // cell_height % 2 else FACE
        sheet.append(bytearray((bytes(face) + b"\xff") * (COLUMNS * cell_width)))
    for index, icon in enumerate(icons):
        line, column = divmod(index, COLUMNS)
        left = column * cell_width + 4 * zoom
        for scale, width in zip(table.scales, cells):
            face = CLASSIC_FACE if line % 2 else FACE
            place(sheet, table.rasterise(icon, scale), left, line * cell_height + 4 * zoom, zoom, face)
            left += width
    return sheet


def main():
    target = pathlib.Path(sys.argv[1])
    target.parent.mkdir(parents=True, exist_ok=True)
    zoom = int(sys.argv[2]) if len(sys.argv) > 2 else 4
    target.write_bytes(png.encode(sheet_of(strips.Strips(pathlib.Path(__file__).parent), zoom)))


if __name__ == "__main__":
    main()
