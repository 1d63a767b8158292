"""A random player: the answer to each question and the keys for it."""
import random

import startup_player
import windows
from keyboard import Keyboard

BUTTONS = ["Paso", "Envido", "Envido Más", "Órdago"]


class Answer:
    """An answer: its line for `tasca-trace` (None for a message box) and its keys or clicks."""

    def __init__(self, line, *moves):
        self.line = line
        self.moves = moves


class MatchPlayer:
    """Plays one match. The same seed gives the same answers."""

    def __init__(self, seed):
        self._chance = random.Random(seed)
        self._answers = {windows.MAIN: self._key, windows.MESSAGE: self._read,
                         windows.YES_NO: self._yes_no, windows.INPUT: self._input,
                         windows.BETS: self._bet}

    @staticmethod
    def hand(session):
        """What carries out the keys."""
        return Keyboard(session).press

    def choices(self, _):
        """The choices in the start-up dialog with their keys. Only the last one is valid."""
        return startup_player.ROUNDS

    def accept(self, _):
        return ["Return"]

    def answer(self, seen):
        return self._answers[seen.kind](seen)

    def _key(self, seen):
        """Mostly Enter; sometimes abandons the hand or shows all hands."""
        drawn = self._chance.random()
        lie_open = len(seen.texts[0].splitlines()) > 2
        if drawn < 0.02:
            return Answer({"key": 81}, "q")
        if drawn < 0.05 and not lie_open:
            return Answer({"key": 48, "shift": 3}, "ctrl+shift+0")
        return Answer({"key": 13}, self._chance.choice(["Return", "KP_Enter"]))

    def _read(self, _):
        return Answer(None, self._chance.choice(["Return", "space"]))

    def _yes_no(self, seen):
        another_match = seen.text() == "¿Desea jugar otra partida?"
        yes = not another_match and self._chance.random() < 0.6
        by_default = seen.names("push button", "default") == ["Sí" if yes else "No"]
        by_focus = ["Return"] if by_default else ["Tab", "space"]
        keys = self._chance.choice([["s" if yes else "n"], by_focus])
        return Answer({"button": "yes" if yes else "no"}, *keys)

    def _input(self, seen):
        """Cards to discard or stones to bet. The default text is selected: typing replaces it."""
        drawn = self._chance.random()
        if drawn < 0.1:
            return Answer({"button": "cancel"}, "Escape")
        discards = seen.title == "Sustituir cartas"
        typed = self._chance.choice(["1", "24", "134", "1234"] if discards else ["", "1", "3", "5"])
        keys = list(typed) or ["BackSpace"]
        return Answer({"text": typed}, *keys, "Return")

    def _bet(self, seen):
        offered = len(seen.names("push button", "enabled"))
        (result,) = self._chance.choices(range(offered), [60, 22, 16, 2][:offered])
        ways = [[], ["Right"], ["Down"], ["Right", "Down"]]
        return Answer({"result": result}, *ways[result], "space")
