#!/usr/bin/env python3
"""Checks docs/painting-map.md, the answer to "who paints this?", against the tables it is made from; with --fix writes
it.

The tables are those of Dispatch.cpp and Metrics.cpp. A function is looked for in the file that opens its namespace,
which is its family's.
"""

import re
import sys

import sourcetree

STYLE = "ThemeLibrary/sources/style/"
TABLES = STYLE + "Dispatch.cpp"
METRICS = STYLE + "Metrics.cpp"
MAP = "docs/painting-map.md"

TABLE = re.compile(r"^\w+ (painterOf|ruleOf)\(QStyle::(\w+) \w+\)\n\{\n(.*?)^\}", re.MULTILINE | re.DOTALL)
CASE = re.compile(r"case (?:QStyle|BaseStyle)::(\w+):")
METRIC = re.compile(r"^    (pixels|scaled|row|by)\((?:QStyle|BaseStyle)::(\w+), (.+?)\),", re.MULTILINE)
ANSWER = re.compile(r"return (?:by<)?(\w+)::(\w+)>?;")

TITLES = {
    ("painterOf", "PrimitiveElement"): "Painting: primitive elements",
    ("painterOf", "ControlElement"): "Painting: control elements",
    ("painterOf", "ComplexControl"): "Painting: complex controls",
    ("ruleOf", "SubElement"): "Rectangles: sub-elements",
    ("ruleOf", "ComplexControl"): "Rectangles: sub-controls",
    ("ruleOf", "ContentsType"): "Sizes",
}

HEAD = """# Who paints this?

Which function paints, places or measures what: the tables of [Dispatch.cpp](../{tables}) for readers.
An element that is not here is answered by the base style, Fusion. Written by `tools/painting_map.py --fix`.
"""

METRICS_HEAD = """
## Metrics

The table of [Metrics.cpp](../{metrics}). Scaled pixels are those of a screen of 96 dots per inch; a row is as high as a
line of text with the padding above and below, rounded up to the grid.

| Metric | Value |
|---|---|
"""

UNITS = {"pixels": "{} px", "scaled": "{} px, scaled", "row": "a row with a padding of {} px", "by": "`{}`"}


def family_files():
    """The file of each family, by the namespace that it opens."""
    files = {}
    for path in sourcetree.files(".cpp"):
        name = sourcetree.name(path)
        if name.startswith(STYLE):
            for family in re.findall(r"^namespace BRELK::(\w+) \{", path.read_text(encoding="utf-8"), re.MULTILINE):
                files.setdefault(family, []).append(name)
    return files


def file_of(family, function, files):
    defined = re.compile(rf"^\S.*\b{function}\(", re.MULTILINE)
    for name in files.get(family, []):
        if defined.search((sourcetree.ROOT / name).read_text(encoding="utf-8")):
            return name
    raise SystemExit(f"{TABLES}: {family}::{function} is defined in no file that opens the namespace {family}")


def rows_of(body):
    """(element, family, function) of each case, in the order of the table."""
    waiting = []
    for line in body.splitlines():
        waiting += CASE.findall(line)
        answer = ANSWER.search(line)
        if answer:
            yield from ((element, *answer.groups()) for element in waiting)
            waiting = []
    if waiting:
        raise SystemExit(f"{TABLES}: no answer is read for {', '.join(waiting)}")


def written():
    files = family_files()
    parts = [HEAD.format(tables=TABLES)]
    text = (sourcetree.ROOT / TABLES).read_text(encoding="utf-8")
    for kind, enum, body in TABLE.findall(text):
        parts.append(f"\n## {TITLES[kind, enum]}\n\n| Element | Function | File |\n|---|---|---|\n")
        for element, family, function in sorted(rows_of(body)):
            file = file_of(family, function, files)
            link = f"[{file.rsplit('/', 1)[-1]}](../{file})"
            parts.append(f"| `{element}` | `{family}::{function}` | {link} |\n")
    parts.append(METRICS_HEAD.format(metrics=METRICS))
    rows = METRIC.findall((sourcetree.ROOT / METRICS).read_text(encoding="utf-8"))
    for unit, metric, value in sorted(rows, key=lambda row: row[1]):
        parts.append(f"| `{metric}` | {UNITS[unit].format(value)} |\n")
    return "".join(parts)


def main():
    path = sourcetree.ROOT / MAP
    text = written()
    if "--fix" in sys.argv[1:]:
        path.write_text(text, encoding="utf-8")
    elif not path.exists() or path.read_text(encoding="utf-8") != text:
        print(f"{MAP} is not what the tables say; run tools/painting_map.py --fix")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
