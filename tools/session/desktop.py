"""Real input on the display, and pictures of it."""

import subprocess
import time
from pathlib import Path


def _run(*words):
    subprocess.run([str(word) for word in words], check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)


def centre(rect):
    left, top, right, bottom = rect
    return (left + right) // 2, (top + bottom) // 2


def move(point):
    _run("xdotool", "mousemove", *point)


def click(point, button=1, count=1, delay=60):
    """Moves there, as a hand does, and clicks, with so many milliseconds between clicks."""
    _run("xdotool", "mousemove", *point, "sleep", "0.04", "click", "--repeat", count, "--delay", delay, button)


def screen_size():
    text = subprocess.run(["xdotool", "getdisplaygeometry"], check=True, capture_output=True, text=True).stdout
    return tuple(int(number) for number in text.split())


def pause(seconds):
    time.sleep(seconds)


def press_mouse(point):
    _run("xdotool", "mousemove", *point, "sleep", "0.04", "mousedown", 1)


def release_mouse(point=None):
    if point:
        move(point)
    _run("xdotool", "mouseup", 1)


def key(*names):
    _run("xdotool", "key", "--delay", 40, *names)


def type_text(text):
    _run("xdotool", "type", "--delay", 30, text)


def focused_title():
    """The title of the window that keys go to, empty for none."""
    done = subprocess.run(["xdotool", "getwindowfocus", "getwindowname"], stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
    return done.stdout.strip()


def resize(title, width, height):
    """Has the window manager give the window of that title another size."""
    _run("xdotool", "search", "--onlyvisible", "--name", f"^{title}$", "windowsize", "--sync", width, height)


def _import(area, target):
    """The command that reads the screen, or the area (left, top, right, bottom) of it."""
    crop = []
    if area:
        left, top, right, bottom = area
        crop = ["-crop", f"{right - left}x{bottom - top}+{left}+{top}"]
    return ["import", "-window", "root", *crop, "+repage", "-depth", "8", str(target)]


def picture(path, area=None):
    """Saves the screen, or an area of it, as PNG."""
    path = Path(path)
    path.parent.mkdir(parents=True, exist_ok=True)
    _run(*_import(area, path))


def pixels(area):
    """An area of the screen as it is now: three bytes a pixel, row by row."""
    return subprocess.run(_import(area, "rgb:-"), check=True, stdin=subprocess.DEVNULL, capture_output=True).stdout


class OtherProgram:
    """A window of another program, to lose the focus to."""

    def __enter__(self):
        self.process = subprocess.Popen(["xmessage", "-geometry", "200x100+20+880", "-title", "Another program",
                                         "Another program"], stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.window = self._find()
        return self

    def _find(self):
        for _ in range(100):
            found = subprocess.run(["xdotool", "search", "--name", "^Another program$"], capture_output=True, text=True)
            if found.stdout.strip():
                return found.stdout.split()[-1]
            time.sleep(0.05)
        raise TimeoutError("the other program did not open")

    def activate(self):
        _run("xdotool", "windowactivate", "--sync", self.window)

    def click(self):
        """On its text, which does nothing but bring it to the front."""
        text = subprocess.run(["xdotool", "getwindowgeometry", "--shell", self.window], check=True, capture_output=True,
                              text=True).stdout
        place = dict(line.split("=") for line in text.split())
        click((int(place["X"]) + 20, int(place["Y"]) + 12))

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
