"""The cards from two to seven: where their emblems stand, and how large.

Every rank keeps one pattern, like a die: two a pair, three a triangle, four a square, five a cross, six
a double row, seven six around one. The tall emblems stand in rows, the wide ones in columns."""
from .shapes import use

WIDE = {
    2: [(100, 90), (100, 218)],
    3: [(100, 88), (60, 210), (140, 210)],
    4: [(63, 100), (137, 100), (63, 210), (137, 210)],
    5: [(60, 96), (140, 96), (100, 154), (60, 212), (140, 212)],
    6: [(67, 86), (133, 86), (67, 155), (133, 155), (67, 224), (133, 224)],
    7: [(46, 114), (46, 194), (100, 79), (100, 154), (100, 229), (154, 114), (154, 194)],
}
# A cup is higher than a coin: the rows of the five stand further apart.
CUPS = {**WIDE, 5: [(56, 88), (144, 88), (100, 155), (56, 222), (144, 222)]}
TALL = {
    2: [(60, 156), (140, 156)],
    3: [(100, 88), (60, 216), (140, 216)],
    4: [(62, 98), (138, 98), (62, 212), (138, 212)],
    5: [(56, 100), (144, 100), (100, 154), (56, 210), (144, 210)],
    6: [(50, 103), (100, 103), (150, 103), (50, 206), (100, 206), (150, 206)],
    7: [(49, 113), (49, 197), (100, 74), (100, 155), (100, 236), (151, 113), (151, 197)],
}
PLACES = {"oros": WIDE, "copas": CUPS, "espadas": TALL, "bastos": TALL}
SCALES = {
    "oros": {2: 1.75, 3: 1.3, 4: 1.22, 5: 1.08, 6: 1.08, 7: .9},
    "copas": {2: 1.62, 3: 1.34, 4: 1.18, 5: .9, 6: .82, 7: .84},
    "espadas": {2: 1.86, 3: 1.36, 4: 1.26, 5: 1.14, 6: 1.12, 7: .92},
    "bastos": {2: 1.56, 3: 1.34, 4: 1.22, 5: 1.1, 6: 1.02, 7: .86},
}


def emblem_of(suit, rank):
    """The name of the symbol that stands on the card."""
    if rank == 2:
        return suit + "-large"
    return "bastos-slim" if suit == "bastos" and rank >= 5 else suit


def pips(suit, rank):
    return [use(emblem_of(suit, rank), x, y, SCALES[suit][rank]) for x, y in PLACES[suit][rank]]
