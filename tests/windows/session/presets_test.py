"""The menu of preset views, by mouse and by keyboard."""

from session_case import SessionCase, desktop, main, wait_for

MENU = "#32768"


def orientation(x, y, z):
    return [f"SetOrientation Integer {x} Integer {y} Integer {z}", "RefreshDisplay"]


# The keys that choose each entry of the menu, and what it does. Two entries have the letter B: it chooses the upper.
ENTRIES = [
    ("m", ["ResetHome", "RefreshDisplay"]),
    None,
    ("f", orientation(0, 0, 0)),
    ("b", orientation(0, 18000, 0)),
    ("r", orientation(0, 9000, 0)),
    ("l", orientation(0, 27000, 0)),
    ("t", orientation(27000, 0, 0)),
    ("Up Return", orientation(9000, 0, 0)),
]


class Presets(SessionCase):
    def setUp(self):
        self.unfold()
        super().setUp()

    def tearDown(self):
        self.client.send("visible")
        if self.probe.windows(class_name=MENU):
            desktop.key("Escape")  # a failed test leaves the menu open
        self.client.answer()

    def open(self):
        self.click("PresetDropdown")
        return self.probe.window(class_name=MENU)

    def entry_places(self, menu):
        """The middle of each entry: seven lines of text and a low separator, inside a border of 3 pixels."""
        left, top, right, bottom = menu["rect"]
        separator, border = 9, 3
        line = (bottom - top - separator - 2 * border) // 7
        tops = [0] + [line + separator * (index > 1) + line * max(index - 2, 0) for index in range(1, 8)]
        heights = [line, separator] + 6 * [line]
        return [((left + right) // 2, top + border + y + height // 2) for y, height in zip(tops, heights)]

    def test_hangs_below_the_first_movement_group_at_its_right_edge(self):
        menu = self.open()
        self.picture("presets-menu")
        bar = self.probe.element(self.toolbar, "Reset and presets")["rect"]
        self.assertEqual((bar[2], bar[3]), (menu["rect"][2], menu["rect"][1]))
        self.assertEqual([], self.client.calls)
        desktop.key("Escape")
        self.probe.gone(class_name=MENU)
        self.assertNothingTold()

    def test_each_entry_by_keyboard(self):
        for entry in filter(None, ENTRIES):
            with self.subTest(entry[0]):
                self.client.forget()
                self.open()
                desktop.key(*entry[0].split())
                self.probe.gone(class_name=MENU)
                self.assertTold(*entry[1])

    def test_each_entry_by_mouse(self):
        for index, entry in enumerate(ENTRIES):
            if entry is None:
                continue
            with self.subTest(entry[0]):
                self.client.forget()
                desktop.click(self.entry_places(self.open())[index])
                self.probe.gone(class_name=MENU)
                self.assertTold(*entry[1])

    def test_separator_cannot_be_chosen(self):
        desktop.click(self.entry_places(self.open())[1])
        self.probe.window(class_name=MENU)
        desktop.key("Escape")
        self.probe.gone(class_name=MENU)
        self.assertNothingTold()

    def test_arrow_keys_pass_the_separator(self):
        self.open()
        desktop.key("Down", "Down", "Return")
        self.probe.gone(class_name=MENU)
        self.assertTold(*orientation(0, 0, 0))

    def test_click_elsewhere_closes_it(self):
        self.open()
        desktop.click((900, 700))
        self.probe.gone(class_name=MENU)
        self.assertNothingTold()

    def test_failing_call_still_redraws(self):
        self.client.do("raise", "SetOrientation", 380)
        self.open()
        desktop.key("f")
        self.assertTold(*orientation(0, 0, 0))
        self.client.do("raise", "", 0)
        self.assertFalse(self.probe.windows(class_name="#32770"))


if __name__ == "__main__":
    main()
