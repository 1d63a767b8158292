"""Drawings as SVG."""
from .cards import drawing, title
from .frame import HIGH, WIDE
from .shapes import IDENTITY, LIGHT_PALETTE, coordinate

HEAD = ('<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
        'width="{w}" height="{h}" viewBox="0 0 {w} {h}">')


def _matrix(m):
    if m == IDENTITY:
        return ""
    if m[:4] == (1, 0, 0, 1):
        return f' transform="translate({coordinate(m[4])} {coordinate(m[5])})"'
    values = (f"{v:.5f}".rstrip("0").rstrip(".") for v in m)
    return f' transform="matrix({" ".join("0" if v == "-0" else v for v in values)})"'


def _path(item):
    _, d, fill, line, width, opacity = item
    attributes = f'fill="{LIGHT_PALETTE[fill] if fill else "none"}"'
    if line:
        attributes += f' stroke="{LIGHT_PALETTE[line]}" stroke-width="{coordinate(width)}"'
    if opacity < 1:
        attributes += f' {"opacity" if line else "fill-opacity"}="{coordinate(opacity)}"'
    return f'<path d="{d}" {attributes}/>'


def elements(items):
    """One line for each."""
    for item in items:
        if item[0] == "path":
            yield _path(item)
        elif item[0] == "use":
            yield f'<use xlink:href="#{item[1]}"{_matrix(item[2])}/>'
        else:
            yield f"<g{_matrix(item[1])}>"
            yield from elements(item[2])
            yield "</g>"


def needed(items, symbols, found):
    """The names of the symbols that the items use, each after those that it uses itself."""
    for item in items:
        if item[0] == "use" and item[1] not in found:
            needed(symbols[item[1]], symbols, found)
            found.append(item[1])
        elif item[0] == "group":
            needed(item[2], symbols, found)
    return found


def has_flat_ends(symbol):
    """The broken frame is drawn with lines that end where they end."""
    return symbol.startswith("frame")


def card_svg(card, symbols):
    items = drawing(card)
    lines = [HEAD.format(w=WIDE, h=HIGH), f"<title>{title(card)}</title>", "<defs>"]
    for name in needed(items, symbols, []):
        ends = "butt" if has_flat_ends(name) else "round"
        lines.append(f'<g id="{name}" stroke-linejoin="round" stroke-linecap="{ends}">')
        lines += elements(symbols[name])
        lines.append("</g>")
    lines += ["</defs>", *elements(items), "</svg>"]
    return "\n".join(lines) + "\n"


def icon_svg(side, items, text):
    lines = [HEAD.format(w=side, h=side), f"<title>{text}</title>",
             '<g stroke-linejoin="round" stroke-linecap="round">', *elements(items), "</g>",
             "</svg>"]
    return "\n".join(lines) + "\n"
