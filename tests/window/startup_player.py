"""The choices in the start-up dialog and the keys for them."""
import dataclasses


@dataclasses.dataclass
class Choice:
    """A choice in the dialog. `companions` are list positions."""

    name: str
    companions: list
    checks: list  # use names, use phrases
    style: int

    def line(self, clock):
        """The choice as a line for `tasca-trace`."""
        return {"start": {"clock": clock, "name": self.name, "combos": self.companions,
                          "checks": self.checks, "option": self.style}}


_FIRST_KEYS = ["B", "e", "g", "o", "ntilde", "a", "Tab", *["Down"] * 3, "Tab", "Tab",
               *["Down"] * 3, "Tab", "space", "Tab", "space"]
_SECOND_KEYS = ["space", "shift+Tab", "space", "shift+Tab", "Down", "Down", *["Tab"] * 3, "Down"]

# The first choice has a character at two seats and is refused. The keys of the second one continue
# from the focus after the first.
ROUNDS = [
    (Choice("Begoña", [3, 0, 3], [False, False], 0), _FIRST_KEYS),
    (Choice("Begoña", [3, 0, 5], [True, True], 1), _SECOND_KEYS),
]


def chosen(seen):
    """The current choice of the dialog."""
    (name,) = [part.node.text() for part in seen.having("text")]
    companions = [_place(part.node) for part in seen.having("combo box")]
    checks = ["checked" in part.states for part in seen.having("check box")]
    styles = ["checked" in part.states for part in seen.having("radio button")]
    return Choice(name, companions, checks, styles.index(True))


def _place(companion):
    """The position of the current entry. The name of a combo box is its current entry."""
    (entries,) = companion.children()
    return [entry.name() for entry in entries.children()].index(companion.name())
