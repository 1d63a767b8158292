"""A player at the start-up dialog: what is to be chosen, and the keys that choose it."""
import dataclasses


@dataclasses.dataclass
class Choice:
    """All that can be chosen in the dialog; companions by their place in the lists."""

    name: str
    companions: list
    checks: list  # names, phrases
    style: int

    def line(self, clock):
        """It as a line for `tasca-trace`."""
        return {"start": {"clock": clock, "name": self.name, "combos": self.companions,
                          "checks": self.checks, "option": self.style}}


_FIRST_KEYS = ["B", "e", "g", "o", "ntilde", "a", "Tab", *["Down"] * 3, "Tab", "Tab",
               *["Down"] * 3, "Tab", "space", "Tab", "space"]
_SECOND_KEYS = ["space", "shift+Tab", "space", "shift+Tab", "Down", "Down", *["Tab"] * 3, "Down"]

# Nobody can sit in two places: the first choice is refused, and mended from where its keys ended.
ROUNDS = [
    (Choice("Begoña", [3, 0, 3], [False, False], 0), _FIRST_KEYS),
    (Choice("Begoña", [3, 0, 5], [True, True], 1), _SECOND_KEYS),
]


def chosen(seen):
    """The choice that the dialog shows."""
    (name,) = [part.node.text() for part in seen.having("text")]
    companions = [_place(part.node) for part in seen.having("combo box")]
    checks = ["checked" in part.states for part in seen.having("check box")]
    styles = ["checked" in part.states for part in seen.having("radio button")]
    return Choice(name, companions, checks, styles.index(True))


def _place(companion):
    """A list has the name of what is chosen in it."""
    (entries,) = companion.children()
    return [entry.name() for entry in entries.children()].index(companion.name())
