"""Losing the focus to another program and getting it back."""

from session_case import SessionCase, desktop, main, wait_for

LOST = ["AnimationState", "StopTimer"]
GAINED = ["AnimationState", "StartTimer"]


class Focus(SessionCase):
    fields = {"AnimationFrameCount": 12}

    def setUp(self):
        self.unfold()
        self.click("Nudge up")  # the toolbar is really at work
        self.client.told(1)
        super().setUp()

    def visible(self):
        return self.probe.describe(self.toolbar)["visible"]

    def away_and_back(self):
        with desktop.OtherProgram() as other:
            other.activate()
            wait_for(lambda: not self.visible(), what="the toolbar to leave")
            desktop.picture(self.screen("focus-lost"))
            self.assertEqual("False False", self.client.do("visible"))
            lost = self.client.told(1)
            self.client.forget()
            self.come_back()
            wait_for(self.visible, what="the toolbar to return")
            gained = self.client.told(1)
        return lost, gained

    def come_back(self):
        """The client's window comes to the front: here by showing one of its own."""
        self.client.do("front")

    def test_still_model(self):
        lost, gained = self.away_and_back()
        self.assertEqual((["AnimationState"], ["AnimationState"]), (lost, gained))
        self.assertTrue(self.probe.describe(self.toolbar)["topmost"])
        self.client.forget()
        self.assertNothingTold()

    def test_playing_model_pauses_meanwhile(self):
        self.client.set(AnimationState=True)
        self.addCleanup(self.client.set, AnimationState=False)
        self.assertEqual((LOST, GAINED), self.away_and_back())

    def test_place_is_kept(self):
        before = self.probe.describe(self.toolbar)["rect"]
        self.away_and_back()
        self.assertEqual(before, self.probe.describe(self.toolbar)["rect"])


if __name__ == "__main__":
    main()
