"""The help's pictures: the toolbar, everything that hangs below its buttons, the catalog and the About box."""

import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
from session import desktop  # noqa: E402
from session.demo_catalog import Catalog  # noqa: E402
from session.probe import wait_for  # noqa: E402
from session.tour import Tour  # noqa: E402

CORNER, SIDE = (60, 4), 900  # of the document at 96 dots per inch
MARGIN = 6
SETTLE = 0.8  # seconds, until hover and tooltips have come


class Help(Tour):
    def __init__(self, model, folder, dpi, options):
        side = SIDE * dpi // 96
        super().__init__(model, (*CORNER, side, side), options=options)
        self.folder = folder

    def take(self, name, *areas):
        """The smallest area of the screen around all of them."""
        time.sleep(SETTLE)
        left, top, right, bottom = (pick(sides) for pick, sides in zip((min, min, max, max), zip(*areas)))
        desktop.picture(self.folder / f"{name}.png", (left - MARGIN, top - MARGIN, right + MARGIN, bottom + MARGIN))

    def bar(self):
        return self.toolbar()["rect"]

    def popup(self, name, button, pointed=None):
        popup = self.open_popup(button)
        desktop.move(self.place_in(popup, pointed) if pointed else (5, 5))
        rect = self.probe.describe(popup)["rect"]
        left, top, right, bottom = self.bar()
        # Of the toolbar the part around the button.
        middle = self.place_of(button)[0]
        self.take(name, rect, (max(left, min(rect[0], middle) - 60), top, min(right, max(rect[2], middle) + 60), bottom))
        desktop.key("Escape")
        wait_for(lambda: not self.popups(), what=f"{name} to close")


def toolbar(tour):
    tour.choose_style(2)
    desktop.move((5, 5))
    left, top, right, bottom = tour.bar()
    tour.take("toolbar", tour.bar())
    document = tour.document["rect"]
    tour.take("page", (left - 20, top - 520, document[0] + document[2] - left + 20, bottom + 20))
    tour.unfold()
    desktop.move((5, 5))
    tour.take("moving", tour.bar())
    desktop.click(tour.place_of("PresetDropdown"))
    menu = tour.probe.window(class_name="#32768")
    tour.take("views", tour.bar(), menu["rect"])
    desktop.key("Escape")
    tour.unfold()


def popups(tour):
    tour.popup("fill-color", "Fill Color", "Orange")
    tour.popup("line-color", "Line Color", "Dark Blue")
    tour.popup("background", "Background Options", "Light Yellow")
    tour.popup("thickness", "Line Thickness")
    tour.popup("lighting", "Lighting", "Light from right")
    tour.popup("animation", "Animation Playback")


def catalog(tour):
    window = Catalog(tour)
    window.open()
    window.search("bird")
    window.choose_hit(2)
    time.sleep(1)  # until the model is drawn
    rect = tour.probe.describe(window.window)["rect"]
    tour.take("catalog", rect)
    window.menu("t", "Down", "Right")
    left, top, right, _ = rect
    menus = [m["rect"] for m in tour.probe.windows(class_name="#32768")]
    tour.take("categories", (left, top, left + 40, top + 60), *menus)
    desktop.key("Escape", "Escape", "Escape")
    window.menu("h", "a")
    about = tour.probe.window("About Zephra")
    desktop.move((5, 5))
    tour.take("about", tuple(side + inset for side, inset in zip(about["rect"], (MARGIN, MARGIN, -MARGIN, -MARGIN))))
    desktop.click(desktop.centre(about["rect"]))
    tour.probe.gone("About Zephra")
    window.close()


def main():
    model, folder, dpi, *options = sys.argv[1:]
    with Help(model, Path(folder), int(dpi), options) as tour:
        tour.activate()
        toolbar(tour)
        popups(tour)
        catalog(tour)


if __name__ == "__main__":
    main()
