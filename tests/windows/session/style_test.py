"""The style group: which of its controls a model gets, the list of styles, and the animation indicator."""

import itertools

from session_case import SessionCase, desktop, main

LIST = "Select a new LookStyle"
# What taking over the model's state asks of it.
INIT_SELF = ["InterfaceFlags", "AnimationFrameCount", "ModelName", "LookStyleName", "IsToolbarShowing"]
STYLE_BUTTONS = {"Line Thickness": 16, "Line Color": 2, "Fill Color": 1}


SPOTS = itertools.count()


class Offers(SessionCase):
    def names(self):
        return {b["name"] for b in self.buttons()}

    def test_each_flag_shows_its_button(self):
        for flags in range(0, 32):
            if flags & 8:
                continue
            with self.subTest(flags=flags):
                self.client.set(InterfaceFlags=flags)
                self.client.do("init", 0)
                expected = {name for name, bit in STYLE_BUTTONS.items() if flags & bit}
                self.assertEqual(expected, self.names() & set(STYLE_BUTTONS))
                self.assertIn("Background Options", self.names())
                if flags in (0, 19):
                    self.picture(f"interface-flags-{flags}")

    def test_still_model_covers_the_animation_button(self):
        self.client.set(AnimationFrameCount=3)
        self.client.do("init", 0)
        place = self.at("Animation Playback")
        self.client.set(AnimationFrameCount=0)
        self.client.do("init", 0)
        self.client.forget()
        before = self.windows()
        desktop.click(place)
        self.unfold()
        self.assertNothingTold()
        self.assertEqual(before, self.windows())
        self.picture("animation-indicator")

    def windows(self):
        """What is open, tooltips aside: they come and go with the pointer."""
        return {(w["window"], w["title"]) for w in self.probe.windows() if w["class"] != "tooltips_class32"}


class StyleList(SessionCase):
    def setUp(self):
        self.client.set(LookStyleName="Ink")
        self.client.do("init", 0)
        super().setUp()

    def list_place(self):
        """Another spot each time: a second click on the same one would be the second half of a double click."""
        left, top, right, bottom = self.probe.element(self.toolbar, LIST)["rect"]
        return left + 10 + 10 * next(SPOTS), (top + bottom) // 2

    def opened(self):
        desktop.click(self.list_place())
        return self.probe.window(class_name="ComboLBox")

    def chosen(self, style):
        return [f"LookStyle := String {style}", *INIT_SELF, "RefreshDisplay"]

    def test_current_style_is_selected(self):
        self.assertEqual("Ink", self.probe.describe(self.probe.element(self.toolbar, LIST))["title"])

    def test_choice_by_mouse(self):
        menu = self.opened()
        left, top, right, bottom = menu["rect"]
        self.picture("style-list")
        row = (bottom - top) // 4
        desktop.click((left + 20, top + 2 * row + row // 2))
        self.probe.gone(class_name="ComboLBox")
        self.assertTold(*self.chosen("Clay"))

    def test_choice_by_keyboard(self):
        self.opened()
        desktop.key("Down", "Return")
        self.probe.gone(class_name="ComboLBox")
        self.assertTold(*self.chosen("Clay"))

    def test_basic_draw(self):
        self.opened()
        desktop.key("Up", "Return")
        self.probe.gone(class_name="ComboLBox")
        self.assertTold(*self.chosen("Basic Draw"))

    def test_same_entry_again_is_no_choice(self):
        self.opened()
        desktop.key("Return")
        self.probe.gone(class_name="ComboLBox")
        self.unfold()
        self.assertNothingTold()


if __name__ == "__main__":
    main()
