#!/usr/bin/env python3
"""Writes the deck and the icon: as SVG, and as tables for C++.

    art/make_deck.py FOLDER TABLES

FOLDER gets cards/*.svg and icons/*.svg, TABLES is the file of the tables. The same drawings always
make the same bytes."""
import sys
from pathlib import Path

from deck.cards import BACK, CARDS, name, symbols
from deck.icons import icon_svgs
from deck.svg import card_svg
from deck.tables import cpp_tables


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8", newline="\n")


def main(folder, tables):
    found = symbols()
    for card in (BACK, *CARDS):
        write(folder / "cards" / f"{name(card)}.svg", card_svg(card, found))
    for file, text in icon_svgs().items():
        write(folder / "icons" / file, text)
    write(tables, cpp_tables(found))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(Path(sys.argv[1]), Path(sys.argv[2]))
