"""Draws cursors and writes them in the Windows cursor format, 32 and 64 pixels wide.

Cursors are white with a black outline, so that they show on any ground.
"""

import struct
import zlib

from drawing import read_shapes
from geometry import Similarity

_GRID = 32
_SIZES = (32, 64)
_FROM_GLYPH = Similarity(1.25, 1 + 1j)
# Widths on the 32 grid: first everything in black, then in white on top of it.
_OUTLINE, _OUTLINE_OF_SOLIDS, _STROKE, _SOLID = 4, 3, 2, 0
_BLACK, _WHITE = 0, 255


def render(row, glyphs):
    """The bytes of a cursor's file."""
    shapes = _shapes(row["drawing"], glyphs)
    images = [_png(_paint(shapes, size), size) for size in _SIZES]
    hot_spot = int(row["hotspot.x"]), int(row["hotspot.y"])
    header = struct.pack("<HHH", 0, 2, len(images))
    offset = len(header) + 16 * len(images)
    directory = b""
    for size, image in zip(_SIZES, images):
        x, y = (part * size // _GRID for part in hot_spot)
        directory += struct.pack("<BBBBHHII", size, size, 0, 0, x, y, len(image), offset)
        offset += len(image)
    return header + directory + b"".join(images)


def _shapes(drawing, glyphs):
    """The shapes of a drawing: words for people, a colon, then operations or "glyph NAME [MODIFIER]"."""
    words, _, operations = drawing.partition(": ")
    if words == "nothing":
        return []
    shapes = []
    for operation in operations.split("; "):
        words = operation.split()
        if words[0] == "glyph":
            flipped = Similarity.about(12 + 12j, -1, True) if words[2:] == ["flip.h"] else Similarity()
            shapes += [shape.moved(flipped).moved(_FROM_GLYPH) for shape in glyphs[words[1]].shapes]
        else:
            shapes += read_shapes(operation)
    return [shape.dashed() for shape in shapes]


def _paint(shapes, size):
    """Rows of (gray, alpha), white over black."""
    zoom = size / _GRID
    black = _coverage(shapes, size, _OUTLINE * zoom, _OUTLINE_OF_SOLIDS * zoom)
    white = _coverage(shapes, size, _STROKE * zoom, _SOLID * zoom)
    return [[_over(w, b) for w, b in zip(*rows)] for rows in zip(white, black)]


def _over(white, black):
    alpha = white + black * (1 - white)
    return (round(_WHITE * white / alpha) if alpha else _BLACK), round(255 * alpha)


def _coverage(shapes, size, stroke_width, solid_width):
    """How much of each pixel is covered, from its center's distance to the nearest edge or center line."""
    rows = [[0.0] * size for _ in range(size)]
    for shape in shapes:
        width = solid_width if shape.filled else stroke_width
        polylines = [[p * size / _GRID for p in contour.points()] for contour in shape.contours]
        distances = _distances(polylines, size, width / 2 + 1)
        if shape.filled:
            _negate_inside(distances, polylines, size)
        for row, covered in zip(distances, rows):
            for x, distance in enumerate(row):
                covered[x] = max(covered[x], min(1.0, width / 2 - distance + .5))
    return rows


def _distances(polylines, size, limit):
    """The distance of each pixel's center to the polylines, as far as it is below the limit."""
    rows = [[limit] * size for _ in range(size)]
    for points in polylines:
        for a, b in zip(points, points[1:] or points):
            along = b - a
            square = abs(along) ** 2
            for y in _reach(a.imag, b.imag, limit, size):
                row = rows[y]
                for x in _reach(a.real, b.real, limit, size):
                    offset = complex(x + .5, y + .5) - a
                    t = (offset * along.conjugate()).real / square if square else 0
                    row[x] = min(row[x], abs(offset - along * min(1, max(0, t))))
    return rows


def _reach(a, b, limit, size):
    return range(max(0, int(min(a, b) - limit)), min(size, int(max(a, b) + limit) + 1))


def _negate_inside(rows, polylines, size):
    """Turns distances to an outline into signed ones, by the even-odd rule."""
    for y, row in enumerate(rows):
        crossings = []
        for points in polylines:
            for a, b in zip(points, points[1:] + points[:1]):
                if (a.imag > y + .5) != (b.imag > y + .5):
                    crossings.append(a.real + (y + .5 - a.imag) * (b.real - a.real) / (b.imag - a.imag))
        crossings.sort()
        for left, right in zip(crossings[::2], crossings[1::2]):
            for x in range(max(0, round(left)), min(size, round(right))):
                row[x] = -row[x]


def _png(rows, size):
    lines = b"".join(b"\0" + b"".join(bytes((gray, gray, gray, alpha)) for gray, alpha in row) for row in rows)
    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", header) + _chunk(b"IDAT", zlib.compress(lines, 9))
            + _chunk(b"IEND", b""))


def _chunk(kind, content):
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))
