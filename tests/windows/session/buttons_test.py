"""The toolbar's buttons under a real mouse."""

import time

from session_case import HOT, PRESSED, UNAVAILABLE, SessionCase, desktop, main, wait_for

WORLD = ["Replace Zephra", "Line Thickness", "Line Color", "Fill Color", "Background Options", "Model Orientation",
         "Lighting", "Animation Playback", "Zephra Help"]
MOVEMENT = ["Reset Model", "PresetDropdown", "Nudge up", "Nudge Down", "Nudge Left", "Nudge Right", "Tilt Up",
            "Tilt Down", "Tilt Left", "Tilt Right", "Tilt Clockwise", "Tilt Counter-clockwise", "Decrease Model Size",
            "Increase Model Size"]
CALLS = {
    "Reset Model": ["ResetHome", "RefreshDisplay"],
    "Nudge up": ["MoveY Integer 1"],
    "Nudge Down": ["MoveY Integer -1"],
    "Nudge Left": ["MoveX Integer 1"],
    "Nudge Right": ["MoveX Integer -1"],
    "Tilt Up": ["RotateX Integer 2"],
    "Tilt Down": ["RotateX Integer -2"],
    "Tilt Left": ["RotateY Integer 2"],
    "Tilt Right": ["RotateY Integer -2"],
    "Tilt Clockwise": ["RotateZ Integer 2"],
    "Tilt Counter-clockwise": ["RotateZ Integer -2"],
    "Decrease Model Size": ["ScaleModel Integer -1"],
    "Increase Model Size": ["ScaleModel Integer 1"],
}


class Table(SessionCase):
    fields = {"InterfaceFlags": 1 + 2 + 16, "AnimationFrameCount": 12}

    def test_1_folded_bar_offers_the_upper_row_only(self):
        self.assertEqual(49, self.height())
        self.assertEqual(WORLD, [b["name"] for b in self.buttons() if self.inside(b)])
        for button in self.buttons():
            self.assertEqual(not self.inside(button), bool(button["state"] & UNAVAILABLE), button)
        self.picture("toolbar-folded")

    def test_2_unfolded_bar_offers_all_buttons(self):
        self.unfold()
        self.waitForState("Model Orientation", PRESSED)
        buttons = self.buttons()
        self.assertCountEqual(WORLD + MOVEMENT, [b["name"] for b in buttons])
        for button in buttons:
            self.assertEqual("Press", button["action"], button)
            self.assertTrue(self.inside(button), button)
        self.picture("toolbar-unfolded")

    def test_3_second_press_folds_again(self):
        self.unfold()
        self.click("Model Orientation")
        wait_for(lambda: self.height() == 49, what="the folded bar")
        self.waitForState("Model Orientation", PRESSED, False)

    def inside(self, button):
        bar = self.probe.describe(self.toolbar)["rect"]
        rect = button["rect"]
        return rect[0] >= bar[0] and rect[1] >= bar[1] and rect[2] <= bar[2] and rect[3] <= bar[3]


class Movement(SessionCase):
    def setUp(self):
        self.unfold()
        super().setUp()

    def test_each_button_makes_its_call(self):
        for name, calls in CALLS.items():
            with self.subTest(name):
                self.client.forget()
                self.click(name)
                self.assertTold(*calls)

    def test_default_action_does_what_a_click_does(self):
        for name, calls in CALLS.items():
            with self.subTest(name):
                self.client.forget()
                self.probe.press(self.button(name))
                self.assertTold(*calls)

    def test_clicks_in_quick_succession_all_count(self):
        self.click("Nudge Left", count=2)
        self.assertTold("MoveX Integer 1", "MoveX Integer 1")

    def test_press_released_elsewhere_is_none(self):
        desktop.press_mouse(self.at("Nudge up"))
        self.waitForState("Nudge up", PRESSED)
        desktop.release_mouse(self.at("Nudge Right"))
        self.waitForState("Nudge up", PRESSED, False)
        self.assertNothingTold()

    def test_press_released_off_the_toolbar_is_none(self):
        desktop.press_mouse(self.at("Tilt Up"))
        desktop.release_mouse((900, 700))
        self.assertNothingTold()

    def test_press_that_comes_back_counts(self):
        desktop.press_mouse(self.at("Tilt Up"))
        desktop.move((900, 700))
        self.waitForState("Tilt Up", PRESSED, False)
        desktop.release_mouse(self.at("Tilt Up"))
        self.assertTold("RotateX Integer 2")

    def test_right_button_presses_nothing(self):
        self.click("Tilt Up", button=3)
        self.assertNothingTold()

    def test_button_under_the_pointer_is_hot(self):
        desktop.move(self.at("Tilt Left"))
        self.waitForState("Tilt Left", HOT)
        self.picture("button-hot")
        desktop.move((900, 700))
        self.waitForState("Tilt Left", HOT, False)
        self.assertNothingTold()


class Tooltips(SessionCase):
    BUTTON = "Tilt Left"

    def setUp(self):
        super().setUp()
        self.unfold()
        self.leave()

    def test_a_tooltip_goes_at_a_press_and_comes_back_with_the_pointer(self):
        """Over a button that was just pressed it would cover what the button opened."""
        self.hover()
        self.click(self.BUTTON)
        self.assertGone()
        desktop.move([p + 2 for p in self.at(self.BUTTON)])
        self.wait()
        self.assertGone()
        self.leave()
        self.hover()

    def test_a_press_comes_before_the_tooltip(self):
        self.click(self.BUTTON)
        self.wait()
        self.assertGone()
        self.leave()
        self.hover()

    def wait(self):
        time.sleep(1.2)  # longer than a tooltip takes to appear

    def leave(self):
        desktop.move((900, 700))
        self.waitForState(self.BUTTON, HOT, False)

    def hover(self):
        """In two steps: the system does not tell of a pointer that it finds where it saw it last."""
        desktop.move([p + 1 for p in self.at(self.BUTTON)])
        desktop.move(self.at(self.BUTTON))
        self.waitForState(self.BUTTON, HOT)
        self.probe.window(self.BUTTON, "tooltips_class32")

    def assertGone(self):
        self.assertEqual([], self.probe.windows(class_name="tooltips_class32"))


if __name__ == "__main__":
    main()
