"""Two hosts on one desktop: the demo host, and a script whose control lies in the system's control container."""

import subprocess
import tempfile
import unittest
from pathlib import Path

from session_case import HERE, SCREENS, desktop, main, programs, wait_for

from tools.session.host import Host
from tools.session.probe import HOT, PUSH_BUTTON, Probe

CONTROL = "ActiveNeridaToolbar.NeridaWindow"


class SideBySide(unittest.TestCase):
    def setUp(self):
        self.probe = Probe()
        self.addCleanup(self.probe.close)
        self.start_document()
        self.start_container()

    def start_document(self):
        models = sorted(programs.models.rglob("*.twe"))
        self.host = Host(models[0], program=programs.host, place=(500, 60, 700, 700))
        self.addCleanup(self.host.close)
        self.document = self.probe.window("Zephra Document - ")
        left, top, right, bottom = self.document["rect"]
        desktop.click(((left + right) // 2, (top + bottom) // 2), count=2)
        self.toolbar = self.probe.window("Zephra Toolbar: ")
        self.host.wait_for_call("let IsToolbarShowing = True")

    def start_container(self):
        self.printed = tempfile.NamedTemporaryFile(prefix="contained-")
        self.addCleanup(self.printed.close)
        self.client = subprocess.Popen(["wine", str(programs.script_host), "VBScript", str(HERE / "contained.vbs"),
                                        CONTROL], stdin=subprocess.DEVNULL, stdout=self.printed,
                                       stderr=subprocess.DEVNULL)
        self.addCleanup(self.client.kill)
        self.container = self.probe.window("Container")
        self.contained = self.probe.window("Zephra Toolbar: Contained")

    def lines(self):
        return Path(self.printed.name).read_text(encoding="ascii").splitlines()

    def activate(self, window):
        left, top, _, _ = self.probe.describe(window)["rect"]
        desktop.click((left + 60, top + 10))

    def leave(self, own, other):
        """By way of one's own window: a window manager that sees the window with the keyboard go gives the keyboard to
        another one of the same program, whatever was clicked."""
        self.activate(own)
        wait_for(lambda: self.probe.ask("foreground") == own["window"], what=f"{own['title']!r} in front")
        wait_for(lambda: desktop.focused_title() == own["title"], what=f"the keyboard in {own['title']!r}")
        self.activate(other)

    def press(self, toolbar, name):
        button = lambda: self.probe.element(toolbar, name, PUSH_BUTTON)  # noqa: E731

        def lit():  # its window may still be on its way to its place
            desktop.move(desktop.centre(button()["rect"]))
            return button()["state"] & HOT

        wait_for(lit, what=f"{name} under the pointer")
        desktop.click(desktop.centre(button()["rect"]))

    def unfold(self, toolbar):
        self.press(toolbar, "Model Orientation")
        wait_for(lambda: self.height(toolbar) > 60, what="the movement groups")

    def height(self, toolbar):
        _, top, _, bottom = self.probe.describe(toolbar)["rect"]
        return bottom - top

    def only_visible(self, shown, hidden):
        for toolbar, visible in ((shown, True), (hidden, False)):
            wait_for(lambda: self.probe.describe(toolbar)["visible"] == visible, what=f"{toolbar['title']}: {visible}")

    def test_both_are_usable(self):
        self.only_visible(self.contained, self.toolbar)
        self.unfold(self.contained)
        self.press(self.contained, "Increase Model Size")
        wait_for(lambda: "scale 1" in self.lines(), what="the contained model to grow")

        self.leave(self.container, self.document)
        self.only_visible(self.toolbar, self.contained)
        self.unfold(self.toolbar)
        self.press(self.toolbar, "Decrease Model Size")
        self.host.wait_for_call("ScaleModel")
        desktop.picture(SCREENS / "side-by-side.png")

        self.leave(self.document, self.container)
        self.only_visible(self.contained, self.toolbar)
        self.press(self.contained, "Decrease Model Size")
        wait_for(lambda: "scale -1" in self.lines(), what="the contained model to shrink")

        self.press(self.contained, "Reset Model")
        self.client.wait(timeout=20)
        self.activate(self.document)
        wait_for(lambda: self.probe.describe(self.toolbar)["visible"], what="the document's toolbar")
        self.press(self.toolbar, "Increase Model Size")
        self.host.wait_for_call("ScaleModel")
        self.assertEqual(["bound 0", "shown True", "scale 1", "scale -1", "the end"], self.lines())


if __name__ == "__main__":
    main()
