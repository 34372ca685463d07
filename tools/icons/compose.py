"""From the manifest to finished icons: applies modifiers to glyphs and settles every color."""

from dataclasses import dataclass, replace

import cutting
from drawing import FILL, SOLID, STROKE, Shape
from geometry import Similarity, ellipse, polyline, rectangle

REFERENCE = "#E5EEF4"
PALETTE = {
    "info": "#2B86DB", "success": "#2E9B5B", "danger": "#E0474C", "neutral": "#75828E", "amber": "#B97A10",
    "indigo": "#6674D9", "teal": "#16909A", "orange": "#D0692A", "purple": "#9463D6", "pink": "#D4508F",
    "brown": "#A87142", "warning": "#F6B436", "ink": "#1E232A", "white": "#FFFFFF",
}
_AXES = {"x": "danger", "y": "success", "z": "info"}
_SCALE_IN_FRAME = 0.6
_BADGE_CENTER = 17.5 + 17.5j
# Strokes keep clear of a badge or slash by their center line, areas by their edge.
_BADGE_STROKE, _BADGE_AREA = 6.25, 5.5
_SLASH_STROKE, _SLASH_AREA = 2.4, 1.75
_SLASH = Shape((polyline([3.75 + 3.75j, 20.25 + 20.25j]),))


@dataclass(frozen=True)
class Gradient:
    """Colors from left to right, blending with even stops or side by side as blocks."""

    colors: tuple
    blocks: bool = False


@dataclass(frozen=True)
class Icon:
    name: str
    size: int
    shapes: tuple


def compose(row, glyphs):
    """The icon of a row of the manifest."""
    icon = _Composition(glyphs, row["base"])
    modifiers = [] if row["modifiers"] == "-" else row["modifiers"].split(" ")
    for modifier in modifiers:
        try:
            icon.apply(modifier)
        except (KeyError, ValueError) as error:
            raise ValueError(f"icon {row['name']}: modifier {modifier}: {error}") from error
    return Icon(row["name"], icon.size, tuple(icon.painted()))


class _Composition:
    def __init__(self, glyphs, base):
        self.glyphs = glyphs
        self.base = glyphs[base]
        self.size = self.base.grid
        self.center = complex(self.size / 2, self.size / 2)
        self.shapes = list(self.base.shapes)
        self.colors = {}
        self.mark = None

    def apply(self, modifier):
        word, _, argument = modifier.partition(":")
        if word.startswith("rot"):
            self._move(Similarity.turning(self.center, int(word[3:])))
        elif word.startswith("badge."):
            self._badge(word)
        elif word in ("fill", "grad", "steps"):
            self._paint_swatch(word, argument.split(","))
        else:
            _MODIFIERS[word](self, *([argument] if argument else []))

    def painted(self):
        """The shapes with colors in place of color words."""
        return [replace(shape.dashed(), color=self._settled(shape.color)) for shape in self.shapes]

    def _settled(self, word):
        if word is None or isinstance(word, Gradient):
            return word or REFERENCE
        word = self.colors.get(word, word)
        if word in ("accent", "x", "y", "z"):
            return REFERENCE
        return word if isinstance(word, Gradient) or word.startswith("#") else PALETTE[word]

    def _move(self, similarity):
        self.shapes = [shape.moved(similarity) for shape in self.shapes]

    def _flip_horizontally(self):
        self._move(Similarity.about(self.center, -1, True))

    def _flip_vertically(self):
        self._move(Similarity.about(self.center, 1, True))

    def _small(self):
        if self.size != 16:
            raise ValueError("needs a glyph on the 16 grid")

    def _inset(self, argument):
        name, _, turn = argument.partition(":rot")
        x, y, size = self.base.inset
        factor = size / 20
        placing = Similarity.about(12 + 12j, Similarity.turning(0, int(turn or 0)).factor * factor,
                                   onto=complex(x, y))
        for shape in self.glyphs[name].shapes:
            shape = shape.moved(placing)
            self.shapes.append(replace(shape, color=self.mark) if self.mark else shape)

    def _shrink(self):
        self._move(Similarity.about(self.center, _SCALE_IN_FRAME))

    def _circular(self):
        self._shrink()
        self.shapes.append(Shape((ellipse(self.center, 9.25, 9.25),)))

    def _square(self):
        self._shrink()
        self.shapes.append(Shape((rectangle(3.75, 3.75, 16.5, 16.5, 3),)))

    def _badge(self, name):
        self._cut(cutting.OutsideDisc(_BADGE_CENTER, _BADGE_STROKE),
                  [cutting.OutsideDisc(_BADGE_CENTER, _BADGE_STROKE)],
                  [cutting.OutsideDisc(_BADGE_CENTER, _BADGE_AREA)])
        self.shapes += self.glyphs[name].shapes

    def _slash(self):
        def sides(distance):
            return [cutting.HalfPlane(normal * distance, normal) for normal in (_ACROSS, -_ACROSS)]

        def beside(point):
            return abs((point / _ACROSS).real) - _SLASH_STROKE

        self._cut(beside, sides(_SLASH_STROKE), sides(_SLASH_AREA))
        self.shapes.append(_SLASH)

    def _cut(self, stroke_region, solid_sides, area_sides):
        """Cuts every shape; an area may leave a part on each of several sides."""
        kept = []
        for shape in (shape.dashed() for shape in self.shapes):
            if shape.filled:
                sides = solid_sides if shape.paint == SOLID else area_sides
                pieces = [p for side in sides for c in shape.contours for p in cutting.cut_area(c, side)]
            else:
                pieces = [p for c in shape.contours for p in cutting.cut_stroke(c, stroke_region)]
            if pieces:
                kept.append(replace(shape, contours=tuple(pieces)))
        self.shapes = kept

    def _fill_outlines(self, shape):
        closed = all(contour.closed for contour in shape.contours)
        return replace(shape, paint=SOLID) if closed and shape.paint == STROKE else shape

    def _selected(self):
        self.shapes = [self._fill_outlines(shape) for shape in self.shapes]

    def _accent(self, color):
        self.colors["accent"] = color

    def _axis_colors(self):
        self.colors.update(_AXES)

    def _color_all(self, color):
        self.shapes = [replace(shape, color=color) for shape in self.shapes]

    def _set_mark(self, body):
        self.mark = "ink" if body == "warning" else "white"

    def _solid(self, color):
        """The first shape and the outer ones become the body in one color, the rest marks on it."""
        self._set_mark(color)
        painted = []
        for index, shape in enumerate(self.shapes):
            if index and not shape.outer:
                painted.append(replace(shape, color=self.mark))
            elif color == "warning":
                painted += [replace(shape, paint=FILL, color=color), replace(shape, paint=STROKE, color="amber")]
            else:
                painted.append(replace(self._fill_outlines(shape), color=color))
        self.shapes = painted

    def _disc(self, color):
        self._set_mark(color)
        self._shrink()
        self._color_all(self.mark)
        radius = 10 if self.size == 24 else 7
        body = [Shape((ellipse(self.center, radius, radius),), FILL, color)]
        if color == "warning":
            body.append(Shape((ellipse(self.center, radius - .75, radius - .75),), STROKE, "amber"))
        self.shapes = body + self.shapes

    def _drop_rim(self):
        self.shapes = [shape for shape in self.shapes if shape.color != "amber"]

    def _paint_swatch(self, word, colors):
        self.colors[word] = colors[0] if word == "fill" else Gradient(tuple(colors), word == "steps")


_ACROSS = 0.5 ** 0.5 * (1 - 1j)
_MODIFIERS = {
    "flip.h": _Composition._flip_horizontally,
    "flip.v": _Composition._flip_vertically,
    "small": _Composition._small,
    "inset": _Composition._inset,
    "circular": _Composition._circular,
    "square": _Composition._square,
    "slash": _Composition._slash,
    "selected": _Composition._selected,
    "accent": _Composition._accent,
    "axis.colors": _Composition._axis_colors,
    "colored": _Composition._color_all,
    "solid": _Composition._solid,
    "hue": _Composition._solid,
    "disc": _Composition._disc,
    "no.rim": _Composition._drop_rim,
}
