"""A screen reader beside the application, with a speech server that keeps what it is to say."""

import html
import pathlib
import re
import socketserver
import threading
import time

from session import NotSeen, until

NAME = "orca"

# A screen reader asks its server for the voices and for how they are set.
ANSWERS = {"GET": "0", "LIST OUTPUT_MODULES": "silent", "LIST SYNTHESIS_VOICES": "silent\ten\tnone", "HISTORY": "1"}
# How long the reader may be silent before it is taken to have said all.
PAUSE = 1.0


class Conversation(socketserver.StreamRequestHandler):
    """What one program wants spoken: a command a line, and after SPEAK the text, up to a line with a full stop."""

    def handle(self):
        while line := self.line():
            if line == "SPEAK":
                self.answer("230 OK")
                text = "\n".join(iter(self.line, "."))
                self.server.hear(html.unescape(re.sub("<[^>]*>", "", text)))
                self.answer("225-1", "225 OK")
                continue
            data = next((data for command, data in ANSWERS.items() if line.startswith(command)), None)
            self.answer(*([f"200-{data}"] if data else []), "200 OK")

    def line(self):
        return self.rfile.readline().decode().rstrip("\r\n")

    def answer(self, *lines):
        self.wfile.write("".join(f"{line}\r\n" for line in lines).encode())


class SilentSpeech(socketserver.ThreadingUnixStreamServer):
    """The speech server of the session. Nothing is heard, all is kept."""

    daemon_threads = True

    def __init__(self, runtime_folder):
        place = pathlib.Path(runtime_folder) / "speech-dispatcher" / "speechd.sock"
        place.parent.mkdir(mode=0o700)
        super().__init__(str(place), Conversation)
        self.said = []
        self.last = time.monotonic()
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def hear(self, text):
        if text.strip():
            self.said.append(text.strip())
        self.last = time.monotonic()


class Reader:
    """Orca, from its first word on."""

    def __init__(self, session):
        self.session = session
        for name in ("GTK_A11Y", "NO_AT_BRIDGE"):
            session.environment.pop(name)
        self.speech = SilentSpeech(session.environment["XDG_RUNTIME_DIR"])
        session.start(NAME, "--disable", "braille", log="orca")
        until(lambda: self.speech.said, "Orca says nothing", 30)

    def rest(self):
        """Waits until it has been silent for a moment."""
        self.speech.last = time.monotonic()
        until(lambda: time.monotonic() - self.speech.last > PAUSE, "goes on and on")

    def says(self, wanted, action):
        """What it says when that is done, which must have this in it."""
        before = len(self.speech.said)
        action()

        def heard():
            return " ".join(self.speech.said[before:])

        try:
            until(lambda: wanted in heard(), "")
        except NotSeen:
            raise NotSeen(f"says only: {heard()}") from None
        self.rest()
        return heard()


# What is done, what must be said then, and how it is done: a start with flags and variables, or keys.
STEPS = [
    ("the guide comes up", "use the shortcuts you already know.", (["--onboarding"], {}), ()),
    ("the practice comes up", "Give it a try", (["--onboarding"], {"CV_STEP": 1}), ()),
    ("Tab, to the first window", "Start page", None, ["Tab"]),
    ("Ctrl+W, a task", "Start page closed.", None, ["ctrl+w"]),
    ("Ctrl+M without a window", "Point at a window first.", None, ["ctrl+m"]),
    ("Tab, to the next window, and Ctrl+M", "Press Ctrl+F on a window to take it full screen.", None, ["Tab", "ctrl+m"]),
    ("the settings come up", "Corvane Settings", ([], {}), ()),
    ("Down in the search field", "Buttons.", None, ["ctrl+f", "Down"]),
    ("Tab, twice, to the looks", "Classic look. selected radio button", None, ["Tab", "Tab"]),
    ("Right, to the next look", "Soft look. selected radio button", None, ["Right"]),
]


def listen(session, settings, say):
    """Goes through the steps and says what was heard at each."""
    reader = Reader(session)
    running = None
    for row, wanted, start, keys in STEPS:
        if start and running:
            running.terminate()
            running.wait(10)

        def act(start=start, keys=keys):
            nonlocal running
            if start:
                arguments, variables = start
                running = session.start(settings, *arguments, log="application", QT_QPA_PLATFORM="xcb", **variables)
            for key in keys:
                session.run("xdotool", "key", key)
                reader.rest()

        try:
            say(row, reader.says(wanted, act))
        except NotSeen as fault:
            say(row, f"NO: {fault}")
