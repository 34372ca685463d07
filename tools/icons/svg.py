"""Writes icons as SVG that a Tiny renderer paints: paths and circles, no transforms, every shape with its fill."""

from compose import Gradient
from drawing import SOLID, STROKE, TONE
from geometry import Arc
from pathdata import number, write

# A hair more than the 1.5 units that are a pixel at 16: lines of exactly one pixel or less are drawn without
# antialiasing proper, diagonals at half their strength and the arms of a chevron unequal.
STROKE_WIDTH = 1.51
_TONE_OPACITY = ".25"


def render(icon):
    """The text of an icon's file."""
    definitions, elements = [], []
    for shape in icon.shapes:
        elements += _elements(shape, definitions)
    body = "\n".join(definitions + _grouped(_merged(elements)))
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{icon.size}" height="{icon.size}" '
            f'viewBox="0 0 {icon.size} {icon.size}">\n{body}\n</svg>\n')


class _Element:
    """A shape still without its tag: fill attributes, stroke attributes and contours."""

    def __init__(self, fill, stroke, contours):
        self.fill, self.stroke, self.contours = fill, stroke, list(contours)

    @property
    def only_stroked(self):
        return self.fill == 'fill="none"'

    def absorbs(self, other):
        """Outlines painted alike become one path; areas stay apart, since they may overlap."""
        return self.only_stroked and (self.fill, self.stroke) == (other.fill, other.stroke)

    def tag(self):
        single = self.contours[0].segments[0] if len(self.contours) == 1 else None
        if isinstance(single, Arc) and abs(single.sweep) == 360:
            level = single.tilt % 180 == 0
            if abs(single.rx - single.ry) < .005 or level or single.tilt % 90 == 0:
                return _round(single, level)
        return f'path d="{write(self.contours)}"'


def _round(arc, level):
    rx, ry = (arc.rx, arc.ry) if level else (arc.ry, arc.rx)
    place = f'cx="{number(arc.center.real)}" cy="{number(arc.center.imag)}"'
    if abs(rx - ry) < .005:
        return f'circle {place} r="{number(rx)}"'
    return f'ellipse {place} rx="{number(rx)}" ry="{number(ry)}"'


def _elements(shape, definitions):
    if shape.paint == STROKE:
        for contour in shape.contours:
            yield _Element('fill="none"', _stroke(shape.color), [contour])
    else:
        fill = f'fill="{_fill(shape, definitions)}"'
        if shape.paint == TONE:
            fill += f' fill-opacity="{_TONE_OPACITY}"'
        if len(shape.contours) > 1:
            fill += ' fill-rule="evenodd"'
        yield _Element(fill, _stroke(shape.color) if shape.paint == SOLID else "", shape.contours)


def _stroke(color):
    return (f'stroke="{color}" stroke-width="{number(STROKE_WIDTH)}" stroke-linecap="round" '
            f'stroke-linejoin="round"')


def _fill(shape, definitions):
    if not isinstance(shape.color, Gradient):
        return shape.color
    colors = shape.color.colors
    stops = []
    for index, color in enumerate(colors):
        if shape.color.blocks:
            edges = {index / len(colors), (index + 1) / len(colors)}
        else:
            edges = {index / (len(colors) - 1)}
        stops += [f'<stop offset="{number(edge)}" stop-color="{color}"/>' for edge in sorted(edges)]
    reals = [p.real for c in shape.contours for p in c.points()]
    definitions.append(f'<defs><linearGradient id="g" gradientUnits="userSpaceOnUse" x1="{number(min(reals))}" '
                       f'y1="0" x2="{number(max(reals))}" y2="0">{"".join(stops)}</linearGradient></defs>')
    return "url(#g)"


def _merged(elements):
    merged = []
    for element in elements:
        if merged and merged[-1].absorbs(element):
            merged[-1].contours += element.contours
        else:
            merged.append(element)
    return merged


def _grouped(elements):
    """One line an element; neighbors with the same stroke share it through a group."""
    lines = []
    position = 0
    while position < len(elements):
        stroke = elements[position].stroke
        end = position + 1
        while stroke and end < len(elements) and elements[end].stroke == stroke:
            end += 1
        run = elements[position:end]
        if len(run) == 1:
            lines.append(f'<{" ".join(filter(None, [run[0].tag(), run[0].fill, stroke]))}/>')
        else:
            lines += [f"<g {stroke}>", *(f"<{element.tag()} {element.fill}/>" for element in run), "</g>"]
        position = end
    return lines
