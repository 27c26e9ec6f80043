"""What assistive tools are told of every window: nothing visible is without a name, role, state and place."""

from catalog_case import CatalogCase
from popup_case import PopupCase
from session_case import PUSH_BUTTON, SessionCase, desktop, main, wait_for

INVISIBLE = 0x8000
CAN_BE_PRESSED = (PUSH_BUTTON, 44, 45, 56, 57)  # also check and radio buttons, and those with a menu


class Told:
    def assertTold(self, window, least):
        # A child without anything is an object of its own, which is met as a window.
        elements = [e for e in self.probe.elements(window) if e["rect"] and not (e["state"] or 0) & INVISIBLE]
        self.assertGreaterEqual(len(elements), least)
        for element in elements:
            with self.subTest(window["title"], element=element):
                self.assertTrue((element["name"] or "").strip())
                self.assertTrue(element["role"])
                self.assertIsNotNone(element["state"])
                if element["role"] in CAN_BE_PRESSED:
                    self.assertTrue(element["action"])


class Toolbar(Told, PopupCase):
    def test_toolbar(self):
        self.assertTold(self.toolbar, 12)
        self.fold()
        self.assertTold(self.probe.describe(self.toolbar), 23)
        self.fold()

    def fold(self):
        height = self.bar[3] - self.bar[1]
        desktop.click(desktop.centre(self.probe.element(self.toolbar, "Model Orientation")["rect"]))
        wait_for(lambda: self.height() != height, what="the toolbar to fold")
        self.bar = self.probe.describe(self.toolbar)["rect"]

    def height(self):
        _, top, _, bottom = self.probe.describe(self.toolbar)["rect"]
        return bottom - top

    def test_popups(self):
        def scenario(popup):
            self.assertTold(self.open(popup), 5)
            desktop.key("Escape")
            self.assertClosed(popup)

        self.each(scenario)


class Catalog(Told, CatalogCase):
    def test_with_a_model_in_the_preview(self):
        self.search("mill")
        self.wait_for_name("Windmill ")
        self.assertTold(self.catalog, 8)


class About(Told, SessionCase):
    def test_box(self):
        self.client.send("about")
        box = self.probe.window("About Zephra")
        self.assertTold(box, 2)
        wait_for(lambda: self.probe.ask("foreground") == box["window"], what="the box in front")
        desktop.click(desktop.centre(box["rect"]))
        self.assertEqual("Empty", self.client.answer())


if __name__ == "__main__":
    main()
