"""The demo host: a model on a page, edited in place."""

import tempfile
import unittest
from pathlib import Path

from session_case import SCREENS, desktop, main, programs, wait_for

from tools.session.host import Host
from tools.session.probe import HOT, PUSH_BUTTON, Probe

TITLE = "Zephra Document"
TOOLBAR = "Zephra Toolbar"
CATALOG = "Zephra Catalog"
BOX = "#32770"


class Document(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.models = sorted(programs.models.rglob("*.twe"))
        cls.probe = Probe()
        cls.addClassCleanup(cls.probe.close)

    def start(self, model):
        self.host = Host(model, program=programs.host)
        self.addCleanup(self.host.close)
        self.document = self.probe.window(TITLE)

    def setUp(self):
        self.start(self.models[0])
        self.probe.window(TITLE + " - ")

    def object_centre(self):
        left, top, right, bottom = self.document["rect"]
        return (left + right) // 2, (top + bottom) // 2

    def beside_object(self):
        left, _, _, bottom = self.document["rect"]
        return left + 20, bottom - 60

    def activate(self):
        desktop.click(self.object_centre(), count=2)
        self.toolbar = self.probe.window(TOOLBAR)
        self.host.wait_for_call("let IsToolbarShowing = True")
        wait_for(lambda: self.probe.ask("foreground") == self.document["window"], what="the keyboard in the document")

    def press(self, name):
        """A window just shown is not at once under the pointer: the button lights up when it is."""
        place = desktop.centre(self.button(name)["rect"])
        desktop.move(place)
        wait_for(lambda: self.button(name)["state"] & HOT, what=f"{name} under the pointer")
        desktop.click(place)

    def button(self, name):
        return self.probe.element(self.toolbar, name, PUSH_BUTTON)

    def object_picture(self):
        x, y = self.object_centre()
        return desktop.pixels((x - 120, y - 120, x + 120, y + 120))

    def show(self, name):
        desktop.picture(SCREENS / f"host-{name}.png", self.document["rect"])

    def test_double_click_edits_and_click_elsewhere_ends_it(self):
        self.activate()
        bar = self.toolbar["rect"]
        self.assertTrue(self.toolbar["topmost"])
        x, y = self.object_centre()
        self.assertFalse(bar[0] <= x <= bar[2] and bar[1] <= y <= bar[3], "the toolbar lies over the object")
        self.show("editing")
        desktop.click(self.beside_object())
        self.probe.gone(TOOLBAR)
        self.host.wait_for_call("let IsToolbarShowing = False")
        self.activate()

    def test_tilting_turns_the_picture(self):
        self.activate()
        self.press("Model Orientation")
        wait_for(lambda: self.probe.element(self.toolbar, "Tilt Left")["rect"][3] <= self.bottom(), what="unfolding")
        before = self.object_picture()
        self.press("Tilt Left")
        self.assertEqual("RotateY(2:I2)", self.host.wait_for_call("RotateY")[-1])
        wait_for(lambda: self.changed(before) > 0.03, what="the object to turn")
        self.press("Tilt Right")
        self.assertEqual("RotateY(-2:I2)", self.host.wait_for_call("RotateY")[-1])
        # Turned there and back, hardly an edge of it is drawn otherwise.
        wait_for(lambda: self.changed(before) < 0.01, what="the object to turn back")

    def changed(self, before):
        """The part of the object's picture that is other than before."""
        now = self.object_picture()
        return sum(a != b for a, b in zip(before, now)) / len(now)

    def bottom(self):
        return self.probe.describe(self.toolbar)["rect"][3]

    def test_toolbar_returns_when_the_catalog_closes(self):
        self.activate()
        self.press("Replace Zephra")
        catalog = self.probe.window(CATALOG)
        self.assertFalse(self.probe.describe(self.toolbar)["visible"])
        self.host.calls()
        self.probe.ask("post", catalog["window"], 0x10, 0, 0)
        self.probe.gone(CATALOG)
        self.assertIn("let DoneShowingModelCatalog = True", self.host.wait_for_call("let IsToolbarShowing = True"))
        self.assertTrue(self.probe.describe(self.toolbar)["visible"])

    def test_focus_leaves_and_returns(self):
        self.activate()
        with desktop.OtherProgram() as other:
            other.activate()
            self.probe.gone(TOOLBAR)
            self.assertTrue(self.probe.describe(self.document)["visible"])
            left, top, _, _ = self.document["rect"]
            desktop.click((left + 200, top + 10))
            self.assertTrue(self.probe.window(TOOLBAR)["topmost"])

    def test_closing_takes_everything_away(self):
        self.activate()
        self.probe.ask("post", self.document["window"], 0x10, 0, 0)
        self.host.process.wait(timeout=10)
        self.assertEqual(0, self.host.process.returncode)
        self.assertFalse(self.probe.windows(TOOLBAR, visible=False))


class BrokenModels(unittest.TestCase):
    """A file that is none gives a message, and the document goes on with what it had."""

    def open_broken(self, name, content):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        model = Path(folder.name) / name
        model.write_bytes(content)
        probe = Probe()
        self.addCleanup(probe.close)
        host = Host(model, program=programs.host)
        self.addCleanup(host.close)
        box = probe.window(class_name=BOX)
        texts = [e["name"] for e in probe.elements(box) if e["class"] == "Static" and e["name"]]
        self.assertIn(f'The model "{name}" cannot be opened.', texts[0])
        desktop.picture(SCREENS / f"broken-{name}.png", box["rect"])
        wait_for(lambda: probe.ask("foreground") == box["window"], what="the message in front")
        desktop.key("Return")
        probe.gone(class_name=BOX)
        document = probe.window(TITLE)
        left, top, right, bottom = document["rect"]
        desktop.click(((left + right) // 2, (top + bottom) // 2), count=2)
        probe.window(TOOLBAR)

    def test_empty(self):
        self.open_broken("empty.twe", b"")

    def test_truncated(self):
        whole = sorted(programs.models.rglob("*.twe"))[0].read_bytes()
        self.open_broken("truncated.twe", whole[:len(whole) // 2])

    def test_foreign(self):
        self.open_broken("foreign.twe", b"\x7fELF" + bytes(range(256)) * 8)


if __name__ == "__main__":
    main()
