"""The menu of preset views, by mouse and by keyboard."""

from session_case import SessionCase, desktop, main, wait_for

MENU = "#32768"


def orientation(x, y, z):
    return [f"SetOrientation Integer {x} Integer {y} Integer {z}", "RefreshDisplay"]


# The mnemonic of each entry of the menu and what it does; 18000 and 27000 hundredths of a degree fit 16 bit modulo
# a turn only, so they arrive as the same bits.
ENTRIES = [
    ("m", ["ResetHome", "RefreshDisplay"]),
    None,
    ("f", orientation(0, 0, 0)),
    ("b", orientation(0, 18000, 0)),
    ("r", orientation(0, 9000, 0)),
    ("l", orientation(0, 27000, 0)),
    ("t", orientation(27000, 0, 0)),
    ("o", orientation(9000, 0, 0)),
]


class Presets(SessionCase):
    def setUp(self):
        self.unfold()
        super().setUp()

    def open(self):
        self.click("PresetDropdown")
        return self.probe.window(class_name=MENU)

    def items(self, menu):
        """The menu's entries from top to bottom: separators are lower than texts."""
        items = [e for e in self.probe.elements(menu) if e["role"] in (0xC, 0x15)]
        self.assertEqual(8, len(items), items)
        return items

    def test_hangs_below_the_first_movement_group_at_its_right_edge(self):
        menu = self.open()
        self.picture("presets-menu")
        bar = self.probe.element(self.toolbar, "Reset and presets")["rect"]
        self.assertEqual((bar[2], bar[3]), (menu["rect"][2], menu["rect"][1]))
        self.assertEqual([], self.client.calls)
        desktop.key("Escape")
        self.probe.gone(class_name=MENU)
        self.assertNothingTold()

    def test_each_entry_by_its_letter(self):
        for entry in filter(None, ENTRIES):
            with self.subTest(entry[0]):
                self.client.forget()
                self.open()
                desktop.key(entry[0])
                self.probe.gone(class_name=MENU)
                self.assertTold(*entry[1])

    def test_each_entry_by_mouse(self):
        for index, entry in enumerate(ENTRIES):
            if entry is None:
                continue
            with self.subTest(entry[0]):
                self.client.forget()
                desktop.click(desktop.centre(self.items(self.open())[index]["rect"]))
                self.probe.gone(class_name=MENU)
                self.assertTold(*entry[1])

    def test_separator_cannot_be_chosen(self):
        desktop.click(desktop.centre(self.items(self.open())[1]["rect"]))
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
