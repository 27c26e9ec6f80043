"""The help as it is built: its pages in a real browser, on a phone and on a desk, and its help file."""

import html
import json
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BUILD = ROOT / "docs" / "help" / "build.py"
WIDTHS = (375, 1280)

# Opens every page in a frame of every width, one after the other, and writes down what it finds.
LOOK = """<!DOCTYPE html><meta charset="utf-8"><body><script>
const pages = %s, widths = %s, found = [];
function look(page, width) {
  return new Promise(done => {
    const frame = document.createElement("iframe");
    frame.style.cssText = `width: ${width}px; height: 700px; border: 0`;
    frame.onload = () => {
      const inside = frame.contentDocument;
      const all = selector => [...inside.querySelectorAll(selector)];
      found.push({
        page, width, room: inside.documentElement.clientWidth, wide: inside.documentElement.scrollWidth,
        title: inside.title, headings: all("h1").map(h => h.textContent), styled: inside.styleSheets.length,
        textSize: parseFloat(frame.contentWindow.getComputedStyle(inside.querySelector("main")).fontSize),
        pictures: all("img").map(i => ({from: i.src, alt: i.alt, drawn: i.complete && i.naturalWidth > 0,
                                        right: i.getBoundingClientRect().right})),
        links: all("a[href], link[href]").map(a => a.getAttribute("href")),
      });
      frame.remove();
      done();
    };
    frame.src = page;
    document.body.append(frame);
  });
}
(async () => {
  for (const page of pages) for (const width of widths) await look(page, width);
  document.body.textContent = "BEGIN" + JSON.stringify(found) + "END";
})();
</script>"""


def browse(page):
    """What the page is once its script has run. A browser wants a folder of its own for its settings."""
    with tempfile.TemporaryDirectory() as settings:
        done = subprocess.run(
            ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
             f"--user-data-dir={settings}", "--allow-file-access-from-files", "--window-size=1400,900",
             "--timeout=40000", "--virtual-time-budget=20000", "--dump-dom", page.as_uri()],
            check=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=90)
    return done.stdout.decode("utf-8")


class Pages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        subprocess.run([sys.executable, "-B", BUILD, cls.folder], check=True)
        cls.pages = sorted((cls.folder / "Help").glob("*.htm")) + [cls.folder / "expansion.htm"]
        look = cls.folder / "look.html"
        names = [str(page.relative_to(cls.folder)) for page in cls.pages]
        look.write_text(LOOK % (json.dumps(names), json.dumps(WIDTHS)), encoding="utf-8")
        answer = re.search("BEGIN(.*)END</body>", html.unescape(browse(look)), re.DOTALL)
        cls.found = json.loads(answer[1])

    def each(self, check):
        for seen in self.found:
            with self.subTest(seen["page"], width=seen["width"]):
                check(seen)

    def test_every_page_was_opened_at_every_width(self):
        self.assertEqual(len(self.pages) * len(WIDTHS), len(self.found))
        self.assertGreaterEqual(len(self.pages), 10)

    def test_each_has_a_title_and_its_style(self):
        def check(seen):
            self.assertTrue(seen["title"])
            self.assertEqual([seen["title"]], seen["headings"])
            self.assertEqual(1, seen["styled"])
            self.assertGreaterEqual(seen["textSize"], 15)

        self.each(check)

    def test_nothing_needs_scrolling_sideways(self):
        def check(seen):
            self.assertLessEqual(seen["wide"], seen["room"])
            for picture in seen["pictures"]:
                self.assertLessEqual(picture["right"], seen["room"], picture["from"])

        self.each(check)

    def test_every_picture_is_drawn_and_described(self):
        def check(seen):
            for picture in seen["pictures"]:
                self.assertTrue(picture["drawn"], picture["from"])
                self.assertTrue(picture["alt"], picture["from"])

        self.each(check)
        self.assertGreaterEqual(sum(len(seen["pictures"]) for seen in self.found), 12 * len(WIDTHS))

    def test_every_link_leads_somewhere(self):
        def check(seen):
            here = (self.folder / seen["page"]).parent
            for link in seen["links"]:
                self.assertTrue((here / link).is_file(), link)

        self.each(check)

    def test_every_page_is_reached_and_every_picture_used(self):
        index = next(seen for seen in self.found if seen["page"] == "Help/index.htm")
        self.assertLessEqual({page.name for page in self.pages}, set(index["links"]))
        used = {Path(picture["from"]).name for seen in self.found for picture in seen["pictures"]}
        self.assertEqual({file.name for file in (self.folder / "Help" / "pictures").iterdir()}, used)

    def test_the_help_file_holds_every_topic(self):
        file = (self.folder / "Zephra.hlp").read_bytes()
        self.assertEqual(bytes.fromhex("3f5f0300"), file[:4])
        self.assertEqual(len(file), int.from_bytes(file[12:16], "little"))
        contents = (self.folder / "Zephra.cnt").read_text(encoding="cp1252")
        for seen in self.found:
            self.assertIn(seen["title"], contents)


if __name__ == "__main__":
    unittest.main(verbosity=1)
