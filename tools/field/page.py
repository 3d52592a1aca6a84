"""Makes docs/field.md, and the pictures on it, from what the last run on each desktop has seen."""

import json
import subprocess

import speech
from checks import ROWS
from desktops import DESKTOPS
from session import SIZE

PICTURES = {"edge": "A corner of About, over a corner of the settings window, which has the same colour",
            "permission": "The permission step of the guide"}

PAGE = """# On other desktops

What `scripts/field` saw of the release build on {count} desktops, each on a display of {width}x{height} with a session bus and a
home of its own. It makes this page: change it in `tools/field/page.py`. A fault begins with "NO".

{table}

{pictures}
Where the answer is neither yes nor no:

- **Places on Wayland.** No window is told where it stands, and none can move itself. Weston and Mutter place a new window
  where they like. The settings window grows as far as one in the middle of the screen can, and then its page scrolls. One
  that was moved down hangs off when a higher page is chosen, unless the compositor moves it up, which Mutter does in part;
  moved up again, it shows the end of its page.
- **Minimising on Sway.** Sway has no minimised windows.
- **The front on Wayland.** Who comes to the front is the compositor's decision, by the token that a launcher gives to what
  it starts. A second start hands it over to the running window. From a terminal there is none. Weston knows no tokens.
- **Scale.** Everything was seen at scale 1. What Qt does at others stands in the [README](../README.md#what-works-today).
  Mutter on Wayland, unless it scales by fractions, tells programs at scale 2 a screen of twice its height in points: a page
  may then grow off a low screen.
- **picom** runs with the rule of its example settings that spares windows with a shadow of their own
  (`_GTK_FRAME_EXTENTS@:c`); without it, it draws a second, square shadow around the tile.

What Orca {orca} says, under Openbox, of what is done by the keyboard:

{heard}

Not seen: the shells of GNOME and Plasma around Mutter and KWin, real System Settings, graphics cards, touch, and several
monitors.
"""


def version(package):
    text = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", package], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True, check=False).stdout
    return text.split(":")[-1].split("-")[0].split("+")[0]


def line(cells):
    return "| " + " | ".join(cells) + " |"


def table(seen):
    """A row a check, a column a desktop."""
    heads = [f"{name} {version(DESKTOPS[name].package)}" for name in seen]
    rows = [row for row, _ in ROWS]
    return "\n".join([line(["", *heads]), line(["---"] * (len(seen) + 1)),
                      *(line([row, *(answers.get(row, answers.get("starts", "")) for answers in seen.values())])
                        for row in rows)])


def montage(root, names, picture):
    """One small picture of all desktops."""
    files = [root / "build" / "field" / name / f"{picture}.png" for name in names]
    shown = [(name, file) for name, file in zip(names, files) if file.exists()]
    labelled = [part for name, file in shown for part in ("-label", name, str(file))]
    target = root / "docs" / "pictures" / f"field-{picture}.png"
    whole = subprocess.run(["montage", *labelled, "-resize", "400x250>", "-geometry", "+4+4", "-tile", "3x", "miff:-"],
                           stdout=subprocess.PIPE, check=True).stdout
    subprocess.run(["convert", "-", "+dither", "-colors", "128", "-strip", f"PNG8:{target}"], input=whole, check=True)
    return f"{PICTURES[picture]}:\n\n![{PICTURES[picture]}](pictures/{target.name})\n"


def answers(root, name):
    """What the last run has seen there, by row; None before there was one."""
    file = root / "build" / "field" / name / "seen.json"
    return json.loads(file.read_text()) if file.exists() else None


def write(root):
    seen = {name: rows for name in DESKTOPS if (rows := answers(root, name))}
    heard = [line(["done", "said"]), line(["---", "---"]), *map(line, (answers(root, speech.NAME) or {}).items())]
    pictures = "\n".join(montage(root, list(seen), picture) for picture in PICTURES)
    (root / "docs" / "field.md").write_text(PAGE.format(
        count=len(seen), width=SIZE[0], height=SIZE[1], table=table(seen), pictures=pictures,
        orca=version(speech.NAME), heard="\n".join(heard)))
