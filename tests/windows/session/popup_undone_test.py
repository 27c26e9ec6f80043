"""A model that hides, disposes of or releases the control from inside a call that a popup makes."""

from dataclasses import dataclass

from session_case import PRESSED, SessionCase, desktop, main, wait_for

FORM = "NeridaToolbarForm"
BOX = "#32770"
HIDDEN = "IsToolbarShowing := Boolean False"


@dataclass
class Popup:
    button: str
    asks: str  # what the model hears while it opens
    choice: str
    tells: str  # what it hears of the choice


POPUPS = [Popup("Line Thickness", "LineThicknessScale", "Thick", "LineThicknessScale :="),
          Popup("Line Color", "IsLineColorDefault", "Plum", "LineColor :="),
          Popup("Fill Color", "IsSurfaceColorDefault", "LookStyle Default", "RestoreDefaultSurfaceColor"),
          Popup("Background Options", "IsBackgroundDefault", "Plum", "BackgroundColor :="),
          Popup("Lighting", "GetLightDirection", "Light from above", "SetLightDirection"),
          Popup("Animation Playback", "AnimationCurrentFrame", "Next Frame", "AnimationIncrementFrame")]


class Undone(SessionCase):
    """Nothing stays behind, the end is told once, and a toolbar that comes back opens the popup at the first press."""

    fields = {"InterfaceFlags": 19, "AnimationFrameCount": 12}

    def setUp(self):
        self.client.do("undo", "", "")
        super().setUp()

    def bring_back(self, way):
        if way == "release":
            self.client.do("create")
        if way != "hide":
            self.client.do("init", 0)
        self.client.do("show", 300, 300)
        type(self).toolbar = self.probe.window("Zephra Toolbar: ")

    def undo(self, way, popup, act):
        wait_for(lambda: f"undone by {way}" in self.client.calls, what=f"{way} during {act}")
        self.client.do("set")  # answered when the call that was undone has returned
        # A control that is let go of without a word leaves its model in peace.
        self.assertEqual(0 if way == "release" else 1, self.client.calls.count(HIDDEN))
        for left_behind in (FORM, BOX):
            self.assertEqual([], self.probe.windows(class_name=left_behind))
        self.bring_back(way)
        self.assertFalse(self.button(popup.button)["state"] & PRESSED)

    def opens_at_once(self, popup):
        self.client.forget()
        self.openPopup(popup.button)
        self.client.do("set")
        self.assertIn(popup.asks, self.client.calls)

    def undone(self, way):
        for popup in POPUPS:
            with self.subTest(popup.button):
                self.client.forget()
                self.client.do("undo", popup.asks, way)
                self.click(popup.button)
                self.undo(way, popup, "opening")
                self.opens_at_once(popup)
                self.client.forget()
                self.client.do("undo", popup.tells, way)
                desktop.click(desktop.centre(self.part(popup.choice)["rect"]))
                self.undo(way, popup, "the choice")
                self.opens_at_once(popup)
                desktop.key("Escape")
                self.waitForNoPopup()

    def test_hidden(self):
        self.undone("hide")

    def test_disposed_of(self):
        self.undone("dispose")

    def test_released(self):
        self.undone("release")


if __name__ == "__main__":
    main()
