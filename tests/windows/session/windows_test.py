"""Where the windows appear, how they come and go, and what the model hears of it."""

import subprocess

from session_case import SessionCase, desktop, main, programs, wait_for

HOST_CLASS = "Notepad"


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

    def procedure(self):
        return self.probe.describe(self.toolbar)["procedure"]

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

    def test_window_procedure_is_exchanged_while_it_shows(self):
        shown = self.procedure()
        self.client.do("hide")
        hidden = self.procedure()
        self.assertNotEqual(shown, hidden)
        self.client.do("hide")
        self.assertEqual(hidden, self.procedure())
        self.client.do("show", 300, 300)
        self.client.do("show", 310, 310)
        self.assertEqual(shown, self.procedure())
        self.client.do("hide")
        self.assertEqual(hidden, self.procedure())

    def test_hiding_and_showing(self):
        self.client.do("hide")
        self.assertFalse(self.visible())
        self.assertEqual("False False", self.client.do("visible"))
        self.client.do("show", 300, 300)
        self.assertTrue(self.visible())
        self.assertEqual("True False", self.client.do("visible"))
        self.assertTold("IsToolbarShowing := Boolean False", "IsToolbarShowing := Boolean True")

    def test_close_box_only_hides(self):
        left, top, right, _ = self.probe.describe(self.toolbar)["rect"]
        desktop.click((right - 11, top + 11))
        wait_for(lambda: not self.visible(), what="the toolbar to go")
        self.assertTold("IsToolbarShowing := Boolean False")
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
        desktop.picture(programs.screens / "catalog.png", catalog["rect"])

    def test_about_box_closes_by_a_click(self):
        self.client.send("about")
        box = self.probe.window("", "NeridaAboutForm") if False else self.about()
        desktop.picture(programs.screens / "about.png", box["rect"])
        self.assertEqual((503, 403), (box["rect"][2] - box["rect"][0], box["rect"][3] - box["rect"][1]))
        self.assertTrue(box["topmost"])
        desktop.click(desktop.centre(box["rect"]))
        self.assertEqual("Empty", self.client.answer())
        wait_for(lambda: not self.new_windows(), what="the About box to go")

    def new_windows(self):
        return [w for w in self.probe.windows() if w["process"] == self.toolbar["process"]
                and w["window"] != self.toolbar["window"]]

    def about(self):
        return wait_for(lambda: next(iter(self.new_windows()), None), what="the About box")


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
