"""Reading and writing SVG path data."""

import re

from geometry import Arc, Contour, Cubic, Line, arc_between

_TOKEN = re.compile(r"[A-Za-z]|[-+]?(?:\d+\.?\d*|\.\d+)")
_ARGUMENTS = {"M": 2, "L": 2, "H": 1, "V": 1, "C": 6, "S": 4, "A": 7, "Z": 0}


def read(data):
    """The contours of path data. Only the commands M L H V C S A Z occur, in both cases."""
    return _Reader(_TOKEN.findall(data)).contours()


class _Reader:
    def __init__(self, tokens):
        self.tokens = tokens
        self.position = 0
        self.current = self.first = 0j
        self.segments = []
        self.finished = []

    def contours(self):
        command = ""
        while self.position < len(self.tokens):
            if self.tokens[self.position].isalpha():
                command = self.tokens[self.position]
                self.position += 1
            count = _ARGUMENTS[command.upper()]
            numbers = [float(n) for n in self.tokens[self.position:self.position + count]]
            self.position += count
            self._apply(command, numbers)
            command = {"M": "L", "m": "l"}.get(command, command)
        self._finish(False)
        return self.finished

    def _apply(self, command, numbers):
        origin = self.current if command.islower() else 0j
        kind = command.upper()
        if kind == "Z":
            self._close()
        elif kind == "A":
            rx, ry, tilt, large, clockwise, x, y = numbers
            end = origin + complex(x, y)
            self._add(arc_between(self.current, end, (rx, ry), tilt, bool(large), bool(clockwise)), end)
        elif kind == "H":
            self._line(complex(origin.real + numbers[0], self.current.imag))
        elif kind == "V":
            self._line(complex(self.current.real, origin.imag + numbers[0]))
        else:
            points = [origin + complex(x, y) for x, y in zip(numbers[::2], numbers[1::2])]
            {"M": self._move, "L": self._line, "C": self._curve, "S": self._smooth}[kind](*points)

    def _move(self, point):
        self._finish(False)
        self.current = self.first = point

    def _line(self, point):
        self._add(Line(self.current, point), point)

    def _curve(self, control1, control2, end):
        self._add(Cubic(self.current, control1, control2, end), end)

    def _smooth(self, control2, end):
        last = self.segments[-1] if self.segments else None
        mirrored = 2 * self.current - last.control2 if isinstance(last, Cubic) else self.current
        self._curve(mirrored, control2, end)

    def _add(self, segment, end):
        if abs(end - self.current) > 1e-9:
            self.segments.append(segment)
        self.current = end

    def _close(self):
        if abs(self.current - self.first) > 1e-6:
            self._line(self.first)
        self._finish(True)
        self.current = self.first

    def _finish(self, closed):
        if self.segments:
            self.finished.append(Contour(tuple(self.segments), closed))
        self.segments = []


def number(value):
    """A coordinate with at most two decimals and nothing superfluous."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    text = re.sub(r"^(-?)0\.", r"\1.", text)
    return "0" if text in ("-0", "-", "") else text


def _rounded(point):
    return complex(round(point.real, 2), round(point.imag, 2))


def _joined(letter, values):
    """A command with its arguments, a minus sign standing in for the blank."""
    text = letter
    for index, value in enumerate(values):
        word = value if isinstance(value, str) else number(value)
        text += word if not index or word.startswith("-") else " " + word
    return text


def write(contours):
    """Path data of contours: each command in the shorter of its absolute and relative spellings."""
    text = ""
    current = 0j
    for contour in contours:
        start = _rounded(contour.start)
        text += _shorter("M", [start], [start - current] if text else None)
        current = start
        segments = list(contour.segments)
        if contour.closed and isinstance(segments[-1], Line) and len(segments) > 1:
            segments.pop()
        for segment in segments:
            written, current = _segment(segment, current)
            text += written
        if contour.closed:
            text += "z"
            current = start
    return text


def _flat(points):
    return [value for point in points for value in (point.real, point.imag)]


def _shorter(letter, absolute, relative):
    spelled = _joined(letter, _flat(absolute))
    if relative is None:
        return spelled
    return min(spelled, _joined(letter.lower(), _flat(relative)), key=len)


def _segment(segment, current):
    if isinstance(segment, Arc) and abs(segment.sweep) > 180:
        first, current = _segment(segment.part(0, .5), current)
        second, current = _segment(segment.part(.5, 1), current)
        return first + second, current
    end = _rounded(segment.end)
    step = end - current
    if isinstance(segment, Cubic):
        points = [_rounded(segment.control1), _rounded(segment.control2), end]
        return _shorter("C", points, [p - current for p in points]), end
    if isinstance(segment, Arc):
        same = abs(segment.rx - segment.ry) < .005
        shape = [segment.rx, segment.rx if same else segment.ry, 0 if same else segment.tilt % 180,
                 "0", "1" if segment.sweep > 0 else "0"]
        spelled = (_joined("A", shape + [end.real, end.imag]), _joined("a", shape + [step.real, step.imag]))
        return min(spelled, key=len), end
    if not step:
        return "", end
    if not step.imag:
        return min(_joined("H", [end.real]), _joined("h", [step.real]), key=len), end
    if not step.real:
        return min(_joined("V", [end.imag]), _joined("v", [step.imag]), key=len), end
    return _shorter("L", [end], [step]), end
