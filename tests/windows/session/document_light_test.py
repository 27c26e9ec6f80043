"""What the light and the animation do to the picture of a model in the demo host, with real input."""

import time

from popup_case import ANIMATION, LIGHTING, PopupCase
from session_case import PUSH_BUTTON, SCREENS, desktop, main, wait_for


class Document(PopupCase):
    def object_area(self):
        x, y = self.object_centre()
        return x - 120, y - 120, x + 120, y + 100

    def seen(self):
        return desktop.pixels(self.object_area())

    def brightness(self, side=None):
        """The mean of the drawn pixels, of the left half (-1), of the right one (1) or of all; the page is white."""
        left, _, right, _ = self.object_area()
        width = right - left
        pixels = self.seen()
        values = []
        for i in range(0, len(pixels), 3):
            column = i // 3 % width
            if side is not None and (column < width // 2) != (side < 0):
                continue
            color = pixels[i:i + 3]
            if min(color) < 240:
                values.append(sum(color) / 3)
        return sum(values) / len(values)

    def press_in(self, popup, name):
        place = desktop.centre(self.probe.element(popup, name, PUSH_BUTTON)["rect"])
        desktop.move(place)
        time.sleep(0.2)
        desktop.click(place)
        return place

    def changes(self):
        """Whether the picture moves by itself."""
        before = self.seen()
        time.sleep(0.4)
        return self.seen() != before


class Light(Document):
    def test_a_lamp_lights_its_side_at_once(self):
        popup = self.open(LIGHTING)
        balance = {}
        for side in ("left", "right"):
            before = self.seen()
            self.press_in(popup, f"Light from {side}")
            self.host.wait_for_call("SetLightDirection")
            wait_for(lambda: self.seen() != before, timeout=2, what="another shading")
            balance[side] = self.brightness(-1) - self.brightness(1)
            desktop.picture(SCREENS / f"document-light-{side}.png", self.document["rect"])
        self.assertGreater(balance["left"], balance["right"] + 5)

    def test_off_darkens_and_on_restores(self):
        popup = self.open(LIGHTING)
        self.press_in(popup, "Light from front")
        self.host.wait_for_call("SetLightDirection")
        time.sleep(0.3)
        lit, lit_picture = self.brightness(), self.seen()
        self.press_in(popup, "Turn the light off")
        self.host.wait_for_call("let LightIsOn = False")
        wait_for(lambda: self.brightness() < lit - 10, timeout=3, what="a darker model")
        desktop.picture(SCREENS / "document-light-off.png", self.document["rect"])
        self.press_in(popup, "Turn the light on")
        self.host.wait_for_call("let LightIsOn = True")
        wait_for(lambda: self.seen() == lit_picture, timeout=3, what="the model as it was")


class Playback(Document):
    def tearDown(self):
        if not self.popups():
            self.press(ANIMATION)
        popup = wait_for(lambda: next(iter(self.popups()), None), what="the playback bar")
        names = self.probe.names_in_state(popup)
        if "Pause" in names:
            self.press_in(popup, "Pause")
        if "Repeat Playback" in names:
            self.press_in(popup, "Repeat Playback")

    def play(self):
        popup = self.open(ANIMATION)
        self.assertFalse(self.changes())
        self.press_in(popup, "Play")
        self.host.wait_for_call("let AnimationState = True")
        wait_for(self.changes, what="a picture that moves")
        return popup

    def test_frames_are_seen(self):
        popup = self.open(ANIMATION)
        self.press_in(popup, "First Frame")
        self.host.wait_for_call("let AnimationCurrentFrame = 0")
        time.sleep(0.3)
        first = self.seen()
        self.press_in(popup, "Next Frame")
        wait_for(lambda: self.seen() != first, timeout=2, what="the next frame")
        self.press_in(popup, "Previous Frame")
        wait_for(lambda: self.seen() == first, timeout=2, what="the first frame again")

    def test_playing_rests_while_another_program_is_in_front(self):
        self.play()
        with desktop.OtherProgram() as other:
            other.activate()
            self.host.wait_for_call("StopTimer")
            self.assertEqual([], self.popups())
            time.sleep(0.2)
            self.assertFalse(self.changes())
            left, top, _, _ = self.document["rect"]
            desktop.click((left + 200, top + 10))
            self.host.wait_for_call("StartTimer")
            wait_for(self.changes, what="a picture that moves again")

    def test_single_playback_ends_on_the_last_frame(self):
        popup = self.open(ANIMATION)
        self.press_in(popup, "Single Playback")
        self.host.wait_for_call("let AnimationLoopState = False")
        self.press_in(popup, "Last frame")
        time.sleep(0.3)
        last = self.seen()
        self.press_in(popup, "Play")  # from the beginning
        self.host.wait_for_call("let AnimationCurrentFrame = 0")
        wait_for(lambda: self.seen() != last, what="the beginning")
        wait_for(lambda: self.seen() == last and not self.changes(), timeout=15, what="the end")


del Document  # the frame of the above, no test of its own


if __name__ == "__main__":
    main()
