"""What the parts of the demonstration share: each step is one line on the terminal and one picture."""

import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
from session import desktop  # noqa: E402
from session.host import Host  # noqa: E402
from session.probe import ROOT, Probe, wait_for  # noqa: E402

PICTURES = ROOT / "out" / "demo"
# What the library only asks is not worth a line of the demonstration.
QUIET = ("get ", "GetLightDirection")


class Tour:
    def __init__(self, model, place=(140, 60, 900, 720), steps_before=0, options=()):
        self.probe = Probe()
        self.host = Host(model, place=place, options=options)
        self.document = self.probe.window("Zephra Document", timeout=30)
        self.step = steps_before

    def __enter__(self):
        return self

    def __exit__(self, kind, *_):
        if kind is None:
            self.close()
        elif self.host.process.poll() is None:
            self.host.close()

    def show(self, what, calls=(), settle=0.3):
        """The line and the picture of a step."""
        self.step += 1
        time.sleep(settle)  # let the eye see the end of it: hover, tooltips and redraws settle
        told = [call for call in calls if not call.startswith(QUIET)]
        print(f"  {self.step:2}. {what}" + (f"  —  {'; '.join(told)}" if told else ""), flush=True)
        name = "".join(c if c.isalnum() else "-" for c in what.lower()).strip("-")
        desktop.picture(PICTURES / f"{self.step:02}-{name}.png")

    def toolbar(self):
        return self.probe.window("Zephra Toolbar")

    def place_of(self, button):
        return desktop.centre(self.probe.element(self.toolbar(), button)["rect"])

    def press(self, button, expected, times=1):
        place = self.place_of(button)
        for _ in range(times):
            desktop.click(place)
            time.sleep(0.15)
        return self.host.wait_for_call(expected)

    def object_centre(self):
        left, top, right, bottom = self.document["rect"]
        return (left + right) // 2, (top + bottom) // 2

    def activate(self):
        desktop.click(self.object_centre(), count=2)
        self.toolbar()
        return self.host.wait_for_call("let IsToolbarShowing = True")

    def unfold(self):
        """Opens the movement group, or folds it away."""
        before = self.height()
        desktop.click(self.place_of("Model Orientation"))
        wait_for(lambda: self.height() != before, what="the toolbar to fold")

    def height(self):
        _, top, _, bottom = self.toolbar()["rect"]
        return bottom - top

    def choose_style(self, downs):
        desktop.click(self.place_of("Select a new LookStyle"))
        desktop.key(*["Down"] * downs)
        desktop.key("Return")
        return self.host.wait_for_call("RefreshDisplay")

    def popups(self):
        """The windows that hang below the toolbar have no caption."""
        return [w for w in self.probe.windows(class_name="NeridaToolbarForm") if w["title"] == ""]

    def open_popup(self, button):
        """Presses the button and waits for what hangs below it, when nothing does any more."""
        wait_for(lambda: not self.popups(), what="the last one to close")
        desktop.click(self.place_of(button))
        return wait_for(lambda: next(iter(self.popups()), None), what=f"what hangs below {button}")

    def place_in(self, popup, name):
        return desktop.centre(self.probe.element(popup, name)["rect"])

    def choose(self, place, expected):
        desktop.click(place)
        return self.host.wait_for_call(expected)

    def close(self):
        self.probe.ask("post", self.document["window"], 0x10, 0, 0)
        self.host.process.wait(timeout=20)
        self.probe.close()
