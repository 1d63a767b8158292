"""Random keys and clicks as arguments for xdotool. The same seed gives the same ones."""
import random
import string

WIDTH, HEIGHT = 1280, 800

# Keys that advance a program. They are pressed most often.
LEADING = {
    "tasca": ["Return", "Return", "Return", "space", "s", "n", "1", "2", "3", "4", "0"],
    "tasca-editor": ["Return", "F2", "Down", "Down", "Tab", "n", "alt+c", "alt+g", "alt+u",
                     "alt+m"],
}
_PLAIN = [*string.ascii_lowercase, *string.digits, "ntilde", "ccedilla", "dead_acute", "masculine",
          "period", "comma", "minus", "plus", "less", "apostrophe", "space"]
_MOVING = ["Tab", "Up", "Down", "Left", "Right", "Home", "End", "Page_Up", "Page_Down", "BackSpace",
           "Delete", "Insert"]
_OTHERS = ["Escape", "Menu", "KP_Enter", "KP_0", "KP_5",
           *[f"F{number}" for number in range(1, 11)]]
_SHIFTS = ["shift", "ctrl", "alt", "ctrl+shift", "alt+shift", "ctrl+alt"]


class RandomActions:
    def __init__(self, program, seed):
        self._chance = random.Random(seed)
        self._kinds = [LEADING[program], _PLAIN, _MOVING, _OTHERS]

    def next(self, window):
        """One action, mostly inside the window (x, y, width, height)."""
        drawn = self._chance.random()
        if drawn < 0.85:
            return ["key", "--delay", "0", self._key()]
        place = self._place(window)
        if drawn < 0.92:
            return [*place, "click", self._button()]
        if drawn < 0.96:
            return [*place, "click", "--repeat", "2", "--delay", "10", "1"]
        return [*place, "mousedown", "1", *self._place(window), "mouseup", "1"]

    def _key(self):
        if self._chance.random() < 0.002:
            return "alt+F4"
        (kind,) = self._chance.choices(self._kinds, [40, 25, 25, 10])
        key = self._chance.choice(kind)
        if "+" in key or self._chance.random() < 0.8:
            return key
        return f"{self._chance.choice(_SHIFTS)}+{key}"

    def _button(self):
        return self._chance.choice("1111112345")

    def _place(self, window):
        """A random point, also a little outside the window: on its frame or on an open list."""
        x, y, width, height = window
        across = self._chance.randint(x - 10, x + width + 10)
        down = self._chance.randint(y - 25, y + height + 60)
        on_screen = [min(max(across, 0), WIDTH - 1), min(max(down, 0), HEIGHT - 1)]
        return ["mousemove", *map(str, on_screen)]
