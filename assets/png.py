"""Reads and writes the plain kind of PNG that the rasteriser makes: 8 bit, RGBA, not interlaced."""
import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"


def _paeth(left, up, corner):
    estimate = left + up - corner
    nearest = min(abs(estimate - left), abs(estimate - up), abs(estimate - corner))
    if nearest == abs(estimate - left):
        return left
    return up if nearest == abs(estimate - up) else corner


def _unfiltered(kind, line, above):
    row = bytearray(line)
    for i, value in enumerate(line):
        left = row[i - 4] if i >= 4 else 0
        corner = above[i - 4] if i >= 4 else 0
        guess = (0, left, above[i], (left + above[i]) // 2, _paeth(left, above[i], corner))[kind]
        row[i] = (value + guess) & 255
    return row


def _chunks(data):
    position = len(SIGNATURE)
    while position + 8 <= len(data):
        size, kind = struct.unpack_from(">I4s", data, position)
        yield kind, data[position + 8 : position + 8 + size]
        position += size + 12


def decode(data):
    """The picture as (width, height, rows), each row a bytearray of RGBA, alpha straight."""
    if not data.startswith(SIGNATURE):
        raise ValueError("not a PNG")
    chunks = list(_chunks(data))
    width, height, *layout = struct.unpack(">IIBBBBB", dict(chunks)[b"IHDR"])
    if layout != [8, 6, 0, 0, 0]:
        raise ValueError("only 8 bit RGBA without interlace is read here")
    packed = zlib.decompress(b"".join(body for kind, body in chunks if kind == b"IDAT"))
    stride = width * 4 + 1
    rows, above = [], bytearray(width * 4)
    for y in range(height):
        line = packed[y * stride : (y + 1) * stride]
        above = _unfiltered(line[0], line[1:], above)
        rows.append(above)
    return width, height, rows


def encode(rows):
    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    header = struct.pack(">IIBBBBB", len(rows[0]) // 4, len(rows), 8, 6, 0, 0, 0)
    body = zlib.compress(b"".join(b"\0" + bytes(row) for row in rows), 9)
    return SIGNATURE + chunk(b"IHDR", header) + chunk(b"IDAT", body) + chunk(b"IEND", b"")
