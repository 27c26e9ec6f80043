"""A catalog as a person meets it, for the real-input tests: what is pressed and typed in it, and what it shows."""

from session_case import SessionCase, desktop, installation, wait_for

OPENED = ["GetLookStyleList", "LookStyleName", "IsCatalogShowing := Boolean True"]
CLOSED = ["ModelName", "IsCatalogShowing := Boolean False", "DoneShowingModelCatalog := Boolean True"]
PROMPT = "Enter Keyword(s) for Model Search"
FIELD = "Keywords for a model search"
STYLES = "Select a LookStyle for the model on the page"


class CatalogCase(SessionCase):
    """One catalog for all tests of a class, with the keyboard in it."""

    @classmethod
    def setUpClass(cls):
        installation.forget_searches()
        super().setUpClass()
        cls.client.do("hide")
        cls.client.forget()
        cls.client.do("catalog")
        cls.catalog = cls.probe.window("Zephra Catalog")
        wait_for(lambda: desktop.focused_title() == "Zephra Catalog", 30, "the keyboard in the catalog")

    def tearDown(self):
        desktop.key("Escape", "Escape")  # a menu that a failure left open
        for _ in self.probe.windows(class_name="#32770"):
            desktop.key("Return")

    def element(self, name):
        return self.probe.element(self.catalog, name)

    def names(self):
        return [e["name"] for e in self.probe.elements(self.catalog)]

    def wait_for_name(self, name, timeout=10):
        wait_for(lambda: name in self.names(), timeout, f"{name!r} in the catalog")

    def wait_for_field(self, text):
        wait_for(lambda: self.field() == text, what=f"{text!r} in the search box")

    def field(self):
        """What stands in the search box."""
        return next(e["value"] for e in self.probe.elements(self.catalog) if e["name"] == FIELD)

    def press(self, name):
        desktop.click(desktop.centre(self.element(name)["rect"]))

    def type_in_field(self, text):
        self.press(FIELD)
        desktop.key("Home", "shift+End")
        desktop.type_text(text)

    def search(self, text):
        self.type_in_field(text)
        desktop.key("Return")

    def search_and_find(self, text, count):
        self.search(text)
        self.wait_for_name(f" Search Results ({count})")

    def click_item(self, index):
        """The rows of the list are no elements of their own."""
        left, top, _, _ = self.element("Models found")["rect"]
        desktop.click((left + 60, top + 12 + 23 * index))

    def choose(self, menu, *keys):
        """Opens a menu of the bar, which stands on its first entry then, and goes on from there."""
        desktop.key(menu)
        self.wait_for_menus(1)
        if keys:
            desktop.key(*keys)

    def wait_for_menus(self, count):
        wait_for(lambda: len(self.probe.windows(class_name="#32768")) == count, what=f"{count} open menus")

    def find_windmill(self):
        self.search("mill")
        self.wait_for_name("Windmill ")

    def box(self, *keys):
        """The title and the text of the message box that is open, which is answered."""
        return read_box(self.probe, *keys)

    def assertBox(self, text, title="Zephra Catalog"):
        self.assertEqual(self.box(), (title, text))


def read_box(probe, *keys):
    box = probe.window(class_name="#32770")
    texts = [e["name"] for e in probe.elements(box) if e["class"] == "Static" and e["name"]]
    wait_for(lambda: probe.ask("foreground") == box["window"] and desktop.focused_title() == box["title"],
             what="the keyboard in the box")
    desktop.key(*(keys or ("Return",)))
    wait_for(lambda: box["window"] not in [w["window"] for w in probe.windows(class_name="#32770")],
             what="the answered box to go")
    return box["title"], "".join(texts)
