"""Plane geometry of the icons: segments, contours and the similarities that move them.

Points are complex numbers, y pointing down. Only similarities (turning, mirroring, even scaling, moving) occur, so
a circle stays a circle and every drawing can be written without a transform attribute.
"""

import cmath
import math
from dataclasses import dataclass, replace


@dataclass(frozen=True)
class Similarity:
    """Maps z to factor * z + offset, or factor * conjugate(z) + offset if it mirrors."""

    factor: complex = 1
    offset: complex = 0
    mirrors: bool = False

    def __call__(self, point):
        return self.factor * (point.conjugate() if self.mirrors else point) + self.offset

    @property
    def scale(self):
        return abs(self.factor)

    @staticmethod
    def about(center, factor, mirrors=False, onto=None):
        """The similarity that takes `center` onto `onto` (itself by default)."""
        moved = factor * (center.conjugate() if mirrors else center)
        return Similarity(factor, (center if onto is None else onto) - moved, mirrors)

    @staticmethod
    def turning(center, degrees):
        return Similarity.about(center, _unit(degrees))


def _unit(degrees):
    """The direction of an angle, exact for quarter turns."""
    quarters = {0: 1, 90: 1j, 180: -1, 270: -1j}
    turn = degrees % 360
    return quarters[turn] if turn in quarters else cmath.rect(1, math.radians(degrees))


@dataclass(frozen=True)
class Line:
    start: complex
    end: complex

    def point(self, t):
        return self.start + (self.end - self.start) * t

    def part(self, t0, t1):
        return Line(self.point(t0), self.point(t1))

    def moved(self, similarity):
        return Line(similarity(self.start), similarity(self.end))

    def reversed(self):
        return Line(self.end, self.start)

    @property
    def steps(self):
        return 1


@dataclass(frozen=True)
class Cubic:
    start: complex
    control1: complex
    control2: complex
    end: complex

    def point(self, t):
        s = 1 - t
        return (s ** 3 * self.start + 3 * s * s * t * self.control1
                + 3 * s * t * t * self.control2 + t ** 3 * self.end)

    def _tangent(self, t):
        s = 1 - t
        return (s * s * (self.control1 - self.start) + 2 * s * t * (self.control2 - self.control1)
                + t * t * (self.end - self.control2))

    def part(self, t0, t1):
        start, end, reach = self.point(t0), self.point(t1), t1 - t0
        return Cubic(start, start + self._tangent(t0) * reach, end - self._tangent(t1) * reach, end)

    def moved(self, similarity):
        return Cubic(*(similarity(p) for p in (self.start, self.control1, self.control2, self.end)))

    def reversed(self):
        return Cubic(self.end, self.control2, self.control1, self.start)

    @property
    def steps(self):
        return 24


@dataclass(frozen=True)
class Arc:
    """Part of an ellipse whose first axis is turned by `tilt`; angles in degrees, clockwise on the screen."""

    center: complex
    rx: float
    ry: float
    tilt: float
    first: float
    sweep: float

    def point(self, t):
        angle = math.radians(self.first + self.sweep * t)
        return self.center + _unit(self.tilt) * complex(self.rx * math.cos(angle), self.ry * math.sin(angle))

    @property
    def start(self):
        return self.point(0)

    @property
    def end(self):
        return self.point(1)

    def part(self, t0, t1):
        return replace(self, first=self.first + self.sweep * t0, sweep=self.sweep * (t1 - t0))

    def moved(self, similarity):
        sign = -1 if similarity.mirrors else 1
        turn = math.degrees(cmath.phase(similarity.factor))
        return Arc(similarity(self.center), self.rx * similarity.scale, self.ry * similarity.scale,
                   turn + sign * self.tilt, sign * self.first, sign * self.sweep)

    def reversed(self):
        return replace(self, first=self.first + self.sweep, sweep=-self.sweep)

    @property
    def steps(self):
        return max(6, math.ceil(abs(self.sweep) / 10))


def arc_between(start, end, radii, tilt, large, clockwise):
    """The arc that path data describes by its end points; a line if the radii are zero."""
    rx, ry = abs(radii[0]), abs(radii[1])
    if start == end or not rx or not ry:
        return Line(start, end)
    half = (start - end) / 2 / _unit(tilt)
    stretch = (half.real / rx) ** 2 + (half.imag / ry) ** 2
    if stretch > 1:
        rx, ry = rx * math.sqrt(stretch), ry * math.sqrt(stretch)
    chord = complex(half.real / rx, half.imag / ry)
    side = math.sqrt(max(0, 1 / abs(chord) ** 2 - 1)) * (-1 if large == clockwise else 1)
    middle = chord * -1j * side
    first, last = (math.degrees(cmath.phase(p)) for p in (chord - middle, -chord - middle))
    sweep = (last - first) % 360 if clockwise else -((first - last) % 360)
    center = (start + end) / 2 + _unit(tilt) * complex(middle.real * rx, middle.imag * ry)
    return Arc(center, rx, ry, tilt, first, sweep)


@dataclass(frozen=True)
class Contour:
    """A run of segments, each beginning where the one before ends."""

    segments: tuple
    closed: bool = False

    def moved(self, similarity):
        return Contour(tuple(s.moved(similarity) for s in self.segments), self.closed)

    @property
    def start(self):
        return self.segments[0].start

    @property
    def end(self):
        return self.segments[-1].end

    def points(self, steps=None):
        """The contour as a polyline; `steps` pieces a segment instead of as many as its kind needs."""
        points = [self.start]
        for segment in self.segments:
            count = steps or segment.steps
            points += [segment.point(i / count) for i in range(1, count + 1)]
        return points

    @property
    def length(self):
        points = self.points()
        return sum(abs(b - a) for a, b in zip(points, points[1:]))


def polyline(points, closed=False):
    ends = points[1:] + points[:1] if closed else points[1:]
    return Contour(tuple(Line(a, b) for a, b in zip(points, ends)), closed)


def ellipse(center, rx, ry):
    """Clockwise from the right, so that dashes start there."""
    return Contour((Arc(center, rx, ry, 0, 0, 360),), True)


def rectangle(x, y, width, height, radius=0):
    """Clockwise from the left end of the top side."""
    radius = min(radius, width / 2, height / 2)
    corners = [complex(x, y), complex(x + width, y), complex(x + width, y + height), complex(x, y + height)]
    if not radius:
        return polyline(corners, True)
    segments = []
    for index, corner in enumerate(corners):
        along = 1j ** index
        following = corners[(index + 1) % 4]
        side = Line(corner + along * radius, following - along * radius)
        if abs(side.end - side.start) > 1e-9:
            segments.append(side)
        inward = following + radius * along * (1j - 1)
        segments.append(Arc(inward, radius, radius, 0, 90 * (index - 1), 90))
    return Contour(tuple(segments), True)


def contains(polygon, point):
    """Whether a point lies inside a polygon, by the even-odd rule."""
    inside = False
    for a, b in zip(polygon, polygon[1:] + polygon[:1]):
        if (a.imag > point.imag) != (b.imag > point.imag):
            across = a.real + (point.imag - a.imag) * (b.real - a.real) / (b.imag - a.imag)
            inside ^= across > point.real
    return inside
