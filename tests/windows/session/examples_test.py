"""The small hosts for developers: each as its reader runs it, with real presses, and all that it prints."""

import subprocess
import tempfile
import unittest
from pathlib import Path

from session_case import ROOT, SCREENS, desktop, main, programs, wait_for

from tools.session.probe import HOT, PUSH_BUTTON, Probe, windows_path

EXAMPLES = ROOT / "examples"
WM_CLOSE = 0x10
FOCUSED = 0x4


class Example(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.probe = Probe()
        cls.addClassCleanup(cls.probe.close)

    def start(self, *words):
        """Into a file: the system's script host loses lines when it writes to a pipe."""
        self.printed = tempfile.NamedTemporaryFile(prefix="example-")
        self.addCleanup(self.printed.close)
        self.process = subprocess.Popen(["wine", *map(str, words)], stdin=subprocess.DEVNULL, stdout=self.printed,
                                        stderr=subprocess.DEVNULL)
        self.addCleanup(self.process.kill)

    def start_in_system(self, path):
        self.start("cmd", "/c", r"C:\windows\syswow64\cscript.exe" if programs.arch == "x86" else
                   r"C:\windows\sysnative\cscript.exe", "//nologo", windows_path(path))

    def lines(self):
        return Path(self.printed.name).read_text(encoding="ascii").splitlines()

    def wait_for_line(self, line, count=1):
        wait_for(lambda: self.lines().count(line) >= count, what=f"{line!r} in {self.lines()}")

    def see_toolbar(self):
        self.toolbar = self.probe.window("Zephra Toolbar: Windmill")

    def press(self, name):
        """A window just shown is not at once under the pointer: the button lights up when it is."""
        button = lambda: self.probe.element(self.toolbar, name, PUSH_BUTTON)  # noqa: E731
        place = desktop.centre(button()["rect"])
        desktop.move(place)
        wait_for(lambda: button()["state"] & HOT, what=f"{name} under the pointer")
        desktop.click(place)

    def nudge_tilt_and_choose_a_colour(self):
        self.press("Model Orientation")
        self.press("Nudge Left")
        self.press("Nudge up")
        self.press("Tilt Right")
        self.press("Fill Color")
        palette = self.probe.element(self.popup(), "Red", PUSH_BUTTON)
        desktop.click(desktop.centre(palette["rect"]))

    def go_there_and_back(self, page):
        """With F6: the toolbar can be used without a mouse."""
        self.wait_for_front(page)
        desktop.key("F6")
        self.wait_for_front(self.toolbar)
        desktop.key("Tab")
        wait_for(lambda: self.probe.names_in_state(self.toolbar, FOCUSED) == ["Replace Zephra"],
                 what="the keyboard at the first button")
        desktop.key("F6")
        self.wait_for_front(page)

    def wait_for_front(self, window):
        wait_for(lambda: self.probe.ask("foreground") == window["window"], what=f"{window['title']!r} in front")

    def popup(self):
        own = self.toolbar["window"]
        return wait_for(lambda: next((w for w in self.probe.windows(class_name=self.toolbar["class"])
                                      if w["window"] != own), None), what="the popup")

    def answer_box(self):
        left, _, right, bottom = self.probe.window(class_name="#32770")["rect"]
        desktop.click(((left + right) // 2, bottom - 22))  # its only button

    def end(self):
        self.process.wait(timeout=20)

    def test_basic_script(self):
        self.start_in_system(EXAMPLES / "vbscript" / "host.vbs")
        self.see_toolbar()
        self.nudge_tilt_and_choose_a_colour()
        self.wait_for_line("SurfaceColor FF")
        desktop.picture(SCREENS / "example-vbscript.png")
        self.answer_box()
        self.end()
        self.assertEqual(["RefreshDisplay", "bound: 0", "shown: True at 100, 100", "MoveX 1", "MoveY 1", "RotateY -2",
                          "SurfaceColor FF", "visible: True", "the catalog has closed", "the end"], self.lines())

    def test_first_host_of_the_guide(self):
        code = (ROOT / "docs" / "integration.md").read_text(encoding="utf-8").split("```vb\n", 1)[1].split("```", 1)[0]
        script = tempfile.NamedTemporaryFile(prefix="guide-", suffix=".vbs")
        self.addCleanup(script.close)
        Path(script.name).write_text(code, encoding="ascii")
        self.start_in_system(script.name)
        self.see_toolbar()
        self.press("Model Orientation")
        self.press("Nudge Left")
        self.wait_for_line("left by 1")
        self.answer_box()
        self.end()
        self.assertEqual(["left by 1"], self.lines())

    def test_java_script(self):
        """In a script host that sleeps as the real one does: the one under Wine cannot."""
        self.start(programs.script_host, "JScript", EXAMPLES / "jscript" / "host.js")
        self.see_toolbar()
        self.nudge_tilt_and_choose_a_colour()
        self.wait_for_line("RotateY -2")
        _, top, right, _ = self.probe.describe(self.toolbar)["rect"]
        desktop.click((right - 10, top + 10))
        self.end()
        self.assertEqual(["RefreshDisplay", "bound: 0", "shown: true", "MoveX 1", "MoveY 1", "RotateY -2",
                          "style: ", "the end"], self.lines())

    def test_native_program(self):
        self.start(programs.example)
        page = self.probe.window("Windmill", "Page")
        left, top, right, bottom = page["rect"]
        middle = ((left + right) // 2, (top + bottom) // 2 + 10)
        desktop.click(middle, count=2)
        self.see_toolbar()
        self.nudge_tilt_and_choose_a_colour()
        self.wait_for_line("SurfaceColor = 255")
        desktop.click(middle)
        self.go_there_and_back(page)
        desktop.picture(SCREENS / "example-cpp.png")
        desktop.click((left + 40, bottom - 40))
        self.wait_for_line("hidden")
        self.probe.gone("Zephra Toolbar")
        desktop.click(middle, count=2)
        self.wait_for_line("shown", count=2)
        self.probe.ask("post", page["window"], WM_CLOSE, 0, 0)
        self.end()
        bound = ["GetLookStyleList", "RefreshDisplay", "IsToolbarShowing = False", "bound: 0",
                 "IsToolbarShowing = True", "shown"]
        self.assertEqual([*bound, "MoveX 1", "MoveY 1", "RotateY -2", "SurfaceColor = 255", "IsToolbarShowing = False",
                          "hidden", *bound, "IsToolbarShowing = False", "DoneShowingModelCatalog = True", "the end"],
                         self.lines())

if __name__ == "__main__":
    main()
