"""A script client of the control, commanded from here, and what its model was told."""

import os
import queue
import subprocess
import tempfile
import threading
from pathlib import Path

from tools.session.probe import wait_for, windows_path

HERE = Path(__file__).parent


class Client:
    def __init__(self, script_host):
        self.folder = tempfile.TemporaryDirectory(prefix="session-")
        self.command_file = Path(self.folder.name) / "command"
        script = Path(self.folder.name) / "client.vbs"
        text = (HERE / "client.vbs").read_text(encoding="ascii")
        script.write_text(text.replace("@COMMAND_FILE@", windows_path(self.command_file)), encoding="ascii")
        self.process = subprocess.Popen(["wine", str(script_host), "VBScript", str(script)], stdin=subprocess.DEVNULL,
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.answers = queue.Queue()
        self.calls = []
        self.other_lines = []
        self.stuck = False
        threading.Thread(target=self._read, daemon=True).start()
        self.answer(60)

    def _read(self):
        for line in self.process.stdout:
            line = line.rstrip("\r\n")
            if line.startswith("= "):
                self.answers.put(line[2:])
            elif line.startswith("> "):
                self.calls.append(line[2:])
            else:
                self.other_lines.append(line)
        self.answers.put(None)

    def answer(self, timeout=10):
        """The answer to the oldest command that has none yet."""
        if self.stuck:
            raise TimeoutError("the client has not answered before")
        try:
            text = self.answers.get(timeout=timeout)
        except queue.Empty:
            self.stuck = True
            raise TimeoutError(f"the client did not answer; the model was told {self.calls}") from None
        if text is None:
            raise RuntimeError("the client ended: " + "\n".join(self.other_lines))
        return text

    def send(self, *words):
        """Sends a command without waiting: for those that open modal windows."""
        waiting = self.command_file.with_suffix(".new")
        waiting.write_text("|".join(str(word) for word in words) + "\n", encoding="ascii")
        os.rename(waiting, self.command_file)

    def do(self, *words):
        self.send(*words)
        return self.answer()

    def set(self, **fields):
        words = []
        for name, value in fields.items():
            kind = "truth" if isinstance(value, bool) else "number" if isinstance(value, int) else "text"
            words += [name, kind, value]
        if words:
            self.do("set", *words)

    def told(self, count, timeout=5):
        """What the model was told since the last forgetting, once there is at least that much."""
        try:
            wait_for(lambda: len(self.calls) >= count, timeout)
        except TimeoutError:
            pass  # the comparison will say what is missing
        self.do("visible")  # everything that was told before this answer has been read
        return list(self.calls)

    def forget(self):
        self.do("visible")
        self.calls.clear()

    def close(self):
        if self.process.poll() is None:
            try:
                self.do("quit")
            except (TimeoutError, RuntimeError):
                self.process.kill()
        self.process.wait(timeout=20)
        self.process.stdout.close()
        self.folder.cleanup()
