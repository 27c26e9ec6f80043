"""An editing session as a person has it, on whatever display there is: each step is one line here, on the terminal,
and one picture under out/demo/."""

import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
from session import desktop  # noqa: E402
from session.host import Host  # noqa: E402
from session.probe import ROOT, Probe, wait_for  # noqa: E402

PICTURES = ROOT / "out" / "demo"
# What the library only asks is not worth a line of the demonstration.
QUIET = ("get ",)


class Demo:
    def __init__(self, model):
        self.probe = Probe()
        self.host = Host(model)
        self.document = self.probe.window("Zephra Document", timeout=30)
        self.step = 0

    def show(self, what, calls=()):
        """The line and the picture of a step."""
        self.step += 1
        time.sleep(0.4)  # let the eye see the end of it: hover, tooltips and redraws settle
        told = [call for call in calls if not call.startswith(QUIET)]
        print(f"  {self.step:2}. {what}" + (f"  —  {'; '.join(told)}" if told else ""), flush=True)
        name = "".join(c if c.isalnum() else "-" for c in what.lower()).strip("-")
        desktop.picture(PICTURES / f"{self.step:02}-{name}.png")

    def toolbar(self):
        return self.probe.window("Zephra Toolbar")

    def place_of(self, button):
        return desktop.centre(self.probe.element(self.toolbar(), button)["rect"])

    def press(self, button, expected, times=1):
        for _ in range(times):
            desktop.click(self.place_of(button))
            time.sleep(0.15)
        return self.host.wait_for_call(expected)

    def object_centre(self):
        left, top, right, bottom = self.document["rect"]
        return (left + right) // 2, (top + bottom) // 2

    def activate(self):
        desktop.click(self.object_centre(), count=2)
        self.toolbar()
        return self.host.wait_for_call("let IsToolbarShowing = True")

    def unfold(self, height):
        desktop.click(self.place_of("Model Orientation"))
        wait_for(lambda: self.height() == height, what="the toolbar to fold")

    def height(self):
        _, top, _, bottom = self.toolbar()["rect"]
        return bottom - top

    def choose_preset(self, letter):
        desktop.click(self.place_of("PresetDropdown"))
        self.probe.window(class_name="#32768")
        self.show("Open the menu of preset views")
        desktop.key(letter)
        return self.host.wait_for_call("RefreshDisplay")

    def choose_style(self, downs):
        desktop.click(self.place_of("Select a new LookStyle"))
        desktop.key(*["Down"] * downs)
        desktop.key("Return")
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
        folded = None
        self.show("Double-click the object: the toolbar appears", self.activate())
        folded = self.height()
        self.unfold(folded + 27)
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
        self.unfold(folded)
        self.show("Fold the movement group away")
        self.other_program()
        desktop.click((self.document["rect"][0] + 20, self.document["rect"][3] - 60))
        self.probe.gone("Zephra Toolbar")
        self.show("Click beside the object: editing ends", self.host.calls())

    def close(self):
        self.probe.ask("post", self.document["window"], 0x10, 0, 0)
        self.host.process.wait(timeout=20)
        self.probe.close()


def main():
    for old in PICTURES.glob("*.png"):
        old.unlink()
    demo = Demo(sys.argv[1])
    try:
        demo.run()
        demo.close()
    finally:
        if demo.host.process.poll() is None:
            demo.host.close()


if __name__ == "__main__":
    main()
