"""The blank card, and its frame: the gaps in the frame's line tell the suit."""
from .shapes import flat, path, rectangle, stroke

WIDE, HIGH = 200, 308  # units: 61.5 x 95 mm
RADIUS = 13
# Where the line at the top and at the bottom is broken: not for oros, once for copas, and so on.
GAPS = {"oros": (), "copas": (100,), "espadas": (78, 122), "bastos": (60, 100, 140)}
GAP = 17.0
WIDTH = 3.6


def edge():
    return path(rectangle(1, 1, WIDE - 2, HIGH - 2, RADIUS - 1), width=2, opacity=0.35)


def blank():
    return [flat(rectangle(0, 0, WIDE, HIGH, RADIUS), "paper"), edge()]


def frame(suit):
    left, right, top, bottom, r = 11, WIDE - 11, 11, HIGH - 11, 7
    if not GAPS[suit]:
        return [stroke(rectangle(left, top, right - left, bottom - top, r), width=WIDTH)]
    stops = []
    for middle in GAPS[suit]:
        stops += [middle - GAP / 2, middle + GAP / 2]
    d = (f"M{stops[0]} {top}H{left + r}A{r} {r} 0 0 0 {left} {top + r}V{bottom - r}"
         f"A{r} {r} 0 0 0 {left + r} {bottom}H{stops[0]}"
         f"M{stops[-1]} {top}H{right - r}A{r} {r} 0 0 1 {right} {top + r}V{bottom - r}"
         f"A{r} {r} 0 0 1 {right - r} {bottom}H{stops[-1]}")
    for i in range(1, len(stops) - 1, 2):
        for y in (top, bottom):
            d += f"M{stops[i]} {y}H{stops[i + 1]}"
    return [stroke(d, width=WIDTH)]
