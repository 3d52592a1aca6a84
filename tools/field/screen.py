"""The virtual display as a person has it: a picture to look at, a pointer and a keyboard."""

import collections
import subprocess

from session import SIZE, NotSeen, until

Frame = collections.namedtuple("Frame", "x y width height")

WIDTH, HEIGHT = SIZE
# The hairline inside a window's edge, over its paper and over the loud panel of the guide.
LIGHT = bytes.fromhex("c5c4c1")
DARK = bytes.fromhex("474748")
PANEL = bytes.fromhex("4a4cc1")


def plain(width, edge=LIGHT):
    """The upper and the lower edge of a window that is all paper."""
    return edge * width


GENERAL = plain(620)
GENERAL_DARK = plain(620, DARK)
ABOUT = plain(460)
SYSTEM_SETTINGS = plain(480)
# The permission step of the guide, and the one after it.
GUIDE = PANEL * 206 + LIGHT * 354
NEXT_STEP = plain(560)


class Picture:
    def __init__(self, pixels):
        self.pixels = pixels

    def pixel(self, x, y):
        place = (y * WIDTH + x) * 3
        return self.pixels[place:place + 3]

    def lines(self, edge):
        """Where such an edge is, no longer and no shorter, from above."""
        place = self.pixels.find(edge)
        while place >= 0:
            x, y = place // 3 % WIDTH, place // 3 // WIDTH
            ends = self.pixels[place - 3:place] == edge[:3], self.pixels[place + len(edge):place + len(edge) + 3] == edge[-3:]
            if place % 3 == 0 and x + len(edge) // 3 <= WIDTH and not any(ends):
                yield x, y
            place = self.pixels.find(edge, place + 1)

    def frame(self, edge):
        """The window with that edge, or None. Its height is 0 where the lower edge is not on the screen."""
        lines = list(self.lines(edge))
        if not lines:
            return None
        x, top = lines[0]
        bottom = [y for other, y in lines[1:] if other == x and y > top]
        return Frame(x, top, len(edge) // 3, bottom[0] - top + 1 if bottom else 0)

    def scrolled_frame(self, edge):
        """The same, also where the page scrolls and shows through the lower edge: the left one ends there as well."""
        frame = self.frame(edge)
        if not frame or frame.height:
            return frame
        color = self.pixel(frame.x, frame.y)
        end = next((y for y in range(frame.y, HEIGHT) if self.pixel(frame.x, y) != color), None)
        return frame._replace(height=end - frame.y) if end else frame


class Screen:
    def __init__(self, session):
        self.session = session

    def picture(self):
        taken = subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"], env=self.session.environment,
                               stdout=subprocess.PIPE, check=True)
        return Picture(taken.stdout)

    def save(self, file, area=Frame(0, 0, WIDTH, HEIGHT)):
        crop = f"{area.width}x{area.height}+{area.x}+{area.y}"
        self.session.run("import", "-window", "root", "-crop", crop, "+repage", str(file))

    def frame(self, edge, height=None, what="window"):
        """Waits for a window, of that height where one is named, that stands still."""
        before = None

        def stands():
            nonlocal before
            now = self.picture().frame(edge)
            still, before = now and now == before, now
            return now if still and height in (None, now.height) else None

        try:
            return until(stands, "")
        except NotSeen:
            seen = f", but {before}" if before else ""
            raise NotSeen(f"no {what} {len(edge) // 3}x{height or '…'}{seen}") from None

    def grown(self, edge, before):
        """Waits until that window is another one, and has been so for a moment."""
        seen = [before]

        def stands():
            seen.append(self.picture().scrolled_frame(edge))
            return seen[-1] != before and len(set(seen[-4:])) == 1 and seen[-1]

        return until(stands, "stays as it is")

    def gone(self, edge, what="window"):
        until(lambda: not self.picture().frame(edge), f"{what} stays")

    def pointer(self, *arguments):
        self.session.run("xdotool", *map(str, arguments))

    def rest(self):
        """Takes the pointer to where it covers nothing, along all edges: a compositor that lost count has it right again."""
        for x, y in ((WIDTH - 1, 0), (0, HEIGHT - 1)):
            self.pointer("mousemove", x, y, "sleep", 0.05)

    def move(self, x, y):
        # Compositors on a virtual display may overlook a single jump.
        for dx, dy in ((-2, -1), (-1, 0), (0, 0)):
            self.pointer("mousemove", x + dx, y + dy, "sleep", 0.05)

    def click(self, frame, place):
        self.move(frame.x + place[0], frame.y + place[1])
        self.pointer("sleep", 0.2, "click", 1, "sleep", 0.1)
        self.rest()

    def drag(self, start, end):
        (x, y), (to_x, to_y) = start, end
        self.move(x, y)
        self.pointer("sleep", 0.1, "mousedown", 1, "sleep", 0.1)
        for step in range(1, 21):
            self.pointer("mousemove", x + (to_x - x) * step // 20, y + (to_y - y) * step // 20, "sleep", 0.03)
        self.pointer("sleep", 0.3, "mouseup", 1, "sleep", 0.1)
        self.rest()

    def key(self, name):
        self.pointer("sleep", 0.3, "key", name)
