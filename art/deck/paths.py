"""SVG paths as absolute M, L, C and Z: arcs and quadratic curves become cubic ones."""
import math
import re

TOKEN = re.compile(r"[MLHVCQAZlhv]|-?\d*\.?\d+(?:e-?\d+)?")


class _Reader:
    def __init__(self, d):
        self.tokens = TOKEN.findall(d)
        self.next = 0
        self.x = self.y = self.start_x = self.start_y = 0.0
        self.found = []

    def take(self, count):
        values = [float(token) for token in self.tokens[self.next:self.next + count]]
        self.next += count
        return values

    def go(self, x, y):
        self.x, self.y = x, y

    def read(self):
        order = None
        while self.next < len(self.tokens):
            if self.tokens[self.next].isalpha():
                order = self.tokens[self.next]
                self.next += 1
            STEPS[order](self)
            if order == "M":
                order = "L"
        return self.found

    def move(self):
        self.go(*self.take(2))
        self.start_x, self.start_y = self.x, self.y
        self.found.append(("M", self.x, self.y))

    def close(self):
        self.found.append(("Z",))
        self.go(self.start_x, self.start_y)

    def line(self, x, y):
        self.go(x, y)
        self.found.append(("L", x, y))

    def cubic(self):
        v = self.take(6)
        self.found.append(("C", *v))
        self.go(*v[4:])

    def quadratic(self):
        a, b, u, v = self.take(4)
        self.found.append(("C", self.x + 2 / 3 * (a - self.x), self.y + 2 / 3 * (b - self.y),
                           u + 2 / 3 * (a - u), v + 2 / 3 * (b - v), u, v))
        self.go(u, v)

    def arc(self):
        rx, ry, _, large, sweep, u, v = self.take(7)
        self.found += arc(self.x, self.y, rx, ry, large, sweep, u, v)
        self.go(u, v)


STEPS = {
    "M": _Reader.move,
    "Z": _Reader.close,
    "L": lambda r: r.line(*r.take(2)),
    "l": lambda r: r.line(r.x + r.take(1)[0], r.y + r.take(1)[0]),
    "H": lambda r: r.line(r.take(1)[0], r.y),
    "V": lambda r: r.line(r.x, r.take(1)[0]),
    "h": lambda r: r.line(r.x + r.take(1)[0], r.y),
    "v": lambda r: r.line(r.x, r.y + r.take(1)[0]),
    "C": _Reader.cubic,
    "Q": _Reader.quadratic,
    "A": _Reader.arc,
}


def orders(d):
    """Each order with its points: ("M", x, y), ("L", x, y), ("C", x1, y1, x2, y2, x, y), ("Z",)."""
    return _Reader(d).read()


def arc(x1, y1, rx, ry, large, sweep, x2, y2):
    """An arc of an ellipse whose axes are not turned, a cubic curve for each quarter."""
    dx, dy = (x1 - x2) / 2, (y1 - y2) / 2
    k = dx * dx / (rx * rx) + dy * dy / (ry * ry)
    if k > 1:
        rx, ry, k = rx * math.sqrt(k), ry * math.sqrt(k), 1.0
    f = math.sqrt(max(0.0, (1 - k) / k)) * (-1 if large == sweep else 1) if k else 0.0
    cx, cy = f * rx * dy / ry + (x1 + x2) / 2, -f * ry * dx / rx + (y1 + y2) / 2
    begin = math.atan2((y1 - cy) / ry, (x1 - cx) / rx)
    angle = math.atan2((y2 - cy) / ry, (x2 - cx) / rx) - begin
    if sweep and angle < 0:
        angle += 2 * math.pi
    elif not sweep and angle > 0:
        angle -= 2 * math.pi
    quarters = max(1, math.ceil(abs(angle) / (math.pi / 2) - 1e-9))
    return [_quarter(cx, cy, rx, ry, begin + angle * i / quarters,
                     begin + angle * (i + 1) / quarters)
            for i in range(quarters)]


def _quarter(cx, cy, rx, ry, begin, end):
    t = 4 / 3 * math.tan((end - begin) / 4)
    cb, sb, ce, se = math.cos(begin), math.sin(begin), math.cos(end), math.sin(end)
    return ("C", cx + rx * (cb - t * sb), cy + ry * (sb + t * cb),
            cx + rx * (ce + t * se), cy + ry * (se - t * ce), cx + rx * ce, cy + ry * se)
