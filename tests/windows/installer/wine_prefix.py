"""A Wine prefix of its own that nothing was ever installed in, and what it holds at a moment."""

import os
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT))

from tools.session.probe import windows_path  # noqa: E402

# What Wine itself changes at any time: temporary files, and what it remembers of windows, fonts and sessions. The
# uninstaller works in a temporary copy of itself, which the session manager removes at the next start.
RESTLESS_FILES = ("windows/temp/", "windows/Temp/", "/AppData/Local/Temp/", "users/root/Temp/")
RESTLESS_KEYS = ("\\\\Volatile Environment", "Software\\\\Wine\\\\", "Control Panel\\\\", "HKCU\\\\Console",
                 "\\\\Control\\\\Video\\\\", "\\\\Control\\\\Class\\\\", "\\\\Control\\\\Session Manager",
                 "\\\\Explorer\\\\", "HARDWARE\\\\", "\\\\Enum\\\\", "Fonts")


class Prefix:
    def __init__(self, folder, architecture="win64"):
        self.folder = Path(folder)
        self.drive = self.folder / "drive_c"
        self.environment = {**os.environ, "NERIDA_WINEPREFIX": str(self.folder), "WINEPREFIX": str(self.folder),
                            "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree,mshtml=;winemenubuilder.exe=d",
                            "WINEARCH": architecture}
        self._shell("start_wine")

    def _shell(self, command):
        # Its end of the pipe would stay with Wine's services, so there is none.
        subprocess.run(["bash", "-c", f"source '{ROOT}/tools/wine-env'; export WINEARCH={self.environment['WINEARCH']};"
                        f"{command}"], env=self.environment, check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def run(self, *words, log=None, timeout=120):
        """A program's exit code; what it prints goes to the file `log`."""
        with open(log or os.devnull, "wb") as output:
            return subprocess.run(["wine", *map(str, words)], env=self.environment, stdin=subprocess.DEVNULL,
                                  stdout=output, stderr=subprocess.DEVNULL, timeout=timeout).returncode

    def stop(self):
        """Ends everything in it; only then the registry is in its files."""
        subprocess.run(["wineserver", "-k"], env=self.environment, stderr=subprocess.DEVNULL)
        subprocess.run(["wineserver", "-w"], env=self.environment)

    def path(self, windows):
        """The file of a Windows path on drive C, whatever its capitals."""
        place = self.drive
        for part in windows.removeprefix("C:\\").split("\\"):
            place = next((p for p in place.glob("*") if p.name.lower() == part.lower()), place / part)
        return place

    def snapshot(self):
        self.stop()
        return Snapshot(self._files(), self._registry())

    def _files(self):
        found = {}
        for folder, folders, names in os.walk(self.drive):
            for name in folders + names:
                path = Path(folder) / name
                relative = path.relative_to(self.drive).as_posix()
                if any(part in relative + "/" for part in RESTLESS_FILES):
                    continue
                state = path.lstat()
                found[relative] = "folder" if path.is_dir() else (state.st_size, state.st_mtime_ns)
        return found

    def _registry(self):
        values = {}
        for file, root in (("system.reg", "HKLM"), ("user.reg", "HKCU")):
            key = None
            for line in (self.folder / file).read_text("utf-8", "replace").replace("\\\n", "").splitlines():
                if line.startswith("["):
                    key = root + "\\\\" + line[1:line.rindex("]")]
                    values[key] = {}
                elif key and line and line[0] in '"@':
                    name, _, text = line.partition("=")
                    values[key][name] = text
        return {key: found for key, found in values.items() if not any(part in key for part in RESTLESS_KEYS)}


class Snapshot:
    def __init__(self, files, registry):
        self.files, self.registry = files, registry

    def changes_since(self, earlier):
        """One line for each file, key and value that has come, gone or changed."""
        lines = compared(earlier.files, self.files)
        for key in sorted(earlier.registry.keys() | self.registry.keys()):
            before, after = earlier.registry.get(key), self.registry.get(key)
            if before is None or after is None:
                lines.append(("+ " if before is None else "- ") + key)
            lines += [f"{line[:2]}{key} {line[2:]}" for line in compared(before or {}, after or {})]
        return lines


def compared(before, after):
    lines = [f"+ {name}" for name in sorted(after.keys() - before.keys())]
    lines += [f"- {name}" for name in sorted(before.keys() - after.keys())]
    return lines + [f"~ {name}" for name in sorted(before.keys() & after.keys()) if before[name] != after[name]]
