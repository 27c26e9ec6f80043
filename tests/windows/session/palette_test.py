"""Inside a colour palette: cells, recent colours, the colour dialog and the style's own colour, by every way in."""

import subprocess
from dataclasses import replace

from popup_case import BACKGROUND, FILL, LINE, PopupCase
from session_case import HOT, PRESSED, PUSH_BUTTON, SCREENS, SessionCase, desktop, main, programs, wait_for

from tests.windows.session.client import Client

FOCUSED = 0x4
DIALOG = "#32770"
SETTINGS = r"HKCU\Software\VB and VBA Program Settings\Zephra\Toolbar"
ROLES = {"Fill Color": ("IsSurfaceColorDefault", "SurfaceColor"),
         "Line Color": ("IsLineColorDefault", "LineColor"),
         "Background Options": ("IsBackgroundDefault", "BackgroundColor")}
NAMED = ["Black", "Brown", "Olive Green", "Dark Green", "Dark Teal", "Dark Blue", "Indigo", "Gray-80%",
         "Dark Red", "Orange", "Dark Yellow", "Green", "Teal", "Blue", "Blue-Gray", "Gray-50%",
         "Red", "Light Orange", "Lime", "Sea Green", "Aqua", "Light Blue", "Violet", "Gray-40%",
         "Pink", "Gold", "Yellow", "Bright Green", "Turquoise", "Sky Blue", "Plum", "Gray-25%",
         "Rose", "Tan", "Light Yellow", "Light Green", "Light Turquoise", "Pale Blue", "Lavender", "White"]
RECENT = [f"Recent color {i}" for i in range(1, 9)]
WHITE = 16777215
ERROR = ("Zephra has encountered an error.  Please de-activate Zephra by clicking off the object.  "
         "Double-click the object to re-activate Zephra")


def rgb(red, green, blue):
    return red + 256 * green + 65536 * blue


def registry(*words):
    return subprocess.run(["wine", "reg", *words], stdin=subprocess.DEVNULL, capture_output=True, text=True).stdout


def store(**texts):
    for name, text in texts.items():
        registry("add", SETTINGS, "/v", name, "/t", "REG_SZ", "/d", text, "/f")


class PaletteCase(SessionCase):
    fields = {"InterfaceFlags": 19}
    stored = {}

    @classmethod
    def setUpClass(cls):
        registry("delete", SETTINGS, "/f")
        store(**cls.stored)
        super().setUpClass()

    def setUp(self):
        if self.popup():
            desktop.key("Escape")
            self.waitForNoPopup()
        self.client.set(IsSurfaceColorDefault=True, IsLineColorDefault=True, IsBackgroundDefault=True)
        desktop.move((900, 700))  # off everything
        super().setUp()

    def open(self, button="Fill Color"):
        """Opens it, and forgets what that told the model."""
        window = self.openPopup(button)
        wait_for(lambda: self.partsIn(FOCUSED), what="the keyboard in the palette")
        self.client.forget()
        return window

    def explicit(self, color):
        self.client.set(IsSurfaceColorDefault=False, SurfaceColor=color)

    def press(self, name):
        self.probe.press(self.part(name))

    def assertChosen(self, *told):
        self.assertTold(*told)
        self.waitForNoPopup()
        self.waitForState("Fill Color", PRESSED, False)

    def picture(self, name):
        left, top, right, bottom = self.popup()["rect"]
        desktop.picture(SCREENS / f"palette-{name}.png", (left - 20, top - 30, right + 20, bottom + 20))


class Cells(PaletteCase):
    def test_every_cell_and_entry_is_named_once(self):
        self.open()
        elements = self.probe.elements(self.popup())
        buttons = [e["name"] for e in elements if e["role"] == PUSH_BUTTON]
        self.assertEqual(sorted([*NAMED, *RECENT, "More Colors", "LookStyle Default"]), sorted(buttons))
        for name in ("More Colors", "LookStyle Default"):
            self.assertEqual(1, sum(e["name"] == name for e in elements), name)
        self.picture("open")

    def test_opening_asks_for_the_color_only_if_there_is_one(self):
        for button, (is_default, color) in ROLES.items():
            with self.subTest(button):
                self.client.forget()
                self.openPopup(button)
                self.assertTold(is_default)
                desktop.key("Escape")
                self.waitForNoPopup()
                self.client.set(**{is_default: False, color: rgb(51, 204, 204)})
                self.client.forget()
                self.openPopup(button)
                self.assertTold(is_default, color)
                self.assertEqual(["Aqua"], self.partsIn(PRESSED))
                desktop.key("Escape")
                self.waitForNoPopup()

    def test_choice_by_default_action(self):
        self.open()
        self.probe.press(self.part("Plum"))
        self.assertChosen(f"SurfaceColor := Long {rgb(153, 51, 102)}")

    def test_choice_by_keyboard(self):
        self.explicit(rgb(255, 0, 0))
        self.open()
        self.assertEqual(["Red"], self.partsIn(FOCUSED))
        desktop.key("Right", "Down", "Down", "Right", "Up")
        wait_for(lambda: self.partsIn(FOCUSED) == ["Yellow"], what="the keyboard on Yellow")
        self.picture("keyboard")
        desktop.key("Return")
        self.assertChosen(f"SurfaceColor := Long {rgb(255, 255, 0)}")

    def test_first_key_only_shows_the_place(self):
        self.clear()
        self.open()
        desktop.key("space")
        self.assertEqual([], self.client.told(0))
        self.assertTrue(self.popup())
        desktop.key("Left", "space")
        self.assertChosen("SurfaceColor := Long 0")

    def clear(self):
        """No earlier choice is kept in mind."""
        self.open()
        self.probe.press(self.part("LookStyle Default"))
        self.waitForNoPopup()
        self.client.forget()

    def test_escape_chooses_nothing(self):
        self.open()
        desktop.key("Down", "Right", "Escape")
        self.assertChosen()

    def test_pointer_marks_the_cell_and_names_it(self):
        self.open()
        desktop.move(desktop.centre(self.part("Sea Green")["rect"]))
        wait_for(lambda: self.partsIn(HOT) == ["Sea Green"], what="the cell under the pointer")
        tip = self.probe.window("Sea Green", "tooltips_class32")
        self.picture("tooltip")
        desktop.move(desktop.centre(self.part("Recent color 8")["rect"]))
        wait_for(lambda: self.partsIn(HOT) == ["Recent color 8"], what="the recent color under the pointer")
        wait_for(lambda: self.probe.describe(tip)["title"] == "Recent color 8", what="the tooltip to follow")
        desktop.move((900, 700))
        wait_for(lambda: self.partsIn(HOT) == [], what="the mark to go with the pointer")

    def test_nothing_is_chosen_between_the_groups(self):
        self.open()
        for row in ("Gray-25%", "White"):
            desktop.move(desktop.centre(self.part(row)["rect"]))
            wait_for(lambda: self.partsIn(HOT) == [row], what=f"{row} under the pointer")
        x, bottom = desktop.centre(self.part("White")["rect"])[0], self.part("White")["rect"][3]
        between = (x, (bottom + self.part("Recent color 8")["rect"][1]) // 2)
        desktop.move(between)
        wait_for(lambda: self.partsIn(HOT) == [], what="no cell under the pointer")
        desktop.click(between)
        self.assertEqual([], self.client.told(0))
        self.assertTrue(self.popup())

    def test_black_is_not_preselected(self):
        self.clear()
        self.client.do("set", "SurfaceColor", "number", 0)
        self.client.set(IsSurfaceColorDefault=False)
        self.open()
        # It is the colour of every recent slot that has not been used.
        self.assertEqual(["Recent color 8"], self.partsIn(PRESSED))

    def test_refused_color_is_reported_and_the_palette_stays(self):
        self.clear()
        self.open()
        self.client.do("raise", "SurfaceColor :=", 5)
        self.client.forget()
        desktop.key("Down", "space")  # the first key shows the place
        box = self.probe.window(class_name=DIALOG)
        self.assertIn(ERROR, [e["name"] for e in self.probe.elements(box)])
        self.waitForFront(box)
        desktop.key("Return")
        self.probe.gone(class_name=DIALOG)
        self.assertTold("SurfaceColor := Long 0")
        self.assertTrue(self.popup())
        self.client.forget()
        self.press("Teal")
        self.assertChosen(f"SurfaceColor := Long {rgb(0, 128, 128)}")


class StyleDefault(PaletteCase):
    def choose(self, way):
        self.explicit(rgb(255, 0, 0))
        self.open()
        self.assertEqual(["Red"], self.partsIn(PRESSED))
        way()
        self.assertChosen("RestoreDefaultSurfaceColor")
        self.open()
        self.assertEqual(["LookStyle Default"], self.partsIn(PRESSED))

    def test_by_default_action(self):
        self.choose(lambda: self.probe.press(self.part("LookStyle Default")))

    def test_by_keyboard(self):
        def keys():
            desktop.key("Tab", "Tab")
            wait_for(lambda: self.partsIn(FOCUSED) == ["LookStyle Default"], what="the keyboard on the entry")
            self.picture("entry-focused")
            desktop.key("Return")

        self.choose(keys)

    def test_hover_is_drawn_and_goes(self):
        self.open()
        for name in ("LookStyle Default", "More Colors"):
            desktop.move(desktop.centre(self.part(name)["rect"]))
            wait_for(lambda: self.partsIn(HOT) == [name], what=f"{name} under the pointer")
            self.picture(f"hover-{name.split()[0].lower()}")
        desktop.move(desktop.centre(self.part("Pink")["rect"]))
        wait_for(lambda: self.partsIn(HOT) == ["Pink"], what="the entry's hover to go")


class MoreColors(PaletteCase):
    def dialog(self):
        self.open()
        desktop.key("Tab", "space")
        dialog = self.probe.window(class_name=DIALOG)
        self.waitForFront(dialog)
        self.assertTrue(self.popup(), "the palette stays below its dialog")
        return dialog

    def confirm(self):
        """With the dialog's own colour: the white that nobody has chosen another for."""
        desktop.key("Return")
        self.probe.gone(class_name=DIALOG)
        self.assertChosen(f"SurfaceColor := Long {WHITE}")

    def test_chosen_color_is_set_once_and_becomes_recent(self):
        self.dialog()
        self.confirm()
        self.open("Line Color")
        self.press("Recent color 1")
        self.assertTold(f"LineColor := Long {WHITE}")

    def test_cancelled_dialog_only_closes(self):
        dialog = self.dialog()
        desktop.picture(SCREENS / "palette-dialog.png", dialog["rect"])
        desktop.key("Escape")
        self.probe.gone(class_name=DIALOG)
        self.assertChosen()
        self.open()

    def test_held_entry_looks_pressed(self):
        self.open()
        place = desktop.centre(self.part("More Colors")["rect"])
        desktop.press_mouse(place)
        wait_for(lambda: "More Colors" in self.partsIn(PRESSED), what="the entry to go down")
        self.picture("more-pressed")
        desktop.release_mouse()
        self.probe.window(class_name=DIALOG)
        desktop.key("Escape")
        self.probe.gone(class_name=DIALOG)

    def test_color_that_the_model_refuses_is_dropped(self):
        self.client.do("raise", "SurfaceColor :=", 7)
        self.dialog()
        self.confirm()
        self.assertFalse(self.probe.windows(class_name=DIALOG), "a message")


class Restarted(PaletteCase):
    """The recent colours outlive the process."""

    stored = {"PrevColor0": "255", "PrevColor1": "12abc", "PrevColor2": "-1", "PrevColor3": "99999999999",
              "PrevColor4": "garbage", "PrevColor5": "", "PrevColor6": "7", "LastColor": "7"}

    def restart(self):
        type(self).client.close()
        type(self).client = Client(programs.script_host)
        self.client.do("create")
        self.client.set(**self.fields)
        self.client.do("init", 0)
        self.client.do("show", 300, 300)
        type(self).toolbar = self.probe.window("Zephra Toolbar: ")

    def chosen(self, slot):
        self.open()
        self.press(RECENT[slot])
        told = self.client.told(1)
        self.waitForNoPopup()
        return told

    def values(self):
        lines = [line.split(None, 2) for line in registry("query", SETTINGS).splitlines() if "REG_SZ" in line]
        return {line[0]: line[2] for line in lines}

    def test_ring_is_read_used_written_and_read_again(self):
        expected = [255, 12, -1, 0, 0, 0, 0, 0]
        for slot, color in enumerate(expected):
            self.assertEqual([f"SurfaceColor := Long {color}"], self.chosen(slot), RECENT[slot])
        self.open("Line Color")
        desktop.key("Tab", "space")
        dialog = self.probe.window(class_name=DIALOG)
        self.waitForFront(dialog)
        desktop.key("Return")  # the dialog's own colour: that of the line
        self.probe.gone(class_name=DIALOG)
        self.waitForNoPopup()
        expected[0] = 0  # after the eighth slot comes the first
        self.client.do("dispose")
        self.assertEqual({f"PrevColor{i}": str(c) for i, c in enumerate(expected)} | {"LastColor": "0"}, self.values())
        self.restart()
        for slot in (0, 1):
            self.assertEqual([f"SurfaceColor := Long {expected[slot]}"], self.chosen(slot), RECENT[slot])


class ByMouse(PopupCase):
    """In a document, whose window takes over when a palette that was clicked goes."""

    def pointed(self, popup, name, **how):
        window = self.open(popup)
        desktop.click(desktop.centre(self.probe.element(window, name, PUSH_BUTTON)["rect"]), **how)

    def assertChosen(self, popup, *calls):
        wait_for(lambda: not self.popups(), what="the palette to close")
        self.settled()
        self.assertEqual(list(calls), self.host.calls())
        self.assertFalse(self.is_latched(popup))

    def test_any_button_chooses_the_cell_and_the_entry_gives_it_back(self):
        for popup in (FILL, BACKGROUND, LINE):
            for name, color, button in (("Gray-80%", rgb(51, 51, 51), 1), ("White", rgb(255, 255, 255), 3)):
                with self.subTest(palette=popup.button, color=name):
                    member = ROLES[popup.button][1]
                    self.setUp()
                    self.pointed(popup, name, button=button)
                    self.assertChosen(popup, f"let {member} = {color}")
                    colored = replace(popup, asked=[*popup.asked, f"get {member}"])
                    self.pointed(colored, "LookStyle Default")
                    self.assertChosen(popup, f"RestoreDefault{member}()")


if __name__ == "__main__":
    main()
