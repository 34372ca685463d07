#!/usr/bin/env python3
"""Writes the icons and cursors of the library from the tables beside this file.

generate.py            rewrites ThemeLibrary/resources
generate.py --check    only compares, and names what differs
"""

import argparse
import sys
from pathlib import Path

import cursors
import drawing
import svg
from compose import compose

HERE = Path(__file__).resolve().parent
RESOURCES = HERE.parents[1] / "ThemeLibrary" / "resources"


def files():
    """Every generated file: its path below the resources, and its bytes."""
    glyphs = drawing.read_glyphs()
    result = {}
    for row in drawing.table(HERE / "manifest.tsv"):
        result[f"Icons/{row['name']}.svg"] = svg.render(compose(row, glyphs)).encode()
    for row in drawing.table(HERE / "cursors.tsv"):
        result[f"Cursors/{row['name']}.cur"] = cursors.render(row, glyphs)
    return result


def differences(generated):
    """What stands on disk and should not, is missing, or differs."""
    found = {str(p.relative_to(RESOURCES)): p for folder in ("Icons", "Cursors")
             for p in (RESOURCES / folder).glob("*")}
    wrong = [f"{name}: not generated" for name in sorted(found.keys() - generated.keys())]
    for name, content in generated.items():
        if name not in found:
            wrong.append(f"{name}: missing")
        elif found[name].read_bytes() != content:
            wrong.append(f"{name}: differs")
    return wrong


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="compare instead of writing")
    arguments = parser.parse_args()
    generated = files()
    wrong = differences(generated)
    if arguments.check:
        print("\n".join(wrong) or f"{len(generated)} files are up to date")
        return 1 if wrong else 0
    for line in wrong:
        name, _, what = line.partition(": ")
        path = RESOURCES / name
        if what == "not generated":
            path.unlink()
            continue
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(generated[name])
    print(f"{len(generated)} files, {len(wrong)} changed")
    return 0


if __name__ == "__main__":
    sys.exit(main())
