"""Checks the built Toolbar.res as its readers see it: test_toolbar_res.py TOOLBAR_RES ASSETS_FOLDER"""
import pathlib
import struct
import sys
import unittest

RES = pathlib.Path(sys.argv.pop(1))
ASSETS = pathlib.Path(sys.argv.pop(1))
sys.path.insert(0, str(ASSETS))
import resource_file  # noqa: E402
import strips  # noqa: E402

# The pictures that the toolbar's buttons ask for.
BUTTON_PICTURES = [
    ("Model.bmp", 0), ("LineThickness.bmp", 0), ("LineColor.bmp", 0), ("SurfColor.bmp", 0), ("Background.bmp", 0),
    ("Move.bmp", 0), ("Lighting.bmp", 23), ("Animation.bmp", 0), ("Help_toolbar.bmp", 0), ("movereset.bmp", 0),
    ("downarrow.bmp", 23), ("moveup.bmp", 0), ("movedown.bmp", 23), ("moveleft.bmp", 46), ("moveright.bmp", 69),
    ("rotate_up.bmp", 0), ("rotate_down.bmp", 23), ("rotate_left.bmp", 46), ("rotate_right.bmp", 69),
    ("rotate_clockwise.bmp", 92), ("rotate_counterclockwise.bmp", 115), ("scale_down.bmp", 0), ("scale_up.bmp", 23),
]
SCALES = {100: "", 150: "@150", 200: "@200"}


class Dib:
    def __init__(self, data):
        fields = struct.unpack_from("<IiiHHIIiiII", data)
        self.header_size, self.width, self.height, self.planes, self.depth, self.compression, self.size = fields[:7]
        self.pixels = data[self.header_size :]

    def pixel(self, x, y):
        start = ((self.height - 1 - y) * self.width + x) * 4
        return self.pixels[start : start + 4]

    def rectangle(self, left, width):
        return [self.pixel(x, y) for y in range(self.height) for x in range(left, left + width)]


class ToolbarRes(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.data = RES.read_bytes()
        cls.entries = resource_file.read(cls.data)
        cls.dibs = {name: Dib(data) for kind, name, data in cls.entries[1:]}

    def picture(self, name, left, scale):
        dib = self.dibs[name.upper() + SCALES[scale]]
        return dib.rectangle(left * scale // 100, 23 * scale // 100)

    def testOpensWithTheEmptyEntry(self):
        self.assertEqual(self.data[:32], bytes.fromhex("0000000020000000ffff0000ffff0000") + bytes(16))

    def testAllOtherEntriesAreNamedBitmaps(self):
        self.assertEqual({kind for kind, _, _ in self.entries[1:]}, {2})
        self.assertTrue(all(isinstance(name, str) and name == name.upper() for _, name, _ in self.entries[1:]))

    def testBitmapsAre32BitWithoutFileHeader(self):
        for name, dib in self.dibs.items():
            with self.subTest(name):
                self.assertEqual((dib.header_size, dib.planes, dib.depth, dib.compression), (40, 1, 32, 0))
                self.assertEqual((len(dib.pixels), dib.size), (dib.width * dib.height * 4,) * 2)

    def testNothingButTheNamedBitmapsIsThere(self):
        wanted = {name.upper() + suffix for name, _ in BUTTON_PICTURES for suffix in SCALES.values()}
        self.assertEqual(set(self.dibs), wanted)

    def testVariantsAreTheWholeBitmapScaled(self):
        for name, _ in BUTTON_PICTURES:
            plain = self.dibs[name.upper()]
            self.assertEqual(plain.height, 22)
            for scale, suffix in SCALES.items():
                dib = self.dibs[name.upper() + suffix]
                self.assertEqual((dib.width, dib.height), (plain.width * scale // 100, plain.height * scale // 100))

    def testEveryButtonFindsAPicture(self):
        for name, left in BUTTON_PICTURES:
            for scale, suffix in SCALES.items():
                with self.subTest(name, scale=scale):
                    dib = self.dibs[name.upper() + suffix]
                    self.assertLessEqual((left + 23) * scale // 100, dib.width)
                    pixels = self.picture(name, left, scale)
                    opaque = sum(pixel[3] == 255 for pixel in pixels)
                    clear = sum(pixel[3] == 0 for pixel in pixels)
                    self.assertGreater(opaque, len(pixels) // 40)
                    self.assertGreater(clear, len(pixels) // 6)

    def testButtonsDoNotShareAPicture(self):
        for scale in SCALES:
            pictures = {b"".join(self.picture(name, left, scale)) for name, left in BUTTON_PICTURES}
            self.assertEqual(len(pictures), len(BUTTON_PICTURES))

    def testAlphaIsStraight(self):
        soft = [p for dib in self.dibs.values() for p in dib.rectangle(0, dib.width) if 0 < p[3] < 64]
        self.assertTrue(any(max(pixel[:3]) > pixel[3] for pixel in soft))

    def testLeftMirrorsRight(self):
        def flipped(name, left):
            dib = self.dibs[name]
            return [dib.pixel(left + 22 - x, y)[3] > 127 for y in range(22) for x in range(23)]

        for name, left, other in [("MOVELEFT.BMP", 46, 69), ("ROTATE_LEFT.BMP", 46, 69), ("ROTATE_CLOCKWISE.BMP", 92, 115)]:
            mirrored = flipped(name, left)
            straight = [p[3] > 127 for p in self.dibs[name].rectangle(other, 23)]
            differing = sum(a != b for a, b in zip(mirrored, straight))
            self.assertLess(differing, 20, name)

    def testBuildIsDeterministic(self):
        again = resource_file.write(strips.Strips(ASSETS).all_bitmaps())
        self.assertEqual(again, self.data)

    def testReaderTakesNumberedAndOddSizedEntries(self):
        data = resource_file._entry(2, 7, 0, 0, b"abc") + resource_file._entry(2, "x", 0, 0, b"abcd")
        self.assertEqual(resource_file.read(data), [(2, 7, b"abc"), (2, "X", b"abcd")])


if __name__ == "__main__":
    unittest.main(verbosity=1)
