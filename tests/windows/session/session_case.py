"""What the real-input tests share: the programs under test, and a toolbar as a person meets it."""

import argparse
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT))

from tests.windows.session import installation  # noqa: E402
from tests.windows.session.client import Client  # noqa: E402
from tools.session import desktop  # noqa: E402
from tools.session.probe import HOT, PRESSED, PUSH_BUTTON, UNAVAILABLE, Probe, wait_for  # noqa: E402

HERE = Path(__file__).resolve().parent
SCREENS = ROOT / "out" / "screens" / ("x64" if "x64" in sys.argv else "x86")
programs = argparse.Namespace()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--arch", default="x86")
    parser.add_argument("--build", type=Path, required=True, help="the build tree of the programs")
    parser.add_argument("--models", type=Path, default=ROOT / "dist" / "x86" / "Models", help="a library of models")
    options, rest = parser.parse_known_args()
    programs.arch = options.arch
    programs.control = options.build / "activex" / "ActiveNeridaToolbar.ocx"
    programs.resources = options.build / "assets"
    programs.script_host = options.build / "tests" / "windows" / "com" / "script_host.exe"
    programs.recorder = options.build / "tests" / "windows" / "session" / "recorder.exe"
    programs.search = options.build / "tests" / "windows" / "catalog" / "prepared_search.dll"
    programs.preview = options.build / "host" / "preview" / "ZephraPreview.ocx"
    programs.host = options.build / "host" / "app" / "zephra-host.exe"
    programs.example = options.build / "examples" / "example_host.exe"
    programs.models = options.models
    installation.register(programs.control, programs.arch)
    installation.register(programs.search, programs.arch)
    installation.register(programs.preview, programs.arch)
    installation.set_paths(programs.resources, programs.models)
    unittest.main(argv=[sys.argv[0], *rest], verbosity=2)


class SessionCase(unittest.TestCase):
    """A client with its toolbar at (300, 300), one for all tests of a class."""

    fields = {}

    @classmethod
    def setUpClass(cls):
        cls.probe = Probe()
        cls.addClassCleanup(cls.probe.close)
        cls.client = cls.create_client()
        cls.addClassCleanup(lambda: cls.client.close())  # a test may have started another one
        cls.client.set(**cls.fields)
        cls.client.do("init", 0)
        cls.client.do("show", 300, 300)
        cls.toolbar = cls.probe.window("Zephra Toolbar: ")

    @classmethod
    def create_client(cls):
        client = Client(programs.script_host)
        client.do("create")
        return client

    def setUp(self):
        self.client.forget()

    def popup(self):
        """The popup that is open, or nothing."""
        forms = self.probe.windows(class_name=self.toolbar["class"])
        return next((w for w in forms if w["window"] != self.toolbar["window"]), None)

    def openPopup(self, button):
        """By a press of its button; the window, once it is there."""
        self.click(button)
        return wait_for(self.popup, what=f"the popup of {button!r}")

    def waitForNoPopup(self):
        wait_for(lambda: self.popup() is None, what="the popup to close")

    def part(self, name):
        return self.probe.element(self.popup(), name, PUSH_BUTTON)

    def partsIn(self, state):
        return self.probe.names_in_state(self.popup(), state)

    def height(self):
        _, top, _, bottom = self.probe.describe(self.toolbar)["rect"]
        return bottom - top

    def buttons(self):
        return [e for e in self.probe.elements(self.toolbar) if e["role"] == PUSH_BUTTON]

    def button(self, name):
        return self.probe.element(self.toolbar, name, PUSH_BUTTON)

    def at(self, name):
        return desktop.centre(self.button(name)["rect"])

    def click(self, name, **how):
        desktop.click(self.at(name), **how)

    def unfold(self):
        if self.height() != 76:
            desktop.move((900, 700))
            desktop.move(self.at("Model Orientation"))
            self.waitForState("Model Orientation", HOT)  # a window just shown is not at once under the pointer
            self.click("Model Orientation")
            wait_for(lambda: self.height() == 76, what="the movement groups")

    def assertTold(self, *expected):
        self.assertEqual(list(expected), self.client.told(len(expected)))

    def assertNothingTold(self):
        """A press that the model does hear of comes first and alone."""
        self.click("Increase Model Size")
        self.assertTold("ScaleModel Integer 1")

    def waitForState(self, name, bit, value=True):
        wait_for(lambda: bool(self.button(name)["state"] & bit) == value, what=f"state {bit:#x} of {name}")

    def waitForFront(self, window):
        wait_for(lambda: self.probe.ask("foreground") == window["window"], what=f"{window['title']!r} in front")

    def picture(self, name):
        left, top, right, bottom = self.probe.describe(self.toolbar)["rect"]
        desktop.picture(SCREENS / f"{name}.png", (left - 80, top - 20, right + 20, bottom + 150))
