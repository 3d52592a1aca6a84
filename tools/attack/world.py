"""The world in which the application is attacked: a session with a window manager, and the application in it."""

import os
import pathlib
import signal
import subprocess
import sys
import time

sys.path.append(str(pathlib.Path(__file__).parents[1] / "field"))

from session import NotSeen, Session, until  # noqa: E402

BUNDLE = pathlib.Path(__file__).parents[2] / "build" / "release" / "Corvane.app" / "Contents"
APPLICATION = BUNDLE / "Helpers" / "Corvane Settings.app"
PROGRAM = pathlib.Path("Contents", "MacOS", "corvane-settings")
FOLDER = "/com/vexmoor/corvane/"
MINIMIZE = FOLDER + "showMinimizeButton"

# Where things are in the settings window: two pages of the list, and the switch "Minimize button" of the second one.
GENERAL, BUTTONS = (100, 105), (100, 137)
SWITCH, KNOB_OF_OFF = (562, 448), (550, 448)
WHITE = b"\xff\xff\xff"


class Lost(Exception):
    """Something was lost, hidden or hung."""


class World(Session):
    """A fresh session. What is started in it ends with it."""

    def __enter__(self):
        super().__enter__()
        self.start("openbox")
        # A window that comes while the window manager starts may be overlooked by it.
        until(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "no window manager")
        return self

    def __exit__(self, *fault):
        # The document portal has mounted a file system here, and takes it away when it ends.
        if documents := self.service("org.freedesktop.portal.Documents"):
            os.kill(documents, signal.SIGTERM)
            until(lambda: not os.path.ismount(self.folder / "runtime" / "doc"), "mounted", 5)
        super().__exit__(*fault)

    def application(self, *arguments, program=APPLICATION / PROGRAM, page="buttons", **variables):
        return self.start(str(program), *arguments, log="application", CV_TAB=page, **variables)

    def window(self, process, seconds=60):
        """Waits for the window of a process; what xdotool calls it."""
        def find():
            if process.poll() is not None:
                raise Lost(f"ended with {process.returncode}")
            return self.run("xdotool", "search", "--onlyvisible", "--pid", str(process.pid)).split("\n")[0]
        try:
            return until(find, "", seconds)
        except NotSeen:
            raise Lost(f"no window in {seconds} s") from None

    def open(self, *arguments, **how):
        process = self.application(*arguments, **how)
        return process, self.window(process)

    def click(self, window, place, times=1):
        self.run("xdotool", "mousemove", "--window", window, str(place[0]), str(place[1]),
                 *["click", "1", "sleep", "0.01"] * times)

    def pixel(self, window, place):
        taken = subprocess.run(["import", "-window", window, "-crop", f"1x1+{place[0]}+{place[1]}", "-depth", "8", "rgb:-"],
                               env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        return taken.stdout

    def shown(self, window):
        """Whether the switch "Minimize button" shows on."""
        return self.pixel(window, KNOB_OF_OFF) != WHITE

    def stored(self, key=MINIMIZE):
        return self.run("dconf", "read", key)

    def write(self, key, value):
        self.run("dconf", "write", key, value)

    def load(self, text):
        """Writes keys of our folder in the form of dconf's own files, for values too long for a command."""
        subprocess.run(["dconf", "load", FOLDER], input=text, env=self.environment, text=True,
                       stderr=subprocess.DEVNULL, check=False)

    def agrees(self, window, seconds=20):
        """Waits until the switch shows what is stored."""
        try:
            until(lambda: self.shown(window) == (self.stored() == "true"), "", seconds)
        except NotSeen:
            raise Lost(f"shown {self.shown(window)}, stored {self.stored() or 'nothing'}") from None

    def answers(self, process, window, seconds=10):
        """Waits until the window follows the pointer to another page and back; how long that took."""
        begin = time.monotonic()
        before = self.pixel(window, GENERAL)
        self.click(window, (GENERAL[0] + 60, GENERAL[1]))
        try:
            until(lambda: process.poll() is not None or self.pixel(window, GENERAL) != before, "", seconds)
        except NotSeen:
            raise Lost(f"no answer in {seconds} s") from None
        if process.poll() is not None:
            raise Lost(f"ended with {process.returncode}")
        self.click(window, (BUTTONS[0] + 60, BUTTONS[1]))
        return time.monotonic() - begin

    def kill(self, process, how=signal.SIGKILL):
        process.send_signal(how)
        return process.wait(20)

    def service(self, name="ca.desrt.dconf"):
        """The process that owns a name on the bus."""
        answer = self.run("dbus-send", "--session", "--print-reply=literal", "--dest=org.freedesktop.DBus", "/",
                          "org.freedesktop.DBus.GetConnectionUnixProcessID", "string:" + name)
        return int(answer.split()[-1]) if answer else None
