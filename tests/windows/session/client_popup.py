"""A popup of a script client's toolbar as a person meets it, and what the client's model was told."""

from session_case import HOT, PUSH_BUTTON, SCREENS, SessionCase, desktop, wait_for

FAR_AWAY = (1200, 1000)
FOCUSED = 0x4
BOX = "#32770"


class ClientPopupCase(SessionCase):
    """Each test begins with the popup closed and the model's members as in `fields`."""

    opener = ""
    before_opener = ""  # the button from which the right arrow key leads to it

    def setUp(self):
        self.close()
        self.client.set(**self.fields)
        super().setUp()

    def shown_popup(self):
        forms = self.probe.windows(class_name=self.toolbar["class"])
        return next((w for w in forms if w["window"] != self.toolbar["window"]), None)

    def open(self):
        desktop.move(self.at(self.opener))
        self.waitForState(self.opener, HOT)  # a window just shown is not at once under the pointer
        self.click(self.opener)
        self.popup = wait_for(self.shown_popup, what=f"the popup of {self.opener}")

    def open_by_keyboard(self):
        """From a toolbar that has the keyboard already: an arrow key, which shows where it is, and the space bar."""
        self.open()
        desktop.key("Escape")
        self.wait_closed()
        self.waitForFront(self.toolbar)
        self.probe.focus(self.button(self.before_opener))
        desktop.key("Right")
        wait_for(lambda: self.probe.names_in_state(self.toolbar, FOCUSED) == [self.opener],
                 what=f"the keyboard on {self.opener}")
        desktop.key("space")
        self.popup = wait_for(self.shown_popup, what=f"the popup of {self.opener}")

    def opened(self, **fields):
        """The popup on a model with these members, and a model that has forgotten what the opening told it."""
        self.client.set(**fields)
        self.open()
        self.told_at_opening = self.client.told(1)
        self.client.forget()

    def wait_closed(self):
        wait_for(lambda: not self.shown_popup(), what=f"the popup of {self.opener} to close")

    def close(self):
        if not self.shown_popup():
            return
        desktop.key("Escape")
        try:
            wait_for(lambda: not self.shown_popup(), timeout=3)
        except TimeoutError:  # after a message box the window manager may leave the keyboard with nobody
            self.client.do("hide")
            self.wait_closed()
            self.client.do("show", 300, 300)

    def no_message(self):
        """A client in a message box would not answer."""
        self.client.do("visible")
        self.assertEqual([], self.probe.windows(class_name=BOX))

    def elements(self):
        return self.probe.elements(self.popup)

    def names(self, state=0):
        return self.probe.names_in_state(self.popup, state)

    def part(self, name):
        return self.probe.element(self.popup, name, PUSH_BUTTON)

    def state(self, name):
        return self.part(name)["state"]

    def wait_for_part(self, name, bit, value=True):
        wait_for(lambda: bool(self.state(name) & bit) == value, what=f"state {bit:#x} of {name}")

    def point_at(self, name):
        desktop.move(desktop.centre(self.part(name)["rect"]))
        self.wait_for_part(name, HOT)

    def press(self, name):
        """A window just shown is not at once under the pointer: the button lights up when it is."""
        self.point_at(name)
        desktop.click(desktop.centre(self.part(name)["rect"]))

    def focused(self):
        return self.names(FOCUSED)

    def popup_picture(self, name):
        left, top, right, bottom = self.probe.describe(self.popup)["rect"]
        desktop.picture(SCREENS / f"{name}.png", (left - 10, top - 10, right + 10, bottom + 10))
