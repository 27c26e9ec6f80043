"""Models and installations that fail: the message that a person reads, and a toolbar that goes on."""

import tempfile
from pathlib import Path

from session_case import SessionCase, desktop, installation, main, programs

BOX = "#32770"
ERROR = ("Zephra has encountered an error.  Please de-activate Zephra by clicking off the object.  "
         "Double-click the object to re-activate Zephra")
LOW_MEMORY = "Your system appears to be low on memory.  Please close some windows and/or programs."


class Raising(SessionCase):
    def setUp(self):
        self.unfold()
        super().setUp()

    def tearDown(self):
        self.client.do("raise", "", 0)

    def message(self):
        box = self.probe.window(class_name=BOX)
        texts = [e["name"] for e in self.probe.elements(box) if e["class"] == "Static" and e["name"]]
        return box, (box["title"], *texts)

    def reported(self, member, number, press, told, text):
        self.client.do("raise", member, number)
        self.client.forget()
        self.click(press)
        box, seen = self.message()
        self.picture(f"message-{number}")
        self.assertEqual(("Zephra Toolbar", text), seen)
        self.waitForFront(box)
        desktop.key("Return")
        self.probe.gone(class_name=BOX)
        self.assertTold(*told)
        self.client.do("raise", "", 0)
        self.client.forget()
        self.assertNothingTold()

    def test_raising_member_is_reported(self):
        self.reported("MoveX", 380, "Nudge Left", ["MoveX Integer 1"], ERROR)

    def test_lack_of_memory_has_its_own_words(self):
        self.reported("RotateY", 7, "Tilt Left", ["RotateY Integer 2"], LOW_MEMORY)

    def test_failed_reset_does_not_redraw(self):
        self.reported("ResetHome", 5, "Reset Model", ["ResetHome"], ERROR)

    def test_raising_style_is_reported(self):
        self.client.do("raise", "LookStyle :=", 380)
        self.client.forget()
        rect = self.probe.element(self.toolbar, "Select a new LookStyle")["rect"]
        desktop.click((rect[2] - 8, (rect[1] + rect[3]) // 2))
        self.probe.window(class_name="ComboLBox")
        desktop.key("Down")
        box, seen = self.message()
        self.waitForFront(box)
        self.picture("message-style")
        self.assertEqual(("Zephra Toolbar", ERROR), seen)
        desktop.key("Return")
        self.probe.gone(class_name=BOX)
        self.assertTold("LookStyle := String Clay")
        self.client.forget()
        desktop.key("Escape")
        self.assertNothingTold()


class Resources(SessionCase):
    """Without its pictures the toolbar is plain, but whole."""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.addClassCleanup(installation.set_value, "System", installation.windows_path(programs.resources))
        cls.fill(Path(folder.name))
        installation.set_value("System", installation.windows_path(folder.name))
        super().setUpClass()

    @classmethod
    def fill(cls, folder):
        pass

    def test_buttons_are_there_and_work(self):
        self.unfold()
        self.picture(f"resources-{type(self).__name__}")
        self.client.forget()
        self.click("Tilt Clockwise")
        self.assertTold("RotateZ Integer 2")


class MissingResources(Resources):
    pass


class TruncatedResources(Resources):
    @classmethod
    def fill(cls, folder):
        whole = (programs.resources / "Toolbar.res").read_bytes()
        (folder / "Toolbar.res").write_bytes(whole[:len(whole) // 3 + 5])


class ForeignResources(Resources):
    @classmethod
    def fill(cls, folder):
        (folder / "Toolbar.res").write_bytes(b"\x7fELF" + bytes(range(256)) * 40)


del Resources  # the frame of the three above, no test of its own


if __name__ == "__main__":
    main()
