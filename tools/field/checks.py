"""What is looked at on each desktop. A row of the page is one check; its answer is "yes" or a word, "NO: why" for a fault."""

import pathlib
import subprocess

import screen as looks
from screen import ABOUT, GENERAL, GENERAL_DARK, GUIDE, HEIGHT, SYSTEM_SETTINGS, WIDTH
from session import NotSeen, until

BUNDLE = pathlib.Path(__file__).parents[2] / "build" / "release" / "Corvane.app" / "Contents"
SETTINGS = BUNDLE / "Helpers" / "Corvane Settings.app" / "Contents" / "MacOS" / "corvane-settings"
AGENT = BUNDLE / "MacOS" / "corvane-agent"
IDENTITY = "com.vexmoor.corvane.settings"
TRUSTED = "/com/vexmoor/corvane/agent.accessibilityTrusted"

# Where the controls are in their windows, which have no other size.
CLOSE, MINIMIZE = (29, 23), (51, 23)
STRIP = (300, 10)
PAGES = {"Buttons": ((100, 137), 584), "Shortcuts": ((100, 169), 423), "Layouts": ((100, 201), 654),
         "General": ((100, 105), 311)}
OPEN_SYSTEM_SETTINGS = (286, 314)
LIST = (240, 150)
# The tile in the guide, where it cannot float.
CARRIED_TILE = (380, 270)


class Checks:
    """All checks on one desktop that runs."""

    def __init__(self, session, desktop, pictures, say):
        self.session = session
        self.desktop = desktop
        self.screen = looks.Screen(session)
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

    def check(self, row, function, *arguments):
        """Says what the function answers: nothing or True is "yes"."""
        try:
            answer = function(*arguments)
            self.say(row, "yes" if answer in (None, True) else answer or "NO")
        except NotSeen as fault:
            self.say(row, f"NO: {fault}")

    def all(self):
        for row, check in ROWS:
            self.check(row, check, self)
            # The next check starts afresh, whatever this one left.
            self.end(*[process for process in self.session.processes
                       if process.args[0] in (str(SETTINGS), str(AGENT)) and process.poll() is None])
            self.session.run("dconf", "reset", "-f", "/com/vexmoor/corvane/")

    def open(self):
        process = self.application()
        return process, self.screen.frame(GENERAL, 311, "settings window")

    def moved(self, edge, frame, place, by):
        """Drags a window and says where it came to stand."""
        start = (frame.x + place[0], frame.y + place[1])
        self.screen.drag(start, (start[0] + by[0], start[1] + by[1]))
        now = self.screen.frame(edge)
        if (now.x - frame.x, now.y - frame.y) != by:
            raise NotSeen(f"moved by {now.x - frame.x},{now.y - frame.y} instead of {by[0]},{by[1]}")
        return now


def opens_with_its_size(checks):
    checks.open()
    pages = []
    for name, (place, height) in PAGES.items():
        checks.screen.click(checks.screen.frame(GENERAL), place)
        pages.append(checks.screen.frame(GENERAL, height, f"page {name}").height)


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
    process, frame = checks.open()
    return not checks.desktop.is_decorated(process, checks.screen.picture(), frame)


def moves_by_its_strip(checks):
    _, frame = checks.open()
    checks.moved(GENERAL, frame, STRIP, (120, 60))


def stays_on_the_screen(checks):
    _, frame = checks.open()
    low = checks.moved(GENERAL, frame, STRIP, (60, HEIGHT - 340 - frame.y))
    checks.screen.click(low, PAGES["Layouts"][0])
    try:
        frame = checks.screen.frame(GENERAL, PAGES["Layouts"][1])
    except NotSeen:
        frame = checks.screen.frame(GENERAL)
    if not frame.height:
        return f"NO: hangs off from {frame.y}"
    if frame.height == PAGES["Layouts"][1]:
        return f"yes, moved up by {low.y - frame.y}"
    return f"yes, {frame.height} high, scrolls"


def minimizes(checks):
    process, frame = checks.open()
    checks.screen.click(frame, MINIMIZE)
    checks.screen.gone(GENERAL)
    again = checks.application()
    checks.ends(again, "second start")
    try:
        checks.screen.frame(GENERAL, 311)
    except NotSeen:
        return "yes; a second start does not bring it back"
    return "yes; a second start brings it back"


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
    if not checks.desktop.places_windows:
        frame = checks.moved(ABOUT, frame, (200, 60), (below.x + 120 - frame.x, below.y + 100 - frame.y))
    checks.screen.save(checks.pictures / "edge.png")
    picture = checks.screen.picture()
    y = below.y + below.height - 30
    for x, inside in ((frame.x, 1), (frame.x + frame.width - 1, -1)):
        if picture.pixel(x, y) == picture.pixel(x + inside, y):
            raise NotSeen(f"none at {x},{y}")


def comes_to_the_front(checks):
    checks.open()
    over = checks.application("--about")
    checks.screen.frame(ABOUT, 380, "About")
    before = checks.screen.picture().frame(GENERAL)
    checks.ends(checks.application(), "second start")
    try:
        checks.screen.frame(GENERAL, 311)
    except NotSeen:
        return "NO: stays behind"
    return "yes" if not before else "yes, was not covered"


def turns_dark(checks):
    """The desktop is dark, but nobody has asked its portal yet."""
    checks.session.run("dconf", "write", "/org/gnome/desktop/interface/color-scheme", "'prefer-dark'")
    checks.application()
    checks.screen.frame(GENERAL_DARK, 311, "dark window")


def open_permission(checks):
    agent = checks.agent()
    guide = checks.application("--onboarding", CV_STEP=2)
    frame = checks.screen.frame(GUIDE, 388, "guide")
    aside = checks.moved(GUIDE, frame, (400, 10), (40 - frame.x, 60 - frame.y))
    checks.screen.click(aside, OPEN_SYSTEM_SETTINGS)
    return agent, guide, aside


def asks_for_the_permission(checks):
    agent, guide, frame = open_permission(checks)
    settings = checks.screen.frame(SYSTEM_SETTINGS, 300, "System Settings")
    checks.screen.save(checks.pictures / "permission.png")
    return f"{settings} {frame}"


ROWS = [
    ("General, Buttons, Shortcuts, Layouts: 620 wide, 311, 584, 423, 654 high", opens_with_its_size),
    ("centred", is_centred),
    ("class or application id", is_known_by_its_name),
    ("icon", has_its_icon),
    ("no second decoration", has_one_decoration),
    ("moved by its strip", moves_by_its_strip),
    ("low window, General to Layouts: whole on the screen", stays_on_the_screen),
    ("minimised", minimizes),
    ("closed by its button", closes),
    ("About: 460 x 380, moved by its background, closed by Escape", about),
    ("an edge over a window of the same colour", has_an_edge),
    ("a second start brings the first to the front", comes_to_the_front),
    ("dark desktop whose portal was not running", turns_dark),
    ("the guide asks for the permission", asks_for_the_permission),
]
