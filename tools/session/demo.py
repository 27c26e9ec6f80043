"""An editing session as a person has it, on whatever display there is: each step is one line here, on the terminal,
and one picture under out/demo/."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
from session import demo_catalog, demo_popups, desktop  # noqa: E402
from session.tour import PICTURES, Tour  # noqa: E402


class Demo(Tour):
    def choose_preset(self, letter):
        desktop.click(self.place_of("PresetDropdown"))
        self.probe.window(class_name="#32768")
        self.show("Open the menu of preset views")
        desktop.key(letter)
        return self.host.wait_for_call("RefreshDisplay")

    def other_program(self):
        with desktop.OtherProgram() as other:
            other.activate()
            self.probe.gone("Zephra Toolbar")
            self.show("Turn to another program: the toolbar leaves the screen", self.host.calls())
            desktop.click((self.document["rect"][0] + 200, self.document["rect"][1] + 10))
            self.toolbar()
            self.show("Come back: the toolbar is there again", self.host.calls())

    def run(self):
        self.show("Open the document")
        self.show("Double-click the object: the toolbar appears", self.activate())
        self.unfold()
        self.show("Unfold the movement group")
        self.show("Tilt left", self.press("Tilt Left", "RotateY", 3))
        self.show("Tilt up", self.press("Tilt Up", "RotateX", 2))
        self.show("Enlarge", self.press("Increase Model Size", "ScaleModel", 3))
        self.show("Nudge left", self.press("Nudge Left", "MoveX", 2))
        self.show("Choose the right side", self.choose_preset("r"))
        self.show("Reset the model", self.press("Reset Model", "RefreshDisplay"))
        self.show("Tilt clockwise", self.press("Tilt Clockwise", "RotateZ"))
        self.show("Choose the next style", self.choose_style(1))
        self.show("Choose another style", self.choose_style(1))
        self.unfold()
        self.show("Fold the movement group away")
        demo_popups.run(self)
        demo_catalog.run(self)
        self.other_program()
        desktop.click((self.document["rect"][0] + 20, self.document["rect"][3] - 60))
        self.probe.gone("Zephra Toolbar")
        self.show("Click beside the object: editing ends", self.host.calls())


def main():
    for old in PICTURES.glob("*.png"):
        old.unlink()
    with Demo(sys.argv[1]) as demo:
        demo.run()
    with Demo(sys.argv[1], steps_before=demo.step) as demo:
        demo_catalog.search_again(demo)


if __name__ == "__main__":
    main()
