"""The desktops there are, and what differs between them for whoever looks at a window."""

import os
import pathlib
import re
import shutil

from screen import Frame
from session import GROUND, SIZE, NotSeen, until

NOBODY = 65534


class X11:
    """A window manager on the display, with a compositing manager beside it where one is named."""

    is_wayland = False
    # Whether a window stands where it asks to, and whether it can be minimised.
    places_windows = True
    can_minimize = True

    def __init__(self, package, *commands):
        self.package = package
        self.commands = commands

    def start(self, session):
        self.session = session
        managers = [session.start(*command, log="desktop") for command in self.commands]
        until(lambda: "window id" in session.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
              or any(manager.poll() is not None for manager in managers), "no window manager", 20)
        for manager, command in zip(managers, self.commands):
            if manager.poll() is not None:
                raise NotSeen(f"{command[0]} ends with {manager.returncode}")

    def variables(self):
        return {"QT_QPA_PLATFORM": "xcb"}

    def windows(self, process):
        found = self.session.run("xdotool", "search", "--onlyvisible", "--pid", str(process.pid)).split()
        return {window: self.session.run("xprop", "-id", window) for window in found}

    def frames(self, process):
        """Where the windows of that process are."""
        places = (self.session.run("xdotool", "getwindowgeometry", "--shell", window) for window in self.windows(process))
        return [Frame(*(int(re.search(rf"{name}=(-?\d+)", place)[1]) for name in ("X", "Y", "WIDTH", "HEIGHT")))
                for place in places if place]

    def property(self, process, pattern):
        """The first such property of a window of that process."""
        for text in self.windows(process).values():
            if match := re.search(pattern, text):
                return match
        return None

    def identity(self, process):
        match = self.property(process, r'WM_CLASS\(STRING\) = "[^"]*", "([^"]*)"')
        return match and match[1]

    def has_icon(self, process):
        return bool(self.property(process, r"_NET_WM_ICON\(CARDINAL\) =\s*Icon"))

    def is_decorated(self, process, *_):
        extents = self.property(process, r"_NET_FRAME_EXTENTS\(CARDINAL\) = (.*)")
        return bool(extents) and extents[1] != "0, 0, 0, 0"


class Wayland:
    """A compositor whose screen is a window on the display."""

    is_wayland = True
    can_minimize = True
    socket = "wayland-1"

    def __init__(self, package, *command, places_windows=True, **variables):
        self.package = package
        self.command = command
        self.places_windows = places_windows
        self.own = variables

    def start(self, session):
        self.session = session
        # One of the compositors counts positions from where the pointer was when it started.
        session.run("xdotool", "mousemove", "0", "0")
        compositor = self.start_compositor()
        until(lambda: self.display().exists() or compositor.poll() is not None, "no Wayland display", 20)
        if compositor.poll() is not None:
            raise NotSeen(f"{self.command[0]} ends with {compositor.returncode}")

    def start_compositor(self):
        return self.session.start(*self.command, log="desktop", **self.own)

    def display(self):
        return self.session.folder / "runtime" / self.socket

    def variables(self):
        return {"DISPLAY": None, "WAYLAND_DISPLAY": self.display(), "QT_QPA_PLATFORM": "wayland",
                "WAYLAND_DEBUG": "client"}

    def said(self, pattern):
        """The first such request of the application to the compositor."""
        return re.search(pattern, (self.session.folder / "application").read_text(errors="replace"))

    def identity(self, process):
        match = self.said(r'set_app_id\("([^"]*)"\)')
        return match and match[1]

    def can_ask(self):
        """Whether the compositor lets a window ask to come to the front."""
        return bool(self.said(r'"xdg_activation_v1"'))

    def has_asked(self, token):
        """Whether it has asked for that with this token."""
        return bool(self.said(rf'xdg_activation_v1@\d+\.activate\("{token}"'))

    def has_icon(self, process):
        """A compositor takes the icon from the desktop entry that is named like the application."""
        root = pathlib.Path(__file__).parents[2]
        entry = root / "resources" / "desktop" / f"{self.identity(process)}.desktop.in"
        return entry.exists() and bool(re.search("^Icon=.", entry.read_text(), re.MULTILINE))

    def is_decorated(self, process, frame, before, now):
        """Whether there is a title bar above the window; none of these compositors draws a shadow there."""
        place = frame.x + frame.width // 2, frame.y - 12
        return before.pixel(*place) != now.pixel(*place)


class Sway(Wayland):
    """Refuses the root user, and is started as nobody for it."""

    can_minimize = False

    def display(self):
        return self.session.folder / "sway" / self.socket

    def start_compositor(self):
        folder = self.display().parent
        folder.mkdir(mode=0o700)
        config = self.session.folder / "sway.conf"
        config.write_text(f"output X11-1 resolution {SIZE[0]}x{SIZE[1]} position 0 0\n"
                          f"output X11-1 background {GROUND} solid_color\n")
        command = [*self.command, "--config", str(config)]
        if os.geteuid() == 0:
            shutil.chown(folder, NOBODY, NOBODY)
            command = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", *command]
        return self.session.start(*command, log="desktop", HOME=folder, XDG_RUNTIME_DIR=folder, WLR_BACKENDS="x11",
                                  WLR_RENDERER="pixman", DBUS_SESSION_BUS_ADDRESS=None)


class KWin(Wayland):
    """Its program has a capability that a container may be unable to grant; a copy has none."""

    def start_compositor(self):
        copy = shutil.copyfile(shutil.which(self.command[0]), self.session.folder / self.command[0])
        os.chmod(copy, 0o755)
        return self.session.start(str(copy), *self.command[1:], "--x11-display", self.session.environment["DISPLAY"],
                                  log="desktop", **self.own)


WIDTH, HEIGHT = map(str, SIZE)
DESKTOPS = {
    "openbox": X11("openbox", ["openbox"]),
    # With the one rule of its example settings that spares windows with a shadow of their own.
    "openbox-picom": X11("picom", ["openbox"], ["picom", "--backend", "xrender", "--shadow",
                                                "--shadow-exclude", "_GTK_FRAME_EXTENTS@:c"]),
    "xfwm4": X11("xfwm4", ["xfwm4", "--compositor=on"]),
    "mutter-x11": X11("mutter", ["mutter", "--x11"]),
    "kwin_x11": X11("kwin-x11", ["kwin_x11"]),
    "sway": Sway("sway", "sway"),
    "weston": Wayland("weston", "weston", "--backend=x11-backend.so", "--use-pixman", f"--width={WIDTH}",
                      f"--height={HEIGHT}", "--socket=wayland-1", "--idle-time=0", places_windows=False),
    "kwin_wayland": KWin("kwin-wayland", "kwin_wayland", "--width", WIDTH, "--height", HEIGHT, "--socket", "wayland-1",
                         "--no-lockscreen", KWIN_COMPOSE="Q"),
    "mutter-wayland": Wayland("mutter", "mutter", "--wayland", "--nested", "--no-x11", "--wayland-display", "wayland-1",
                              places_windows=False, MUTTER_DEBUG_DUMMY_MODE_SPECS=f"{WIDTH}x{HEIGHT}",
                              MUTTER_DEBUG_DUMMY_MONITOR_SCALES="1"),
}
