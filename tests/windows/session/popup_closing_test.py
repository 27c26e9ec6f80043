"""How each popup opens, hangs, latches its button and closes, in the demo host under a real mouse and keyboard."""

from popup_case import (ANIMATION, BACKGROUND, DOCUMENT, FILL, LIGHTING, LINE, POPUPS, THICKNESS, TOOLBAR, PopupCase,
                        without_values)
from session_case import PUSH_BUTTON, desktop, main, wait_for

DIALOG = "#32770"
LEFT = "let IsToolbarShowing = False"
PLAYING = "get AnimationState"  # asked whenever the application loses or regains the focus
# Screen pixels, as the library has them.
BELOW = 25
LIGHTING_LEFT = 23
LIGHTING_ROOM = 345
ANIMATION_DROP = 40


class Closing(PopupCase):
    """Every way out of a popup, and after each of them one press that opens it at once."""

    def leave(self, popup, *ways):
        is_open = False
        for way in ways:
            with self.subTest(way.__name__):
                if not is_open:
                    self.setUp()
                    self.open(popup)
                is_open = False
                way(popup)
                self.open(popup)
                is_open = True

    def its_button(self, popup):
        for _ in range(2):
            self.press(popup)
            self.assertClosed(popup)
            self.open(popup)
        self.press(popup)
        self.assertClosed(popup)

    def its_button_without_moving(self, popup):
        desktop.click(self.at(popup))
        self.assertClosed(popup)
        desktop.click(self.at(popup))
        self.opened(popup)
        desktop.click(self.at(popup))
        self.assertClosed(popup)

    def its_default_action(self, popup):
        self.probe.press(self.button(popup))
        self.assertClosed(popup)
        self.probe.press(self.button(popup))
        self.opened(popup)
        self.probe.press(self.button(popup))
        self.assertClosed(popup)

    def press_that_ends_elsewhere(self, popup):
        """It closes but does not count."""
        desktop.press_mouse(self.at(popup))
        desktop.release_mouse((self.bar[0] + 60, self.bar[1] + 8))
        self.assertClosed(popup)

    def right_click_on_its_button(self, popup):
        """It closes but is no press."""
        desktop.click(self.at(popup), button=3)
        self.assertClosed(popup)

    def escape(self, popup):
        desktop.key("Escape")
        self.assertClosed(popup)

    def click_on_the_object(self, popup):
        desktop.click(self.object_centre())
        self.assertClosed(popup)

    def click_beside_the_object(self, popup):
        """It ends the editing, and takes the toolbar along."""
        desktop.click(self.beside_object())
        self.probe.gone(TOOLBAR)
        self.settled()
        self.assertEqual([], self.popups())
        self.assertEqual([LEFT], self.host.calls())
        self.edit()
        self.settled()
        self.host.calls()
        self.assertClosed(popup)

    def button_of_another(self, popup):
        other = LIGHTING if popup is THICKNESS else THICKNESS
        self.open(other)
        self.assertFalse(self.is_latched(popup))
        self.open(popup)
        self.assertFalse(self.is_latched(other))
        desktop.key("Escape")
        self.assertClosed(popup)

    def test_another_program(self):
        def scenario(popup):
            self.open(popup)
            self.another_program(popup)
            self.open(popup)

        self.each(scenario)

    def another_program(self, popup):
        # A window manager of Wine's desktop gives a tool window the keyboard only for a click into it, some time after;
        # and who has not got it does not notice that another program gets it.
        left, top, _, _ = self.probe.describe(self.popups()[0])["rect"]
        desktop.click((left + 3, top + 3))
        wait_for(lambda: desktop.focused_title() == "", what="the keyboard in the popup, which has no title")
        self.away_and_back([PLAYING])
        self.assertClosed(popup, PLAYING)

    def every_way_out(self, popup):
        self.leave(popup, self.its_button, self.its_button_without_moving, self.its_default_action,
                   self.press_that_ends_elsewhere, self.right_click_on_its_button, self.escape,
                   self.click_on_the_object, self.click_beside_the_object, self.button_of_another)

    def test_thickness(self):
        self.every_way_out(THICKNESS)

    def test_line_color(self):
        self.every_way_out(LINE)

    def test_fill_color(self):
        self.every_way_out(FILL)

    def test_background(self):
        self.every_way_out(BACKGROUND)

    def test_lighting(self):
        self.every_way_out(LIGHTING)

    def test_animation(self):
        self.leave(ANIMATION, self.escape, self.click_beside_the_object)

    def test_animation_stays_beside_the_editing(self):
        """Its button just shows it again, and whatever else is opened or clicked does not close it."""
        self.open(ANIMATION)
        self.open(ANIMATION)
        self.probe.press(self.button(ANIMATION))
        self.opened(ANIMATION)
        desktop.click(self.object_centre())
        self.settled()
        self.assertEqual(1, len(self.popups()))
        self.assertEqual([], self.host.calls())
        self.open(ANIMATION)


class FastClicks(PopupCase):
    def in_step(self, popup):
        return len(self.popups()) == int(self.is_latched(popup))

    def test_they_leave_latch_and_popup_in_step(self):
        def scenario(popup):
            for count, delay in ((2, 60), (3, 60), (5, 25), (9, 5)):
                self.press(popup, count=count, delay=delay)
                # The last clicks may still be on their way, and a button that is held looks latched.
                wait_for(lambda: self.in_step(popup), what="latch and popup in step")
                self.settled(0.3)
                self.assertTrue(self.in_step(popup))
                self.host.calls()
                if self.popups():
                    self.press(popup)
                    self.assertClosed(popup)
                self.open(popup)

        self.each(scenario, POPUPS[:-1])

    def test_the_playback_bar_stays(self):
        self.press(ANIMATION, count=5)
        self.settled(0.3)
        self.host.calls()
        self.open(ANIMATION)


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
                self.open(popup)

    def test_lighting_stays_for_the_next_choice(self):
        self.choose(LIGHTING, "Light from above")
        self.settled()
        self.assertEqual(["SetLightDirection"], without_values(self.host.calls()))
        self.assertEqual(1, len(self.popups()))
        self.press(LIGHTING)
        self.assertClosed(LIGHTING)
        self.open(LIGHTING)

    def test_animation_stays_for_the_next_step(self):
        self.choose(ANIMATION, "Next Frame")
        self.settled()
        self.assertEqual(["AnimationIncrementFrame", "get AnimationCurrentFrame"], without_values(self.host.calls()))
        self.assertEqual(1, len(self.popups()))
        self.open(ANIMATION)


class Dialog(PopupCase):
    """The colour dialog keeps its palette open; who leaves it finds neither again."""

    def open_dialog(self, popup):
        window = self.open(popup)
        desktop.click(desktop.centre(self.probe.element(window, "More Colors", PUSH_BUTTON)["rect"]))
        dialog = self.probe.window(class_name=DIALOG)
        wait_for(lambda: self.probe.ask("foreground") == dialog["window"], what="the dialog in front")
        self.assertEqual(1, len(self.popups()))
        return dialog

    def test_cancel(self):
        def scenario(popup):
            self.open_dialog(popup)
            desktop.key("Escape")
            self.probe.gone(class_name=DIALOG)
            self.assertClosed(popup)
            self.open(popup)

        self.each(scenario, [LINE, FILL, BACKGROUND])

    def test_another_program(self):
        def scenario(popup):
            self.open_dialog(popup)
            self.away_and_back([PLAYING])
            self.assertEqual([], self.probe.windows(class_name=DIALOG))
            self.assertClosed(popup, PLAYING)
            self.open(popup)

        self.each(scenario, [LINE, FILL, BACKGROUND])

    def test_closing_the_document(self):
        self.open_dialog(FILL)
        self.probe.ask("post", self.document["window"], 0x10, 0, 0)
        self.host.process.wait(timeout=10)
        self.assertEqual(0, self.host.process.returncode)
        self.assertFalse(self.probe.windows(DOCUMENT))
        self.start()


class Placement(PopupCase):
    def bar_corner(self, popup):
        left, top, _, _ = self.probe.element(self.toolbar, popup.bar)["rect"]
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

    def check(self, name, popups=POPUPS):
        for popup in popups:
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
        self.drag_toolbar(300, 500)
        self.check("middle")

    def test_at_the_lower_edge(self):
        self.drag_toolbar(300, 950)
        self.check("below")

    def test_at_the_right_edge(self):
        self.drag_toolbar(900, 500)
        self.check("right", POPUPS[:-1])  # the button of the playback is off the screen


if __name__ == "__main__":
    main()
