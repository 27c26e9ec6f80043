"""What the help, the web and the expansion open: a program that stands in for the browser writes down what it is asked."""

import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from catalog_case import CatalogCase
from session_case import ROOT, SCREENS, desktop, installation, main, programs, wait_for

from tools.session.probe import windows_path

AT_ONCE = 4  # seconds
CLOSE = 0x10


class Opening(CatalogCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        cls.record = cls.folder / "record.txt"
        cls.built = cls.folder / "built"
        subprocess.run([sys.executable, "-B", ROOT / "docs" / "help" / "build.py", cls.built], check=True)
        cls.installed = cls.folder / "installed folder"
        cls.installed.mkdir()
        shutil.copy(programs.resources / "Toolbar.res", cls.installed)
        for name in ("System", "Help"):
            installation.set_value(name, windows_path(cls.installed))
        cls.addClassCleanup(installation.set_paths, programs.resources, programs.models)
        installation.set_value("Expansion", "1")
        cls.addClassCleanup(installation.remove_value, "Expansion")
        command = f'"{windows_path(programs.recorder)}" "{windows_path(cls.record)}" "%1"'
        cls.enterClassContext(installation.pages_opened_by(command))
        super().setUpClass()

    def setUp(self):
        super().setUp()
        self.record.unlink(missing_ok=True)
        for name in ("Help", "expansion.htm", "Zephra.hlp", "Zephra.cnt"):
            place = self.installed / name
            shutil.rmtree(place) if place.is_dir() else place.unlink(missing_ok=True)

    def install(self, *names):
        for name in names:
            source, target = self.built / name, self.installed / name
            shutil.copytree(source, target) if source.is_dir() else shutil.copy(source, target)

    def opened(self):
        """The target, the folder and the way of showing."""
        wait_for(self.record.exists, what="the browser to be asked")
        return tuple(self.record.read_text(encoding="utf-8").splitlines())

    def help_by_method(self):
        start = time.monotonic()
        self.assertEqual("Empty", self.client.do("help"))
        self.assertLess(time.monotonic() - start, AT_ONCE)

    def in_installation(self, *names):
        return windows_path(self.installed.joinpath(*names))

    def test_help_pages_open_where_there_is_no_help_file(self):
        self.install("Help")
        ways = {"method": self.help_by_method, "menu": lambda: self.choose("alt+h", "h"),
                "button": lambda: self.press("Help")}
        for name, way in ways.items():
            with self.subTest(name):
                self.record.unlink(missing_ok=True)
                way()
                self.assertEqual((self.in_installation("Help", "index.htm"), self.in_installation("Help"), "1"),
                                 self.opened())

    def test_help_pages_open_instead_of_a_damaged_help_file(self):
        self.install("Help")
        (self.installed / "Zephra.hlp").write_bytes(b"no help")
        self.help_by_method()
        self.assertEqual(self.in_installation("Help", "index.htm"), self.opened()[0])

    def test_without_any_help_nothing_opens_and_nobody_waits(self):
        self.help_by_method()
        desktop.pause(1)
        self.assertFalse(self.record.exists())
        self.assertFalse(self.probe.windows(class_name="#32770"))

    def test_help_file_opens_in_the_systems_viewer(self):
        self.install("Help", "Zephra.hlp", "Zephra.cnt")
        self.help_by_method()
        viewer = self.probe.window(class_name="MS_WINHELP")
        self.addCleanup(self.show_catalog_again)
        wait_for(lambda: self.has_links(viewer), what="the contents in the viewer")
        desktop.picture(SCREENS / "help-file.png", viewer["rect"])
        self.assertFalse(self.record.exists())
        self.probe.ask("post", viewer["window"], CLOSE, 0, 0)
        self.probe.gone(class_name="MS_WINHELP")

    def has_links(self, viewer):
        """They are green on white."""
        left, top, _, _ = self.probe.describe(viewer)["rect"]
        seen = desktop.pixels((left, top + 60, left + 300, top + 200))
        return sum(g > r + 80 and g > b + 80 for r, g, b in zip(seen[::3], seen[1::3], seen[2::3])) > 200

    def show_catalog_again(self):
        """The viewer is another program: the catalog has left the screen."""
        self.client.do("hide")
        self.client.do("catalog")
        wait_for(lambda: desktop.focused_title() == "Zephra Catalog", 30, "the keyboard in the catalog")

    def test_web_page_opens_hidden_from_menu_and_logo(self):
        ways = {"menu": lambda: self.choose("alt+h", "w"), "logo": lambda: self.press("Zephra on the web")}
        for name, way in ways.items():
            with self.subTest(name):
                self.record.unlink(missing_ok=True)
                way()
                page, folder, show = self.opened()
                self.assertRegex(page, "^https://.+")
                self.assertEqual((self.in_installation(), "0"), (folder, show))

    def test_expansion_page_opens_as_a_window(self):
        self.install("expansion.htm")
        self.choose("alt+h", "e")
        self.assertEqual((self.in_installation("expansion.htm"), self.in_installation(), "1"), self.opened())


if __name__ == "__main__":
    main()
