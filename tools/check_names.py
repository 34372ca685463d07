#!/usr/bin/env python3
"""Checks that the library writes each theme variable, property and class name in one place, that the properties are
documented, and that no source holds words that do not belong there.
"""

import re
import sys

import sourcetree

STYLE = "ThemeLibrary/sources/style/"
LIBRARY = "ThemeLibrary/"
NAMES = LIBRARY + "sources/ThemeNames.h"
PROPERTIES = STYLE + "WidgetProperties.h"
PROPERTY_PAGE = "docs/properties.md"
TRAITS = STYLE + "WidgetTraits.cpp"

# Names that are also the constants' names, and names that stand beside theirs.
NAME = re.compile(r'^    X\((?:(\w+)|\w+, \w+, "(\w+)")\)', re.MULTILINE)
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')
# Theme variables by their endings; the lists of the vocabulary name the rest.
VARIABLE = re.compile(r"^\w+(Brush|Color|Opacity)(Disabled)?$")
PROPERTY_CALL = re.compile(r'\b(?:setProperty|property|flag|value)\(\s*(?:\w+,\s*)?"')
CLASS_CALL = re.compile(r'\binherits\(\s*(?:\w+,\s*)?"')

BANNED = (
    (re.compile(r"\b(TODO|FIXME|XXX|HACK)\b"), "do it now or leave it out"),
    (re.compile(r"(?<![\w.:/])/(home|root|work|tmp)/"), "a path of one machine"),
    (re.compile(r"\b(part|issue|ticket|chapter|section) #?\d", re.IGNORECASE), "say what is meant, not where it is written"),
    (re.compile(r"\bcolour", re.IGNORECASE), "spelt color here"),
)


def literals(name):
    path = sourcetree.ROOT / name
    return set(LITERAL.findall(path.read_text(encoding="utf-8"))) if path.exists() else set()


def theme_names():
    text = (sourcetree.ROOT / NAMES).read_text(encoding="utf-8")
    return {plain or worded for plain, worded in NAME.findall(text)}


def name_faults(name, line, variables):
    for text in LITERAL.findall(line):
        if text in variables or (name.startswith(STYLE) and VARIABLE.match(text)):
            yield f'"{text}": theme variables are named in {NAMES}'


def style_faults(name, line, properties):
    if name != TRAITS and CLASS_CALL.search(line):
        yield f"class names are tested in {TRAITS}"
    if name not in (PROPERTIES, TRAITS) and PROPERTY_CALL.search(line):
        yield f"properties are named in {PROPERTIES}"
    for text in LITERAL.findall(line):
        if name not in (PROPERTIES, TRAITS) and text in properties:
            yield f'"{text}": properties are named in {PROPERTIES}'


def faults(path, variables, properties):
    name = sourcetree.name(path)
    library = name.startswith(LIBRARY) and name not in (NAMES, PROPERTIES)
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        for pattern, reason in BANNED:
            if name != "tools/check_names.py" and pattern.search(line):
                yield f"{name}:{number}: {pattern.search(line).group()}: {reason}"
        if line.lstrip().startswith(("#include", "//")):
            continue
        reasons = list(name_faults(name, line, variables)) if library else []
        if name.startswith(STYLE):
            reasons += style_faults(name, line, properties)
        for reason in reasons:
            yield f"{name}:{number}: {reason}"


def undocumented(properties):
    """Twins for disabled widgets go with their originals; Qt's own properties are not for applications."""
    page = (sourcetree.ROOT / PROPERTY_PAGE).read_text(encoding="utf-8")
    for text in sorted(properties):
        if not text.startswith("_q_") and not text.endswith("Disabled") and f"`{text}`" not in page:
            yield f'{PROPERTY_PAGE}: "{text}" is missing'


def main():
    variables, properties = theme_names(), literals(PROPERTIES)
    sources = sourcetree.files(".cpp", ".h", ".py", ".md", ".qss", ".sh", ".cmake", ".txt")
    found = [line for path in sources for line in faults(path, variables, properties)]
    found += undocumented(properties)
    for line in found:
        print(line)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
