"""The demo host, started with a model and watched through the log of the calls that its model receives."""

import subprocess
import tempfile
from pathlib import Path

from .probe import ROOT, wait_for, windows_path


class Host:
    def __init__(self, model, program=ROOT / "dist" / "x86" / "zephra-host.exe", place=(140, 60, 900, 720),
                 options=(), environment=None):
        self.log_file = Path(tempfile.mkdtemp()) / "calls.log"
        self.log_file.touch()
        self.read = 0
        self.process = subprocess.Popen(
            ["wine", str(program), "--model", windows_path(model), "--log",
             windows_path(self.log_file), "--place", ",".join(str(n) for n in place),
             *options],
            env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def calls(self):
        """What the model has received since the last question, one line a call."""
        lines = self.log_file.read_text(encoding="utf-8").splitlines()
        new, self.read = lines[self.read:], len(lines)
        return new

    def wait_for_call(self, start):
        """Waits until a call that starts so has arrived, and returns all calls up to now."""
        wait_for(lambda: any(line.startswith(start) for line in self._unread()), what=f"the model to receive {start}")
        return self.calls()

    def _unread(self):
        return self.log_file.read_text(encoding="utf-8").splitlines()[self.read:]

    def close(self):
        self.process.terminate()
        self.process.wait(timeout=20)
