"""The back of the cards: eight-pointed stars that touch, and between them crosses of the ground. It
is the same upside down: it tells nothing of the card."""
from .frame import HIGH, RADIUS, WIDE, edge
from .shapes import circle, flat, rectangle, star, use

TILE = 58  # from one star to the next


def tile():
    return [flat(star(0, 0, 28, 21.4, 8), "star"), flat(star(0, 0, 21.5, 16.4, 8), "ground"),
            flat(star(0, 0, 13, 6, 8), "gem"), flat(circle(0, 0, 3), "star")]


def small_tile():
    """Without the inner star, of which nothing would be left."""
    return [flat(star(0, 0, 28, 21.4, 8), "star"), flat(star(0, 0, 19, 14.5, 8), "ground"),
            flat(circle(0, 0, 8), "gem")]


def _back(symbol, columns, rows, scale):
    step = TILE * scale
    left, top = WIDE / 2 - step * (columns - 1) / 2, HIGH / 2 - step * (rows - 1) / 2
    return [flat(rectangle(0, 0, WIDE, HIGH, RADIUS), "margin"), edge(),
            flat(rectangle(11, 7, WIDE - 22, HIGH - 14, 7), "ground"),
            *[use(symbol, left + column * step, top + row * step, scale)
              for row in range(rows) for column in range(columns)]]


def back():
    return _back("tile", 3, 5, 1)


def small_back():
    """Fewer and larger stars."""
    return _back("small-tile", 2, 3, 1.5)
