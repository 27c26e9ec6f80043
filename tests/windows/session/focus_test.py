"""Losing the focus to another program and getting it back."""

from session_case import SCREENS, SessionCase, desktop, main, wait_for

LOST = ["AnimationState", "StopTimer"]
GAINED = ["AnimationState", "StartTimer"]


class Focus(SessionCase):
    """The client has a window of its own here, as programs have that edit a document."""

    fields = {"AnimationFrameCount": 12}

    def setUp(self):
        self.client.do("show", 20, 40)  # out of the way of the other windows
        super().setUp()
        self.client.send("document")
        self.document = self.probe.window("Document")
        self.waitForFront(self.document)
        self.unfold()
        self.client.calls.clear()
        self.click("Nudge up")
        wait_for(lambda: self.client.calls == ["MoveY Integer 1"], what="a toolbar at work")
        self.client.calls.clear()

    def end_document(self):
        desktop.click(self.document_point())
        self.waitForFront(self.document)
        desktop.key("Return")
        self.client.answer()

    def document_point(self):
        left, _, _, bottom = self.probe.describe(self.document)["rect"]
        return left + 20, bottom - 15

    def bar(self):
        return self.probe.describe(self.toolbar)

    def away_and_back(self):
        with desktop.OtherProgram() as other:
            other.activate()
            wait_for(lambda: not self.bar()["visible"], what="the toolbar to leave")
            self.assertTrue(self.probe.describe(self.document)["visible"])
            desktop.picture(SCREENS / "focus-lost.png")
            desktop.click(self.document_point())
            wait_for(lambda: self.bar()["visible"], what="the toolbar to return")
            desktop.picture(SCREENS / "focus-gained.png")

    def test_still_model(self):
        self.away_and_back()
        self.assertTrue(self.bar()["topmost"])
        self.end_document()
        self.assertTold("AnimationState", "AnimationState")
        self.client.forget()
        self.assertNothingTold()

    def test_playing_model_pauses_meanwhile(self):
        self.end_document()
        self.client.set(AnimationState=True)
        self.addCleanup(self.client.set, AnimationState=False)
        self.setUp()
        self.away_and_back()
        self.end_document()
        self.assertTold(*LOST, *GAINED)

    def test_place_is_kept(self):
        before = self.bar()["rect"]
        self.away_and_back()
        self.assertEqual(before, self.bar()["rect"])
        self.end_document()


if __name__ == "__main__":
    main()
