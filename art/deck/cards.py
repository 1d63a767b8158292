"""The 40 cards: their numbers, and the symbols that they are put together from."""
from . import back as backs
from .aces import ACES
from .caballo import caballo
from .digits import number
from .emblems import EMBLEMS, slim_bastos, thinner
from .frame import HIGH, WIDE, blank, frame
from .pips import pips
from .rey import rey
from .shapes import use
from .sota import sota

SUITS = ("oros", "copas", "espadas", "bastos")
RANKS = ("as", "dos", "tres", "cuatro", "cinco", "seis", "siete", "sota", "caballo", "rey")
NUMBERS = ("1", "2", "3", "4", "5", "6", "7", "10", "11", "12")
FIGURES = {"sota": sota, "caballo": caballo, "rey": rey}
BACK = 0          # in place of a card's number
CARDS = range(1, 41)
INSET = 21        # of the number, from the corner
SMALLER = 0.9     # the numbers of the figures


def symbols():
    found = {}
    for suit in SUITS:
        found[suit] = EMBLEMS[suit]()
        found[suit + "-large"] = thinner(EMBLEMS[suit]())
        found["frame-" + suit] = frame(suit)
        found["as-" + suit] = ACES[suit]()
        for rank, figure in FIGURES.items():
            found[f"{rank}-{suit}"] = figure(suit)
    for text in NUMBERS:
        found["number-" + text] = number(text)
    found["bastos-slim"] = slim_bastos()
    found["blank"] = blank()
    found["tile"] = backs.tile()
    found["small-tile"] = backs.small_tile()
    return found


def suit_and_rank(card):
    """Card (suit - 1) x 10 + rank: its suit's name and its rank 1..10."""
    return SUITS[(card - 1) // 10], (card - 1) % 10 + 1


def name(card):
    if card == BACK:
        return "dorso"
    suit, rank = suit_and_rank(card)
    return f"{RANKS[rank - 1]}-{suit}"


def title(card):
    if card == BACK:
        return "Dorso"
    suit, rank = suit_and_rank(card)
    return f"{RANKS[rank - 1].capitalize()} de {suit}"


def _middle(suit, rank):
    if rank == 1:
        return [use("as-" + suit, WIDE / 2, HIGH / 2)]
    if rank <= 7:
        return pips(suit, rank)
    return [use(f"{RANKS[rank - 1]}-{suit}")]


def drawing(card):
    if card == BACK:
        return backs.back()
    suit, rank = suit_and_rank(card)
    text, scale = "number-" + NUMBERS[rank - 1], SMALLER if rank > 7 else 1
    return [use("blank"), use("frame-" + suit), *_middle(suit, rank),
            use(text, INSET, INSET, scale), ("use", text,
                                             (-scale, 0, 0, -scale, WIDE - INSET, HIGH - INSET))]


def small_drawing(card):
    """The number twice as large, and one emblem: legible on a card less than 80 px high."""
    if card == BACK:
        return backs.small_back()
    suit, rank = suit_and_rank(card)
    scale, y = {"oros": (2.1, 208), "copas": (2.3, 204), "espadas": (2.0, 204),
                "bastos": (1.9, 206)}[suit]
    return [use("blank"), use("frame-" + suit), use("number-" + NUMBERS[rank - 1], 26, 28, 2.1),
            use(suit + "-large", 112, y, scale)]
