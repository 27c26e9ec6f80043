"""Writes and reads compiled resource files (.res) that hold bitmaps under text names."""
import struct

BITMAP_TYPE = 2
MOVEABLE_PURE = 0x0030
LANGUAGE_ENGLISH_US = 0x0409


def _padded(data):
    return data + b"\0" * (-len(data) % 4)


def _name_field(name):
    if isinstance(name, int):
        return struct.pack("<HH", 0xFFFF, name)
    return name.upper().encode("utf-16-le") + b"\0\0"


def _entry(kind, name, flags, language, data):
    names = _padded(_name_field(kind) + _name_field(name))
    header = struct.pack("<II", len(data), len(names) + 24) + names
    return _padded(header + struct.pack("<IHHII", 0, flags, language, 0, 0) + data)


def bitmap(rows):
    """A bottom-up 32 bit DIB without file header; the fourth byte of a pixel is its straight alpha."""
    width, height = len(rows[0]) // 4, len(rows)
    pixels = bytearray()
    for row in reversed(rows):
        for x in range(0, len(row), 4):
            pixels += bytes((row[x + 2], row[x + 1], row[x], row[x + 3]))
    return struct.pack("<IiiHHIIiiII", 40, width, height, 1, 32, 0, len(pixels), 0, 0, 0, 0) + bytes(pixels)


def write(bitmaps):
    """The file's bytes for {name: rows}; it opens with the empty entry that marks a 32 bit resource file."""
    body = b"".join(
        _entry(BITMAP_TYPE, name, MOVEABLE_PURE, LANGUAGE_ENGLISH_US, bitmap(rows)) for name, rows in bitmaps.items()
    )
    return _entry(0, 0, 0, 0, b"") + body


def _read_name(data, position):
    if struct.unpack_from("<H", data, position)[0] == 0xFFFF:
        return struct.unpack_from("<H", data, position + 2)[0], position + 4
    end = position
    while data[end : end + 2] != b"\0\0":
        end += 2
    return data[position:end].decode("utf-16-le"), end + 2


def read(data):
    """The entries as a list of (type, name, bytes)."""
    entries, position = [], 0
    while position < len(data):
        size, header = struct.unpack_from("<II", data, position)
        kind, after = _read_name(data, position + 8)
        name, _ = _read_name(data, after)
        start = position + header
        entries.append((kind, name, data[start : start + size]))
        position = start + size + -size % 4
    return entries
