"""The part of the demonstration that finds models in the catalog, looks at them and inserts them."""

from session import desktop
from session.probe import wait_for

ROW = 23  # pixels from one hit to the next, the first one's middle being half of them below the list's edge


class Catalog:
    def __init__(self, tour):
        self.tour = tour

    def open(self):
        desktop.click(self.tour.place_of("Replace Zephra"))
        self.window = self.tour.probe.window("Zephra Catalog")
        return self.tour.host.wait_for_call("let IsCatalogShowing = True")

    def rect(self, name):
        return self.tour.probe.element(self.window, name)["rect"]

    def press(self, name):
        desktop.click(desktop.centre(self.rect(name)))

    def has(self, text):
        """Whether a label tells so."""
        return any((e["name"] or "").startswith(text) for e in self.tour.probe.elements(self.window))

    def results(self):
        label = next(e["name"] for e in self.tour.probe.elements(self.window)
                     if (e["name"] or "").startswith(" Search Results ("))
        return label.strip()

    def search(self, text):
        self.press("Keywords for a model search")
        desktop.key("Home", "shift+End")
        desktop.type_text(text)
        desktop.key("Return")

    def show_found(self, what, first):
        """The first hit is previewed as soon as there are hits."""
        wait_for(lambda: self.has(first), what=f"the preview of {first}")
        self.tour.show(f"{what}: {self.results()}")

    def menu(self, letter, *keys):
        desktop.key(f"alt+{letter}")
        self.tour.probe.window(class_name="#32768")
        if keys:
            desktop.key(*keys)

    def choose_hit(self, row):
        left, top, _, _ = self.rect("Models found")
        desktop.click((left + 60, top + ROW // 2 + ROW * row))

    def turn_preview(self):
        middle = desktop.centre(self.rect("Preview of the model"))
        desktop.press_mouse(middle)
        desktop.release_mouse((middle[0] + 70, middle[1] + 20))

    def close(self):
        self.menu("f", "c")
        self.tour.probe.gone("Zephra Catalog")
        self.tour.toolbar()
        return self.tour.host.wait_for_call("let DoneShowingModelCatalog = True")


def find(catalog):
    tour = catalog.tour
    tour.show("Ask for another model: the catalog opens", catalog.open())
    catalog.search("boat")
    catalog.show_found("Search for a word", "Sailing boat")
    catalog.search("elefant")
    catalog.show_found("Search for a misspelt word", "Elephant")
    catalog.menu("t", "Down", "Right")
    tour.show("Open the categories", settle=0.6)
    desktop.key("Return")
    wait_for(lambda: catalog.has(" Search Results (") and not tour.probe.windows(class_name="#32768"), what="the hits")
    tour.show(f"Look through a category: {catalog.results()}", settle=0.6)
    catalog.menu("t", "Return")
    wait_for(lambda: not tour.probe.windows(class_name="#32768"), what="the menu to close")
    tour.show(f"Be surprised: {catalog.results()}", settle=0.6)


def insert(catalog):
    tour = catalog.tour
    catalog.search("bird")
    wait_for(lambda: catalog.results() != "Search Results (0)", what="the birds")
    catalog.choose_hit(2)
    tour.show("Choose one of the hits", settle=0.6)
    catalog.turn_preview()
    tour.show("Turn it before it is inserted", settle=0.6)
    catalog.press("Insert")
    tour.show("Insert it with its style", tour.host.wait_for_call("RefreshDisplay"))
    catalog.choose_hit(1)
    catalog.press("Insert Model Only")
    tour.show("Insert another one, keeping the style", tour.host.wait_for_call("RefreshDisplay"))
    tour.show("Close the catalog: the toolbar is back", catalog.close())


def search_again(tour):
    """In a host that has just been started: the searches of the last time are remembered."""
    catalog = Catalog(tour)
    tour.activate()
    catalog.open()
    catalog.menu("r")
    tour.show("Start anew and open the recent searches", settle=0.6)
    desktop.key("Return")
    wait_for(lambda: catalog.has(" Search Results ("), what="the hits")
    tour.show(f"Make the last one again: {catalog.results()}")
    catalog.close()


def run(tour):
    catalog = Catalog(tour)
    find(catalog)
    insert(catalog)
