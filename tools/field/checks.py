"""What is looked at on each desktop. A check is a row of the page; its answer is "yes", a few words, or "NO: why"."""

import pathlib
import subprocess

from screen import ABOUT, GENERAL, GENERAL_DARK, GUIDE, HEIGHT, NEXT_STEP, SYSTEM_SETTINGS, WIDTH, Frame, Screen
from session import NotSeen, until

BUNDLE = pathlib.Path(__file__).parents[2] / "build" / "release" / "Corvane.app" / "Contents"
SETTINGS = BUNDLE / "Helpers" / "Corvane Settings.app" / "Contents" / "MacOS" / "corvane-settings"
AGENT = BUNDLE / "MacOS" / "corvane-agent"
IDENTITY = "com.vexmoor.corvane.settings"
TOKEN = "launcher"
TRUSTED = "/com/vexmoor/corvane/agent.accessibilityTrusted"

# The heights of the pages.
PAGES = {"general": 311, "buttons": 584, "shortcuts": 423, "layouts": 654}
# Where the controls are in their windows, which have no other size.
CLOSE, MINIMIZE = (29, 23), (51, 23)
STRIP = (300, 10)
LAYOUTS = (100, 201)
OPEN_SYSTEM_SETTINGS = (286, 314)
LIST = (240, 118)
# The middle of the floating tile, below the lower edge of System Settings.
TILE_BELOW = 50
# In the guide that carries the tile, the button is further down.
CARRIED_TILE, OPEN_AGAIN = (263, 286), (285, 353)


class Checks:
    """All checks on one desktop that runs."""

    def __init__(self, session, desktop, pictures, say):
        self.session = session
        self.desktop = desktop
        self.screen = Screen(session)
        self.pictures = pictures
        self.say = say

    def application(self, *arguments, **variables):
        return self.session.start(str(SETTINGS), *arguments, log="application", **self.desktop.variables() | variables)

    def agent(self, *arguments):
        return self.session.start(str(AGENT), *arguments, log="agent", **self.desktop.variables())

    def end(self, *processes):
        for process in processes:
            process.terminate()
            process.wait(10)

    def ends(self, process, what):
        try:
            code = process.wait(5)
        except subprocess.TimeoutExpired:
            raise NotSeen(f"{what} does not end") from None
        if code:
            raise NotSeen(f"{what} ends with {code}")

    def check(self, row, function):
        """Says what the function answers: nothing or True is "yes"."""
        try:
            answer = function(self)
            self.say(row, "yes" if answer in (None, True) else answer or "NO")
        except NotSeen as fault:
            self.say(row, f"NO: {fault}")

    def all(self):
        for row, check in ROWS:
            self.screen.rest()
            (self.session.folder / "application").write_bytes(b"")
            self.check(row, check)
            # The next check starts afresh, whatever this one left.
            self.end(*[process for process in self.session.processes
                       if process.args[0] in (str(SETTINGS), str(AGENT)) and process.poll() is None])
            self.session.run("dconf", "reset", "-f", "/com/vexmoor/corvane/")

    def open(self):
        process = self.application()
        return process, self.screen.frame(GENERAL, PAGES["general"], "settings window")

    def moved(self, edge, frame, place, by):
        """Drags a window and says where it came to stand."""
        start = (frame.x + place[0], frame.y + place[1])
        self.screen.drag(start, (start[0] + by[0], start[1] + by[1]))
        now = self.screen.frame(edge)
        by_x, by_y = now.x - frame.x, now.y - frame.y
        # A compositor in a window may round positions.
        if max(abs(by_x - by[0]), abs(by_y - by[1])) > 2:
            raise NotSeen(f"moved by {by_x},{by_y} instead of {by[0]},{by[1]}")
        # Another window, or its shadow, may lie over the lower edge.
        return now._replace(height=frame.height)


def opens_with_its_size(checks):
    for page, height in PAGES.items():
        process = checks.application(CV_TAB=page)
        checks.screen.frame(GENERAL, height, page)
        checks.end(process)


def is_centred(checks):
    _, frame = checks.open()
    if not checks.desktop.places_windows:
        return "the compositor's place"
    aside = frame.x + frame.width // 2 - WIDTH // 2, frame.y + frame.height // 2 - HEIGHT // 2
    return max(map(abs, aside)) <= 1 or f"NO: {aside[0]},{aside[1]} aside"


def is_known_by_its_name(checks):
    process, _ = checks.open()
    identity = checks.desktop.identity(process)
    return identity == IDENTITY or f"NO: {identity}"


def has_its_icon(checks):
    process, _ = checks.open()
    until(lambda: checks.desktop.has_icon(process), "none", 3)


def has_one_decoration(checks):
    before = checks.screen.picture()
    process, frame = checks.open()
    return not checks.desktop.is_decorated(process, frame, before, checks.screen.picture())


def moves_by_its_strip(checks):
    _, frame = checks.open()
    checks.moved(GENERAL, frame, STRIP, (120, 60))


def with_a_higher_page(checks, frame):
    """What becomes of the window; nothing where it hangs off the screen."""
    checks.screen.click(frame, LAYOUTS)
    now = checks.screen.grown(GENERAL, frame)
    if now.height and now.height < PAGES["layouts"]:
        return "scrolls"
    return now.height and ("moved up" if now.y < frame.y else True)


def grows_on_the_screen(checks):
    _, frame = checks.open()
    hangs_off = "NO: hangs off" if checks.desktop.places_windows else "the compositor's place"
    return with_a_higher_page(checks, frame) or hangs_off


def stays_on_the_screen(checks):
    _, frame = checks.open()
    low = checks.moved(GENERAL, frame, STRIP, (60, HEIGHT - 340 - frame.y))
    hangs_off = "hangs off: is told no place" if checks.desktop.is_wayland else "NO: hangs off"
    return with_a_higher_page(checks, low) or hangs_off


def minimizes(checks):
    _, frame = checks.open()
    checks.screen.click(frame, MINIMIZE)
    if not checks.desktop.can_minimize:
        return "the desktop cannot"
    checks.screen.gone(GENERAL)
    checks.ends(checks.application(), "second start")
    checks.screen.frame(GENERAL, PAGES["general"], "settings window")


def closes(checks):
    process, frame = checks.open()
    checks.screen.click(frame, CLOSE)
    checks.ends(process, "application")


def about(checks):
    process = checks.application("--about")
    frame = checks.screen.frame(ABOUT, 380, "About")
    checks.moved(ABOUT, frame, (200, 60), (80, -40))
    checks.screen.key("Escape")
    checks.ends(process, "About")


def has_an_edge(checks):
    """About over the settings window, which has the same colour."""
    _, below = checks.open()
    checks.application("--about")
    frame = checks.screen.frame(ABOUT, 380, "About")
    frame = checks.moved(ABOUT, frame, (200, 60), (below.x + 120 - frame.x, below.y - 20 - frame.y))
    corner = Frame(frame.x - 100, below.y + below.height - 90, 240, 150)
    checks.screen.save(checks.pictures / "edge.png", corner)
    picture = checks.screen.picture()
    y = below.y + below.height - 10
    for edge, inside, outside in ((frame.x, 1, -1), (frame.x + frame.width - 1, -1, 1)):
        line, left, right = (picture.pixel(edge + aside, y) for aside in (0, inside, outside))
        if line in (left, right):
            raise NotSeen(f"none at {edge},{y}")


def comes_to_the_front(checks):
    _, frame = checks.open()
    checks.application("--about")
    over = checks.screen.frame(ABOUT, 380, "About")
    checks.moved(ABOUT, over, (200, 60), (frame.x + 80 - over.x, frame.y + 20 - over.y))
    # A launcher's token is worth something to Wayland alone, and this one to nobody; but it must arrive.
    token = {"XDG_ACTIVATION_TOKEN": TOKEN} if checks.desktop.is_wayland else {}
    checks.ends(checks.application(**token), "second start")
    if not checks.desktop.is_wayland:
        checks.screen.frame(GENERAL, PAGES["general"])
    elif not checks.desktop.can_ask():
        return "the desktop cannot"
    else:
        until(lambda: checks.desktop.has_asked(TOKEN), "does not ask")
        return "asks with the launcher's token"


def turns_dark(checks):
    """The desktop is dark, but nobody has asked its portal yet."""
    checks.session.run("dconf", "write", "/org/gnome/desktop/interface/color-scheme", "'prefer-dark'")
    checks.application()
    checks.screen.frame(GENERAL_DARK, PAGES["general"], "dark window")


def open_permission(checks):
    """The guide, aside so that System Settings leaves it free, and System Settings opened from it."""
    checks.agent()
    guide = checks.application("--onboarding", CV_STEP=2)
    frame = checks.screen.frame(GUIDE, 388, "guide")
    aside = checks.moved(GUIDE, frame, (400, 10), (40 - frame.x, 60 - frame.y))
    checks.screen.click(aside, OPEN_SYSTEM_SETTINGS)
    settings = checks.screen.frame(SYSTEM_SETTINGS, 300, "System Settings")
    settings = checks.moved(SYSTEM_SETTINGS, settings, STRIP, (760 - settings.x, 240 - settings.y))
    return guide, aside, settings


def tile_place(checks, guide, frame, settings):
    """The middle of the tile: of the one below System Settings, or of the one in the guide."""
    if checks.desktop.is_wayland:
        # System Settings may lie over its lower edge.
        checks.screen.frame(GUIDE, what="guide")
        return frame.x + CARRIED_TILE[0], frame.y + CARRIED_TILE[1]
    checks.screen.gone(GUIDE, "guide")

    def place():
        frames = checks.desktop.frames(guide)
        return len(frames) == 1 and (frames[0].x + frames[0].width // 2, frames[0].y + frames[0].height // 2)

    wanted = settings.x + settings.width // 2, settings.y + settings.height + TILE_BELOW
    until(lambda: place() == wanted, f"the tile is at {place()} instead of {wanted}")
    return wanted


def asks_for_the_permission(checks):
    guide, frame, settings = open_permission(checks)
    tile_place(checks, guide, frame, settings)
    checks.screen.save(checks.pictures / "permission.png")
    return "carries the tile" if checks.desktop.is_wayland else "tile follows below"


def opens_again(checks):
    guide, frame, settings = open_permission(checks)
    tile_place(checks, guide, frame, settings)
    if not checks.desktop.can_minimize:
        return "the desktop cannot"
    checks.screen.click(settings, MINIMIZE)
    checks.screen.gone(SYSTEM_SETTINGS, "System Settings")
    checks.screen.click(checks.screen.frame(GUIDE, 388, "guide"),
                        OPEN_AGAIN if checks.desktop.is_wayland else OPEN_SYSTEM_SETTINGS)
    settings = checks.screen.frame(SYSTEM_SETTINGS, 300, "System Settings")
    tile_place(checks, guide, frame, settings)


def drag_grants(checks):
    guide, frame, settings = open_permission(checks)
    checks.screen.drag(tile_place(checks, guide, frame, settings), (settings.x + LIST[0], settings.y + LIST[1]))
    until(lambda: checks.session.run("dconf", "read", TRUSTED) == "true", "not granted")
    checks.screen.frame(NEXT_STEP, 388, "guide that goes on")
    if checks.desktop.is_wayland:
        # It was there all the time, and no window takes the focus from another.
        return
    # Escape goes to whoever has the focus, and ends the guide.
    checks.screen.key("Escape")
    checks.ends(guide, "guide")


ROWS = [
    ("620 wide; General, Buttons, Shortcuts, Layouts 311, 584, 423, 654 high", opens_with_its_size),
    ("centred", is_centred),
    ("class or application id", is_known_by_its_name),
    ("icon", has_its_icon),
    ("no second decoration", has_one_decoration),
    ("moved by its strip", moves_by_its_strip),
    ("General to Layouts: all on the screen", grows_on_the_screen),
    ("the same, moved down before", stays_on_the_screen),
    ("minimised by its button, back with a second start", minimizes),
    ("closed by its button", closes),
    ("About: 460x380, moved by its background, closed by Escape", about),
    ("an edge over a window of the same colour", has_an_edge),
    ("a second start brings it to the front", comes_to_the_front),
    ("guide: 560x388, opens System Settings, tile to drag", asks_for_the_permission),
    ("System Settings minimised comes back with Open Again", opens_again),
    ("dragging the tile grants, the guide goes on (X11: with the focus)", drag_grants),
    # Stays dark.
    ("dark desktop whose portal was not running", turns_dark),
]
