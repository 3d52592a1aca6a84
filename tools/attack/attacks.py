"""The attacks. Each gives what was seen for the page and raises Lost for a fault. `random` is seeded alike in every run;
`share` is the part of the tries that is made, 1 for all."""

import json
import os
import pathlib
import shutil
import signal
import socket
import struct
import threading
import time

from session import NotSeen, until
from wire import Connection, string
from world import APPLICATION, BUNDLE, FOLDER, MINIMIZE, PROGRAM, SWITCH, Lost

KEYS = ["showMinimizeButton", "showMaximizeButton", "buttonTheme", "buttonSizeOption", "maximizeMode", "layouts.enabled",
        "layouts.shelf", "layouts.gap", "layouts.launchApps", "layouts.saved", "onboardingCompleted",
        "agent.launchAtLogin", "agent.accessibilityTrusted"]
VALUES = ["true", "0.0", "-1e308", "nan", "byte 0x41", "int64 -9223372036854775808", "''", "'\\u0000x'", "'[[[[['",
          "'<b>&amp;%s%n$(id)`id`'", "'../../etc/passwd'", "'\\u202e\\u0301\\U0001f600'", "[true, false]", "@as []",
          "(1, 'two')", "{'a': <1>}", "<<'x'>>", "@mb nothing", "objectpath '/a'", "signature 'a{sv}'"]
UNREADABLE = '[{"id":"not an id","name":"Work","windows":[]'


def tries(count, share):
    return max(1, round(count * share))


def killed_while_it_writes(world, random, share):
    """The application"""
    count, flips = tries(200, share), 0
    world.write(FOLDER + "buttonTheme", "'graphite'")
    for _ in range(count):
        process, window = world.open()
        world.agrees(window)
        times = random.randint(1, 5)
        killer = threading.Timer(random.uniform(0, 0.02 * times + 0.05), process.kill)
        killer.start()
        world.click(window, SWITCH, times)
        killer.join()
        process.wait()
        flips += times
        if world.stored() not in ("", "true", "false") or world.stored(FOLDER + "buttonTheme") != "'graphite'":
            raise Lost(f"{world.stored()}, {world.stored(FOLDER + 'buttonTheme')}")
    return f"{count} kills in {flips} flips: every key readable, the next window shows what is stored"


def service_killed_while_it_writes(world, random, share):
    count = tries(40, share)
    process, window = world.open()
    for _ in range(count):
        service = world.service()
        clicks = threading.Thread(target=world.click, args=(window, SWITCH, random.randint(1, 5)))
        clicks.start()
        time.sleep(random.uniform(0, 0.08))
        if service:
            try:
                os.kill(service, signal.SIGKILL)
            except ProcessLookupError:
                pass
        clicks.join()
        world.agrees(window)
        world.write(MINIMIZE, random.choice(["true", "false"]))
        world.agrees(window)
    world.answers(process, window)
    return f"{count} kills: the window shows what is stored, and follows the next change from outside"


def service_stopped(world, _random, _share):
    process, window = world.open()
    world.click(window, SWITCH)
    world.agrees(window)
    service = world.service()
    os.kill(service, signal.SIGSTOP)
    world.click(window, SWITCH)
    taken = world.answers(process, window)
    os.kill(service, signal.SIGCONT)
    world.agrees(window)
    return f"the window answers after {taken:.1f} s; afterwards it shows what is stored"


def database_damaged_before(world, random, share):
    count, database = tries(40, share), pathlib.Path(world.environment["HOME"], ".config", "dconf", "user")
    world.write(MINIMIZE, "true")
    whole = database.read_bytes()
    for number in range(count):
        damaged = bytearray(whole)
        for _ in range(random.randint(1, 30)):
            damaged[random.randrange(len(damaged))] = random.randrange(256)
        if number % 4 == 0:
            del damaged[random.randrange(len(damaged)):]
        # Another file: what has the old one open is left alone.
        database.with_suffix(".new").write_bytes(damaged)
        database.with_suffix(".new").rename(database)
        process, window = world.open()
        world.answers(process, window)
        world.kill(process, signal.SIGTERM)
    return f"{count} damaged databases: {count} windows"


def database_cut_short(world, random, share):
    count, database = tries(20, share), pathlib.Path(world.environment["HOME"], ".config", "dconf", "user")
    world.write(MINIMIZE, "true")
    small = database.read_bytes()
    for number in range(count):
        world.load("[/]\n" + "".join(f"{key}='{random.choice('ab') * 30_000}'\n" for key in KEYS))
        process, window = world.open(page=random.choice(["buttons", "shortcuts", "layouts"]))
        if number % 2:
            world.answers(process, window)
        # Into the file as it is, as cp does: what has it mapped now reads beyond its end.
        database.write_bytes(small[:random.randrange(len(small))] if number % 4 > 1 else small)
        world.answers(process, window)
        world.kill(process, signal.SIGTERM)
    return f"{count} times a smaller one is written over it: the window answers"


def nowhere_to_store(world, _random, share):
    count, folder = tries(20, share), pathlib.Path(world.environment["HOME"], ".config", "dconf")
    process, window = world.open()
    world.click(window, SWITCH)
    until(world.stored, "the first flip is not stored", 20)
    for number in range(count):
        world.agrees(window)
        before = world.stored()
        aside = folder.rename(folder.with_name("aside"))
        folder.touch()
        world.click(window, SWITCH)
        # Long enough to be refused, and shorter than the time after which it is tried again.
        time.sleep(0.5)
        world.agrees(window)
        folder.unlink()
        aside.rename(folder)
        # Somebody else's success gives reason to try again.
        world.write(FOLDER + "layouts.gap", f"{number}.0")
        until(lambda stored=before: world.stored() != stored, f"flip {number} is not stored", 20)
    world.answers(process, window)
    return f"{count} flips while the folder is a file: the window shows none of them, and each is stored afterwards"


def store_lost(world, random, share):
    count, state = tries(20, share), pathlib.Path(world.environment["HOME"], ".local", "state", "corvane-settings")
    for number in range(count):
        world.write(MINIMIZE, "true")
        process, _ = world.open()
        until((state / "settings.copy").exists, "no copy of the settings", 20)
        world.kill(process)
        world.run("dconf", "reset", "-f", "/")
        is_damaged = number % 2 == 1
        if is_damaged:
            damaged = bytearray((state / "settings.copy").read_bytes())
            damaged[random.randrange(len(damaged))] ^= 1 << random.randrange(8)
            (state / "settings.copy").write_bytes(damaged)
        process, window = world.open()
        if not is_damaged:
            until((state / "settings.lost").exists, "the lost settings are not kept", 20)
        world.answers(process, window)
        if world.stored() or is_damaged == (state / "settings.lost").exists():
            raise Lost(f"{world.stored() or 'nothing'} stored, {sorted(file.name for file in state.iterdir())}")
        world.kill(process)
        shutil.rmtree(state)
    return f"{count} stores emptied between two starts: kept for the person to decide, and none is offered from a damaged copy"


def wrong_values(world, random, share):
    count = tries(400, share)
    process, window = world.open()
    for number in range(count):
        key, value = random.choice(KEYS), random.choice(VALUES)
        world.write(FOLDER + key, value)
        if number % 100 == 99:
            world.answers(process, window)
    world.kill(process)
    starts = tries(20, share)
    for _ in range(starts):
        for key in KEYS:
            world.write(FOLDER + key, random.choice(VALUES))
        page = random.choice(["general", "buttons", "shortcuts", "layouts"])
        other, _ = world.open(page=page)
        if world.kill(other, signal.SIGTERM) not in (0, -signal.SIGTERM):
            raise Lost(f"ended with {other.returncode}")
    return f"{count} values while it runs, {starts} starts on {len(KEYS)} of them: no crash"


def monsters(world, random, share):
    size = int(5_000_000 * share) + 100_000
    texts = {"buttonTheme": "x" * size, "layouts.saved": "[" * size, "buttonSizeOption": "\U0001f600" * (size // 4)}
    process, window = world.open()
    for key, text in texts.items():
        world.load(f"[/]\n{key}='{text}'\n")
        world.answers(process, window)
    world.kill(process)
    for page in ("buttons", "layouts"):
        process, _ = world.open(page=page)
        world.kill(process)
    return f"{len(texts)} texts of {size / 1e6:.1f} MB, {size / 1e6:.1f} million brackets among them: the window answers"


def unreadable_layouts(world, _random, _share):
    for text in (UNREADABLE, '{"a":1}', "", '[{"windows":[{}]}]'):
        world.load(f"[/]\nlayouts.saved='{text}'\n")
        process, _ = world.open(page="layouts")
        world.kill(process, signal.SIGTERM)
        if world.stored(FOLDER + "layouts.saved") != f"'{text}'":
            raise Lost(f"{text} became {world.stored(FOLDER + 'layouts.saved')}")
    return "4 unreadable lists: stored as they were after the page was opened"


def many_layouts(world, _random, share):
    count = tries(10_000, share)
    layouts = [{"created": i, "id": "%08X-0000-4000-8000-000000000000" % i, "name": "L%d" % i, "windows": []}
               for i in range(count)]
    world.load("[/]\nlayouts.saved='%s'\n" % json.dumps(layouts, separators=(",", ":")))
    begin = time.monotonic()
    process, window = world.open(page="layouts")
    taken = time.monotonic() - begin
    world.answers(process, window)
    return f"{count} layouts: a window after {taken:.1f} s, which answers"


def no_bus(world, _random, _share):
    slow = []
    mute = socket.socket(socket.AF_UNIX)
    path = str(world.folder / "mute")
    mute.bind(path)
    mute.listen(20)
    addresses = {"none": None, "wrong": "unix:path=/nonexistent", "rubbish": "rubbish", "mute": f"unix:path={path}"}
    for name, address in addresses.items():
        # Without an address the bus of the session folder would be taken.
        begin = time.monotonic()
        process, window = world.open(DBUS_SESSION_BUS_ADDRESS=address)
        slow.append(f"{name} {time.monotonic() - begin:.1f} s")
        world.answers(process, window)
        world.kill(process)
    mute.close()
    return "a window with " + ", ".join(slow)


def bus_killed(world, random, share):
    count = tries(20, share)
    address = world.environment["DBUS_SESSION_BUS_ADDRESS"]
    for _ in range(count):
        bus = world.processes[0].__class__(
            ["dbus-daemon", "--session", "--nofork", "--print-address=1"], env=world.environment, stdout=-1, text=True)
        world.processes.append(bus)
        world.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        process = world.application()
        time.sleep(random.uniform(0, 0.4))
        bus.kill()
        window = world.window(process)
        world.answers(process, window)
        world.kill(process)
    world.environment["DBUS_SESSION_BUS_ADDRESS"] = address
    return f"{count} times within 0.4 s of the start: {count} windows, which answer"


def false_portal(world, random, share):
    process, window = world.open()
    before = memory(process)
    anybody = Connection(world.environment["DBUS_SESSION_BUS_ADDRESS"])
    small, large = tries(20_000, share), tries(20, share)
    for _ in range(small):
        anybody.setting_changed("org.freedesktop.appearance", "color-scheme", "u", struct.pack("<I", random.randint(0, 2)))
    for number in range(large):
        anybody.setting_changed("org.example", f"key{number}", "s", string("x" * 5_000_000))
    world.answers(process, window)
    more = memory(process) - before
    if more > 40:
        raise Lost(f"{more:.0f} MiB more")
    return f"{small} changes of the look and {large} of 5 MB, from somebody else: the look stays, {max(0, more):.0f} MiB more"


def closed_streams(world, _random, share):
    count = 0
    for closed in ("0<&-", "1>&-", "2>&-", "0<&- 1>&- 2>&-", "1>/dev/full 2>/dev/full"):
        for _ in range(tries(6, share)):
            process = world.start("sh", "-c", f'exec {closed}; exec "$0"', str(APPLICATION / PROGRAM), CV_TAB="buttons",
                                  QT_LOGGING_RULES="*.debug=true", QT_MESSAGE_PATTERN="x")
            world.answers(process, world.window(process))
            world.kill(process)
            count += 1
    return f"{count} starts without standard streams, all of Qt's messages on: {count} windows"


def signals(world, _random, _share):
    names = ["SIGTERM", "SIGHUP", "SIGINT", "SIGQUIT"]
    for name in names:
        process, window = world.open()
        before = world.stored()
        world.click(window, SWITCH)
        until(lambda: world.stored() != before, "the flip is not stored", 20)
        world.kill(process, getattr(signal, name))
    process, window = world.open()
    for name in ("SIGPIPE", "SIGCONT", "SIGWINCH"):
        process.send_signal(getattr(signal, name))
    world.answers(process, window)
    return ", ".join(names) + " end it with everything stored; SIGPIPE, SIGCONT and SIGWINCH do not"


def starts_at_once(world, _random, share):
    count = tries(50, share)
    processes = [world.application() for _ in range(count)]
    def settled():
        return sum(process.poll() is None for process in processes) == 1
    try:
        until(settled, "", 60)
    except NotSeen:
        raise Lost(f"{sum(process.poll() is None for process in processes)} run") from None
    last = next(process for process in processes if process.poll() is None)
    world.answers(last, world.window(last))
    if any(process.returncode for process in processes):
        raise Lost(f"ended with {[process.returncode for process in processes]}")
    return f"{count} starts: one window, the others end well"


def pipes_and_giants(world, _random, _share):
    applications = pathlib.Path(world.environment["HOME"], ".local", "share", "applications")
    applications.mkdir(parents=True)
    os.mkfifo(world.folder / "icon.png")
    (applications / "org.example.a.desktop").write_text(
        f"[Desktop Entry]\nType=Application\nName=A\nExec=true\nIcon={world.folder / 'icon.png'}\n")
    os.mkfifo(applications / "org.example.b.desktop")
    with open(applications / "org.example.c.desktop", "wb") as giant:
        giant.truncate(3_000_000_000)
    windows = [{"bundleID": "org.example." + name, "app": name, "title": "", "rect": {"x": 0, "y": 0, "w": 1, "h": 1}}
               for name in "abc"]
    layouts = [{"id": "%08X-0000-4000-8000-000000000000" % i, "name": "L", "created": 1, "windows": [windows[i]]}
               for i in range(3)]
    world.load("[/]\nlayouts.saved='%s'\n" % json.dumps(layouts))
    process, window = world.open(page="layouts")
    world.answers(process, window)
    return "an icon and an entry that are pipes, an entry of 3 GB: the window answers"


def odd_bundles(world, _random, _share):
    names = [b"a b", "Gr\u00fc\u00dfe \U0001f600".encode(), b"a\nb", b"\"'`$(id)", b"%s%n", b"#?&", b"x" * 200, b"\xff\xfe"]
    for name in names:
        bundle = os.fsencode(world.folder) + b"/" + name + b".app"
        shutil.copytree(os.fsencode(BUNDLE), bundle + b"/Contents", symlinks=True)
        inside = os.fsencode(pathlib.Path("Contents", "Helpers", "Corvane Settings.app") / PROGRAM)
        process, window = world.open(program=os.fsdecode(bundle + b"/" + inside))
        world.answers(process, window)
        world.kill(process)
        shutil.rmtree(bundle)
    return f"{len(names)} names of bundles, one of them no UTF-8: {len(names)} windows"


def display_killed(world, _random, _share):
    for arguments in ((), ("--about",), ("--onboarding",)):
        display = world.__class__()
        with display as other:
            process = other.application(*arguments)
            other.window(process)
            begin = time.monotonic()
            other.processes[1].kill()
            code = process.wait(20)
            if code != 1 or time.monotonic() - begin > 5:
                raise Lost(f"{' '.join(arguments)} ends with {code} after {time.monotonic() - begin:.1f} s")
    return "settings, About and guide end with 1 at once"


def memory(process):
    """In MiB."""
    for line in pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text().splitlines():
        if line.startswith("Pss:"):
            return int(line.split()[1]) / 1024
    return 0


ATTACKS = [
    ("The store", [
        ("killed while it writes", killed_while_it_writes),
        ("the store's service killed while it writes", service_killed_while_it_writes),
        ("the store's service stopped", service_stopped),
        ("nowhere to store", nowhere_to_store),
        ("database damaged before the start", database_damaged_before),
        ("database cut short while it runs", database_cut_short),
        ("settings gone at the start", store_lost)]),
    ("Values", [
        ("values of wrong types and odd texts in every key", wrong_values),
        ("monstrous texts", monsters),
        ("unreadable lists of layouts", unreadable_layouts),
        ("very many layouts", many_layouts)]),
    ("The bus", [
        ("no bus, a wrong one, one that says nothing", no_bus),
        ("the bus killed during the start", bus_killed),
        ("somebody plays the settings portal", false_portal)]),
    ("The process", [
        ("closed standard streams", closed_streams),
        ("signals", signals),
        ("starts at once", starts_at_once),
        ("pipes and giants as icons and entries", pipes_and_giants),
        ("odd names of the bundle", odd_bundles),
        ("the display killed", display_killed)]),
]
