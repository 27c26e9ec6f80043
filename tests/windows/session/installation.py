"""The control, what it works with, and its installation keys in the Wine prefix."""

import contextlib
import os
import subprocess
from pathlib import Path

from tools.session.probe import windows_path

KEY = r"HKLM\Software\Tarnwell\Zephra"
VERSION_KEY = KEY + r"\1.0"
SEARCHES = r"HKCU\Software\VB and VBA Program Settings\Zephra\Browser"
DRIVES = r"HKLM\Software\Wine\Drives"


def _wine(*words, check=True):
    subprocess.run(["wine", *words], check=check, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)


def set_value(name, text, key=KEY, kind="REG_SZ"):
    _wine("reg", "add", key, "/v", name, "/t", kind, "/d", text, "/f", "/reg:32")


def remove_value(name, key=KEY):
    _wine("reg", "delete", key, "/v", name, "/f", "/reg:32")


def remove_key(key):
    _wine("reg", "delete", key, "/f", "/reg:32", check=False)  # it may be gone already


def register(control, arch, *options):
    folder = "syswow64" if arch == "x86" else "system32"
    _wine(rf"C:\windows\{folder}\regsvr32.exe", "/s", *options, windows_path(control))


@contextlib.contextmanager
def without(control, arch):
    """As long as the component is not installed."""
    register(control, arch, "/u")
    try:
        yield
    finally:
        register(control, arch)


@contextlib.contextmanager
def opening(kind, command):
    """As long as what is of that kind, "https" or "htmlfile", is opened by the command."""
    key = rf"HKLM\Software\Classes\{kind}\shell\open\command"
    views = ("/reg:32", "/reg:64")
    done = subprocess.run(["wine", "reg", "query", key, "/ve"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True, check=True)
    before = done.stdout.split("REG_SZ", 1)[1].strip()
    for view in views:
        _wine("reg", "add", key, "/ve", "/d", command, "/f", view)
    try:
        yield
    finally:
        for view in views:
            _wine("reg", "add", key, "/ve", "/d", before, "/f", view)


@contextlib.contextmanager
def pages_opened_by(command):
    """As long as the command opens pages, on the disk and on the web. Not every system knows pages on the disk."""
    extension, views = r"HKLM\Software\Classes\.htm", ("/reg:32", "/reg:64")
    for view in views:
        _wine("reg", "add", extension, "/ve", "/d", "htmlfile", "/f", view)
    try:
        with opening("https", command), opening("htmlfile", command):
            yield
    finally:
        for view in views:
            _wine("reg", "delete", extension, "/f", view, check=False)


def without_browser():
    """As long as pages on the web cannot be opened."""
    return opening("https", r"C:\nobody.exe")


@contextlib.contextmanager
def discs(**folders):
    """CD-ROM drives with these folders in them. The desktop starts anew: it looks for its drives only then."""
    devices = Path(os.environ["WINEPREFIX"]) / "dosdevices"
    for letter, folder in folders.items():
        (devices / f"{letter}:").symlink_to(folder)
        _wine("reg", "add", DRIVES, "/v", f"{letter}:", "/d", "cdrom", "/f", "/reg:64")
    restart()
    try:
        yield
    finally:
        for letter in folders:
            (devices / f"{letter}:").unlink()
            _wine("reg", "delete", DRIVES, "/v", f"{letter}:", "/f", "/reg:64")
        restart()


def restart():
    for option in ("-k", "-w", "-p"):
        subprocess.run(["wineserver", option], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, check=False)
    _wine("cmd", "/c", "exit")


def forget_searches():
    """A catalog that nobody has used yet."""
    subprocess.run(["wine", "reg", "delete", SEARCHES, "/f"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)  # it fails where there are none


def set_paths(resources, models):
    """Tells the control where its files lie."""
    for name in ("Dictionary", "System", "Help", "Styles"):
        set_value(name, windows_path(resources))
    set_value("LiveText", "Zephra 1.0")
    set_value("Models", windows_path(models), VERSION_KEY)
