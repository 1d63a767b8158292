"""The cards from two to seven: where their emblems stand, and how large.

Every rank keeps one pattern, like a die: two a pair, three a triangle, four a square, five a cross,
six a double row, seven six around one. The tall emblems stand in rows, the wide ones in columns."""
from .shapes import use

COINS = {
    2: [(100, 90), (100, 218)],
    3: [(100, 88), (60, 208), (140, 208)],
    4: [(62, 102), (138, 102), (62, 206), (138, 206)],
    5: [(60, 96), (140, 96), (100, 154), (60, 212), (140, 212)],
    6: [(67, 86), (133, 86), (67, 155), (133, 155), (67, 224), (133, 224)],
    7: [(46, 114), (46, 194), (100, 79), (100, 154), (100, 229), (154, 114), (154, 194)],
}
# A cup is higher than a coin, and must not touch the numbers in the corners.
CUPS = {
    **COINS,
    3: [(100, 90), (62, 206), (138, 206)],
    4: [(64, 106), (136, 106), (64, 206), (136, 206)],
    5: [(60, 95), (140, 95), (100, 156), (60, 217), (140, 217)],
}
TALL = {
    2: [(60, 156), (140, 156)],
    3: [(100, 90), (62, 210), (138, 210)],
    4: [(62, 99), (138, 99), (62, 210), (138, 210)],
    5: [(56, 100), (144, 100), (100, 154), (56, 210), (144, 210)],
    6: [(50, 104), (100, 104), (150, 104), (50, 206), (100, 206), (150, 206)],
    7: [(49, 113), (49, 197), (100, 74), (100, 155), (100, 236), (151, 113), (151, 197)],
}
PLACES = {"oros": COINS, "copas": CUPS, "espadas": TALL, "bastos": TALL}
SCALES = {
    "oros": {2: 1.75, 3: 1.24, 4: 1.16, 5: 1.04, 6: 1.0, 7: .88},
    "copas": {2: 1.56, 3: 1.22, 4: 1.1, 5: .86, 6: .82, 7: .84},
    "espadas": {2: 1.86, 3: 1.3, 4: 1.18, 5: 1.1, 6: 1.06, 7: .86},
    "bastos": {2: 1.56, 3: 1.26, 4: 1.12, 5: 1.08, 6: 1.02, 7: .86},
}


def emblem_of(suit, rank):
    """The name of the symbol that stands on the card."""
    if rank == 2:
        return suit + "-large"
    return "bastos-slim" if suit == "bastos" and rank >= 5 else suit


def pips(suit, rank):
    return [use(emblem_of(suit, rank), x, y, SCALES[suit][rank]) for x, y in PLACES[suit][rank]]
