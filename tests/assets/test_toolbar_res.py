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

# The pictures that the buttons of the toolbar and the popups ask for: bitmap, left, top.
TOOLBAR_PICTURES = [
    ("Model.bmp", 0), ("LineThickness.bmp", 0), ("LineColor.bmp", 0), ("SurfColor.bmp", 0), ("Background.bmp", 0),
    ("Move.bmp", 0), ("Lighting.bmp", 23), ("Animation.bmp", 0), ("Help_toolbar.bmp", 0), ("movereset.bmp", 0),
    ("downarrow.bmp", 23), ("moveup.bmp", 0), ("movedown.bmp", 23), ("moveleft.bmp", 46), ("moveright.bmp", 69),
    ("rotate_up.bmp", 0), ("rotate_down.bmp", 23), ("rotate_left.bmp", 46), ("rotate_right.bmp", 69),
    ("rotate_clockwise.bmp", 92), ("rotate_counterclockwise.bmp", 115), ("scale_down.bmp", 0), ("scale_up.bmp", 23),
]
LINE_PICTURES = [
    ("LineXS.bmp", 0, 0), ("LineS.bmp", 0, 17), ("LineM.bmp", 0, 34), ("LineL.bmp", 0, 51), ("LineXL.bmp", 0, 68),
]
LAMP_PICTURES = [
    ("lamp1.bmp", 0, 0), ("lamp2.bmp", 26, 0), ("lamp3.bmp", 0, 0), ("lamp6.bmp", 0, 26), ("lamp8.bmp", 0, 0),
    ("lamp9.bmp", 26, 0), ("lamp4.bmp", 0, 0), ("lamp7.bmp", 0, 26),
]
GREY_LAMP_PICTURES = [(name.replace(".bmp", "_disabled.bmp"), left, top) for name, left, top in LAMP_PICTURES]
CUBE_PICTURES = [(f"lightCube{number}.bmp", 0, 0) for number in range(1, 10)]
SINGLE_PICTURES = [("lightCubeOff.bmp", 0, 0), ("lampOn.bmp", 0, 0), ("lampOff.bmp", 0, 0)]
ANIMATION_PICTURES = [
    ("ani1stFrame.bmp", 0, 0), ("aniBack1.bmp", 23, 0), ("aniAhead1.bmp", 0, 0), ("aniLastFrame.bmp", 23, 0),
    ("aniLoop.bmp", 0, 0), ("aniNoLoop.bmp", 0, 0),
]
BUTTON_PICTURES = (
    [(name, left, 0) for name, left in TOOLBAR_PICTURES] + LINE_PICTURES + LAMP_PICTURES + GREY_LAMP_PICTURES
    + CUBE_PICTURES + SINGLE_PICTURES + ANIMATION_PICTURES
)
# Where the lamp of that number stands, or from where the cube of that number is lit: to the right, downwards.
DIRECTIONS = {number: ((number - 1) % 3 - 1, (number - 1) // 3 - 1) for number in range(1, 10)}
SCALES = {100: "", 150: "@150", 200: "@200"}


class Dib:
    def __init__(self, data):
        fields = struct.unpack_from("<IiiHHIIiiII", data)
        self.header_size, self.width, self.height, self.planes, self.depth, self.compression, self.size = fields[:7]
        self.pixels = data[self.header_size :]

    def pixel(self, x, y):
        start = ((self.height - 1 - y) * self.width + x) * 4
        return self.pixels[start : start + 4]

    def rectangle(self, left, top, width, height):
        return [self.pixel(x, y) for y in range(top, top + height) for x in range(left, left + width)]

    def all(self):
        return self.rectangle(0, 0, self.width, self.height)


def brightness(pixel):
    return 0.11 * pixel[0] + 0.59 * pixel[1] + 0.30 * pixel[2]


def spread(pixel):
    return max(pixel[:3]) - min(pixel[:3])


def middle_of(pixels, weight):
    """Where the weight lies, from the middle of a 23 by 22 picture: to the right, downwards."""
    weights = [weight(pixel) for pixel in pixels]
    right = sum(w * (i % 23 - 11) for i, w in enumerate(weights)) / sum(weights)
    down = sum(w * (i // 23 - 10.5) for i, w in enumerate(weights)) / sum(weights)
    return right, down


def is_blue(pixel):
    return pixel[3] > 200 and pixel[0] > pixel[2] + 40


def is_yellow(pixel):
    return pixel[3] > 100 and pixel[2] > pixel[0] + 60


class ToolbarRes(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.data = RES.read_bytes()
        cls.entries = resource_file.read(cls.data)
        cls.dibs = {name: Dib(data) for kind, name, data in cls.entries[1:]}

    def picture(self, name, left, top, scale=100):
        dib = self.dibs[name.upper() + SCALES[scale]]
        return dib.rectangle(*(value * scale // 100 for value in (left, top, 23, 22)))

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
        wanted = {name.upper() + suffix for name, _, _ in BUTTON_PICTURES for suffix in SCALES.values()}
        self.assertEqual(set(self.dibs), wanted)

    def testVariantsAreTheWholeBitmapScaled(self):
        for name, _, top in BUTTON_PICTURES:
            plain = self.dibs[name.upper()]
            self.assertEqual(plain.height, top + 22)
            for scale, suffix in SCALES.items():
                dib = self.dibs[name.upper() + suffix]
                self.assertEqual((dib.width, dib.height), (plain.width * scale // 100, plain.height * scale // 100))

    def testEveryButtonFindsAPicture(self):
        for name, left, top in BUTTON_PICTURES:
            for scale, suffix in SCALES.items():
                with self.subTest(name, scale=scale):
                    dib = self.dibs[name.upper() + suffix]
                    self.assertLessEqual((left + 23) * scale // 100, dib.width)
                    self.assertLessEqual((top + 22) * scale // 100, dib.height)
                    pixels = self.picture(name, left, top, scale)
                    opaque = sum(pixel[3] >= 190 for pixel in pixels)
                    clear = sum(pixel[3] == 0 for pixel in pixels)
                    self.assertGreater(opaque, len(pixels) // 40)
                    self.assertGreater(clear, len(pixels) // 6)

    def testButtonsDoNotShareAPicture(self):
        for scale in SCALES:
            pictures = {b"".join(self.picture(name, left, top, scale)) for name, left, top in BUTTON_PICTURES}
            self.assertEqual(len(pictures), len(BUTTON_PICTURES))

    def testAlphaIsStraight(self):
        soft = [p for dib in self.dibs.values() for p in dib.all() if 0 < p[3] < 64]
        self.assertTrue(any(max(pixel[:3]) > pixel[3] for pixel in soft))

    def testLeftMirrorsRight(self):
        def flipped(name, left):
            dib = self.dibs[name]
            return [dib.pixel(left + 22 - x, y)[3] > 127 for y in range(22) for x in range(23)]

        for name, left, other in [("MOVELEFT.BMP", 46, 69), ("ROTATE_LEFT.BMP", 46, 69), ("ROTATE_CLOCKWISE.BMP", 92, 115)]:
            mirrored = flipped(name, left)
            straight = [p[3] > 127 for p in self.dibs[name].rectangle(other, 0, 23, 22)]
            differing = sum(a != b for a, b in zip(mirrored, straight))
            self.assertLess(differing, 20, name)

    def testNothingLiesOutsideOfTheButtonsPicture(self):
        for name, left, top in LINE_PICTURES + LAMP_PICTURES + GREY_LAMP_PICTURES:
            shown = sum(pixel[3] > 0 for pixel in self.picture(name, left, top))
            self.assertEqual(shown, sum(pixel[3] > 0 for pixel in self.dibs[name.upper()].all()), name)

    def testLinesHaveTheirWeight(self):
        for scale in SCALES:
            weights = []
            for name, left, top in LINE_PICTURES:
                column = [pixel[3] / 255 for pixel in self.picture(name, left, top, scale)][11 * scale // 100 :: 23 * scale // 100]
                weights.append(sum(column) * 100 / scale)
            for weight, wanted in zip(weights, (1, 1.5, 2, 3, 4)):
                self.assertAlmostEqual(weight, wanted, delta=0.51 if scale == 150 else 0.05)
            self.assertEqual(weights, sorted(set(weights)))

    def testLampsStandWhereTheirLightComesFrom(self):
        for name, left, top in LAMP_PICTURES:
            right, down = DIRECTIONS[int(name[4])]
            pixels = self.picture(name, left, top)
            lamp, rays = middle_of(pixels, is_blue), middle_of(pixels, is_yellow)
            towards_lamp = (lamp[0] - rays[0]) * right + (lamp[1] - rays[1]) * down
            aside = (lamp[0] - rays[0]) * down - (lamp[1] - rays[1]) * right
            self.assertGreater(towards_lamp, 5, name)
            self.assertLess(abs(aside), 1.5, name)

    def testGreyLampsHaveTheShapeWithoutTheColor(self):
        for (name, left, top), (grey, _, _) in zip(LAMP_PICTURES, GREY_LAMP_PICTURES):
            lamp, pale = self.picture(name, left, top), self.picture(grey, left, top)
            self.assertEqual([p[3] > 60 for p in lamp].count(True), [p[3] > 45 for p in pale].count(True), name)
            self.assertGreater(max(spread(p) for p in lamp if p[3] > 200), 100)
            self.assertLess(max(spread(p) for p in pale if p[3] > 100), 30)

    def testCubesAreLitFromTheirSide(self):
        lit = lambda pixel: brightness(pixel) if pixel[3] == 255 else 0
        front = middle_of(self.picture("lightCube5.bmp", 0, 0), lit)
        for name, left, top in CUBE_PICTURES:
            right, down = DIRECTIONS[int(name[9])]
            at = middle_of(self.picture(name, left, top), lit)
            if right:
                self.assertGreater((at[0] - front[0]) * right, 0.4, name)
            else:
                self.assertLess(abs(at[0] - front[0]), 0.1, name)
            if down:
                self.assertGreater((at[1] - front[1]) * down, 0.2, name)
        self.assertLess(max(spread(p) for p in self.picture("lightCubeOff.bmp", 0, 0) if p[3] > 100), 30)

    def testBuildIsDeterministic(self):
        again = resource_file.write(strips.Strips(ASSETS).all_bitmaps())
        self.assertEqual(again, self.data)

    def testReaderTakesNumberedAndOddSizedEntries(self):
        data = resource_file._entry(2, 7, 0, 0, b"abc") + resource_file._entry(2, "x", 0, 0, b"abcd")
        self.assertEqual(resource_file.read(data), [(2, 7, b"abc"), (2, "X", b"abcd")])


if __name__ == "__main__":
    unittest.main(verbosity=1)
