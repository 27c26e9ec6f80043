"""The control and its installation keys in the Wine prefix."""

import subprocess

from tools.session.probe import windows_path

KEY = r"HKLM\Software\Tarnwell\Zephra"
SEARCHES = r"HKCU\Software\VB and VBA Program Settings\Zephra\Browser"


def _wine(*words):
    subprocess.run(["wine", *words], check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)


def set_value(name, text, key=KEY):
    _wine("reg", "add", key, "/v", name, "/t", "REG_SZ", "/d", text, "/f", "/reg:32")


def register(control, arch):
    folder = "syswow64" if arch == "x86" else "system32"
    _wine(rf"C:\windows\{folder}\regsvr32.exe", "/s", windows_path(control))


def forget_searches():
    """A catalog that nobody has used yet."""
    subprocess.run(["wine", "reg", "delete", SEARCHES, "/f"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)  # it fails where there are none


def set_paths(resources, models):
    """Tells the control where its files lie."""
    for name in ("Dictionary", "System", "Help", "Styles"):
        set_value(name, windows_path(resources))
    set_value("LiveText", "Zephra 1.0")
    set_value("Models", windows_path(models), KEY + r"\1.0")
