"""How each popup opens, hangs, latches its button and closes, in the demo host under a real mouse and keyboard."""

from popup_case import (ANIMATION, BACKGROUND, DOCUMENT, FILL, LIGHTING, LINE, POPUPS, THICKNESS, TOOLBAR, PopupCase,
                        without_values)
from session_case import desktop, main, wait_for

DIALOG = "#32770"
LEFT = "let IsToolbarShowing = False"
PLAYING = "get AnimationState"  # asked whenever the application loses or regains the focus
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

    def test_its_button_again_by_its_default_action(self):
        def scenario(popup):
            self.probe.press(self.button(popup))
            self.opened(popup)
            self.probe.press(self.button(popup))
            if popup.keeps_open:
                self.opened(popup)
            else:
                self.assertClosed(popup)
                self.opens_again(popup)

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

    def test_click_beside_the_object(self):
        def scenario(popup):
            self.open(popup)
            desktop.click(self.beside_object())
            self.probe.gone(TOOLBAR)
            wait_for(lambda: not self.popups(), what="the popup to go with the toolbar")
            self.settled()
            self.assertEqual([LEFT], self.host.calls())
            self.edit()
            self.settled()
            self.host.calls()
            self.assertClosed(popup)
            self.opens_again(popup)

        self.each(scenario)

    def test_click_on_the_caption_of_the_toolbar(self):
        def scenario(popup):
            self.open(popup)
            desktop.click((self.bar[0] + 60, self.bar[1] + 8))
            if popup.keeps_open:
                self.settled()
                self.assertEqual(1, len(self.popups()))
            else:
                self.assertClosed(popup)
            self.opens_again(popup)

        self.each(scenario)

    def test_button_of_another_popup(self):
        others = {popup.button: POPUPS[index - 1] for index, popup in enumerate(POPUPS[:-1])}
        others[THICKNESS.button] = LIGHTING
        def scenario(popup):
            other = others[popup.button]
            self.open(popup)
            self.open(other)
            self.assertFalse(self.is_latched(popup))
            self.open(popup)
            self.assertFalse(self.is_latched(other))

        self.each(scenario, POPUPS[:-1])

    def test_another_program(self):
        def scenario(popup):
            self.open(popup)
            self.away_and_back(popup)
            self.opens_again(popup)

        self.each(scenario)

    def away_and_back(self, popup):
        # Under Wine a tool window that no click has reached yet does not notice that another program is activated.
        left, top, _, _ = self.popups()[0]["rect"]
        desktop.click((left + 5, top + 5))
        with desktop.OtherProgram() as other:
            other.activate()
            self.probe.gone(TOOLBAR)
            wait_for(lambda: not self.popups(), what="the popup to go with the toolbar")
            self.settled()
            self.assertEqual([PLAYING], without_values(self.host.calls()))
            self.come_back()
        self.assertClosed(popup, PLAYING)

    def come_back(self):
        left, top, _, _ = self.document["rect"]
        desktop.click((left + 200, top + 10))
        self.assertTrue(self.probe.window(TOOLBAR)["topmost"])

    def test_pressing_while_the_pointer_rests_on_the_button(self):
        def scenario(popup):
            self.open(popup)
            for _ in range(4):
                desktop.click(self.at(popup))
                self.assertClosed(popup)
                desktop.click(self.at(popup))
                self.opened(popup)

        self.each(scenario, POPUPS[:-1])

    def test_double_clicks_leave_latch_and_popup_in_step(self):
        def scenario(popup):
            for count in (2, 3, 2, 5):
                self.press(popup, count=count)
                self.settled()
                self.assertEqual(len(self.popups()), int(self.is_latched(popup)))
                if self.popups():
                    self.press(popup)
                self.settled()
                self.host.calls()
                self.assertClosed(popup)
                self.open(popup)
                self.press(popup)
                self.assertClosed(popup)

        self.each(scenario, POPUPS[:-1])

    def test_press_that_ends_elsewhere_closes_but_does_not_count(self):
        def scenario(popup):
            self.open(popup)
            desktop.press_mouse(self.at(popup))
            desktop.release_mouse((self.bar[0] + 60, self.bar[1] + 8))
            self.assertClosed(popup)
            self.opens_again(popup)

        self.each(scenario, POPUPS[:-1])

    def test_right_click_on_the_button_closes_but_is_no_press(self):
        def scenario(popup):
            self.open(popup)
            desktop.click(self.at(popup), button=3)
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


class Dialog(PopupCase):
    """The colour dialog keeps its palette open; who leaves it finds neither again."""

    def open_dialog(self, popup):
        window = self.open(popup)
        desktop.click((window["rect"][0] + 60, window["rect"][3] - 17))
        return self.probe.window(class_name=DIALOG)

    def test_cancel(self):
        def scenario(popup):
            dialog = self.open_dialog(popup)
            wait_for(lambda: self.probe.ask("foreground") == dialog["window"], what="the dialog in front")
            self.assertEqual(1, len(self.popups()))
            desktop.key("Escape")
            self.probe.gone(class_name=DIALOG)
            self.assertClosed(popup)
            self.open(popup)

        self.each(scenario, [LINE, FILL, BACKGROUND])

    def test_another_program(self):
        def scenario(popup):
            self.open_dialog(popup)
            with desktop.OtherProgram() as other:
                other.activate()
                self.probe.gone(TOOLBAR)
                self.probe.gone(class_name=DIALOG)
                wait_for(lambda: not self.popups(), what="the palette to go")
                left, top, _, _ = self.document["rect"]
                desktop.click((left + 200, top + 10))
                self.probe.window(TOOLBAR)
            self.assertClosed(popup, PLAYING, PLAYING)
            self.open(popup)

        self.each(scenario, [LINE, FILL, BACKGROUND])

    def test_closing_the_document(self):
        self.open_dialog(FILL)
        self.probe.ask("post", self.document["window"], 0x10, 0, 0)
        self.host.process.wait(timeout=10)
        self.assertEqual(0, self.host.process.returncode)
        self.assertFalse(self.probe.windows(DOCUMENT))
        type(self).setUpClass()


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
                rect = self.open(popup)["rect"]
                self.picture(f"popup-{name}-{popup.button.replace(' ', '-').lower()}")
                size = [rect[2] - rect[0], rect[3] - rect[1]]
                self.assertEqual(self.expected(popup, size), rect[:2])
                desktop.key("Escape")
                self.assertClosed(popup)

    def test_in_the_middle(self):
        self.check("middle")

    def test_at_the_lower_edge(self):
        self.drag_toolbar(300, 950)
        self.check("below")

    def test_at_the_right_edge(self):
        self.drag_toolbar(900, 500)
        self.check("right")


if __name__ == "__main__":
    main()
