#!/usr/bin/env python3
"""Checks who includes whom: downwards only, and never Qt's private headers.

A file belongs to the first row that matches it, so the rows with a pattern for "all others" come after those that name
files. The number is the height of the layer: a file may include what is as high as itself or lower.
"""

import fnmatch
import re
import sys

import sourcetree

LIBRARY = "ThemeLibrary/*/"
STYLE = "ThemeLibrary/sources/style/"
FAMILIES = "widget families"

LAYERS = (
    (0, "companion library", ["CommonUtils/*"]),
    (6, "theme application", [LIBRARY + name for name in ("AppliedThemes.*", "BaseTheme.*", "Desktop*", "HeldPaints.*",
                                                            "ThemeFactory.*", "ThemeQApplication.*",
                                                            "ThemeSwitcher.*")]),
    (2, "style vocabulary", ["ThemeLibrary/include/BaseStyle.h", LIBRARY + "ComboBoxDefaultItemDelegate.*"]
        + [STYLE + name for name in (
        "ArrowIcons.*", "Foregrounds.*", "InputMetrics.*", "ItemColors.*", "Opacities.*", "OwnColors.*", "Shapes.*",
        "StyleContext.*", "TabSides.*", "WidgetProperties.*", "WidgetTraits.*")]),
    (3, "style resolution", [STYLE + name for name in ("ButtonBrushes.*", "StandardIcons.*")]),
    (5, "style tables", [LIBRARY + name for name in ("BaseStyle.cpp", "BaseStyle_p.*", "ProxyStyle_p.*")]
        + [STYLE + name for name in ("Adapters.*", "Dispatch.*", "EventFilter.*", "HandOuts.*", "Metrics.*", "Polishing.*",
                                "Revocable.*", "StyleHints.*")]),
    (4, FAMILIES, [STYLE + "*"]),
    (1, "theme data", [LIBRARY + "*"]),
    (7, "programs and tests", ["*"]),
)
# Families meet through the proxy style, and declare themselves in one header.
FAMILY_HEADER = STYLE + "Families.h"

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
PRIVATE_QT = re.compile(r"(^|/)private/|^(Q\w+/)?q\w+_p\.h$")


def layer_of(name):
    return next(layer for layer in LAYERS if any(fnmatch.fnmatch(name, pattern) for pattern in layer[2]))


def is_public(name):
    return "/include/" in name


def fault(source, target):
    """What is wrong with `source` including `target`, both names of files; None if nothing is."""
    (height, layer, _), (target_height, target_layer, _) = layer_of(source), layer_of(target)
    if target_height > height:
        return f"{layer} may not include {target_layer}"
    if layer == target_layer == FAMILIES and target != FAMILY_HEADER:
        return "families do not include one another"
    if is_public(source) and not is_public(target):
        return "a public header may only include public headers"
    if source.startswith("gallery/") and not is_public(target) and not target.startswith("gallery/"):
        return "the gallery uses the library as any application does, by its public headers"
    return None


def main():
    sources = sourcetree.files(".cpp", ".h")
    headers = {path.name: sourcetree.name(path) for path in sources if path.suffix == ".h"}
    faults = 0
    for path in sources:
        name = sourcetree.name(path)
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            include = INCLUDE.match(line)
            if not include:
                continue
            quote, header = include.groups()
            target = headers.get(header.rsplit("/", 1)[-1]) if quote == '"' else None
            problem = "private headers of Qt change without notice" if PRIVATE_QT.search(header) and not target else None
            if target:
                problem = fault(name, target)
            if problem:
                print(f"{name}:{number}: {header}: {problem}")
                faults += 1
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
