"""The drawings as C++ tables, which ui/qt/deck_strokes.h declares."""
import math

from .cards import BACK, CARDS, drawing, small_drawing
from .icons import ICONS
from .paths import orders
from .shapes import DARK_PALETTE, IDENTITY, LIGHT_PALETTE, combined
from .svg import has_flat_ends, needed

PARTS_OF_UNIT = 32  # a coordinate counts these
COLUMNS = 100       # of the file


class Tables:
    def __init__(self, symbols):
        # Parts before the wholes.
        self.names = sorted(symbols, key=lambda n: len(needed(symbols[n], symbols, [])))
        self.colours = list(LIGHT_PALETTE)
        self.orders, self.coordinates, self.strokes, self.pieces = [], [], [], []
        self.symbols = [self.add(symbols[name], has_flat_ends(name)) for name in self.names]
        self.cards = [self.add(drawing(card)) for card in (BACK, *CARDS)]
        self.small_cards = [self.add(small_drawing(card)) for card in (BACK, *CARDS)]
        self.icons = [(side, self.add(items())) for side, items in ICONS]

    def add(self, items, flat_ends=False):
        first = len(self.pieces)
        self._add_pieces(items, IDENTITY)
        return f"{{{first}, {len(self.pieces) - first}, {'true' if flat_ends else 'false'}}}"

    def _add_pieces(self, items, matrix):
        for item in items:
            if item[0] == "group":
                self._add_pieces(item[2], combined(matrix, item[1]))
            elif item[0] == "use":
                numbers = ", ".join(_float(v) for v in combined(matrix, item[2]))
                self.pieces.append(f"{{{self.names.index(item[1])}, 0, {{{numbers}}}}}")
            else:
                self.pieces.append(f"{{-1, {len(self.strokes)}, {{}}}}")
                self._add_stroke(item, matrix)

    def _add_stroke(self, item, matrix):
        _, d, fill, line, width, opacity = item
        order, coordinate = len(self.orders), len(self.coordinates)
        for found in orders(d):
            self.orders.append(found[0])
            for x, y in zip(found[1::2], found[2::2]):
                a, b, c, e, u, v = matrix
                self.coordinates += [round((a * x + c * y + u) * PARTS_OF_UNIT),
                                     round((b * x + e * y + v) * PARTS_OF_UNIT)]
        a, b, c, e = matrix[:4]
        scale = math.sqrt(abs(a * e - b * c))
        self.strokes.append("{" + ", ".join(str(v) for v in (
            order, len(self.orders) - order, coordinate, self._colour(fill), self._colour(line),
            round(width * scale * 100), round(opacity * 100))) + "}")

    def _colour(self, name):
        return self.colours.index(name) + 1 if name else 0


def _float(v):
    text = f"{v:.5g}"
    text = "0" if text == "-0" else text
    return text + "F" if "." in text or "e" in text else text


def _wrapped(words, indent=4):
    lines, line = [], ""
    for word in words:
        if line and indent + len(line) + len(word) + 2 > COLUMNS:
            lines.append(line)
            line = ""
        line += (" " if line else "") + word + ","
    return "\n".join(" " * indent + line for line in lines + [line])


def _array(name, kind, words):
    return f"constexpr std::array<{kind}, {len(words)}> {name}{{{{\n{_wrapped(words)}\n}}}};\n"


def _text(name, letters):
    size = COLUMNS - 7
    lines = [f'    "{letters[i:i + size]}"' for i in range(0, len(letters), size)]
    return f"constexpr std::string_view {name}{{\n" + "\n".join(lines) + "};\n"


def _palette(name, palette):
    return _array(name, "std::uint32_t", ["0", *("0x" + value[1:] for value in palette.values())])


def cpp_tables(symbols):
    t = Tables(symbols)
    assert max(len(t.orders), len(t.coordinates), len(t.pieces)) < 1 << 16
    assert max(abs(v) for v in t.coordinates) < 1 << 15
    icons = [f"{{{side}, {picture}}}" for side, picture in t.icons]
    return "\n".join([
        "// Written by art/make_deck.py. Do not edit.",
        _text("orderTable", "".join(t.orders)),
        _array("coordinateTable", "std::int16_t", [str(v) for v in t.coordinates]),
        _array("strokeTable", "Stroke", t.strokes),
        _array("pieceTable", "Piece", t.pieces),
        _array("symbolTable", "Drawing", t.symbols),
        _array("cardTable", "Drawing", t.cards),
        _array("smallCardTable", "Drawing", t.small_cards),
        _array("iconTable", "IconDrawing", icons),
        _palette("lightColours", LIGHT_PALETTE),
        _palette("darkColours", DARK_PALETTE)])
