"""The reyes: a miser with his coin, a merry one with his cup, a stern one behind his sword, and one
who leans on his club."""
from .emblems import LEAF
from .people import DRESS, LEFT, face, hand, held
from .shapes import FINE, circle, ellipse, flat, group, limb, path, stroke, use

THICK = 15  # of the arms
BELLY_ARM = "M70 160L61 187L88 191"
POINTED_BEARD = ("M78 102C84 107 90 104 98 105.6C106 104 112 107 118 102C123 128 114 150 98 158"
                 "C82 150 73 128 78 102Z")
FORKED_BEARD = ("M77 101C84 107 90 104 98 105.6C106 104 112 107 119 101C126 122 122 144 112 154"
                "C107 150 102 147 98 142C94 147 89 150 84 154C74 144 70 122 77 101Z")
ROUND_BEARD = ("M77 101C84 107 90 104 98 105.6C106 104 112 107 119 101C128 120 122 142 98 146"
               "C74 142 68 120 77 101Z")


def _mantle(dress):
    """It sweeps to the left; below it the robe and the feet."""
    return [path("M66 136C46 162 36 232 24 283H134C138 240 138 172 130 136Z", dress.main),
            stroke("M30.5 270H133.5", dress.trim, 7),
            path(ellipse(80, 283, 12, 5), "ink", width=2),
            path(ellipse(108, 283, 12, 5), "ink", width=2),
            path("M84 146L62 280H124L112 146Z", dress.second),
            stroke("M65.5 270H121", dress.trim, 7),
            stroke("M61 281H125M61.8 281L63 270M124.6 281L123.6 270")]


def _ermine():
    tails = [flat(f"M{x} {y}l3 7l-3 3l-3 -3Z", "ink") for x,
             y in ((65, 138), (77, 140), (117, 140), (129, 138))]
    return [path("M54 146C58 127 80 121 97 123C114 121 136 127 140 146C130 160 114 150 97 164"
                 "C80 150 64 160 54 146Z", "paper"), *tails]


def _head(suit, dress, look, beard):
    hair = dress.hair["rey"]
    return [path("M70 80C60 110 64 128 72 134H124C132 128 136 110 126 80Z", hair),
            group(look, 98, 96, 1.1),
            path(beard, hair), *CROWNS[suit](dress)]


def _mouth(d="M91 117Q98 122 105 117"):
    return stroke(d, "red", 3.2)


def _crown_band(dress):
    colour = dress.second if dress.second != "gold" else dress.main
    return path("M72 74Q98 66 124 74L123 83Q98 75 73 83Z", colour, width=FINE)


def _crown_of_points(dress):
    return [path("M72 74L67 39L84 52L98 31L112 52L129 39L124 74Q98 66 72 74Z", "gold"),
            _crown_band(dress),
            *[path(circle(x, y, 4.2), "red", width=FINE) for x,
              y in ((67, 38), (98, 30), (129, 38))]]


def _closed_crown(dress):
    """With a cap of velvet and a ball."""
    return [path("M73 74C60 54 74 40 98 38C122 40 136 54 123 74Q98 66 73 74Z", "red"),
            stroke("M80 70C72 54 82 44 97 39M116 70C124 54 114 44 99 39", "ink", 9.6),
            stroke("M80 70C72 54 82 44 97 39M116 70C124 54 114 44 99 39", "gold", 5),
            path(circle(98, 35, 6), "gold", width=FINE), _crown_band(dress)]


def _spiked_crown(dress):
    return [path("M72 74L66 44L80 56L86 34L98 52L110 34L116 56L130 44L124 74Q98 66 72 74Z", "gold"),
            _crown_band(dress)]


def _crown_of_leaves(dress):
    leaves = [group([path(LEAF, "green", width=2.6)], x, 60, 1.34, turn)
              for x, turn in ((79, -12), (118, 26), (98, 8))]
    return [*leaves, path("M72 74L70 56Q98 48 126 56L124 74Q98 66 72 74Z", "gold"),
            _crown_band(dress)]


CROWNS = {"oros": _crown_of_points, "copas": _closed_crown, "espadas": _spiked_crown,
          "bastos": _crown_of_leaves}


def _motif(suit, x, y):
    """On the robe."""
    if suit == "oros":
        return [path(circle(x, y, 5.6), "gold", width=2), flat(circle(x, y, 2), "red")]
    drop, colour = {
        "copas": ("M0 -8C3 -3 6 0 5 4C3 8 -3 8 -5 4C-6 0 -3 -3 0 -8Z", "red"),
        "espadas": ("M0 -8L5.6 0L0 8L-5.6 0Z", "paper"),
        "bastos": ("M0 8C-7 3 -7 -4 0 -8C7 -4 7 3 0 8Z", "green")}[suit]
    return [group([path(drop, colour, width=2)], x, y)]


def _motifs(suit, places):
    return [item for x, y in places for item in _motif(suit, x, y)]


def _cuff(dress, x, y):
    return path(f"M{x - 4.5} {y - 9}h9v18h-9Z", dress.trim, width=FINE)


def _oros(dress):
    """Spectacles on his nose, both hands on the coin."""
    spectacles = [stroke(circle(-7.5, -1, 7), width=2.2), stroke(circle(7.5, -1, 7), width=2.2)]
    return [*_mantle(dress), *_motifs("oros", ((84, 252), (104, 252))),
            *limb("M70 158L58 190L68 206", THICK, dress.main),
            *limb("M126 158L136 190L126 206", THICK, dress.main),
            use("oros", 97, 206, 1.16), *hand(68, 208), *hand(126, 208), *_ermine(),
            *_head("oros", dress, face(brows="raised", mouth="none") + spectacles, POINTED_BEARD),
            _mouth()]


def _copas(dress):
    """Laughs, and lifts the cup as high as his crown."""
    return [*_mantle(dress), *_motifs("copas", ((95, 216), (82, 235), (107, 235), (94, 254))),
            *limb("M124 152L150 146L156 116", THICK, dress.main), *held("copas", 157, 104),
            *hand(157, 103),
            *limb(BELLY_ARM, 16, dress.main), _cuff(dress, 86.5, 191), *hand(97, 191), *_ermine(),
            *_head("copas", dress, face(eyes="laughing", brows="raised", mouth="none"),
                   ROUND_BEARD),
            path("M89 115Q98 118 107 115Q106 126 98 126Q90 126 89 115Z", "red", width=FINE)]


def _espadas(dress):
    """Both hands on the pommel, the point on the ground."""
    return [*_mantle(dress), *_motifs("espadas", ((78, 240), (116, 240))), *_ermine(),
            *_head("espadas", dress, face(brows="stern", mouth="none"), POINTED_BEARD),
            _mouth("M92 119H104"), use("espadas", 97, 224, 1.4, 180),
            *limb("M68 158L60 186L82 187", THICK, dress.main),
            *limb("M128 158L136 186L113 187", THICK, dress.main),
            *hand(90, 187), *hand(104, 186)]


def _bastos(dress):
    """A hand on his hip, the other on a club that stands beside him."""
    return [*limb("M122 150L157 180L124 200", 13, dress.main), *_mantle(dress),
            *_motifs("bastos", ((95, 200), (82, 224), (107, 224), (94, 250))),
            use("bastos-slim", 46, 226, 1.36),
            *limb("M70 150L50 156L46 166", THICK, dress.main), *hand(46, 173), *_ermine(),
            *_head("bastos", dress, face(gaze=LEFT, mouth="none"), FORKED_BEARD),
            _mouth("M88 117Q95 122 102 117")]


POSES = {"oros": _oros, "copas": _copas, "espadas": _espadas, "bastos": _bastos}


def rey(suit):
    return POSES[suit](DRESS[suit])
