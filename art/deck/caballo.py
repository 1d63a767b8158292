"""The caballos ride: at a trot, at a toast, on parade, at a gallop."""
from dataclasses import dataclass

from .people import DRESS, FEATHER, LEFT, RIGHT, face, hand, held, moustache
from .shapes import (FINE, circle, flat, group, limb, merged, path, points, rectangle, stroke,
                     use)

THICK = 13  # of legs and arms
HIGH_HEAD = ("M60 112C76 112 86 130 92 160L136 168C152 170 161 186 158 208C156 224 147 234 133 232"
             "C114 240 82 240 66 230C51 222 46 206 50 190C53 180 54 172 51 163L38 175"
             "C30 181 20 175 23 164L42 126C46 116 52 112 60 112Z")
LOW_HEAD = ("M52 132C72 126 86 140 92 160L136 168C152 170 161 186 158 208C156 224 147 234 133 232"
            "C114 240 82 240 66 230C52 222 48 208 54 194C58 184 58 178 55 172L47 202"
            "C43 213 28 211 28 200L36 148C38 138 43 133 52 132Z")


@dataclass(frozen=True)
class Head:
    outline: str
    ear: str
    mane: tuple     # x, y, radius
    bridle: str
    bit: tuple      # where the reins begin
    eye: tuple
    nostril: tuple


HELD_HIGH = Head(HIGH_HEAD, "M48 120L47 101L59 113Z",
                 ((60, 110, 7), (71, 116, 8), (80, 127, 8.5), (86, 142, 8.5), (90, 157, 8)),
                 "M31 146L47 162M43 158L55 122", (46, 159), (44, 137), (29, 164))
HELD_LOW = Head(LOW_HEAD, "M40 138L34 119L51 131Z",
                ((53, 130, 7), (65, 130, 7.6), (76, 136, 8), (84, 147, 8), (89, 159, 7.6)),
                "M31.6 178L51 184M50 184L47.6 139", (50, 184), (43, 158), (34, 201))


@dataclass(frozen=True)
class Horse:
    colour: str
    mane: str
    head: Head
    far: tuple    # the legs: each a path that ends at the hoof
    near: tuple
    tail: str


HANGING_TAIL = ("M150 182C174 178 184 200 179 222C176 232 181 240 175 248C164 241 165 228 163 216"
                "C162 206 158 199 148 197Z")
FLYING_TAIL = ("M148 180C160 166 176 170 185 184C180 184 178 188 186 198C178 197 174 200 178 212"
               "C166 208 156 202 148 196Z")
HORSES = {
    "oros": Horse("paper", "ink", HELD_HIGH, ("M124 222L128 248L113 272", "M70 222L72 250L68 272"),
                  ("M58 222L36 236L43 260", "M142 212L141 246L126 270"), HANGING_TAIL),
    "copas": Horse("skin", "paper", HELD_LOW, ("M122 222L114 248L106 272", "M78 224L84 250L82 272"),
                   ("M64 224L60 248L56 270", "M142 212L141 246L128 270"), HANGING_TAIL),
    "espadas": Horse("wood", "ink", HELD_HIGH, ("M122 222L116 248L108 272",
                                                "M76 224L78 250L76 272"),
                     ("M58 222L54 248L52 270", "M142 212L140 246L130 270"), HANGING_TAIL),
    "bastos": Horse("paper", "wood", HELD_HIGH,
                    ("M116 224L104 248L92 266", "M70 222L48 238L46 262"),
                    ("M58 216L40 226L34 248", "M142 212L134 244L118 268"), FLYING_TAIL),
}


def _end(leg):
    x, y = leg.rsplit("L", 1)[1].split()
    return float(x), float(y)


def _hoof(leg):
    x, y = _end(leg)
    return path(points("M{left} {top}H{right}L{toe} {bottom}H{heel}Z", left=x - 7, right=x + 7,
                       toe=x + 8, heel=x - 9, top=y, bottom=y + 12), "ink", width=2)


def _horse(horse, reins):
    items = [path(horse.tail, horse.mane)]
    for leg in horse.far:
        items += limb(leg, 12, horse.colour) + [path(leg, None, "ink", 12, .42), _hoof(leg)]
    head = horse.head
    items += merged([head.outline, *[(leg, THICK) for leg in horse.near], head.ear], horse.colour,
                    width=3.4)
    items += [_hoof(leg) for leg in horse.near]
    items += merged([circle(*place) for place in head.mane], horse.mane, width=2.6)
    return items + [stroke(head.bridle, reins, 4), flat(circle(*head.eye, 3.4), "ink"),
                    flat(circle(*head.nostril, 2.4), "ink")]


def _saddle(dress):
    return [path("M88 166L137 172L134 208Q110 218 90 208Z", dress.second),
            stroke("M92 201Q112 210 133 200.5", dress.trim, 4.6),
            *limb("M110 174L98 202L104 226", 14, dress.main),
            path("M98 221H112V237H87C87 230 94 228 98 221Z", "ink", width=2)]


CAPE = "M112 124C138 126 150 154 152 180C140 188 124 184 116 178Z"
FLYING_CAPE = "M112 124C136 124 150 140 172 142C166 148 170 156 162 164C148 170 128 176 116 176Z"


def _coat(dress):
    return [path("M84 126Q105 134 126 126L122 178Q104 184 87 178Z", dress.main),
            stroke("M105 132V180", width=FINE),
            path(rectangle(85, 170, 39, 9, 3), dress.trim, width=FINE)]


def _rein_hand(dress, bit, reins):
    return [*limb("M89 132L78 153L72 156", 12, dress.main),
            stroke(points("M68 160L{x} {y}", x=bit[0], y=bit[1]), reins, 3.6), *hand(70, 157, 6.5)]


def _head(suit, dress, look):
    return [path("M78 88C76 110 82 122 88 124H122C128 122 134 110 132 88Z", dress.hair["caballo"]),
            path("M86 126C86 117 95 115 105 119C115 115 124 117 124 126C117 133 93 133 86 126Z",
                 "paper", width=FINE),
            group(look, 105, 94, .98), *HATS[suit](dress)]


def _plume(dress):
    return path("M106 56C104 36 118 24 140 28C135 34 141 38 132 42C137 48 122 54 112 60Z",
                dress.trim, width=FINE)


def _brimmed_hat(dress):
    return [path("M82 78C82 50 94 44 106 44C118 44 128 52 128 78Z", dress.main),
            path("M66 78C78 68 132 68 144 78C140 87 70 87 66 78Z", dress.second), _plume(dress)]


def _bonnet(dress):
    return [path("M72 80C66 58 88 46 108 46C130 46 146 60 138 80Q105 66 72 80Z", dress.main),
            path("M72 80Q105 66 138 80L136 88Q105 75 74 88Z", dress.second, width=FINE),
            _plume(dress),
            path(circle(108, 58, 5.4), "gold", width=FINE)]


def _helmet(dress):
    return [path("M100 50C92 36 100 26 114 26C128 26 142 36 146 54C138 48 132 52 126 48"
                 "C120 52 110 48 106 52Z", dress.second, width=FINE),
            path("M77 80C76 56 90 48 105 48C120 48 134 56 133 80Q105 70 77 80Z", "paper"),
            flat("M112 50C124 53 132 62 131.4 76Q122 73 114 72.4C117 64 116 56 112 50Z", "blue"),
            stroke("M105 50V71", width=FINE),
            path("M75 80Q105 69 135 80L134 88Q105 78 76 88Z", dress.trim, width=FINE)]


def _pointed_hat(dress):
    return [path("M80 78C82 62 96 54 112 32C122 44 130 60 131 78Z", dress.main),
            path("M66 82C80 68 130 68 146 78C130 90 88 80 66 82Z", dress.second),
            group([path(FEATHER, dress.trim, width=3)], 98, 76, .8, -14, True)]


HATS = {"oros": _brimmed_hat, "copas": _bonnet, "espadas": _helmet, "bastos": _pointed_hat}


def _oros(dress):
    """Looks at the coin."""
    return [path(CAPE, dress.second), *limb("M124 132L147 146L156 126", THICK, dress.main),
            *held("oros", 158, 116), *hand(158, 115), *_coat(dress)], face(gaze=RIGHT)


def _copas(dress):
    """Drinks to somebody, while the horse bows."""
    return [path(CAPE, dress.second), *_coat(dress),
            *limb("M122 134L150 136L158 116", THICK, dress.main),
            *held("copas", 160, 106), *hand(160, 105)], face(gaze=RIGHT, eyes="laughing")


def _espadas(dress):
    """The sword at the shoulder, the eyes ahead."""
    look = face(gaze=LEFT, brows="stern", mouth="none")
    whiskers = group(moustache(dress.hair["caballo"]), -4.5, 0, .85)
    return [path(CAPE, dress.second), *_coat(dress), use("espadas", 148, 128, 1.5, 6),
            *limb("M122 134L136 164L142 172", THICK, dress.main), *hand(144, 172)
            ], look + [whiskers]


def _bastos(dress):
    """Swings the club and shouts, with the cape in the wind."""
    return [path(FLYING_CAPE, dress.second), use("bastos", 162, 82, 1.06, 20),
            *limb("M122 132L146 138L150 116", THICK, dress.main), *hand(151, 112), *_coat(dress)
            ], face(gaze=LEFT, brows="raised", mouth="shouting")


RIDERS = {"oros": _oros, "copas": _copas, "espadas": _espadas, "bastos": _bastos}


def caballo(suit):
    dress, horse = DRESS[suit], HORSES[suit]
    reins = dress.trim if dress.trim not in (horse.colour, horse.mane) else dress.main
    rider, look = RIDERS[suit](dress)
    items = [*_horse(horse, reins), *_saddle(dress), *rider,
             *_rein_hand(dress, horse.head.bit, reins),
             *_head(suit, dress, look)]
    return [group(items, -6, 0)]
