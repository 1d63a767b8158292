"""The vocabulary of the drawings: colours, line widths, paths, placements.

A drawing is a list of items:
    ("path", d, fill, line, width, opacity)   d as in SVG; colours are names of PALETTE or None
    ("use", name, (a, b, c, d, e, f))         the symbol of that name, placed by a matrix
    ("group", (a, b, c, d, e, f), [items])    items placed by a matrix
"""
import math

LIGHT_PALETTE = {
    "ink": "#20242E", "paper": "#FBF5E6", "gold": "#EBAE22", "red": "#BF2F2B", "blue": "#2C6DB2",
    "green": "#4E9E57", "skin": "#F3CBA5", "wood": "#94623A",
    # the back: its margin, its ground, the stars and what is inside them
    "margin": "#FBF5E6", "ground": "#2C6DB2", "star": "#FBF5E6", "gem": "#EBAE22",
    # the icon alone: shadows, the dark wood of the table, its cloth
    "shade": "#000000", "rim": "#6E4522", "cloth": "#2B6650",
}
# The cloth of the dark theme is dark: the paper is less bright on it, and the backs far less.
DARK_PALETTE = dict(LIGHT_PALETTE, paper="#EDE5D2", margin="#A9A799", ground="#2B4A6B",
                    star="#7F93A8", gem="#B08A3C")

LINE, FINE = 4.0, 2.6  # the two line widths of the deck: outlines, and lines inside them
IDENTITY = (1, 0, 0, 1, 0, 0)


def path(d, fill=None, line="ink", width=LINE, opacity=1.0):
    return ("path", d, fill, line if width else None, width, opacity)


def flat(d, fill, opacity=1.0):
    """A filling without a line."""
    return ("path", d, fill, None, 0, opacity)


def stroke(d, line="ink", width=LINE):
    """A line without a filling."""
    return ("path", d, None, line, width, 1.0)


def coordinate(v):
    """At most two decimals: the same text wherever a sum was rounded differently."""
    text = f"{v:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def points(template, **values):
    """A path whose named coordinates are filled in."""
    return template.format(**{name: coordinate(value) for name, value in values.items()})


def circle(x, y, r):
    return ellipse(x, y, r, r)


def ellipse(x, y, rx, ry):
    return points("M{left} {y}A{rx} {ry} 0 1 1 {right} {y}A{rx} {ry} 0 1 1 {left} {y}Z",
                  left=x - rx, right=x + rx, y=y, rx=rx, ry=ry)


def rectangle(x, y, w, h, r=0):
    if r == 0:
        return points("M{x} {y}H{x2}V{y2}H{x}Z", x=x, y=y, x2=x + w, y2=y + h)
    return points("M{xr} {y}H{x2r}A{r} {r} 0 0 1 {x2} {yr}V{y2r}A{r} {r} 0 0 1 {x2r} {y2}"
                  "H{xr}A{r} {r} 0 0 1 {x} {y2r}V{yr}A{r} {r} 0 0 1 {xr} {y}Z",
                  x=x, y=y, r=r, x2=x + w, y2=y + h, xr=x + r, yr=y + r, x2r=x + w - r,
                  y2r=y + h - r)


def star(x, y, outer, inner, rays, turn=-90.0):
    corners = []
    for i in range(rays * 2):
        r = outer if i % 2 == 0 else inner
        a = math.radians(turn + i * 180.0 / rays)
        corners.append(f"{coordinate(x + r * math.cos(a))} {coordinate(y + r * math.sin(a))}")
    return "M" + "L".join(corners) + "Z"


def place(x, y, scale=1.0, turn=0.0, flip=False):
    """The matrix that scales, turns (degrees, clockwise) and then moves to x, y."""
    a = math.radians(turn)
    sx = -scale if flip else scale
    return (sx * math.cos(a), sx * math.sin(a), -scale * math.sin(a), scale * math.cos(a), x, y)


def use(name, x=0.0, y=0.0, scale=1.0, turn=0.0):
    return ("use", name, place(x, y, scale, turn))


def group(items, x=0.0, y=0.0, scale=1.0, turn=0.0, flip=False):
    return ("group", place(x, y, scale, turn, flip), items)


def combined(outer, inner):
    """The matrix that applies inner, then outer."""
    a, b, c, d, e, f = outer
    p, q, r, s, t, u = inner
    return (a * p + c * q, b * p + d * q, a * r + c * s, b * r + d * s,
            a * t + c * u + e, b * t + d * u + f)


def merged(pieces, fill, line="ink", width=LINE):
    """Several shapes with one common outline: first all the borders, then all the fillings.
    A piece is a closed path, or (path, thickness) for a limb."""
    back, front = [], []
    for piece in pieces:
        if isinstance(piece, tuple):
            d, thickness = piece
            back.append(stroke(d, line, thickness + 2 * width))
            front.append(stroke(d, fill, thickness))
        else:
            back.append(stroke(piece, line, 2 * width))
            front.append(flat(piece, fill))
    return back + front


def limb(d, thickness, fill):
    return merged([(d, thickness)], fill)
