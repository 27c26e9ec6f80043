"""How each popup opens, hangs, latches its button and closes, in the demo host under a real mouse and keyboard."""

from popup_case import (ANIMATION, BACKGROUND, FILL, LIGHTING, LINE, POPUPS, THICKNESS, PopupCase,
                        without_values)
from session_case import desktop, main, wait_for

# Screen pixels, as the library has them.
BELOW = 25
LIGHTING_LEFT = 23
LIGHTING_ROOM = 345
ANIMATION_DROP = 40


class Closing(PopupCase):
    def opens_again(self, popup):
        self.open(popup)

    def test_its_button_again(self):
        def scenario(popup):
            for _ in range(3):
                self.open(popup)
                self.press(popup)
                if popup.keeps_open:
                    self.opened(popup)  # it is just shown again
                else:
                    self.assertClosed(popup)

        self.each(scenario)

    def test_escape(self):
        def scenario(popup):
            self.open(popup)
            desktop.key("Escape")
            self.assertClosed(popup)
            self.opens_again(popup)

        self.each(scenario)

    def test_click_on_the_object(self):
        def scenario(popup):
            self.open(popup)
            desktop.click(self.object_centre())
            if popup.keeps_open:
                self.settled()
                self.assertEqual(1, len(self.popups()))
                self.assertEqual([], self.host.calls())
            else:
                self.assertClosed(popup)
            self.opens_again(popup)

        self.each(scenario)

    def test_press_that_ends_elsewhere_closes_but_does_not_count(self):
        def scenario(popup):
            self.open(popup)
            desktop.press_mouse(self.at(popup))
            desktop.release_mouse((self.bar[0] + 60, self.bar[1] + 8))
            self.assertClosed(popup)
            self.opens_again(popup)

        self.each(scenario, POPUPS[:-1])


class Choosing(PopupCase):
    """What is chosen in a popup; the next press opens it at once."""

    def choose(self, popup, name):
        window = self.open(popup)
        desktop.click(desktop.centre(self.probe.element(window, name)["rect"]))

    def test_thickness(self):
        self.choose(THICKNESS, "Extra thick")
        self.assertClosed(THICKNESS, "let LineThicknessScale = 200")
        self.choose(THICKNESS, "Medium")
        self.assertClosed(THICKNESS, "let LineThicknessScale = 100")

    def test_palettes(self):
        for popup, member in ((LINE, "LineColor"), (FILL, "SurfaceColor"), (BACKGROUND, "BackgroundColor")):
            with self.subTest(popup.button):
                self.setUp()
                window = self.open(popup)
                desktop.click((window["rect"][0] + 40, window["rect"][1] + 48))
                wait_for(lambda: not self.popups(), what="the palette to close")
                self.settled()
                self.assertEqual([f"let {member}"], [call.split(" = ")[0] for call in self.host.calls()])
                self.assertFalse(self.is_latched(popup))
                self.press(popup)
                [window] = wait_for(self.popups, what="the palette at the next press")
                self.settled()
                self.assertEqual([*popup.asked, f"get {member}"], without_values(self.host.calls()))
                desktop.click((window["rect"][0] + 40, window["rect"][1] + 20))
                self.assertClosed(popup, f"RestoreDefault{member}")

    def test_lighting_stays_for_the_next_choice(self):
        self.choose(LIGHTING, "Light from above")
        self.settled()
        self.assertEqual(["SetLightDirection"], without_values(self.host.calls()))
        self.assertEqual(1, len(self.popups()))
        self.press(LIGHTING)
        self.assertClosed(LIGHTING)

    def test_animation_stays_for_the_next_step(self):
        self.choose(ANIMATION, "Next Frame")
        self.settled()
        self.assertEqual(["AnimationIncrementFrame", "get AnimationCurrentFrame"], without_values(self.host.calls()))
        self.assertEqual(1, len(self.popups()))


class Placement(PopupCase):
    def bar_corner(self, popup):
        left, top, _, _ = next(e["rect"] for e in self.probe.elements(self.toolbar) if e["name"] == popup.bar)
        return left, top

    def screen(self):
        return desktop.screen_size()

    def drag_toolbar(self, x, y):
        handle = (self.bar[0] + 60, self.bar[1] + 8)
        desktop.press_mouse(handle)
        target = (x + 60, y + 8)
        for step in (0.5, 1):
            desktop.move(tuple(round(a + (b - a) * step) for a, b in zip(handle, target)))
        desktop.release_mouse()
        wait_for(lambda: self.probe.describe(self.toolbar)["rect"][:2] == [x, y], what="the toolbar at its new place")
        self.bar = self.probe.describe(self.toolbar)["rect"]

    def expected(self, popup, size):
        """The corner of a popup of that size."""
        x, y = self.bar_corner(popup)
        width, height = self.screen()
        y += BELOW
        if popup is ANIMATION:
            return [x, y + ANIMATION_DROP]
        if y + size[1] > height:
            y -= size[1] + BELOW
        if popup is not LIGHTING:
            return [x - max(0, x + size[0] - width), y]
        room = width - x
        return [x - (LIGHTING_ROOM - room if room < LIGHTING_ROOM else LIGHTING_LEFT), y]

    def check(self, name):
        for popup in POPUPS:
            with self.subTest(popup.button):
                window = self.open(popup)
                rect = window["rect"]
                self.picture(f"popup-{name}-{popup.button.replace(' ', '-').lower()}")
                size = [rect[2] - rect[0], rect[3] - rect[1]]
                corner = self.expected(popup, size)
                # Seen from another program a window stands at the screen's corner until it is mapped.
                wait_for(lambda: self.probe.describe(window)["rect"][:2] == corner, what=f"a place at {corner}")
                desktop.key("Escape")
                self.assertClosed(popup)

    def test_in_the_middle(self):
        self.check("middle")

    def test_at_the_lower_edge(self):
        self.drag_toolbar(300, 950)
        self.check("below")


if __name__ == "__main__":
    main()
