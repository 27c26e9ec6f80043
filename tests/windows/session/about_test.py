"""The About box on the screen: its pictures, its scrolling credits, every way in which it goes."""

import time
import unittest

from session_case import SCREENS, SessionCase, desktop, main, programs, wait_for

from tools.session.host import Host
from tools.session.probe import Probe

TITLE = "About Zephra"
STRIP_TOP, STRIP_HEIGHT = 300, 78
CATALOG = "Zephra Catalog"
ACTIVATE_APPLICATION, CLOSE = 0x1C, 0x10


def strip_of(box):
    left, top, right, _ = box["rect"]
    return left, top + STRIP_TOP, right, top + STRIP_TOP + STRIP_HEIGHT


def moved_up(before, now, width=503):
    """By how many pixels the second picture of the strip lies higher, nothing when it is another one."""
    line = 3 * width
    for steps in range(STRIP_HEIGHT - 20):
        rest = len(before) - steps * line
        if now[:rest] == before[steps * line:]:
            return steps
    return None


class About(SessionCase):
    def open(self):
        self.client.send("about")
        self.box = self.probe.window(TITLE)
        self.addCleanup(self.close_if_open)
        self.waitForFront(self.box)
        wait_for(lambda: self.is_drawn(), what="the picture of the box")
        return self.box

    def is_drawn(self):
        """Near the corner the picture is a dark blue."""
        left, top, _, _ = self.box["rect"]
        red, green, blue = desktop.pixels((left + 8, top + 8, left + 9, top + 9))
        return red < 60 and 40 < green < 110 and blue > 100

    def close_if_open(self):
        if self.probe.windows(TITLE):
            desktop.click(desktop.centre(self.box["rect"]))
            self.client.answer()

    def assertClosed(self):
        self.assertEqual("Empty", self.client.answer())
        self.assertFalse(self.probe.windows(TITLE))

    def test_lies_in_the_middle_of_the_screen_in_front_of_all(self):
        box = self.open()
        left, top, right, bottom = box["rect"]
        self.assertEqual((503, 403), (right - left, bottom - top))
        width, height = desktop.screen_size()
        self.assertAlmostEqual(width / 2, (left + right) / 2, delta=1)
        self.assertAlmostEqual(height / 2, (top + bottom) / 2, delta=25)  # a desktop may keep room for itself
        self.assertTrue(box["topmost"])
        desktop.picture(SCREENS / "about.png", box["rect"])
        texts = [e["name"] for e in self.probe.elements(box)]
        self.assertIn("Zephra 1.0", texts)
        self.assertNotIn("", texts)

    def test_credits_pause_and_scroll(self):
        opened = time.monotonic()
        strip = strip_of(self.open())
        desktop.move((5, 5))
        first = desktop.pixels(strip)
        self.assertGreater(len(set(first)), 20, "the strip is empty")
        time.sleep(max(0, opened + 3.5 - time.monotonic()))
        self.assertEqual(0, moved_up(first, desktop.pixels(strip)))
        wait_for(lambda: moved_up(first, desktop.pixels(strip)) != 0, 8, "the credits to move")
        self.assertGreater(time.monotonic() - opened, 4.5)
        start, before = time.monotonic(), desktop.pixels(strip)
        time.sleep(2)
        steps, seconds = moved_up(before, desktop.pixels(strip)), time.monotonic() - start
        self.assertIsNotNone(steps, "the credits are not what they were")
        self.assertAlmostEqual(10 * seconds, steps, delta=6)
        desktop.picture(SCREENS / "about-scrolled.png", self.box["rect"])

    def test_a_click_anywhere_with_any_button_closes_it(self):
        self.open()
        left, top, _, _ = self.box["rect"]
        places = {"picture": (30, 30), "text": (60, 262), "credits": (250, 340)}
        for name, (x, y) in places.items():
            for button in (1, 2, 3):
                with self.subTest(name, button=button):
                    if not self.probe.windows(TITLE):
                        self.open()
                    desktop.click((left + x, top + y), button=button)
                    self.assertClosed()

    def test_opens_anew_from_the_top(self):
        strip = strip_of(self.open())
        first = desktop.pixels(strip)
        time.sleep(6)
        self.assertNotEqual(0, moved_up(first, desktop.pixels(strip)))
        desktop.click(desktop.centre(strip))
        self.assertClosed()
        self.open()
        self.assertEqual(0, moved_up(first, desktop.pixels(strip)))


class Undone(SessionCase):
    """The model takes the control down while the box is open: it is asked for its animation when the focus goes."""

    def test_disposed_of_meanwhile(self):
        for way in ("hide", "dispose", "release"):
            with self.subTest(way):
                toolbar = self.probe.window("Zephra Toolbar: ")
                self.client.do("undo", "AnimationState", way)
                self.client.send("about")
                self.probe.window(TITLE)
                self.probe.ask("post", toolbar["window"], ACTIVATE_APPLICATION, 0, 0)
                self.assertEqual("Empty", self.client.answer())
                self.assertFalse(self.probe.windows(TITLE))
                if way == "release":
                    self.client.do("create")
                self.client.do("init", 0)
                self.client.do("show", 300, 300)


class OverTheCatalog(unittest.TestCase):
    """The box of a host that has windows of its own."""

    def setUp(self):
        self.probe = Probe()
        self.addCleanup(self.probe.process.stdout.close)
        self.addCleanup(self.probe.close)
        self.host = Host(sorted(programs.models.rglob("*.twe"))[0], program=programs.host)
        self.addCleanup(self.host.close)
        self.document = self.probe.window("Zephra Document - ")
        desktop.click(desktop.centre(self.document["rect"]), count=2)
        toolbar = self.probe.window("Zephra Toolbar")
        self.probe.press(self.probe.element(toolbar, "Replace Zephra"))
        self.catalog = self.probe.window(CATALOG)
        self.wait_for_keyboard()

    def wait_for_keyboard(self):
        wait_for(lambda: desktop.focused_title() == CATALOG, what="the keyboard in the catalog")

    def open(self):
        desktop.key("alt+h", "a")
        box = self.probe.window(TITLE)
        wait_for(lambda: self.probe.ask("foreground") == box["window"], what="the box in front")

    def is_seen(self, window):
        return self.probe.describe(window)["visible"]

    def test_the_keyboard_closes_it_and_it_goes_with_the_focus(self):
        self.open()
        desktop.key("Escape")
        self.probe.gone(TITLE)
        self.wait_for_keyboard()
        self.assertTrue(self.is_seen(self.catalog))
        self.open()
        with desktop.OtherProgram() as other:
            other.activate()
            self.probe.gone(TITLE)
            wait_for(lambda: not self.is_seen(self.catalog), what="the catalog to leave")
            self.assertTrue(self.is_seen(self.document))

    def test_its_host_may_close_meanwhile(self):
        self.open()
        self.probe.ask("post", self.document["window"], CLOSE, 0, 0)
        self.assertEqual(0, self.host.process.wait(timeout=20))


if __name__ == "__main__":
    main()
