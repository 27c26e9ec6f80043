"""Inside the menu of line thicknesses: what is preselected, and what each choice tells the model."""

from session_case import HOT, PRESSED, SCREENS, SessionCase, desktop, main, wait_for

FOCUSED = 0x4
BUTTON = "Line Thickness"
CHOICES = {"Extra thin": 50, "Thin": 75, "Medium": 100, "Thick": 150, "Extra thick": 200}
PRESELECTED = {-40: "Extra thin", 25: "Extra thin", 50: "Extra thin", 51: "Thin", 75: "Thin", 76: "Medium",
               100: "Medium", 101: "Thick", 150: "Thick", 151: "Extra thick", 30000: "Extra thick"}


class Thickness(SessionCase):
    fields = {"InterfaceFlags": 19}

    def setUp(self):
        if self.popup():
            desktop.key("Escape")
            self.waitForNoPopup()
        desktop.move((900, 700))
        super().setUp()

    def open(self, scale=100):
        self.client.set(LineThicknessScale=scale)
        self.client.forget()
        self.openPopup(BUTTON)
        self.assertTold("LineThicknessScale")
        self.client.forget()

    def assertChosen(self, *told):
        self.assertTold(*told)
        self.waitForNoPopup()
        self.waitForState(BUTTON, PRESSED, False)

    def picture(self, name):
        left, top, right, bottom = self.popup()["rect"]
        desktop.picture(SCREENS / f"thickness-{name}.png", (left - 20, top - 30, right + 20, bottom + 20))

    def test_preselection(self):
        for scale, name in PRESELECTED.items():
            with self.subTest(scale):
                self.open(scale)
                self.assertEqual([name], self.partsIn(PRESSED))
                self.picture(f"at-{scale}")
                desktop.key("Escape")
                self.assertChosen()

    def test_pointer_lights_one_button_up(self):
        self.open()
        for name in CHOICES:
            desktop.move(desktop.centre(self.part(name)["rect"]))
            wait_for(lambda: self.partsIn(HOT) == [name], what=f"{name} under the pointer")
        self.picture("hover")

    def test_choice_by_default_action(self):
        for name, scale in CHOICES.items():
            with self.subTest(name):
                self.open()
                self.probe.press(self.part(name))
                self.assertChosen(f"LineThicknessScale := Integer {scale}")

    def test_choice_by_keyboard(self):
        self.open(75)
        desktop.key("Down")
        wait_for(lambda: self.partsIn(FOCUSED) == ["Thin"], what="the keyboard on the current thickness")
        desktop.key("Down", "Down")
        wait_for(lambda: self.partsIn(FOCUSED) == ["Thick"], what="the keyboard two further")
        self.picture("keyboard")
        desktop.key("Return")
        self.assertChosen("LineThicknessScale := Integer 150")

    def test_tab_goes_to_the_current_thickness_and_stays_in_the_bar(self):
        self.open(150)
        desktop.key("Tab")
        wait_for(lambda: self.partsIn(FOCUSED) == ["Thick"], what="the keyboard on the current thickness")
        desktop.key("Tab", "space")
        self.assertChosen("LineThicknessScale := Integer 150")

    def test_escape_chooses_nothing(self):
        self.open()
        desktop.key("Down", "Down", "Escape")
        self.assertChosen()

    def test_model_that_refuses_is_told_to_nobody(self):
        self.open()
        self.client.do("raise", "LineThicknessScale :=", 5)
        self.client.forget()
        self.probe.press(self.part("Thick"))
        self.assertChosen("LineThicknessScale := Integer 150")
        self.assertFalse(self.probe.windows(class_name="#32770"), "a message")

    def test_model_that_cannot_tell_opens_it_all_the_same(self):
        self.client.do("raise", "LineThicknessScale", 5)
        self.client.forget()
        self.openPopup(BUTTON)
        self.assertTold("LineThicknessScale")
        self.assertFalse(self.probe.windows(class_name="#32770"), "a message")
        self.client.forget()
        self.probe.press(self.part("Thin"))
        self.assertChosen("LineThicknessScale := Integer 75")


if __name__ == "__main__":
    main()
