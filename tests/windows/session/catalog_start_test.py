"""How a catalog starts, with real keys and drives: installations that are damaged or incomplete, the library on a CD,
what it works with missing, and what is left of the searches of an earlier process."""

import os
import shutil
import tempfile
import unittest
from pathlib import Path
from unittest import mock

from catalog_case import CatalogCase, read_box
from session_case import Client, Probe, desktop, installation, main, programs, wait_for

KEY, VERSION_KEY = installation.KEY, installation.VERSION_KEY
NO_DATABASE = "Zephra was unable to find the model database."
NO_LOGO = "Error loading the browser settings : File not found"
LOAD = "Zephra was unable to load model #3310"
MISSING = "ActiveX component can't create object"


def access(place, status):
    return f"Registry access error at {place}: {status}"


class Installations(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.probe = Probe()
        cls.addClassCleanup(cls.probe.close)

    def tearDown(self):
        installation.remove_key(KEY)
        installation.set_paths(programs.resources, programs.models)

    def assertTold(self, *texts):
        """A control that starts tells this, each in a box of the catalog's."""
        client = Client(programs.script_host)
        try:
            client.send("create")
            told = [read_box(self.probe) for _ in texts]
            self.assertEqual("created", client.answer(30))
            self.assertEqual(told, [("Zephra Catalog", text) for text in texts])
        finally:
            client.close()

    def test_whole(self):
        self.assertTold()

    def test_without_any_key(self):
        installation.remove_key(r"HKLM\Software\Tarnwell")
        self.assertTold(access("Tarnwell", 2), NO_LOGO)

    def test_without_the_version(self):
        installation.remove_key(VERSION_KEY)
        self.assertTold(access("1.0", 2))

    def test_with_an_empty_version(self):
        installation.remove_value("Models", VERSION_KEY)
        self.assertTold(access("Enumeration", 259))

    def test_with_a_name_in_small_letters(self):
        installation.remove_value("Dictionary")
        installation.set_value("dictionary", "C:\\")
        self.assertTold(NO_DATABASE, NO_LOGO)

    def test_with_a_text_that_just_fits(self):
        installation.set_value("A", "x" * 255)
        self.assertTold()

    def test_with_a_text_that_is_too_long(self):
        installation.set_value("A", "x" * 256)
        self.assertTold(access("Enumeration", 234), NO_DATABASE, NO_LOGO)

    def test_with_a_name_that_is_too_long(self):
        installation.set_value("A" * 255, "x")
        self.assertTold()
        installation.set_value("A" * 256, "x")
        self.assertTold(NO_DATABASE, NO_LOGO)  # it comes second, and ends the reading there
        installation.remove_value("A" * 255)
        self.assertTold(access("Enumeration", 234), NO_DATABASE, NO_LOGO)

    def test_with_data_that_is_no_text(self):
        path = installation.windows_path(programs.resources)
        installation.remove_value("Dictionary")
        installation.set_value("Dic2", path, kind="REG_EXPAND_SZ")
        self.assertTold()
        installation.set_value("Dic2", path.encode("ascii").hex(), kind="REG_BINARY")
        self.assertTold()
        installation.set_value("Dic2", "65", kind="REG_DWORD")  # the folder "A"
        self.assertTold(NO_LOGO)


class Disc(CatalogCase):
    """A library that lies on a CD, with two drives that take it."""

    @classmethod
    def setUpClass(cls):
        folder = Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="discs-")))
        cls.first, cls.second = folder / "first", folder / "second"
        for drive in (cls.first, cls.second):
            drive.mkdir()
        cls.enterClassContext(installation.discs(e=cls.first, f=cls.second))
        installation.remove_key(VERSION_KEY)
        installation.set_value("Version", "1", VERSION_KEY)
        installation.set_value("DefDir", r"\library")
        cls.addClassCleanup(installation.set_paths, programs.resources, programs.models)
        cls.addClassCleanup(installation.remove_key, KEY)
        super().setUpClass()

    def insert(self, drive, with_model):
        model = drive / "library" / "Graphics" / "dv3000" / "dv3300" / "dv3310" / "dv3310.twe"
        model.parent.mkdir(parents=True)
        (drive / "library" / "Graphics" / "index.txt").write_text("models\n", encoding="ascii")
        if with_model:
            shutil.copy(programs.models / model.relative_to(drive / "library" / "Graphics"), model)

    def test_is_asked_for_until_it_is_there_and_the_last_drive_counts(self):
        please = ("Please insert Zephra CD into your CD-ROM drive.  Wait until the drive gets going and hit the Retry "
                  "button.")
        self.search("mill")
        self.assertEqual(self.box("Return"), ("Zephra Catalog", please))  # tries again
        self.assertEqual(self.box("Escape"), ("Zephra Catalog", please))
        self.assertBox("Zephra was not able to verify the model CD.")
        self.assertIn(" Search Results", self.names())
        self.insert(self.first, with_model=False)
        self.insert(self.second, with_model=True)
        self.find_windmill()
        self.press("Insert Model Only")
        self.assertEqual(self.client.told(5)[1],
                         r"TarnwellXFile := String f:\library\Graphics\dv3000\dv3300\dv3310\dv3310.twe")


class WithoutPreview(CatalogCase):
    @classmethod
    def setUpClass(cls):
        cls.enterClassContext(installation.without(programs.preview, programs.arch))
        super().setUpClass()

    def test_each_use_of_it_is_told(self):
        self.search("mill")
        self.assertBox(LOAD)
        self.assertIn(" Search Results (3)", self.names())
        self.press("Insert Model Only")
        self.assertBox("Error while inserting model " + MISSING, "Zephra Toolbar")
        self.assertTold("RefreshDisplay")


class WithoutSearch(CatalogCase):
    @classmethod
    def create_client(cls):
        client = Client(programs.script_host)
        client.send("create")
        cls.told = read_box(cls.probe)
        client.answer(30)
        return client

    @classmethod
    def setUpClass(cls):
        cls.enterClassContext(installation.without(programs.search, programs.arch))
        super().setUpClass()

    def test_its_absence_is_told_at_the_start_and_by_each_search(self):
        self.assertEqual(self.told, ("Zephra Catalog", "Error while adding categories to menu: " + MISSING))
        for _ in range(2):
            self.search("mill")
            self.assertBox("Error while searching for models: " + MISSING)
        self.choose("alt+t", "Return")
        self.assertBox("Error while searching for models: " + MISSING)


class WithoutCategories(WithoutSearch):
    @classmethod
    def setUpClass(cls):
        cls.enterClassContext(mock.patch.dict(os.environ, PREPARED_SEARCH_REFUSES="1"))
        super(WithoutSearch, cls).setUpClass()

    def test_its_absence_is_told_at_the_start_and_by_each_search(self):
        self.assertEqual(self.told, ("Zephra Catalog",
                                     "Error while adding categories to menu: The database is locked."))
        self.find_windmill()


class RecentSearches(CatalogCase):
    def assertRecent(self, texts):
        for index, text in enumerate(texts):
            self.choose("alt+r", *["Down"] * index, "Return")
            self.wait_for_field(text)

    def test_five_are_kept_for_the_next_process(self):
        for text in ("one", "two", "three", "four", "five", "six"):
            self.search_and_find(text, 3)
        kept = ["six", "five", "four", "three", "two"]
        self.assertRecent([*kept, "six"])  # the menu begins again
        self.search_and_find("four", 3)
        kept = ["four", "five", "six", "three", "two"]
        self.assertRecent(kept)
        self.client.close()
        self.restart()
        self.assertRecent([*kept, "four"])

    def restart(self):
        cls = type(self)
        cls.client = Client(programs.script_host)
        for words in (("create",), ("init", 0), ("catalog",)):
            cls.client.do(*words)
        cls.catalog = cls.probe.window("Zephra Catalog")
        wait_for(lambda: desktop.focused_title() == "Zephra Catalog", 30, "the keyboard in the catalog")


class OtherPrograms(CatalogCase):
    def test_a_question_outlasts_the_turn_to_another_program(self):
        self.search("refuse")
        box = self.probe.window(class_name="#32770")
        with desktop.OtherProgram() as other:
            other.activate()
            self.wait_for_catalog(visible=False)
            desktop.click(desktop.centre(box["rect"]))
            self.wait_for_catalog(visible=True)
            self.assertBox("Error while searching for models: The database is locked.")
            self.wait_for_catalog(enabled=True)
            self.find_windmill()

    def wait_for_catalog(self, **state):
        wait_for(lambda: state.items() <= self.probe.describe(self.catalog).items(), what=f"the catalog to be {state}")


if __name__ == "__main__":
    main()
