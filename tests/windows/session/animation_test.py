"""The playback bar under a real mouse and keyboard."""

import time

from client_popup import BOX, FAR_AWAY, FOCUSED, ClientPopupCase
from session_case import PRESSED, PUSH_BUTTON, desktop, main, wait_for

STEPS = ["First Frame", "Previous Frame", "Next Frame", "Last frame"]
SINGLE, REPEAT = "Single Playback", "Repeat Playback"
FIELD = "Frame number"
TEXT = 0x2A  # the role of an entry field
GENERAL = ("Zephra has encountered an error.  Please de-activate Zephra by clicking off the object.  "
           "Double-click the object to re-activate Zephra")
# What the popup asks and tells when it plays and when it pauses.
PLAYS = ["AnimationCurrentFrame", "AnimationFrameCount", "AnimationState := Boolean True"]
PAUSES = ["AnimationCurrentFrame", "AnimationState := Boolean False"]


class Animation(ClientPopupCase):
    opener = before_opener = "Animation Playback"  # alone in its bar
    fields = {"AnimationState": False, "AnimationCurrentFrame": 3, "AnimationFrameCount": 10,
              "AnimationLoopState": True}

    def offers(self, *names):
        wait_for(lambda: set(names) <= set(self.names()), what=f"{names} among {self.names()}")

    def shown_frame(self):
        return self.probe.describe(self.probe.element(self.popup, FIELD))["title"]

    def wait_for_frame(self, text):
        wait_for(lambda: self.shown_frame() == text, what=f"{text!r} in the frame field, not {self.shown_frame()!r}")

    def play_place(self):
        [name] = {"Play", "Pause"} & set(self.names())
        return desktop.centre(self.part(name)["rect"])

    def click_play(self):
        """The button is drawn by the form and lights up by its edge alone: give the pointer time to arrive."""
        desktop.move(self.play_place())
        time.sleep(0.2)
        desktop.click(self.play_place())

    def enter(self, text):
        desktop.click(desktop.centre(self.probe.element(self.popup, FIELD)["rect"]), count=2)
        desktop.key("ctrl+a")
        desktop.type_text(text)
        self.client.forget()
        desktop.key("Return")


class Playing(Animation):
    def test_opening_on_a_paused_model_sends_its_state_again(self):
        self.opened()
        self.assertEqual(["AnimationState", *PAUSES], self.told_at_opening[:3])
        self.offers("Play", *STEPS, SINGLE)
        self.assertEqual("4", self.shown_frame())
        self.popup_picture("animation")

    def test_opening_on_a_playing_model_shows_placeholders(self):
        self.opened(AnimationState=True)
        self.assertEqual(["AnimationState", *PLAYS], self.told_at_opening[:4])
        self.offers("Pause")
        self.assertFalse(set(STEPS) & set(self.names()))
        self.assertEqual(" -- ", self.shown_frame())
        self.popup_picture("animation-opened-playing")

    def test_play_and_pause(self):
        self.opened()
        self.click_play()
        self.assertTold(*PLAYS)
        self.offers("Pause")
        self.assertEqual(" -- ", self.shown_frame())
        self.popup_picture("animation-playing-hot")
        self.client.set(AnimationCurrentFrame=6)
        self.client.forget()
        self.click_play()
        self.assertTold(*PAUSES)
        self.offers("Play", *STEPS)
        self.assertEqual("7", self.shown_frame())

    def test_placeholders_do_not_react(self):
        self.opened()
        places = [desktop.centre(self.part(name)["rect"]) for name in STEPS]
        self.click_play()
        self.offers("Pause")
        self.client.forget()
        for place in places:
            desktop.click(place)
        self.click_play()
        self.assertTold(*PAUSES)

    def test_playing_from_the_last_frame_starts_again(self):
        self.opened(AnimationCurrentFrame=9)
        self.assertEqual("10", self.shown_frame())
        self.click_play()
        self.assertTold(*PLAYS[:2], "AnimationCurrentFrame := Integer 0", PLAYS[2])

    def test_edge_follows_pointer_and_press(self):
        self.opened()
        x, y = self.play_place()
        box = (x - 12, y - 12, x + 13, y + 13)
        desktop.move(FAR_AWAY)
        flat = desktop.pixels(box)
        desktop.move((x, y))
        wait_for(lambda: desktop.pixels(box) != flat, what="a raised edge")
        raised = desktop.pixels(box)
        self.popup_picture("animation-hot")
        desktop.press_mouse((x, y))
        wait_for(lambda: desktop.pixels(box) not in (flat, raised), what="a sunken edge")
        self.popup_picture("animation-pressed")
        desktop.release_mouse(FAR_AWAY)  # what the button has captured comes up for it everywhere
        self.assertTold(*PLAYS)
        self.click_play()
        desktop.move(FAR_AWAY)
        wait_for(lambda: desktop.pixels(box) == flat, what="no edge")


class Frames(Animation):
    def test_steps(self):
        self.opened()
        for name, told, text in (("Next Frame", ["AnimationIncrementFrame"], "5"),
                                 ("Previous Frame", ["AnimationDecrementFrame"], "4"),
                                 ("First Frame", ["AnimationCurrentFrame := Integer 0"], "1"),
                                 ("Previous Frame", ["AnimationDecrementFrame"], "1"),
                                 ("Last frame", ["AnimationFrameCount", "AnimationCurrentFrame := Integer 9"], "10"),
                                 ("Next Frame", ["AnimationIncrementFrame"], "10")):
            with self.subTest(name=name, text=text):
                self.client.forget()
                self.press(name)
                self.assertTold(*told, "AnimationCurrentFrame")
                self.wait_for_frame(text)

    def test_typed_frame_is_an_index(self):
        self.opened()
        self.enter("7")
        self.assertTold("AnimationCurrentFrame := Integer 7", "AnimationCurrentFrame")
        self.wait_for_frame("7")
        self.popup_picture("animation-frame-entered")

    def test_what_is_no_number_changes_nothing(self):
        self.opened()
        for text in ("abc", "99999"):
            self.enter(text)
            self.assertEqual(text, self.shown_frame())
            self.client.forget()
            self.press("Next Frame")
            self.assertTold("AnimationIncrementFrame", "AnimationCurrentFrame")

    def test_typing_alone_changes_nothing(self):
        self.opened()
        desktop.click(desktop.centre(self.probe.element(self.popup, FIELD)["rect"]))
        desktop.type_text("2")
        wait_for(lambda: "2" in self.shown_frame(), what="the typed digit")
        self.press("Next Frame")
        self.assertTold("AnimationIncrementFrame", "AnimationCurrentFrame")

    def test_loop_turns_the_models_state(self):
        self.opened()
        self.press(SINGLE)
        self.assertTold("AnimationLoopState", "AnimationLoopState := Boolean False")
        self.offers(REPEAT)
        self.popup_picture("animation-single")
        self.client.forget()
        self.press(REPEAT)
        self.assertTold("AnimationLoopState", "AnimationLoopState := Boolean True")
        self.offers(SINGLE)


class Keyboard(Animation):
    def focused_all(self):
        return self.names(FOCUSED) + self.probe.names_in_state(self.popup, FOCUSED, TEXT)

    def tab_to(self, *names):
        for _ in range(6):
            before = self.focused_all()
            if set(before) & set(names):
                return
            desktop.key("Tab")
            wait_for(lambda: self.focused_all() not in ([], before), what=f"the keyboard to leave {before}")
        self.fail(f"the keyboard does not come to {names}")

    def test_tab_moves_through_all_and_keys_press(self):
        self.opened()
        seen = []
        for _ in range(5):
            desktop.key("Tab")
            wait_for(lambda: self.focused_all() and self.focused_all()[0] not in seen, what=f"another one than {seen}")
            seen.append(self.focused_all()[0])
        self.assertCountEqual(["Play", FIELD, SINGLE], [name for name in seen if name not in STEPS])
        self.assertEqual(5, len(seen))
        self.popup_picture("animation-keyboard")
        self.tab_to("Play")
        self.client.forget()
        desktop.key("space")
        self.assertTold(*PLAYS)
        self.client.forget()
        desktop.key("Return")
        self.assertTold(*PAUSES)

    def test_opened_by_keyboard_starts_on_the_play_button(self):
        self.open_by_keyboard()
        wait_for(lambda: self.focused_all() == ["Play"], what="the keyboard on the play button")
        self.popup_picture("animation-opened-by-keyboard")
        self.client.forget()
        desktop.key("space")
        self.assertTold(*PLAYS)

    def test_arrows_move_along_the_steps(self):
        self.opened()
        self.tab_to(*STEPS[:2])
        desktop.key("End")
        wait_for(lambda: self.focused_all() == ["Previous Frame"], what="the last step of the bar")
        desktop.key("Left")
        wait_for(lambda: self.focused_all() == ["First Frame"], what="the step before")
        desktop.key("Right")
        wait_for(lambda: self.focused_all() == ["Previous Frame"], what="the step after")
        self.client.forget()
        desktop.key("Return")
        self.assertTold("AnimationDecrementFrame", "AnimationCurrentFrame")

    def test_assistive_tools_play(self):
        self.opened()
        self.assertEqual(["Press"], [e["action"] for e in self.elements() if e["name"] == "Play"])
        self.probe.press(self.part("Play"))
        self.assertTold(*PLAYS)
        self.offers("Pause")

    def test_escape_closes_and_the_button_opens_again(self):
        self.opened()
        desktop.key("Tab", "Escape")
        self.wait_closed()
        self.opened()
        self.assertEqual("4", self.shown_frame())


class Raising(Animation):
    """The loop and forward buttons tell the failure itself, the others the general message."""

    def tearDown(self):
        self.client.do("raise", "", 0)
        for box in self.probe.windows(class_name=BOX):
            self.probe.ask("post", box["window"], 0x10, 0, 0)

    def message(self, member, number, act, text):
        self.client.do("raise", member, number)
        act()
        box = self.probe.window(class_name=BOX)
        texts = [e["name"] for e in self.probe.elements(box) if e["class"] == "Static" and e["name"]]
        self.assertEqual(("Zephra Toolbar", text), (box["title"], *texts))
        self.waitForFront(box)
        desktop.key("Return")
        self.probe.gone(class_name=BOX)

    def test_forward_tells_the_failure(self):
        self.opened()
        for number, words in ((7, "Out of memory"), (380, "Invalid property value"), (1234, "Application-defined or object-defined error")):
            self.message("AnimationIncrementFrame", number, lambda: self.press("Next Frame"),
                         f"Error occurred: {number}: {words}")
        self.message("AnimationFrameCount", 5, lambda: self.press("Last frame"),
                     "Error occurred: 5: Invalid procedure call or argument")

    def test_loop_tells_the_failure(self):
        self.opened()
        for member in ("AnimationLoopState", "AnimationLoopState :="):
            self.message(member, 5, lambda: self.press(SINGLE), "Error occurred: 5: Invalid procedure call or argument")
            self.offers(SINGLE)

    def test_rewind_and_play_have_the_general_message(self):
        self.opened()
        self.message("AnimationDecrementFrame", 7, lambda: self.press("Previous Frame"), GENERAL)
        self.message("AnimationCurrentFrame :=", 5, lambda: self.press("First Frame"), GENERAL)
        self.message("AnimationState :=", 5, self.click_play, GENERAL)
        self.offers("Pause")
        self.message("AnimationState :=", 7, self.click_play, GENERAL)
        self.offers("Play")

    def test_frame_entry_is_silent(self):
        self.opened()
        self.client.do("raise", "AnimationCurrentFrame :=", 5)
        self.enter("6")
        self.assertTold("AnimationCurrentFrame := Integer 6")
        self.no_message()
        self.assertEqual("6", self.shown_frame())

    def test_unreadable_state_opens_nothing(self):
        self.message("AnimationState", 380, lambda: self.click(self.opener), GENERAL)
        self.assertIsNone(self.shown_popup())


del Animation  # the frame of the above, no test of its own


if __name__ == "__main__":
    main()
