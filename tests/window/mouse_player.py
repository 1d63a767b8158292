"""A random player who has no keyboard: the answer to each question and the clicks for it."""
import dataclasses
import random

import startup_player
import windows
from match_player import Answer
from mouse import LEFT, WHEEL_DOWN, Mouse


class MousePlayer:
    """Plays one match. The same seed gives the same answers."""

    def __init__(self, seed):
        self._chance = random.Random(seed)
        self._answers = {windows.MAIN: self._enter, windows.MESSAGE: self._read,
                         windows.YES_NO: self._yes_no, windows.INPUT: self._input,
                         windows.BETS: self._bet}

    @staticmethod
    def hand(session):
        """What carries out the clicks."""
        return Mouse(session).click

    def choices(self, seen):
        """The choice in the start-up dialog with its clicks. The wheel turns a list."""
        first, _, last = seen.having("combo box")
        names, _ = seen.having("check box")
        before = startup_player.chosen(seen)
        one, two, three = before.companions
        chosen = dataclasses.replace(before, companions=[one + 3, two, three + 5],
                                     checks=[not before.checks[0], before.checks[1]])
        turns = [on(first, WHEEL_DOWN)] * 3 + [on(last, WHEEL_DOWN)] * 5
        return [(chosen, [*turns, on(names)])]

    def accept(self, seen):
        return [on(named(seen, "Aceptar"))]

    def answer(self, seen):
        return self._answers[seen.kind](seen)

    def _enter(self, seen):
        """Clicks the key cap, opposite the player's plate: as far from the other side."""
        (table,) = [part for part in seen.parts if part.name == "La mesa"]
        left, _, width, _ = table.node.box()
        plate_left, plate_top, _, plate_height = table.node.children()[0].box()
        cap_right = left + width - (plate_left - left)
        place = (cap_right - plate_height, plate_top + plate_height // 2, LEFT)
        return Answer({"key": 13}, place)

    def _read(self, seen):
        return Answer(None, on(named(seen, "Aceptar")))

    def _yes_no(self, seen):
        another_match = seen.text() == "¿Desea jugar otra partida?"
        yes = not another_match and self._chance.random() < 0.6
        return Answer({"button": "yes" if yes else "no"}, on(named(seen, "Sí" if yes else "No")))

    def _input(self, seen):
        if self._chance.random() < 0.1:
            return Answer({"button": "cancel"}, on(named(seen, "Cancelar")))
        (field,) = seen.having("text")
        ways = self._discards if seen.title == "Sustituir cartas" else self._stones
        text, clicked = ways(seen, field.node.text())
        return Answer({"text": text}, *[on(part) for part in clicked], on(named(seen, "Aceptar")))

    def _discards(self, seen, text):
        """A second click on a card takes its digit out again."""
        cards = [part for part in seen.parts if part.name.startswith("Carta ")]
        clicked = self._chance.choices(cards, k=self._chance.randint(1, 5))
        for card in clicked:
            digit = card.name[len("Carta ")]
            text = text.replace(digit, "") if digit in text else text + digit
        return text, clicked

    def _stones(self, seen, text):
        clicked = []
        for _ in range(self._chance.randint(0, 4)):
            step = self._chance.choice([1, 1, -1])
            clicked.append(named(seen, "Una más" if step > 0 else "Una menos"))
            text = str(max(int(text) + step, 1))
        return text, clicked

    def _bet(self, seen):
        offered = seen.having("push button", "enabled")
        (result,) = self._chance.choices(range(len(offered)), [60, 22, 16, 2][:len(offered)])
        return Answer({"result": result}, on(offered[result]))


def on(part, button=LEFT):
    """A click in the middle of a control."""
    x, y, width, height = part.node.box()
    return (x + width // 2, y + height // 2, button)


def named(seen, name):
    (part,) = [part for part in seen.having("push button") if part.name == name]
    return part
