"""The four aces, centred on 0, 0: one large emblem each."""
import math

from .shapes import (FINE, circle, ellipse, flat, group, merged, path, rectangle, star, stroke)

BOLD = 5  # the outlines of what is drawn this large


def as_oros():
    """A sun with a face."""
    angles = [math.radians(a) for a in range(0, 360, 15)]
    return [path(circle(0, 0, 75), "gold", width=BOLD), path(circle(0, 0, 60), "red"),
            *[flat(circle(67.5 * math.cos(a), 67.5 * math.sin(a), 3), "ink") for a in angles],
            path(star(0, 0, 55, 36, 16), "gold", width=FINE),
            path(circle(0, 0, 33), "paper"),
            flat(circle(-18, 8, 5.4), "red", .45), flat(circle(18, 8, 5.4), "red", .45),
            flat(circle(-10.5, -5, 3.6), "ink"), flat(circle(10.5, -5, 3.6), "ink"),
            stroke("M-16 -13Q-10.5 -17.4 -5 -14M5 -14Q10.5 -17.4 16 -13", width=FINE),
            stroke("M0 -4L-3.4 6.4H2.2", width=FINE),
            stroke("M-9.5 14Q0 22.5 9.5 14", "red", 3.4)]


def as_copas():
    jewels = [path(circle(x, -78.5, 4.4), colour, width=2)
              for x, colour in zip((-46, -23, 0, 23, 46), ("red", "blue", "red", "blue", "red"))]
    return [path("M-10 24H10V72H-10Z", "gold", width=BOLD),
            path("M-50 98C-50 78 -26 71 0 71C26 71 50 78 50 98Z", "gold", width=BOLD),
            stroke("M-39 87C-28 81 28 81 39 87", width=FINE),
            path("M-60 -70H60C63 -12 38 25 0 29C-38 25 -63 -12 -60 -70Z", "red", width=BOLD),
            flat("M20 -67H57.4C59.4 -16 38 18 8 25.6C28 -4 28 -38 20 -67Z", "ink", .17),
            stroke("M-44 -46C-44 -24 -35 -6 -22 5", "paper", 6),
            path(rectangle(-67, -89, 134, 21, 10), "gold", width=BOLD), *jewels,
            path(star(0, -22, 20, 9.4, 8), "gold", width=FINE), flat(circle(0, -22, 4.4), "red"),
            path(ellipse(0, 49, 23, 13), "gold"), path(ellipse(0, 49, 8, 6), "blue", width=FINE)]


def as_espadas():
    """The sword in a ribbon: two folded ends behind, the band in front."""
    return [path("M0 -122L19 -95V44H-19V-95Z", "paper", width=BOLD),
            flat("M0 -118L16.6 -94.4V44H0Z", "blue"), stroke("M0 -112V40"),
            path("M-9.4 60H9.4V98H-9.4Z", "red", width=BOLD),
            stroke("M-7 71L7 65M-7 81L7 75M-7 91L7 85", width=FINE),
            path("M-54 42C-36 33 36 33 54 42C60 46 60 57 54 61C36 66 -36 66 -54 61"
                 "C-60 57 -60 46 -54 42Z",
                 "gold", width=BOLD),
            flat(circle(-41, 51, 4), "ink"), flat(circle(41, 51, 4), "ink"),
            path(star(0, 50.5, 12, 5.4, 8), "red", width=FINE),
            path(circle(0, 108, 12.5), "gold", width=BOLD), flat(circle(0, 108, 4), "red"),
            path("M-40 -40L-70 -30L-60 -17L-66 -2L-34 -12Z", "red"),
            path("M40 -16L70 -30L62 -42L66 -58L36 -44Z", "red"),
            path("M-44 -46C-26 -54 -12 -44 0 -38C12 -32 28 -26 44 -40V-10C28 2 12 -4 0 -10"
                 "C-12 -16 -26 -26 -44 -14Z", "gold"),
            stroke("M-32 -31C-22 -34 -10 -28 0 -23.6C10 -19 22 -16 33 -22", width=FINE)]


def as_bastos():
    trunk = "M-15 118L-32 -70C-34 -100 -20 -112 0 -112C20 -112 34 -100 32 -70L15 118Z"
    stubs = [("M-20 -14L-45 -38", 25), ("M18 22L42 -1", 24), ("M-12 54L-30 38", 19)]
    leaf = [path("M0 0C-14 -10 -15 -32 -3 -46C12 -36 14 -14 0 0Z", "green"),
            stroke("M0 -6L-2 -30", width=FINE)]
    leaves = [group(leaf, x, y, scale, turn) for x, y, scale, turn in
              ((46, -12, .92, 44), (42, -14, .92, -4), (-54, -46, .92, -40), (-46, -50, .92, 6),
               (-36, 32, .8, -66), (-31, 28, .76, -14))]
    return leaves + merged([trunk] + stubs, "wood", width=2.8) + [
        flat("M14 -109C26 -106 34 -96 32 -70L15 118H4C14 40 20 -46 14 -109Z", "ink", .20),
        path("M-19.8 64H19.8L17 98H-17Z", "red"),
        stroke("M-17.6 79L17 69M-17 91L16 81", width=FINE),
        path(ellipse(0, -94, 23, 11.5), "gold"), stroke(ellipse(0, -94, 11.5, 5), width=FINE),
        path(circle(-47, -40, 10.5), "gold", width=3), stroke(circle(-47, -40, 3.8), width=2),
        path(circle(44, -3, 10), "gold", width=3), stroke(circle(44, -3, 3.6), width=2),
        path(circle(-32, 36, 8), "gold", width=3),
        stroke("M-15 -62C-11 -40 -11 -26 -13 -8M4 -58V-34M0 -8C1 10 0 26 -2 44M12 34V54",
               width=FINE)]


ACES = {"oros": as_oros, "copas": as_copas, "espadas": as_espadas, "bastos": as_bastos}
