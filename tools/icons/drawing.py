"""From the tables to shapes: reads the notation of glyphs.tsv."""

import csv
import re
from dataclasses import dataclass, field, replace
from pathlib import Path

import dashing
import pathdata
from geometry import Contour, Arc, ellipse, polyline, rectangle

STROKE, DASH, FILL, TONE, SOLID = "stroke", "dash", "fill", "tone", "solid"
_FILLED_KINDS = (FILL, TONE, SOLID)


@dataclass(frozen=True)
class Shape:
    """Contours painted alike. `color` is the word in brackets; None stands for the reference color."""

    contours: tuple
    paint: str = STROKE
    color: str = None
    outer: bool = False

    def moved(self, similarity):
        return replace(self, contours=tuple(c.moved(similarity) for c in self.contours))

    def dashed(self):
        """The shape with its dashes as contours of their own, if it has any."""
        if self.paint != DASH:
            return self
        return replace(self, paint=STROKE, contours=tuple(d for c in self.contours for d in dashing.dashes(c)))

    @property
    def filled(self):
        return self.paint in _FILLED_KINDS


@dataclass(frozen=True)
class Glyph:
    name: str
    grid: int
    inset: tuple = None
    shows: str = ""
    shapes: tuple = field(default=())


def table(path):
    """The rows of a tab-separated table as dictionaries."""
    with open(path, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE))


def read_glyphs(path=Path(__file__).parent / "glyphs.tsv"):
    glyphs = {}
    for row in table(path):
        name = row["glyph"]
        if name in glyphs:
            raise ValueError(f"glyph {name} is there twice")
        inset = None if row["inset"] == "-" else tuple(float(n) for n in row["inset"].split(","))
        try:
            shapes = read_shapes(row["geometry"])
        except (ValueError, KeyError, IndexError) as error:
            raise ValueError(f"glyph {name}: {error}") from error
        glyphs[name] = Glyph(name, int(row["grid"]), inset, row["shows"], shapes)
    return glyphs


def read_shapes(geometry):
    return tuple(_shape(op) for op in geometry.split("; "))


def _shape(op):
    words = op.split()
    paint, color, outer = STROKE, None, False
    while True:
        word = words.pop(0)
        if word.startswith("["):
            color = word.strip("[]")
        elif word == "outer":
            outer = True
        elif word in (DASH, FILL, TONE, SOLID):
            paint = word
        else:
            break
    if word == "dot":
        word, paint = "circle", FILL if paint == STROKE else paint
    return Shape(tuple(_PRIMITIVES[word](" ".join(words))), paint, color, outer)


def _numbers(text):
    return [float(n) for n in re.split(r"[ ,]+", text)]


def _points(text):
    numbers = _numbers(text)
    return [complex(x, y) for x, y in zip(numbers[::2], numbers[1::2])]


def _circle(text):
    x, y, radius = _numbers(text)
    return [ellipse(complex(x, y), radius, radius)]


def _ellipse(text):
    x, y, rx, ry = _numbers(text)
    return [ellipse(complex(x, y), rx, ry)]


def _arc(text):
    x, y, radius, first, last = _numbers(text)
    return [Contour((Arc(complex(x, y), radius, radius, 0, first, last - first),))]


_PRIMITIVES = {
    "line": lambda text: [polyline(_points(text))],
    "poly": lambda text: [polyline(_points(text), True)],
    "rect": lambda text: [rectangle(*_numbers(text))],
    "circle": _circle,
    "ellipse": _ellipse,
    "arc": _arc,
    "path": pathdata.read,
}
