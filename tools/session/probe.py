"""The windows of the Wine desktop and their accessible elements, as an assistive tool sees them."""

import json
import select
import subprocess
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

PRESSED, UNAVAILABLE, HOT, INVISIBLE, OFFSCREEN = 0x8, 0x1, 0x80, 0x8000, 0x10000
PUSH_BUTTON = 0x2B


def windows_path(path):
    return "Z:" + str(Path(path).resolve()).replace("/", "\\")


class Probe:
    """One helper program for the whole session; every question is a line."""

    # Of 32 bits also for 64-bit programs: Wine's accessibility answers no 64-bit client, whatever the window.
    PROGRAM = ROOT / "build" / "windows-x86" / "tools" / "ui_probe" / "ui-probe.exe"

    def __init__(self):
        self.process = subprocess.Popen(["wine", str(self.PROGRAM)], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, text=True, encoding="utf-8")
        self.known = {}  # where elements were found
        # The first program makes the desktop; another one that starts meanwhile may find none to show its windows on.
        wait_for(lambda: self.windows(class_name="Shell_TrayWnd", visible=False), what="the desktop")

    def ask(self, *words):
        self.process.stdin.write(" ".join(str(word) for word in words) + "\n")
        self.process.stdin.flush()
        if not select.select([self.process.stdout], [], [], 60)[0]:
            self.process.kill()
            raise RuntimeError(f"the probe does not answer: {words}")
        line = self.process.stdout.readline()
        if not line:
            raise RuntimeError("the probe has died")
        return json.loads(line)

    def close(self):
        self.process.stdin.close()
        self.process.wait(timeout=10)

    def windows(self, title_start=None, class_name=None, visible=True):
        """Top-level windows by the start of their title and by class."""
        return [w for w in self.ask("windows", int(visible), class_name or "")
                if title_start is None or w["title"].startswith(title_start)]

    def window(self, title_start=None, class_name=None, timeout=10):
        """The one window of that title, waited for."""
        return wait_for(lambda: next(iter(self.windows(title_start, class_name)), None), timeout,
                        f"window {title_start or class_name!r}")

    def gone(self, title_start=None, class_name=None, timeout=10):
        wait_for(lambda: not self.windows(title_start, class_name), timeout, f"{title_start or class_name!r} to go")

    def describe(self, window):
        """A known window as it is now."""
        return self.ask("window", window["window"])

    def press(self, element):
        """Runs the element's default action."""
        status = self.ask("press", element["window"], element["child"])
        if status != 0:
            raise RuntimeError(f"pressing {element['name']!r} gave {status & 0xFFFFFFFF:#x}")

    def focus(self, element):
        """Gives it the keyboard."""
        status = self.ask("focus", element["window"], element["child"])
        if status != 0:
            raise RuntimeError(f"focusing {element['name']!r} gave {status & 0xFFFFFFFF:#x}")

    def elements(self, window):
        return self.ask("elements", window["window"])

    def element(self, window, name, role=None):
        """The element of that accessible name inside a window."""
        found = self._again(window, name, role) or self.ask("find", window["window"], role or 0, name)
        if not found:
            raise LookupError(f"no element {name!r} in {window['title']!r}")
        self.known[window["window"], name, role] = found["window"], found["child"]
        return found

    def _again(self, window, name, role):
        """Where it was the last time: most elements stay where they are, and searching takes long."""
        place = self.known.get((window["window"], name, role))
        found = place and self.ask("element", window["window"], *place)
        return found if found and found["name"] == name and role in (None, found["role"]) else None

    def names_in_state(self, window, state=0, role=PUSH_BUTTON):
        """The names of the elements of that role that have one of the state's bits; of all of that role without."""
        return self.ask("marked", window["window"], role, state)


def wait_for(condition, timeout=10, what="a condition"):
    """Polls until the condition gives something true, and returns that."""
    end = time.monotonic() + timeout
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise TimeoutError(f"waited {timeout} s for {what}")
        time.sleep(0.03)
