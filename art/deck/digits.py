"""The numbers in the corners of the cards."""
from .shapes import group, stroke

WIDTH = 5.6  # of the line
GAP = 4.5    # between two digits

# Drawn in a box 36 high: the width of the box, and the line.
DIGITS = {
    "0": (21, "M10.5 3C16.6 3 19 9.5 19 18C19 26.5 16.6 33 10.5 33C4.4 33 2 26.5 2 18"
              "C2 9.5 4.4 3 10.5 3Z"),
    "1": (13, "M2 9.5L9.5 3V33"),
    "2": (21, "M2.5 11.5C2.5 6 6 3 10.5 3C15.2 3 18.5 6 18.5 11C18.5 18 8.5 23 3 33H19"),
    "3": (21, "M3.5 3H18L10 14.6C15.6 14.6 19 18.2 19 23.6C19 29.2 15 33 10 33C6 33 3.2 31 2 27.6"),
    "4": (22, "M15.5 33V3L2 24.6H20"),
    "5": (21, "M17.5 3H5L4 15.6C6 14.2 8 13.6 10.2 13.6C15.4 13.6 19 17.4 19 23C19 29 15 33 9.8 33"
              "C6 33 3.4 31.4 2 28.4"),
    "6": (21, "M14.6 3C7.6 8 2 15.4 2 23.4C2 29.2 5.6 33 10.5 33C15.4 33 19 29.2 19 24"
              "C19 18.8 15.4 15.2 10.8 15.2C7 15.2 3.8 17.4 2.4 20.8"),
    "7": (21, "M2.5 3H19L8.5 33M5.6 18.4H16.6"),
}


def number(text):
    items, x = [], 0.0
    for digit in text:
        width, d = DIGITS[digit]
        items.append(group([stroke(d, width=WIDTH)], x))
        x += width + GAP
    return items
