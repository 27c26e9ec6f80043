"""The README's pictures: a model in chosen colours with a palette open below the toolbar, and the catalog."""

import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
from session import desktop  # noqa: E402
from session.demo_catalog import Catalog  # noqa: E402
from session.tour import Tour  # noqa: E402

PLACE = (60, 4, 900, 1000)
MARGIN = 28  # pixels of the page around the object
OBJECT_HEIGHT = 534  # with its name and the margin above


def area(tour, palette):
    """From the object to the palette. The object is as wide as the page's column, and the toolbar stands at its left."""
    left, top, _, _ = tour.toolbar()["rect"]
    document_left, _, document_right, _ = tour.document["rect"]
    right = document_left + document_right - left
    below = tour.probe.describe(palette)["rect"][3]
    return left - MARGIN, top - OBJECT_HEIGHT, right + MARGIN, below + MARGIN // 2


def toolbar(tour, picture):
    tour.unfold()
    tour.press("Tilt Left", "RotateY", 5)
    tour.press("Tilt Up", "RotateX")
    tour.press("Increase Model Size", "ScaleModel")
    tour.unfold()
    tour.choose_style(2)
    tour.choose(tour.place_in(tour.open_popup("Background Options"), "Light Turquoise"), "let BackgroundColor")
    tour.choose(tour.place_in(tour.open_popup("Line Color"), "Dark Blue"), "let LineColor")
    palette = tour.open_popup("Background Options")
    desktop.move(tour.place_in(palette, "Light Yellow"))
    time.sleep(1.5)  # until the colour's name shows
    desktop.picture(picture, area(tour, palette))
    desktop.key("Escape")


def catalog(tour, picture):
    window = Catalog(tour)
    window.open()
    window.search("bird")
    window.choose_hit(2)
    time.sleep(1)  # until the model is drawn
    desktop.picture(picture, tour.probe.describe(window.window)["rect"])
    window.close()


def main():
    model, folder = sys.argv[1], Path(sys.argv[2])
    with Tour(model, PLACE) as tour:
        tour.activate()
        toolbar(tour, folder / "toolbar.png")
        catalog(tour, folder / "catalog.png")


if __name__ == "__main__":
    main()
