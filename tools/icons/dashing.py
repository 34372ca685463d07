"""Turns outlines into dashes, each a contour of its own.

Corners are always drawn, with arms of equal length, so that a dashed box keeps its shape at 16 pixels.
"""

import cmath
import math

from geometry import Arc, Contour

DASH, GAP = 1.5, 3
_ARM, _GAP_BESIDE_ARM = 3, 4.5
_ROUNDED_CORNER = 3


def dashes(contour):
    """The dashes of a contour, symmetrical about the middle of each of its sides."""
    corners = _corners(contour)
    if corners:
        pieces = _along_sides(contour, corners)
    elif contour.closed:
        count = max(4, 4 * round(contour.length / (DASH + GAP) / 4))
        period = contour.length / count
        pieces = [(i * period - DASH / 2, i * period + DASH / 2) for i in range(count)]
    else:
        count = max(1, round((contour.length - DASH) / (DASH + GAP)))
        period = (contour.length - DASH) / count
        pieces = [(i * period, i * period + DASH) for i in range(count + 1)]
    return [_stretch(contour, start, end) for start, end in pieces]


def _along_sides(contour, corners):
    pieces = []
    total = contour.length
    for index, (place, arm) in enumerate(corners):
        following, next_arm = corners[(index + 1) % len(corners)]
        side = (following - place) % total or total
        free = side - arm - next_arm
        count = max(0, round((free - _GAP_BESIDE_ARM) / (DASH + _GAP_BESIDE_ARM)))
        gap = (free - count * DASH) / (count + 1)
        pieces.append((place - arm, place + arm))
        first = place + arm + gap
        pieces += [(first + i * (DASH + gap), first + i * (DASH + gap) + DASH) for i in range(count)]
    return pieces


def _corners(contour):
    """Where along a closed contour it turns sharply, and how far the arms reach from there."""
    corners = []
    if not contour.closed:
        return corners
    travelled = 0.0
    segments = contour.segments
    for index, segment in enumerate(segments):
        length = Contour((segment,)).length
        if isinstance(segment, Arc) and segment.rx <= _ROUNDED_CORNER and abs(abs(segment.sweep) - 90) < 1:
            # The arm is measured from where the corner would be if it were sharp.
            corners.append((travelled + length / 2, _ARM - segment.rx * (1 - math.pi / 4)))
        elif abs(_turn(segments[index - 1], segment)) > math.radians(30):
            corners.append((travelled, _ARM))
        travelled += length
    return corners


def _turn(before, after):
    return cmath.phase((after.point(.01) - after.start) / (before.end - before.point(.99)))


def _stretch(contour, start, end):
    """The part of a contour between two places along it; a closed one may be left over its seam."""
    total = contour.length
    segments, travelled = [], 0.0
    lengths = [Contour((segment,)).length for segment in contour.segments]
    laps = (-total, 0, total) if contour.closed else (0,)
    for lap in laps:
        travelled = lap
        for segment, length in zip(contour.segments, lengths):
            low, high = max(0, (start - travelled) / length), min(1, (end - travelled) / length)
            if high - low > 1e-4:
                segments.append(segment.part(low, high))
            travelled += length
    return Contour(tuple(segments))
