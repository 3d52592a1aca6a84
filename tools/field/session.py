"""What every desktop stands on: a private home, session bus and virtual display, and the processes on them."""

import os
import pathlib
import subprocess
import tempfile
import time

SIZE = (1440, 900)
GROUND = "#5a7fa8"


class NotSeen(Exception):
    """What was waited for did not come."""


def until(condition, what, seconds=10):
    """What condition() gives as soon as that is true; NotSeen after that many seconds."""
    limit = time.monotonic() + seconds
    while not (value := condition()):
        if time.monotonic() > limit:
            raise NotSeen(what)
        time.sleep(0.05)
    return value


class Session:
    """Ends everything it has started when it is left."""

    def __init__(self):
        self.processes = []
        self._folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.folder = pathlib.Path(self._folder.name)
        self.folder.chmod(0o711)
        for name in ("home", "runtime"):
            (self.folder / name).mkdir(mode=0o700)
        kept = {name: os.environ[name] for name in ("PATH", "LANG") if name in os.environ}
        self.environment = kept | {
            "HOME": str(self.folder / "home"),
            "XDG_RUNTIME_DIR": str(self.folder / "runtime"),
            "GTK_A11Y": "none",
            "NO_AT_BRIDGE": "1",
        }

    def __enter__(self):
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.first_line(
            "dbus-daemon", "--session", "--nofork", "--print-address=1")
        self.environment["DISPLAY"] = ":" + self.first_line(
            "Xvfb", "-displayfd", "1", "-screen", "0", "%dx%dx24" % SIZE, "-nolisten", "tcp", "-noreset")
        # What the bus starts belongs to this session as well.
        self.run("dbus-update-activation-environment", *self.environment)
        self.run("xsetroot", "-solid", GROUND)
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(3)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self._folder.cleanup()

    def start(self, *command, log="log", **variables):
        """Starts a program that runs on; a variable that is None is not there for it."""
        environment = {name: str(value) for name, value in (self.environment | variables).items() if value is not None}
        with open(self.folder / log, "ab") as output:
            process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=output, stderr=output)
        self.processes.append(process)
        return process

    def first_line(self, *command):
        """Starts a server that says on its first line how to reach it."""
        server = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                  stderr=subprocess.DEVNULL, text=True)
        self.processes.append(server)
        return server.stdout.readline().strip()

    def run(self, *command):
        """What a program says that ends by itself."""
        return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True, check=False).stdout.strip()
