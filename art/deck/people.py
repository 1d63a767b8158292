"""What sotas, caballos and reyes share: the colours of their clothes, faces and hands."""
from dataclasses import dataclass

from .shapes import FINE, circle, ellipse, flat, merged, path, stroke, use


@dataclass(frozen=True)
class Dress:
    main: str
    second: str
    trim: str
    hair: dict  # by rank


DRESS = {
    "oros": Dress("gold", "blue", "red", {"sota": "ink", "caballo": "gold", "rey": "paper"}),
    "copas": Dress("red", "gold", "paper", {"sota": "wood", "caballo": "ink", "rey": "ink"}),
    "espadas": Dress("blue", "red", "gold", {"sota": "red", "caballo": "ink", "rey": "wood"}),
    "bastos": Dress("green", "gold", "red", {"sota": "wood", "caballo": "red", "rey": "gold"}),
}

EYES = {
    "open": [flat(circle(-7.5, -1, 2.6), "ink"), flat(circle(7.5, -1, 2.6), "ink")],
    "laughing": [stroke("M-11 0Q-7.5 -5 -4 0M4 0Q7.5 -5 11 0", width=FINE)],
    "winking": [flat(circle(-7.5, -1, 2.6), "ink"),
                stroke("M3.6 -1.6Q7.5 1.6 11.4 -1.6", width=FINE)],
}
BROWS = {
    "calm": "M-12 -8Q-8 -11 -4 -8.6M4 -8.6Q8 -11 12 -8",
    "raised": "M-12 -9.6Q-8 -13.4 -4 -10.6M4 -10.6Q8 -13.4 12 -9.6",
    "stern": "M-13 -10.4L-4 -7M4 -7L13 -10.4",
}
MOUTHS = {
    "none": [],
    "smile": [stroke("M-5 14Q0 18 5 14", "red", 2.8)],
    "stern": [stroke("M-4 16H4", "red", 2.8)],
    "shouting": [path(ellipse(0, 15, 4.4, 4.8), "red", width=FINE)],
}
LEFT, AHEAD, RIGHT = -1, 0, 1
FEATHER = "M0 0C6 -20 18 -30 36 -30C32 -24 36 -20 28 -15C31 -9 18 -4 8 -2Z"  # in a hat


def face(gaze=AHEAD, eyes="open", brows="calm", mouth="smile"):
    """A head without hair; the gaze is to the left or the right of who looks at the card."""
    nose = "M0 -1L-2.4 7H1.6" if gaze != RIGHT else "M0 -1L2.4 7H-1.6"
    features = EYES[eyes] + [stroke(BROWS[brows], width=FINE),
                             stroke(nose, width=2.2)] + MOUTHS[mouth]
    return [path("M-18 -6C-18 -24 18 -24 18 -6V5C18 17 9 24 0 24C-9 24 -18 17 -18 5Z", "skin"),
            flat(circle(-10.5 + gaze, 8, 4), "red", .40),
            flat(circle(10.5 + gaze, 8, 4), "red", .40),
            ("group", (1, 0, 0, 1, 4.5 * gaze, 0), features)]


def moustache(colour):
    return [path("M0 10.6C4 7.4 9 9 13 13.6C8 16.4 3 15.4 0 13C-3 15.4 -8 16.4 -13 13.6"
                 "C-9 9 -4 7.4 0 10.6Z",
                 colour, width=2)]


def held(suit, x, y):
    """The emblem upright in a hand at x, y. The hand is drawn over it."""
    scale, rise = {"oros": (.98, 31), "copas": (1.0, 17), "espadas": (1.16, 29),
                   "bastos": (1.1, 28)}[suit]
    return [use(suit, x, y - rise, scale)]


def hand(x, y, r=7.5):
    return [path(circle(x, y, r), "skin")]


def open_hand(x, y):
    """Waving: four fingers and a thumb."""
    fingers = [(f"M{x + bottom} {y - 3}L{x + top} {y - 14}", 3.4)
               for bottom, top in ((-5, -8), (-1.6, -2.6), (1.8, 3), (5, 8.4))]
    thumb = (f"M{x + 5} {y + 2}L{x + 12} {y - 3}", 3.6)
    return merged([circle(x, y, 6.6), thumb] + fingers, "skin", width=2.6)
