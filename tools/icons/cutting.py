"""Cutting drawings apart, so that a badge or a slash stands clear of what it is drawn over.

A region is a function from a point to a number that is positive where paint is kept.
"""

import cmath

from geometry import Contour, Line, Arc, contains

SHORTEST_PIECE = 1.8
_SAMPLES = 48


class OutsideDisc:
    def __init__(self, center, radius):
        self.center, self.radius = center, radius

    def __call__(self, point):
        return abs(point - self.center) - self.radius

    def place(self, point):
        """Where along the border a point of it lies."""
        return cmath.phase(point - self.center)

    def joint(self, start, end, forwards):
        """The border from one of its points to another."""
        turn = (self.place(end) - self.place(start)) % (2 * cmath.pi)
        sweep = turn if forwards else turn - 2 * cmath.pi
        first, degrees = self.place(start), 180 / cmath.pi
        return Arc(self.center, self.radius, self.radius, 0, first * degrees, sweep * degrees)


class HalfPlane:
    """The side of a line, through `origin`, that `normal` points to."""

    def __init__(self, origin, normal):
        self.origin, self.normal = origin, normal / abs(normal)

    def __call__(self, point):
        return ((point - self.origin) / self.normal).real

    def place(self, point):
        return ((point - self.origin) / self.normal).imag

    def joint(self, start, end, forwards):
        return Line(start, end) if forwards == (self.place(end) > self.place(start)) else None


def _split(contour, region):
    """The segments of a contour, divided where it crosses the border of the region, each with its side."""
    pieces = []
    for segment in contour.segments:
        cuts = [0.0]
        for i in range(_SAMPLES):
            low, high = i / _SAMPLES, (i + 1) / _SAMPLES
            if (region(segment.point(low)) > 0) != (region(segment.point(high)) > 0):
                cuts.append(_crossing(segment, region, low, high))
        cuts.append(1.0)
        for low, high in zip(cuts, cuts[1:]):
            if high - low > 1e-6:
                piece = segment if (low, high) == (0, 1) else segment.part(low, high)
                pieces.append((region(piece.point(.5)) > 0, piece))
    return pieces


def _crossing(segment, region, low, high):
    kept = region(segment.point(low)) > 0
    for _ in range(40):
        middle = (low + high) / 2
        if (region(segment.point(middle)) > 0) == kept:
            low = middle
        else:
            high = middle
    return (low + high) / 2


def _kept_runs(contour, region):
    """The kept parts of a contour in order, or None if it lies wholly on the kept side."""
    pieces = _split(contour, region)
    if all(kept for kept, _ in pieces):
        return None
    if contour.closed:
        first_cut = next(i for i, (kept, _) in enumerate(pieces) if not kept)
        pieces = pieces[first_cut:] + pieces[:first_cut]
    runs, run = [], []
    for kept, piece in pieces + [(False, None)]:
        if kept:
            run.append(piece)
        elif run:
            runs.append(Contour(tuple(run)))
            run = []
    return runs


def cut_stroke(contour, region):
    """What is left of a stroked contour. Pieces too short to be read are dropped."""
    runs = _kept_runs(contour, region)
    if runs is None:
        return [contour]
    return [run for run in runs if run.length >= SHORTEST_PIECE]


def cut_area(contour, region):
    """What is left of the area inside a closed contour, by the even-odd rule."""
    runs = _kept_runs(contour, region)
    polygon = contour.points()
    if runs is None:
        inside = isinstance(region, OutsideDisc) and contains(polygon, region.center)
        hole = Contour((Arc(region.center, region.radius, region.radius, 0, 0, 360),), True) if inside else None
        return [contour, hole] if hole else [contour]
    return _linked(runs, region, polygon)


def _linked(runs, region, polygon):
    """Closes runs along the border of the region, where it lies inside the polygon that they come from."""
    results = []
    remaining = list(runs)
    while remaining:
        run = remaining.pop(0)
        segments = list(run.segments)
        while True:
            follower, joint = _next_run([run] + remaining, segments[-1].end, region, polygon)
            segments.append(joint)
            if follower is run:
                break
            remaining.remove(follower)
            segments += follower.segments
        area = Contour(tuple(segments), True)
        if area.length >= SHORTEST_PIECE:
            results.append(area)
    return results


def _next_run(runs, end, region, polygon):
    """The run whose start is met first along the border inside the polygon, and the way to it."""
    candidates = []
    for forwards in (True, False):
        for run in runs:
            joint = region.joint(end, run.start, forwards)
            if joint and contains(polygon, joint.point(.01)) and contains(polygon, joint.point(.99)):
                candidates.append((abs(joint.point(1) - end), len(candidates), run, joint))
    _, _, run, joint = min(candidates)
    return run, joint
