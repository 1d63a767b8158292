"""The sotas: a page with a coin, a girl with a cup, a guard with a sword, a lad with a club."""
from .people import DRESS, FEATHER, LEFT, RIGHT, face, hand, held, moustache, open_hand
from .shapes import FINE, circle, flat, group, limb, path, rectangle, stroke, use

LEFT_ON_HIP = "M72 132L46 157L68 173"
RIGHT_ON_HIP = "M112 132L138 157L116 173"
THICK = 13  # of arms and legs


def _legs(dress):
    return [*limb("M80 208L72 268", THICK, dress.second),
            *limb("M104 208L112 268", THICK, dress.main),
            path("M63 266H80V282H49C49 275 57 273 63 266Z", "ink", width=2),
            path("M121 266H104V282H135C135 275 127 273 121 266Z", "ink", width=2)]


def _belt(dress):
    return [path(rectangle(68, 166, 48, 11, 3), dress.trim, width=FINE),
            path(rectangle(87, 164.5, 10, 14, 2), "gold", width=FINE)]


def _tunic(dress):
    return [flat("M92 126Q80 126 67 122L60 133L70 172L51 218Q71 224 92 224Z", dress.main),
            flat("M92 126Q104 126 117 122L124 133L114 172L133 218Q113 224 92 224Z", dress.second),
            stroke("M60 205Q92 213 124 205", dress.trim, 6),
            stroke("M67 122Q92 130 117 122L124 133L114 172L133 218Q92 230 51 218L70 172L60 133Z"),
            stroke("M92 128V224", width=FINE),
            *[flat(circle(92, y, 2.6), "ink") for y in (140, 151)], *_belt(dress)]


def _skirt(dress):
    return [path("M70 266H86V282H60C60 275 64 272 70 266Z", "ink", width=2),
            path("M114 266H98V282H124C124 275 120 272 114 266Z", "ink", width=2),
            path("M67 122Q92 130 117 122L124 133L113 172C122 200 134 240 137 264Q92 282 47 264"
                 "C50 240 62 200 71 172L60 133Z", dress.second),
            path("M80 174H104C110 206 115 236 116 260Q92 266 68 260C69 236 74 206 80 174Z",
                 dress.main, width=FINE),
            stroke("M52 252Q60 257 66 258.4M118 258.4Q126 256.4 132 252", dress.trim, 5),
            *_belt(dress)]


def _head(suit, dress, look):
    hair = dress.hair["sota"]
    items = [path("M64 76C58 104 62 117 69 122H115C122 117 126 104 120 76Z", hair),
             path("M68 124C68 114 79 111 92 116C105 111 116 114 116 124C108 133 76 133 68 124Z",
                  "paper"),
             group(look, 92, 88, 1.06),
             path("M69 82C69 66 115 66 115 82C108 74 100 78 92 75C84 78 76 74 69 82Z", hair,
                  width=FINE)]
    return items + HATS[suit](dress)


def _band(dress):
    return path("M63 72C77 64 107 64 121 72L120 80C106 72 78 72 64 80Z", dress.trim, width=FINE)


def _beret(dress):
    return [path("M63 72C57 52 76 41 95 42C118 43 130 58 121 72C107 64 77 64 63 72Z", dress.main),
            _band(dress),
            path("M98 46C98 30 110 21 128 24C124 30 130 35 121 39C125 44 112 48 104 49Z", "paper",
                 width=FINE)]


def _cap(dress):
    return [path("M63 72C57 52 76 40 95 41C118 42 130 58 121 72C107 64 77 64 63 72Z", dress.main),
            _band(dress), stroke("M78 54C88 48 98 48 108 54", "paper", 3)]


def _steel_cap(dress):
    return [path("M92 44C84 34 88 24 100 22C112 20 124 28 130 40C122 36 118 40 112 38"
                 "C106 42 98 40 96 46Z",
                 "red", width=FINE),
            path("M65 74C62 54 76 44 92 44C108 44 122 54 119 74Q92 64 65 74Z", "paper"),
            flat("M98 46C110 48 119 56 117.4 71Q108 67.6 100 67C103 60 102 52 98 46Z", "blue"),
            stroke("M92 46V66", width=FINE), _band(dress)]


def _pointed_hat(dress):
    return [path("M66 72C68 58 82 50 96 28C108 40 118 56 119 72Q92 62 66 72Z", dress.main),
            path("M56 78C72 64 110 64 128 74C112 84 78 74 56 78Z", dress.main),
            group([path(FEATHER, dress.trim, width=3)], 86, 70, .72, -16, True)]


HATS = {"oros": _beret, "copas": _cap, "espadas": _steel_cap, "bastos": _pointed_hat}


def _oros(dress):
    """A page with a hand on his hip looks at the coin that he holds up."""
    return [*_legs(dress), *limb(LEFT_ON_HIP, THICK, dress.main),
            *limb("M114 132L139 149L148 128", THICK, dress.second), *held("oros", 150, 118),
            *hand(150, 117),
            *_tunic(dress), *_head("oros", dress, face(gaze=RIGHT))]


def _copas(dress):
    """A girl with plaits holds the cup out in both hands."""
    plaits = [path(circle(x, y, r), dress.hair["sota"], width=3)
              for x in (60, 124) for y, r in ((116, 8), (129, 7.4), (141, 6.6))]
    ribbons = [path(circle(x, 151, 4.4), "red", width=FINE) for x in (60, 124)]
    return [*_skirt(dress), *_head("copas", dress, face(brows="raised")), *plaits, *ribbons,
            *limb("M66 140L56 168L74 178", THICK, dress.second),
            *limb("M118 140L128 168L110 178", THICK, dress.second),
            use("copas", 92, 166, 1.06), *hand(78, 178), *hand(106, 178)]


def _espadas(dress):
    """A guard, hand on hip, leans on his sword."""
    look = face(gaze=LEFT, brows="stern", mouth="none")
    whiskers = group(moustache(dress.hair["sota"]), -4.5, 1, .9)
    return [*_legs(dress), *limb(RIGHT_ON_HIP, THICK, dress.second), *_tunic(dress),
            *_head("espadas", dress, look + [whiskers]),
            use("espadas", 38, 224, 1.24, 180), *limb("M70 134L51 150L41 168", THICK, dress.main),
            *hand(39, 176)]


def _bastos(dress):
    """A lad with the club over his shoulder waves."""
    return [*_legs(dress), *limb("M70 132L48 143L40 122", THICK, dress.main), *open_hand(39, 112),
            *_tunic(dress), *_head("bastos", dress, face(eyes="winking", brows="raised")),
            use("bastos", 142, 124, 1.24, 24), *limb("M116 134L138 164L128 160", THICK,
                                                     dress.second),
            *hand(126, 158)]


POSES = {"oros": _oros, "copas": _copas, "espadas": _espadas, "bastos": _bastos}


def sota(suit):
    return POSES[suit](DRESS[suit])
