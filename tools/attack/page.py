"""Makes docs/reliability.md from what the last run of each attack has seen."""

import json

from attacks import ATTACKS

PAGE = """# Under attack

What `scripts/attack` saw of the release build, each attack in a session of its own: a display with openbox, a message bus, a
home and a store. The random numbers are the same in every run. It makes this page: change it in `tools/attack/page.py`. A
fault begins with "NO".

| Attack | What was seen |
|---|---|
{rows}

A bus that dies in the very moment of a call takes the answer with it, and Qt waits for that for ever. What this program
asks has an end (`SessionBus::answer`); what Qt asks by itself for assistive technologies has none. One of 150 starts whose
bus was killed hung there.

A short form of some of them is a test (`e2e_attack`). What reads foreign data is fuzzed besides (`fuzz/`).
"""


def write(root):
    rows = []
    for chapter, attacks in ATTACKS:
        rows.append(f"| **{chapter}** | |")
        for name, _ in attacks:
            file = root / "build" / "attack" / f"{name}.json"
            if file.exists():
                rows.append(f"| {name} | {json.loads(file.read_text())} |")
    (root / "docs" / "reliability.md").write_text(PAGE.format(rows="\n".join(rows)))
