"""The catalog with real input, on a search component of prepared answers and the real preview: finding, previewing,
inserting, its menus and its size."""

from catalog_case import CLOSED, FIELD, OPENED, PROMPT, STYLES, CatalogCase
from session_case import desktop, installation, main, wait_for

INSERTED = ["ModelName", "TarnwellXFile", "ModelScale", "SetOrientation"]


class Catalog(CatalogCase):
    def members(self, count):
        return [call.split()[0] for call in self.client.told(count)]

    def test_the_search_button_searches(self):
        self.type_in_field("nothing")
        self.press("Search")
        self.wait_for_name(" Search Results (0)")

    def test_a_click_shows_another_model(self):
        self.find_windmill()
        self.click_item(1)
        self.wait_for_name("Sailboat ")

    def test_the_arrow_keys_show_another_model(self):
        self.find_windmill()
        self.click_item(0)
        desktop.key("Down")
        self.wait_for_name("Sailboat ")

    def test_a_typed_letter_shows_the_model_that_begins_so(self):
        self.find_windmill()
        self.click_item(0)
        desktop.key("s")
        self.wait_for_name("Sailboat ")
        desktop.pause(0.6)  # what was typed before counts no more
        desktop.key("x")
        desktop.pause(0.3)
        self.assertIn("Sailboat ", self.names())

    def test_a_missing_file_is_told_and_the_preview_stays(self):
        self.find_windmill()
        self.click_item(2)
        title, text = self.box()
        self.assertEqual(title, "Zephra Catalog")
        self.assertRegex(text, r"^Zephra cannot find the file Z:\\.*\\dv9000\\dv9900\\dv9995\\dv9999\.twe\.  Please make "
                               r"sure that you have Zephra installed correctly\.$")
        self.assertIn("Windmill ", self.names())

    def test_any_name_is_shown_as_it_is(self):
        self.search_and_find("odd", 4)
        self.press("Insert Model Only")
        self.assertEqual(self.client.told(5)[0], 'ModelName := String 100 % "Salt & Pepper"')
        self.client.forget()
        self.click_item(1)
        self.wait_for_name("M\u00fchle \u98a8\u8eca ")
        self.click_item(2)
        self.wait_for_name("w" * 300 + " ")
        self.press("Insert Model Only")
        self.assertEqual(self.client.told(5)[0], "ModelName := String " + "w" * 300)

    def test_only_animated_models_have_an_icon(self):
        self.search_and_find("mill", 3)
        left, top, _, _ = self.element("Models found")["rect"]
        desktop.click((left + 100, top + 150))  # the pointer away, where nothing is
        darkest = [min(desktop.pixels((left + 6, top + 6 + 23 * row, left + 22, top + 18 + 23 * row)))
                   for row in range(3)]
        self.assertGreater(darkest[0], 200)
        self.assertLess(darkest[1], 100)
        self.assertGreater(darkest[2], 200)

    def test_a_long_search_does_not_widen_the_menu_beyond_the_screen(self):
        self.search_and_find("w" * 200, 3)
        self.choose("alt+r")
        left, _, right, _ = self.probe.window(class_name="#32768")["rect"]
        self.assertLess(right - left, desktop.screen_size()[0])
        desktop.key("Return")
        self.wait_for_field("w" * 200)

    def test_insert_brings_model_and_style(self):
        self.find_windmill()
        self.press("Insert")
        calls = self.client.told(6)
        self.assertEqual(calls[0], "ModelName := String Windmill")
        self.assertRegex(calls[1], r"^TarnwellXFile := String Z:.*\\dv3000\\dv3300\\dv3310\\dv3310\.twe$")
        self.assertRegex(calls[2], r"^ModelScale := Long \d+$")
        self.assertRegex(calls[3], r"^SetOrientation Long -?\d+ Long -?\d+ Long -?\d+$")
        self.assertRegex(calls[4], r"^LookStyle := String .+$")
        self.assertEqual(calls[5:], ["RefreshDisplay"])

    def test_insert_brings_the_style_that_was_picked_in_the_preview(self):
        self.find_windmill()
        styles = []
        for down in (2, 3):
            desktop.click(desktop.centre(self.element("Windmill")["rect"]), button=3)
            self.wait_for_menus(1)
            desktop.key(*["Down"] * down, "Return")
            self.wait_for_menus(0)
            self.client.forget()
            self.press("Insert")
            styles.append(self.client.told(6)[4])
        self.assertNotEqual(*styles)

    def test_insert_model_only_keeps_the_style(self):
        self.find_windmill()
        self.press("Insert Model Only")
        self.assertEqual(self.members(5), [*INSERTED, "RefreshDisplay"])

    def test_the_menus_insert_too(self):
        self.find_windmill()
        self.choose("alt+f", "i")
        self.assertEqual(self.members(7), [*INSERTED, "ModelName", "LookStyle", "RefreshDisplay"])
        self.client.forget()
        self.choose("alt+f", "m")
        self.assertEqual(self.members(5), [*INSERTED, "RefreshDisplay"])

    def test_a_model_that_refuses_is_told_and_drawn_again(self):
        self.find_windmill()
        self.client.do("raise", "ModelScale :=", 380)
        self.press("Insert Model Only")
        title, text = self.box()
        self.assertEqual(title, "Zephra Toolbar")
        self.assertTrue(text.startswith("Error while inserting model "), text)
        self.assertEqual(self.members(4), ["ModelName", "TarnwellXFile", "ModelScale", "RefreshDisplay"])

    def test_a_style_is_chosen_for_the_page(self):
        self.press(STYLES)
        desktop.key("Escape", "Down")
        self.assertTold("LookStyle := String Clay", "RefreshDisplay")
        desktop.key("Up")
        self.assertTold("LookStyle := String Clay", "RefreshDisplay", "LookStyle := String Ink", "RefreshDisplay")

    def test_a_surprise_is_chosen_from_the_menu(self):
        self.find_windmill()
        self.choose("alt+t", "Return")
        self.wait_for_field(":Surprise Me")

    def test_a_category_is_searched_from_its_menu(self):
        self.choose("alt+t", "Down", "Right")
        self.wait_for_menus(2)
        desktop.key("Down", "Return")
        self.wait_for_field(":Salt & Pepper")

    def test_a_recent_search_is_made_again(self):
        self.search_and_find("nothing", 0)
        self.find_windmill()
        self.choose("alt+r", "Down", "Return")
        self.wait_for_field("nothing")
        self.wait_for_name(" Search Results (0)")

    def test_about_is_shown(self):
        self.choose("alt+h", "a")
        about = wait_for(lambda: next((w for w in self.probe.windows(class_name=self.catalog["class"])
                                       if w["window"] != self.catalog["window"]), None), what="the About box")
        desktop.click(desktop.centre(about["rect"]))
        wait_for(lambda: not self.probe.describe(about)["visible"], what="the About box to go")
        desktop.pause(0.5)  # a window manager may take the keyboard from everybody for a moment
        self.assertTrue(self.probe.describe(self.catalog)["visible"])

    def test_every_control_has_a_name_and_is_reached_by_the_tab_key(self):
        self.find_windmill()
        windows = [e for e in self.probe.elements(self.catalog) if "class" in e]
        self.assertEqual([], [e["class"] for e in windows if not e["name"]])
        self.press(FIELD)
        forward = []
        for _ in range(8):
            forward.append(self.focused())
            desktop.key("Tab")
        self.assertEqual(forward, [FIELD, "Search", "Help", "Models found", "Windmill", STYLES, "Insert",
                                   "Insert Model Only"])
        self.assertEqual(self.focused(), FIELD)
        backward = []
        for _ in range(4):
            desktop.key("shift+Tab")
            backward.append(self.focused())
        self.assertEqual(backward, ["Insert Model Only", "Insert", STYLES, "Windmill"])

    def focused(self):
        focused = 0x4
        found = wait_for(lambda: [e["name"] for e in self.probe.elements(self.catalog) if (e["state"] or 0) & focused],
                         what="a control with the keyboard")
        return found[-1]

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


class Failures(CatalogCase):
    """What a search component that fails or answers wrongly comes to, and pages that cannot be opened."""

    @classmethod
    def setUpClass(cls):
        installation.set_value("Expansion", "1")
        cls.addClassCleanup(installation.remove_value, "Expansion")
        super().setUpClass()

    def test_its_error_is_told(self):
        for query, text in (("refuse", "The database is locked."), ("fail", "Out of memory"),
                            ("short", "Subscript out of range")):
            self.search(query)
            self.assertBox("Error while searching for models: " + text)

    def test_more_hits_than_can_be_counted_are_told(self):
        self.search("too many")
        self.assertBox("Error while searching for models: Overflow")
        self.assertIn(" Search Results (32768)", self.names())
        self.search_and_find("all", 32767)
        self.wait_for_name("Windmill ")

    def test_a_page_that_cannot_be_opened_is_told(self):
        self.choose("alt+h", "e")
        self.assertBox("Sorry, Zephra was unable to start a Web Browser to view the file 'expansion.htm'")

    def test_a_browser_that_cannot_be_started_is_told(self):
        with installation.without_browser():
            self.choose("alt+h", "w")
            self.assertBox("Sorry, Zephra was unable to start a Web Browser.")
            self.press("Zephra on the web")
            self.assertBox("Sorry, Zephra was unable to start a Web Browser.")


class Opening(CatalogCase):
    def setUp(self):
        pass  # what was told by then is looked at

    def test_an_untouched_box_gives_a_surprise_and_closing_starts_again(self):
        # The activation of the application is told too, when the catalog is its only window.
        self.assertEqual(OPENED, [call for call in self.client.told(3) if call != "AnimationState"])
        self.wait_for_field(PROMPT)
        desktop.key("Return")
        self.wait_for_name("Windmill ")
        self.wait_for_field(":Surprise Me")
        self.client.forget()
        desktop.key("alt+F4")
        self.probe.gone("Zephra Catalog")
        self.assertTold(*CLOSED)
        self.client.do("catalog")
        wait_for(lambda: desktop.focused_title() == "Zephra Catalog", 30, "the keyboard in the catalog")
        self.wait_for_field(PROMPT)
        self.assertIn(" Search Results (3)", self.names())
        desktop.type_text("nothing")  # in the prompt's place
        desktop.key("Return")
        self.wait_for_name(" Search Results (0)")


class Closing(CatalogCase):
    def test_closing_tells_the_model(self):
        self.choose("alt+f", "c")
        self.probe.gone("Zephra Catalog")
        self.assertTold(*CLOSED)

    def test_hiding_closes_it_and_disposing_unloads_it(self):
        self.client.do("catalog")
        self.probe.window("Zephra Catalog")
        self.client.do("hide")
        self.probe.gone("Zephra Catalog")
        self.assertEqual([call for call in self.client.told(6) if call != "AnimationState"], OPENED + CLOSED)
        self.client.do("catalog")
        self.probe.window("Zephra Catalog")
        self.client.forget()
        self.client.do("dispose")
        self.assertFalse(self.probe.windows("Zephra Catalog", visible=False))
        self.assertTold(*CLOSED, "IsToolbarShowing := Boolean False", CLOSED[-1])  # closed, then unloaded


if __name__ == "__main__":
    main()
