"""The demo host in the middle of an edit, and the popups of its toolbar."""

import unittest
from dataclasses import dataclass

from session_case import HOT, PRESSED, SCREENS, desktop, programs, wait_for

from tools.session.host import Host
from tools.session.probe import PUSH_BUTTON, Probe

DOCUMENT = "Zephra Document"
TOOLBAR = "Zephra Toolbar"
FORM = "NeridaToolbarForm"
STYLES = "Select a new LookStyle"
ANIMATED = "dv3310.twe"


@dataclass
class Popup:
    button: str
    bar: str  # below which it hangs
    asked: list  # what the model hears at every opening, without values
    keeps_open: bool = False  # when the focus goes elsewhere

    @property
    def latches(self):
        return not self.keeps_open


def palette(button, bar, member):
    return Popup(button, bar, [f"get Is{member}Default"])


THICKNESS = Popup("Line Thickness", "Line thickness", ["get LineThicknessScale"])
LINE = palette("Line Color", "Line color", "LineColor")
FILL = palette("Fill Color", "Fill color", "SurfaceColor")
BACKGROUND = palette("Background Options", "Background", "Background")
LIGHTING = Popup("Lighting", "Move and lighting", ["get LightIsOn", "GetLightDirection", "let LightIsOn = True"])
ANIMATION = Popup("Animation Playback", "Move and lighting",
                  ["get AnimationState", "get AnimationCurrentFrame", "let AnimationState = False"], keeps_open=True)
POPUPS = [THICKNESS, LINE, FILL, BACKGROUND, LIGHTING, ANIMATION]


def without_values(calls):
    return [call.split(" -> ")[0].split("(")[0] for call in calls]


class PopupCase(unittest.TestCase):
    """One document for all tests of a class, in a style that shows all style buttons."""

    place = (140, 60, 900, 720)

    @classmethod
    def setUpClass(cls):
        cls.probe = Probe()
        cls.addClassCleanup(cls.probe.close)
        cls.start()
        cls.addClassCleanup(lambda: cls.host.close())  # a test may have started another one

    @classmethod
    def start(cls):
        model = next(programs.models.rglob(ANIMATED))
        cls.host = Host(model, program=programs.host, place=cls.place)
        cls.document = cls.probe.window(DOCUMENT + " - ")
        cls.edit()
        cls.choose_style("Flat Cartoon")

    @classmethod
    def edit(cls):
        desktop.click(cls.object_centre(), count=2)
        cls.toolbar = cls.probe.window(TOOLBAR)
        cls.host.wait_for_call("let IsToolbarShowing = True")
        wait_for(lambda: cls.probe.ask("foreground") == cls.document["window"], what="the keyboard in the document")

    @classmethod
    def choose_style(cls, name):
        desktop.click(desktop.centre(cls.probe.element(cls.toolbar, STYLES)["rect"]))
        cls.probe.window(class_name="ComboLBox")
        desktop.type_text(name[0].lower())
        desktop.key("Return")
        cls.host.wait_for_call("RefreshDisplay()")

    @classmethod
    def object_centre(cls):
        left, top, right, bottom = cls.document["rect"]
        return (left + right) // 2, (top + bottom) // 2

    def beside_object(self):
        left, _, _, bottom = self.document["rect"]
        return left + 20, bottom - 60

    def setUp(self):
        """Whatever the test before has left."""
        if self.popups():
            desktop.click(self.beside_object())  # ends the edit, and with it everything that hangs below the toolbar
            self.probe.gone(TOOLBAR)
        if not self.probe.windows(TOOLBAR):
            self.edit()
        self.bar = self.probe.describe(self.toolbar)["rect"]
        self.settled(0.2)
        self.host.calls()

    def each(self, scenario, popups=POPUPS):
        for popup in popups:
            with self.subTest(popup.button):
                self.setUp()
                scenario(popup)

    def popups(self):
        return [w for w in self.probe.windows(class_name=FORM) if w["window"] != self.toolbar["window"]]

    def button(self, popup):
        return self.probe.element(self.toolbar, popup.button, PUSH_BUTTON)

    def at(self, popup):
        return desktop.centre(self.button(popup)["rect"])

    def press(self, popup, **how):
        """A window just shown is not at once under the pointer: the button lights up when it is."""
        place = self.at(popup)
        desktop.move(place)
        wait_for(lambda: self.button(popup)["state"] & HOT, what=f"{popup.button} under the pointer")
        desktop.click(place, **how)

    def is_latched(self, popup):
        return bool(self.button(popup)["state"] & PRESSED)

    def settled(self, quiet=0.08):
        """The host has done what it was at, and the model hears nothing more for so many seconds."""
        count = -1
        while count != self.host.log_file.stat().st_size:
            count = self.host.log_file.stat().st_size
            desktop.pause(quiet)
            self.probe.describe(self.toolbar)  # whose title a host at work does not tell

    def open(self, popup):
        """One press, and the popup is there."""
        self.press(popup)
        return self.opened(popup)

    def opened(self, popup):
        window = wait_for(lambda: next(iter(self.popups()), None), what=f"the popup of {popup.button}")
        wait_for(lambda: self.is_latched(popup) == popup.latches, what=f"the latch of {popup.button}")
        self.settled()
        self.assertEqual(1, len(self.popups()))
        self.assertEqual(popup.asked, without_values(self.host.calls()))
        return self.probe.describe(window)  # it was seen while it came up, perhaps before it had its place

    def assertClosed(self, popup, *calls):
        wait_for(lambda: not self.popups(), what=f"the popup of {popup.button} to close")
        self.settled()
        self.assertEqual([], self.popups())
        self.assertFalse(self.is_latched(popup))
        self.assertEqual(list(calls), without_values(self.host.calls()))

    def away_and_back(self, told):
        """To another program and back to the object; what the model hears when the user leaves."""
        with desktop.OtherProgram() as other:
            other.click()
            self.probe.gone(TOOLBAR)
            self.settled()
            self.assertEqual([], self.popups())
            self.assertEqual(told, without_values(self.host.calls()))
            desktop.click(self.object_centre())
            self.assertTrue(self.probe.window(TOOLBAR)["topmost"])

    def picture(self, name):
        desktop.picture(SCREENS / f"{name}.png")
