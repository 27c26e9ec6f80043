"""The catalog with real input, on a search component of prepared answers and the real preview: finding, previewing,
inserting, its menus, its size, and what it tells when something is missing."""

from session_case import SessionCase, desktop, installation, main, wait_for

OPENED = ["GetLookStyleList", "LookStyleName", "IsCatalogShowing := Boolean True"]
CLOSED = ["ModelName", "IsCatalogShowing := Boolean False", "DoneShowingModelCatalog := Boolean True"]


class CatalogCase(SessionCase):
    """One catalog for all tests of a class, with the keyboard in it."""

    @classmethod
    def setUpClass(cls):
        installation.forget_searches()
        super().setUpClass()
        cls.client.do("hide")
        cls.client.forget()
        cls.client.do("catalog")
        cls.catalog = cls.probe.window("Zephra Catalog")
        wait_for(lambda: desktop.focused_title() == "Zephra Catalog", 30, "the keyboard in the catalog")

    def tearDown(self):
        for _ in self.probe.windows(class_name="#32770"):
            desktop.key("Return")

    def element(self, name):
        return self.probe.element(self.catalog, name)

    def names(self):
        return [e["name"] for e in self.probe.elements(self.catalog)]

    def press(self, name):
        desktop.click(desktop.centre(self.element(name)["rect"]))

    def search(self, text):
        self.press("Keywords for a model search")
        desktop.key("Home", "shift+End")
        desktop.type_text(text)
        desktop.key("Return")

    def click_item(self, index):
        """The rows of the list are no elements of their own."""
        left, top, _, _ = self.element("Models found")["rect"]
        desktop.click((left + 60, top + 12 + 23 * index))

    def open_menu(self, key):
        desktop.key(key)
        self.wait_for_menus(1)

    def wait_for_menus(self, count):
        wait_for(lambda: len(self.probe.windows(class_name="#32768")) == count, what=f"{count} open menus")

    def find_windmill(self):
        self.search("mill")
        wait_for(lambda: "Windmill " in self.names(), what="the preview's caption")

    def box(self):
        """Reads a message box and answers it."""
        box = self.probe.window(class_name="#32770")
        texts = [e["name"] or "" for e in self.probe.elements(box)]
        desktop.key("Return")
        self.probe.gone(class_name="#32770")
        return box["title"], texts


class Catalog(CatalogCase):
    def test_the_search_button_searches(self):
        self.press("Keywords for a model search")
        desktop.key("Home", "shift+End")
        desktop.type_text("nothing")
        self.press("Search")
        wait_for(lambda: " Search Results (0)" in self.names(), what="the empty result")

    def test_a_click_shows_another_model(self):
        self.find_windmill()
        self.click_item(1)
        wait_for(lambda: "Sailboat " in self.names(), what="the other model")
        self.client.forget()

    def test_a_missing_file_is_told_and_the_preview_stays(self):
        self.find_windmill()
        self.click_item(2)
        title, texts = self.box()
        self.assertEqual(title, "Zephra Catalog")
        self.assertTrue(any("Zephra cannot find the file" in text for text in texts), texts)
        self.assertIn("Windmill ", self.names())

    def test_an_error_of_the_component_is_told(self):
        self.search("refuse")
        title, texts = self.box()
        self.assertEqual(title, "Zephra Catalog")
        self.assertIn("Error while searching for models: The database is locked.", texts)

    def test_insert_brings_model_and_style(self):
        self.find_windmill()
        self.press("Insert")
        wait_for(lambda: "RefreshDisplay" in self.client.calls, what="the insertion")
        calls = self.client.told(6)
        self.assertEqual(calls[0], "ModelName := String Windmill")
        self.assertRegex(calls[1], r"^TarnwellXFile := String Z:.*\\dv3000\\dv3300\\dv3310\\dv3310\.twe$")
        self.assertRegex(calls[2], r"^ModelScale := Long \d+$")
        self.assertRegex(calls[3], r"^SetOrientation Long -?\d+ Long -?\d+ Long -?\d+$")
        self.assertRegex(calls[4], r"^LookStyle := String .+$")
        self.assertEqual(calls[5:], ["RefreshDisplay"])

    def test_insert_model_only_keeps_the_style(self):
        self.find_windmill()
        self.press("Insert Model Only")
        calls = self.client.told(5)
        self.assertEqual([call.split()[0] for call in calls],
                         ["ModelName", "TarnwellXFile", "ModelScale", "SetOrientation", "RefreshDisplay"])

    def test_a_category_is_searched_from_its_menu(self):
        self.open_menu("alt+t")
        desktop.key("Down", "Right")
        self.wait_for_menus(2)
        desktop.key("Down", "Return")
        wait_for(lambda: " Search Results (3)" in self.names(), what="the category's models")

    def test_a_recent_search_is_made_again(self):
        self.search("nothing")
        wait_for(lambda: " Search Results (0)" in self.names(), what="the empty result")
        self.find_windmill()
        self.open_menu("alt+r")
        desktop.key("Down", "Return")
        wait_for(lambda: " Search Results (0)" in self.names(), what="the older search")

    def test_the_panes_share_what_a_larger_window_gives(self):
        before = {name: self.element(name)["rect"] for name in ("Models found", "Preview of the model", "Insert")}
        desktop.resize("Zephra Catalog", 860, 560)
        wait_for(lambda: self.element("Insert")["rect"] != before["Insert"], what="the larger window")
        after = {name: self.element(name)["rect"] for name in before}
        grown = {name: [new - old for new, old in zip(after[name], before[name])] for name in before}
        across, down = grown["Insert"][2:]
        self.assertGreater(across, 150)
        self.assertGreater(down, 80)
        self.assertEqual(grown["Insert"], [across, down, across, down])
        list_right, preview_left = grown["Models found"][2], grown["Preview of the model"][0]
        self.assertAlmostEqual(list_right, across // 2, delta=1)
        self.assertEqual(list_right, preview_left)
        self.assertEqual(grown["Models found"][3], down)
        self.assertEqual(grown["Preview of the model"][1:], [0, across, down])


class Opening(CatalogCase):
    def setUp(self):
        pass  # what was told by then is looked at

    def test_what_is_typed_takes_the_prompts_place_and_is_searched(self):
        # The activation of the application is told too, when the catalog is its only window.
        self.assertEqual(OPENED, [call for call in self.client.told(3) if call != "AnimationState"])
        desktop.type_text("mill")
        desktop.key("Return")
        wait_for(lambda: "Windmill " in self.names(), what="the preview's caption")
        self.assertIn(" Search Results (3)", self.names())


class Closing(CatalogCase):
    def test_closing_tells_the_model(self):
        self.open_menu("alt+f")
        desktop.key("c")
        self.probe.gone("Zephra Catalog")
        self.assertTold(*CLOSED)


if __name__ == "__main__":
    main()
