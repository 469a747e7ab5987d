"""Drives the front panel's device emulator from Python; the standard library is all it needs.

    with frontpanel.start() as panel:       # a throwaway panel with a folder of its own
        panel.go("音频", open=True)          # walk the menu by what stands there
        panel.key("ok")
        panel.knob("right", 3)
        panel.wait_text("63%")              # raises frontpanel.TimedOut when it does not come
        print(panel.texts())

    panel = frontpanel.connect()                        # one that runs: its state folder, else the user's own
    panel = frontpanel.connect("http://host:8080/#token=...")   # by the link that --web prints

Every word of the console is a method (panel.signal("hdmi1", "off"), panel.store("get", "Volume")); it gives back
the lines of the answer and raises Refused, WrongUsage or TimedOut. "fpdctl help" lists the words.
"""
import json
import os
import pathlib
import shutil
import socket
import subprocess
import tempfile
import urllib.error
import urllib.parse
import urllib.request

_START_SECONDS = 60


class Refused(Exception):
    """What was asked for cannot be done."""


class WrongUsage(Refused):
    """An unknown word or a wrong argument."""


class TimedOut(Refused):
    """A wait in vain."""


class _Socket:
    """The console's socket in a state folder."""

    def __init__(self, state):
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.connect(os.path.join(state, "run", "control.sock"))
        self._lines = self._socket.makefile("r", encoding="utf-8")
        self.ask(["cd", os.getcwd()])

    def ask(self, words):
        quoted = ('"' + word.replace("\\", "\\\\").replace('"', '\\"').replace("\n", " ") + '"' for word in words)
        self._socket.sendall((" ".join(quoted) + "\n").encode())
        lines = []
        for line in self._lines:
            if line.startswith("+"):
                lines.append(line[1:-1])
            elif line == "ok\n":
                return lines
            else:
                reason = line[len("error "):-1]
                kind = WrongUsage if reason.startswith("usage: ") else TimedOut if reason.startswith("time-out: ") else Refused
                raise kind(reason)
        raise ConnectionError("the emulator went away")

    def close(self):
        self._lines.close()
        self._socket.close()


class _Http:
    """The same words over HTTP."""

    _kinds = {400: WrongUsage, 504: TimedOut}

    def __init__(self, link):
        url = urllib.parse.urlsplit(link)
        self._address = f"{url.scheme}://{url.netloc}/api/console"
        token = urllib.parse.parse_qs(url.fragment).get("token")
        self._headers = {"Content-Type": "application/json"}
        if token:
            self._headers["Authorization"] = "Bearer " + token[0]

    def ask(self, words):
        request = urllib.request.Request(self._address, json.dumps(words).encode(), self._headers)
        try:
            with urllib.request.urlopen(request) as answer:
                lines = json.load(answer)["lines"]
        except urllib.error.HTTPError as fault:
            raise self._kinds.get(fault.code, Refused)(json.load(fault)["error"]) from None
        return [line if isinstance(line, str) else json.dumps(line) for line in lines]

    def close(self):
        pass


class Panel:
    def __init__(self, console, emulator=None, folder=None):
        self._console = console
        self._emulator = emulator
        self._folder = folder

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def __getattr__(self, word):
        if word.startswith("_"):
            raise AttributeError(word)
        return lambda *arguments: self.ask(word, *arguments)

    def close(self):
        """Ends the connection; a throwaway panel and its folder, too."""
        self._console.close()
        if self._emulator:
            self._emulator.terminate()
            self._emulator.wait()
        if self._folder:
            shutil.rmtree(self._folder, ignore_errors=True)

    def ask(self, *words):
        """A word of the console and its arguments; the lines of the answer."""
        return self._console.ask([str(word) for word in words])

    def read(self, *words):
        """The same as data: what each line holds."""
        return [json.loads(line) for line in self.ask(*words, "--json")]

    def go(self, *path, open=False):
        """Walks from the home screen to a row of the menu by names as they are shown."""
        self.ask("go", *path, *(["--open"] if open else []))

    def texts(self):
        """What stands on the LCD: text, place, role and state of each."""
        return self.read("screen", "text")[0]

    def shows(self, text):
        return any(text in shown["text"] for shown in self.texts())

    def wait_text(self, text, seconds=30):
        self.ask("wait", "text", text, seconds)

    def wait_gone(self, text, seconds=30):
        self.ask("wait", "text", text, seconds, "--gone")

    def wait_value(self, item, value, seconds=30):
        """Until the panel's store holds it; it is written a second after the last key."""
        self.ask("wait", "value", item, value, seconds)

    def wait_still(self, seconds=30):
        self.ask("wait", "screen", "still", seconds)

    def written(self):
        """The registers that the panel has written: time, address, device and bytes of each."""
        return self.read("writes")

    def png(self):
        """The LCD as the bytes of a PNG."""
        return bytes.fromhex(self.ask("screen", "-")[0])


def _program(name):
    built = pathlib.Path(__file__).resolve().parents[2] / "build" / "bin" / name
    found = built if built.exists() else shutil.which(name)
    if not found:
        raise FileNotFoundError(f"{name} is neither in build/bin nor in the PATH; ./run builds it")
    return str(found)


def start(*options):
    """A panel of its own, ready to be used; gone with close(). Options as of fpd-emulator."""
    folder = tempfile.mkdtemp(prefix="fpd-")
    state = os.path.join(folder, "state")
    emulator = subprocess.Popen([_program("fpd-emulator"), "--headless", "--state", state, *options],
                                stdout=subprocess.PIPE, text=True)
    for line in emulator.stdout:
        if line == "ready\n":
            panel = Panel(_Socket(state), emulator, folder)
            panel.ask("wait", "settled", _START_SECONDS)
            return panel
    shutil.rmtree(folder, ignore_errors=True)
    raise ConnectionError("the emulator ended before its panel was ready")


def connect(where=None):
    """A panel that runs, by its state folder or its link."""
    if where and where.startswith("http"):
        return Panel(_Http(where))
    base = os.environ.get("XDG_STATE_HOME", "")
    base = base if base.startswith("/") else os.path.expanduser("~/.local/state")
    return Panel(_Socket(where or os.environ.get("FPD_STATE") or os.path.join(base, "fpd")))
