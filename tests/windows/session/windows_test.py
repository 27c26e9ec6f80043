"""Where the windows appear, how they come and go, and what the model hears of it."""

import subprocess

from session_case import SCREENS, SessionCase, desktop, main, wait_for

HOST_CLASS = "Notepad"
DISPLAY_CHANGE = 126
LOW_MEMORY = "Your system appears to be low on memory.  Please close some windows and/or programs."
# The toolbar is the client's only window: with it the program itself loses and gains the focus.
FOCUS_MOVES = "AnimationState"


class Host:
    """A window of another program that serves as the document."""

    def __init__(self, probe):
        self.probe = probe
        self.process = subprocess.Popen(["wine", "notepad"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        self.window = probe.window(class_name=HOST_CLASS)

    def client_corner(self):
        return self.probe.elements(self.window)[0]["rect"][:2]

    def close(self):
        self.process.terminate()
        self.process.wait(timeout=10)


class Showing(SessionCase):
    def setUp(self):
        self.client.do("show", 300, 300)
        super().setUp()

    def visible(self):
        return self.probe.describe(self.toolbar)["visible"]

    def test_exact_place_on_top_of_everything(self):
        handle, x, y = self.client.do("show", 10, 20).split()
        now = self.probe.describe(self.toolbar)
        self.assertEqual([10, 20], now["rect"][:2])
        self.assertEqual(("10", "20"), (x, y))
        self.assertEqual(self.toolbar["window"], int(handle))
        self.assertTrue(now["topmost"])
        self.assertEqual("Zephra Toolbar: Duck", now["title"])
        self.assertTold("IsToolbarShowing := Boolean True")

    def test_either_zero_puts_it_at_the_host_windows_corner(self):
        host = Host(self.probe)
        self.addCleanup(host.close)
        self.addCleanup(self.client.do, "init", 0)
        self.client.do("init", host.window["window"])
        corner = host.client_corner()
        for x, y in ((0, 250), (250, 0), (0, 0)):
            with self.subTest(x=x, y=y):
                self.client.do("show", 300, 300)
                answer = self.client.do("show", x, y).split()
                self.assertEqual(corner, self.probe.describe(self.toolbar)["rect"][:2])
                self.assertEqual([str(number) for number in corner], answer[1:])
        self.assertEqual("Zephra Toolbar: Duck", self.probe.describe(self.toolbar)["title"])

    def test_caption_names_the_model_at_hand(self):
        self.addCleanup(self.client.set, ModelName="Duck")
        self.client.set(ModelName="Windmill")
        self.client.do("init", 0)
        self.assertEqual("Zephra Toolbar: Windmill", self.probe.describe(self.toolbar)["title"])

    def answers_display_changes(self):
        """Only the toolbar's own window procedure says something about a changed display."""
        self.client.do("visible")
        self.probe.ask("post", self.toolbar["window"], DISPLAY_CHANGE, 0, 0)
        self.client.send("visible")
        try:
            box = self.probe.window(class_name="#32770", timeout=1)
        except TimeoutError:
            box = None
        if box:
            self.assertIn(LOW_MEMORY, [e["name"] for e in self.probe.elements(box)])
            self.waitForFront(box)
            desktop.key("Return")
            self.probe.gone(class_name="#32770")
        self.client.answer()
        return box is not None

    def test_window_procedure_is_exchanged_while_it_shows(self):
        self.client.do("show", 310, 310)
        self.assertTrue(self.answers_display_changes())
        for _ in range(2):
            self.client.do("hide")
            self.assertFalse(self.answers_display_changes())
        self.client.do("show", 300, 300)
        self.assertTrue(self.answers_display_changes())

    def test_hiding_and_showing(self):
        self.client.do("hide")
        self.assertFalse(self.visible())
        self.assertEqual("False False", self.client.do("visible"))
        self.client.do("show", 300, 300)
        self.assertTrue(self.visible())
        self.assertEqual("True False", self.client.do("visible"))
        self.assertTold("IsToolbarShowing := Boolean False", FOCUS_MOVES, "IsToolbarShowing := Boolean True")

    def test_close_box_only_hides(self):
        left, top, right, _ = self.probe.describe(self.toolbar)["rect"]
        desktop.click((right - 11, top + 11))
        wait_for(lambda: not self.visible(), what="the toolbar to go")
        self.assertTold("IsToolbarShowing := Boolean False", FOCUS_MOVES)
        self.assertEqual("False False", self.client.do("visible"))
        handle = self.client.do("show", 300, 300).split()[0]
        self.assertEqual(self.toolbar["window"], int(handle))
        self.client.forget()
        self.unfold()
        self.assertNothingTold()

    def test_catalog_takes_the_toolbars_place(self):
        handle = int(self.client.do("catalog"))
        self.addCleanup(self.client.do, "hide")
        catalog = self.probe.describe({"window": handle})
        self.assertTrue(catalog["visible"])
        self.assertEqual("Zephra Catalog", catalog["title"])
        self.assertFalse(self.visible())
        self.assertEqual("False True", self.client.do("visible"))
        told = self.client.told(3)
        self.assertEqual(["IsToolbarShowing := Boolean False"] * 2 + ["IsCatalogShowing := Boolean True"],
                         [line for line in told if ":=" in line])
        desktop.picture(SCREENS / "catalog.png", catalog["rect"])

    def test_about_box_closes_by_a_click(self):
        self.client.send("about")
        box = wait_for(lambda: next(iter(self.other_forms()), None), what="the About box")
        desktop.picture(SCREENS / "about.png", box["rect"])
        self.assertEqual((503, 403), (box["rect"][2] - box["rect"][0], box["rect"][3] - box["rect"][1]))
        self.assertTrue(box["topmost"])
        desktop.click(desktop.centre(box["rect"]))
        self.assertEqual("Empty", self.client.answer())
        wait_for(lambda: not self.other_forms(), what="the About box to go")

    def other_forms(self):
        return [w for w in self.probe.windows(class_name=self.toolbar["class"]) if w["window"] != self.toolbar["window"]]


class Disposing(SessionCase):
    def test_disposed_windows_are_gone_and_come_back(self):
        self.client.do("dispose")
        self.assertFalse([w for w in self.probe.windows(visible=False) if w["window"] == self.toolbar["window"]])
        self.assertEqual("False False", self.client.do("visible"))
        self.assertEqual("IsToolbarShowing := Boolean False", self.client.told(1)[0])
        self.client.do("init", 0)
        self.client.do("show", 300, 300)
        type(self).toolbar = self.probe.window("Zephra Toolbar: Duck")
        self.unfold()
        self.client.forget()
        self.click("Nudge Right")
        self.assertTold("MoveX Integer -1")


if __name__ == "__main__":
    main()
