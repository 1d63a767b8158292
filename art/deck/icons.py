"""The icon: for 48 px and more, for 22 to 32, for 16, and in one colour."""
from .shapes import circle, flat, group, path, rectangle, star, stroke
from .svg import icon_svg

TITLE = "La tasca del tío Zarandel"
SYMBOLIC = "#2e3436"  # recoloured by the desktop


def _table():
    return [flat(circle(64, 67, 59), "shade", .22), path(circle(64, 64, 60), "wood", "rim", 3),
            path(circle(64, 64, 51), "cloth", "rim", 3)]


def _back():
    return [flat(rectangle(-27, -38, 60, 86, 7), "shade", .25),
            path(rectangle(-30, -43, 60, 86, 7), "paper", width=3.4),
            flat(rectangle(-24, -37, 48, 74, 3), "blue"),
            flat(star(0, 0, 22, 16.8, 8), "paper"), flat(star(0, 0, 17, 13, 8), "blue"),
            flat(star(0, 0, 10.5, 4.6, 8), "gold"),
            *[flat(star(x, y, 9, 6.9, 8), "paper") for x in (-14, 14) for y in (-27, 27)]]


def _sun():
    return [path(circle(0, 0, 25), "gold", width=3.4), path(circle(0, 0, 18.6), "red", width=1.8),
            flat(star(0, 0, 17.4, 12, 12), "gold"), path(circle(0, 0, 11), "paper", width=1.8),
            flat(circle(-3.8, -1.6, 1.5), "ink"), flat(circle(3.8, -1.6, 1.5), "ink"),
            stroke("M-3.8 3.8Q0 7.2 3.8 3.8", "red", 2),
            flat(circle(-6.6, 2.4, 1.9), "red", .45), flat(circle(6.6, 2.4, 1.9), "red", .45)]


def _ace():
    return [flat(rectangle(-29, -41, 65, 93, 8), "shade", .28),
            path(rectangle(-33, -47, 66, 94, 8), "paper", width=3.4),
            stroke(rectangle(-27, -41, 54, 82, 4), width=2),
            stroke("M-20.5 -32.2L-17.4 -34.4V-24.4", width=2.6),
            stroke("M20.5 32.2L17.4 34.4V24.4", width=2.6), *_sun()]


def large():
    """Two cards on a round table: a back, and over it the sun of the as de oros."""
    return [*_table(), group(_back(), 45, 61, .86, -19), group(_ace(), 74, 65, .9, 11)]


def small():
    """On a grid of 32: a back turned a little, a card upright, its coin."""
    back = [path(rectangle(-7.5, -11, 15, 22, 2.6), "blue", width=2),
            flat(star(-1.6, 0, 4.6, 3.5, 8), "paper")]
    return [group(back, 10.5, 16, turn=-12), path(rectangle(11, 3, 18, 26, 3), "paper", width=2),
            path(circle(20, 16, 6.4), "gold", width=2), flat(circle(20, 16, 2.6), "red")]


def tiny():
    """On a grid of 16: every edge on a pixel."""
    return [path("M5.5 2.9L1.6 4.3L4.2 13.2L5.5 12.8Z", "blue", width=1),
            path(rectangle(5.5, 1.5, 9, 13, 1.4), "paper", width=1),
            flat(circle(10, 8, 3.3), "gold"), stroke(circle(10, 8, 3.3), width=.7),
            flat(circle(10, 8, 1.5), "red")]


def _symbolic_svg():
    front = ("M8 1H13A2 2 0 0 1 15 3V13A2 2 0 0 1 13 15H8A2 2 0 0 1 6 13V3A2 2 0 0 1 8 1Z"
             "M10.5 4.7A3.3 3.3 0 1 0 10.5 11.3A3.3 3.3 0 1 0 10.5 4.7Z")
    dot = "M10.5 6.5A1.5 1.5 0 1 1 10.5 9.5A1.5 1.5 0 1 1 10.5 6.5Z"
    behind = "M5 2.6L1.9 3.6A1.3 1.3 0 0 0 1.05 5.2L3.5 13.1A1.3 1.3 0 0 0 5 14Z"
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16">\n'
            f"<title>{TITLE}</title>\n"
            f'<path fill="{SYMBOLIC}" fill-rule="evenodd" d="{front}"/>\n'
            f'<path fill="{SYMBOLIC}" d="{dot}{behind}"/>\n</svg>\n')


# Side of the grid, and drawing, from the smallest.
ICONS = ((16, tiny), (32, small), (128, large))


def icon_svgs():
    """The files by name."""
    names = ("icon-16.svg", "icon-small.svg", "icon.svg")
    files = {name: icon_svg(side, items(), TITLE) for name, (side, items) in zip(names, ICONS)}
    files["icon-symbolic.svg"] = _symbolic_svg()
    return files
