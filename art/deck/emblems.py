"""The emblems of the four suits, centred on 0, 0."""
from .shapes import FINE, circle, ellipse, flat, group, merged, path, rectangle, star, stroke

LEAF = "M0 0C-6.5 -4 -8 -13 -3 -20C5 -16 6.5 -6 0 0Z"


def oros():
    return [path(circle(0, 0, 28), "gold"),
            flat("M0 -26A26 26 0 0 1 0 26A19 26 0 0 0 0 -26Z", "ink", 0.10),
            path(circle(0, 0, 17.5), "paper", width=FINE),
            flat(star(0, 0, 15, 6.6, 8), "red"),
            flat(circle(0, 0, 3.6), "paper")]


def copas():
    return [path("M-4.5 6H4.5V25H-4.5Z", "gold"),
            path("M-17 33C-17 25 -9 22 0 22C9 22 17 25 17 33Z", "gold"),
            path("M-21 -29H21C22 -6 13 7 0 9C-13 7 -22 -6 -21 -29Z", "red"),
            flat("M6 -27H19C19.5 -8 13 4 3 7C10 -3 9 -16 6 -27Z", "ink", 0.16),
            stroke("M-13.5 -20C-13 -11 -10 -4.5 -6 -1", "paper", 3.4),
            path(rectangle(-24, -34, 48, 8.5, 4), "gold"),
            path(ellipse(0, 15.5, 8.5, 5), "gold", width=FINE)]


def espadas():
    return [path("M0 -42L8 -30V12H-8V-30Z", "paper"),
            flat("M0 -40L6.4 -29.4V12H0Z", "blue"),
            stroke("M0 -36V10", width=FINE),
            path("M-4.4 18H4.4V34H-4.4Z", "red"),
            path("M-17 12.5C-12 9.5 12 9.5 17 12.5L17 18.5C12 20.5 -12 20.5 -17 18.5Z", "gold"),
            path(circle(0, 37, 5.4), "gold")]


def bastos():
    trunk = "M-6 41L-13 -26C-13.6 -36 -8.6 -40 0 -40C8.6 -40 13.6 -36 13 -26L6 41Z"
    stubs = [("M-8 0L-15.4 -7", 9.5), ("M8 15L14.4 9", 9)]
    leaf = [path(LEAF, "green", width=3)]
    return [group(leaf, -18, -9, 1, -8), group(leaf, 17.4, 7, 1, 20),
            group(leaf, -6.4, 27, .84, -42),
            *merged([trunk] + stubs, "wood", width=3.2),
            flat("M5 -38.6C11 -37.6 13.4 -34 13 -26L6 41H1.6C5 14 7.8 -16 5 -38.6Z", "ink", 0.20),
            path(ellipse(0, -33, 9.6, 4.8), "gold", width=FINE),
            stroke("M-5 -18C-4 -9 -4 -3 -2.8 5M2.6 -22V-14M0.6 14C0.8 20 .6 24 .2 30", width=2.2),
            path(circle(-16, -7.6, 4.2), "gold", width=2),
            path(circle(15, 8.4, 4), "gold", width=2)]


def slim_bastos():
    """For the cards with many of them: narrower, with two leaves and no knots, so that air is left
    between them at the height of a hand."""
    trunk = "M-5 41L-11 -27C-11.6 -36 -7.6 -40 0 -40C7.6 -40 11.6 -36 11 -27L5 41Z"
    leaf = [path(LEAF, "green", width=3)]
    return [group(leaf, -8, 4, .86, -38), group(leaf, 7, 20, .86, 38),
            *merged([trunk], "wood", width=3.2),
            flat("M4 -38.6C9 -37.6 11.4 -34 11 -27L5 41H1.6C4.4 14 6.6 -16 4 -38.6Z", "ink", 0.20),
            path(ellipse(0, -33, 8, 4.4), "gold", width=FINE),
            stroke("M-3.6 -18C-3 -9 -3 -3 -2 5M.4 16C.6 21 .4 25 .2 30", width=2.2)]


def thinner(items, factor=.74):
    """The same emblem with finer lines, for cards on which it is drawn nearly twice as large."""
    return [_thinner(item, factor) for item in items]


def _thinner(item, factor):
    if item[0] == "group":
        return ("group", item[1], thinner(item[2], factor))
    _, d, fill, line, width, opacity = item
    is_border_of_limb = fill is None and width > 8
    if line == "ink":
        width = width - 2 * 3.2 * (1 - factor) if is_border_of_limb else width * factor
    return ("path", d, fill, line, width, opacity)


EMBLEMS = {"oros": oros, "copas": copas, "espadas": espadas, "bastos": bastos}
