"""The picker of the light under a real mouse and keyboard."""

import time

from client_popup import FAR_AWAY, ClientPopupCase
from session_case import HOT, PRESSED, UNAVAILABLE, desktop, main, wait_for

LAMPS = {
    "Light from upper left": (-100, -100, 50),
    "Light from above": (0, -100, 0),
    "Light from upper right": (100, -100, 50),
    "Light from left": (-100, 0, 0),
    "Light from front": (0, 0, 100),
    "Light from right": (100, 0, 0),
    "Light from lower left": (-100, 100, 50),
    "Light from below": (0, 100, 0),
    "Light from lower right": (100, 100, 50),
}
FRONT = "Light from front"
OFF, ON = "Turn the light off", "Turn the light on"


class Lighting(ClientPopupCase):
    opener = "Lighting"
    before_opener = "Model Orientation"
    fields = {"LightIsOn": True, "LightX": 0, "LightY": 0, "LightZ": 100, "LightStatus": 0}

    def pressed(self):
        return [name for name in self.names(PRESSED) if name in LAMPS]

    def wait_pressed(self, *names):
        wait_for(lambda: self.pressed() == list(names), what=f"{names} pressed, not {self.pressed()}")

    def cube(self):
        """What the middle of the popup looks like."""
        left, top, right, bottom = self.part(FRONT)["rect"]
        return desktop.pixels((left + 3, top + 3, right - 3, bottom - 3))

    def wait_for_cube(self, picture):
        wait_for(lambda: self.cube() == picture, what="the cube to look as before")

    def rest(self):
        """The pointer over the popup's own ground."""
        _, _, right, bottom = self.popup["rect"]
        desktop.move((right - 12, bottom - 12))
        wait_for(lambda: not self.names(HOT), what="no lamp below the pointer")


class Lamps(Lighting):
    def test_opening_asks_for_the_light_and_latches_the_button(self):
        self.opened()
        self.assertEqual(["LightIsOn", "GetLightDirection", "LightIsOn := Boolean True"], self.told_at_opening)
        self.waitForState("Lighting", PRESSED)
        self.wait_pressed(FRONT)
        self.popup_picture("lighting")

    def test_every_direction_of_the_model_shows_its_lamp(self):
        for name, (x, y, _) in LAMPS.items():
            with self.subTest(name=name):
                self.opened(LightX=x // 3, LightY=y // 20, LightZ=-5)
                self.wait_pressed(name)
                self.close()

    def test_every_lamp_sends_its_direction_and_stays_open(self):
        self.opened()
        for name, codes in LAMPS.items():
            with self.subTest(name=name):
                self.client.forget()
                self.press(name)
                self.assertTold("SetLightDirection Long {} Long {} Long {}".format(*codes))
                self.wait_pressed(name)
        self.assertIsNotNone(self.shown_popup())

    def test_names_actions_and_states(self):
        self.opened()
        buttons = [e for e in self.elements() if e["action"]]
        self.assertCountEqual([*LAMPS, OFF], [b["name"] for b in buttons])
        for button in buttons:
            self.assertEqual("Press", button["action"])
            self.assertFalse(button["state"] & UNAVAILABLE, button)

    def test_assistive_tools_press_lamps(self):
        self.opened(LightX=-100)
        self.probe.press(self.part("Light from below"))
        self.assertTold("SetLightDirection Long 0 Long 100 Long 0")
        self.probe.press(self.part(FRONT))
        self.wait_pressed(FRONT)
        self.assertEqual("SetLightDirection Long 0 Long 0 Long 100", self.client.told(2)[1])

    def test_cube_previews_the_lamp_under_the_pointer(self):
        self.opened(LightX=100)
        self.rest()
        current = self.cube()
        seen = {current}
        for name in LAMPS:
            if name in (FRONT, "Light from right"):
                continue
            self.point_at(name)
            wait_for(lambda: self.cube() not in seen, what=f"a cube of its own for {name}")
            seen.add(self.cube())
        self.assertEqual(8, len(seen))
        self.rest()
        self.wait_for_cube(current)
        self.point_at("Light from left")
        wait_for(lambda: self.cube() != current, what="another cube")
        desktop.move(FAR_AWAY)
        self.wait_for_cube(current)

    def test_unreadable_direction_keeps_the_last_one(self):
        self.opened(LightX=-100)
        self.close()
        self.opened(LightX=100, LightStatus=5)
        self.wait_pressed("Light from left")


class Switch(Lighting):
    def test_off_and_on_keep_the_direction(self):
        self.opened(LightX=30, LightY=-5, LightZ=80)
        self.wait_pressed("Light from upper right")
        self.rest()
        lit = self.cube()
        self.press(OFF)
        self.assertTold("LightIsOn := Boolean False")
        wait_for(lambda: self.part(ON), what="a switch to turn the light on")
        for name in LAMPS:
            self.assertTrue(self.state(name) & UNAVAILABLE, name)
        self.rest()
        self.popup_picture("lighting-off")
        self.assertNotEqual(lit, self.cube())
        self.press(ON)
        self.assertEqual("LightIsOn := Boolean True", self.client.told(2)[1])
        self.wait_pressed("Light from upper right")
        self.rest()
        self.wait_for_cube(lit)

    def test_lamps_of_an_unlit_model_do_nothing(self):
        self.opened(LightIsOn=False)
        self.assertEqual(["LightIsOn", "LightIsOn := Boolean False"], self.told_at_opening)
        dark = self.cube()
        for name in LAMPS:
            desktop.click(desktop.centre(self.part(name)["rect"]))
            self.assertEqual(dark, self.cube())
        self.press(ON)
        self.assertTold("LightIsOn := Boolean True")
        self.wait_pressed(FRONT)


class Keyboard(Lighting):
    def key(self, *names):
        desktop.key(*names)

    def wait_focused(self, *names):
        wait_for(lambda: self.focused() == list(names), what=f"the keyboard on {names}, not {self.focused()}")

    def test_arrows_move_and_keys_choose(self):
        self.opened(LightX=-100, LightY=-100)
        self.assertEqual([], self.focused())
        self.key("Right")
        self.wait_focused("Light from upper left")
        self.popup_picture("lighting-keyboard")
        for arrow, name in (("Right", "Light from above"), ("Down", FRONT), ("Down", "Light from below"),
                            ("Right", "Light from lower right"), ("Up", "Light from right"), ("Right", "Light from right"),
                            ("Up", "Light from upper right")):
            self.key(arrow)
            self.wait_focused(name)
        self.client.forget()
        self.key("Return")
        self.assertTold("SetLightDirection Long 100 Long -100 Long 50")
        self.wait_pressed("Light from upper right")
        self.key("Left", "Down", "space")
        self.assertEqual("SetLightDirection Long 0 Long 0 Long 100", self.client.told(2)[1])
        self.wait_pressed(FRONT)
        self.wait_focused(FRONT)

    def test_opened_by_keyboard_starts_on_the_current_lamp(self):
        self.client.set(LightX=100)
        self.open_by_keyboard()
        self.wait_focused("Light from right")
        self.popup_picture("lighting-opened-by-keyboard")
        self.close()
        self.client.set(LightIsOn=False)
        self.open_by_keyboard()
        self.wait_focused(ON)

    def test_the_frame_is_no_stop_of_the_tab_key(self):
        self.open_by_keyboard()
        self.wait_focused(FRONT)
        seen = []
        for _ in range(6):
            before = self.focused()
            self.key("Tab")
            wait_for(lambda: self.focused() not in ([], before), what=f"the keyboard to leave {before}")
            seen += self.focused()
        self.assertEqual(6, len(set(seen)))
        self.assertEqual(FRONT, seen[-1])

    def test_tab_leads_to_the_switch_and_back(self):
        self.opened()
        self.key("Right")
        self.wait_focused(FRONT)
        for _ in range(6):
            if self.focused() == [OFF]:
                break
            self.key("Tab")
        self.wait_focused(OFF)
        self.key("space")
        self.assertTold("LightIsOn := Boolean False")
        self.wait_focused(ON)
        self.key("Return")
        self.assertEqual("LightIsOn := Boolean True", self.client.told(2)[1])
        self.wait_focused(OFF)

    def test_the_mouse_shows_no_focus(self):
        self.opened()
        self.key("Right")
        self.wait_focused(FRONT)
        self.press("Light from left")
        self.rest()
        self.popup_picture("lighting-mouse-after-keyboard")


class Closing(Lighting):
    def opens_at_once(self):
        self.open()
        self.assertTrue(self.probe.describe(self.popup)["topmost"])

    def test_escape(self):
        self.opened()
        desktop.key("Escape")
        self.wait_closed()
        self.waitForState("Lighting", PRESSED, False)
        self.opens_at_once()

    def test_its_button(self):
        self.opened()
        self.click("Lighting")
        self.wait_closed()
        time.sleep(0.3)
        self.assertIsNone(self.shown_popup())
        self.waitForState("Lighting", PRESSED, False)
        self.opens_at_once()

    def test_elsewhere_on_the_toolbar(self):
        self.opened()
        left, top, _, _ = self.probe.describe(self.toolbar)["rect"]
        desktop.click((left + 272, top + 33))  # between the style list and the next bar
        self.wait_closed()
        self.waitForState("Lighting", PRESSED, False)
        self.opens_at_once()


class Raising(Lighting):
    """Nothing that the model fails in is reported here; the picker goes on."""

    def raising(self, member):
        self.client.do("raise", member, 1234)

    def test_light_that_cannot_be_asked_for(self):
        for member in ("LightIsOn", "GetLightDirection", "LightIsOn :="):
            with self.subTest(member=member):
                self.raising(member)
                self.open()
                self.no_message()
                self.close()
                self.waitForState("Lighting", PRESSED, False)

    def test_refused_direction(self):
        self.opened(LightX=100)
        self.raising("SetLightDirection")
        self.press("Light from left")
        self.assertTold("SetLightDirection Long -100 Long 0 Long 0")
        self.no_message()
        self.press("Light from above")
        self.wait_pressed("Light from above")

    def test_refused_switch(self):
        self.opened()
        self.raising("LightIsOn :=")
        self.press(OFF)
        wait_for(lambda: self.part(ON), what="a switch to turn the light on")
        self.no_message()


del Lighting  # the frame of the above, no test of its own


if __name__ == "__main__":
    main()
