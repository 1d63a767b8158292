"""Plays a match in the window, from the start-up dialog to the end of the program."""
import frozen_clock
import startup_player
from accessible import Bus
from session import wait_for
from windows import MAIN, Windows

CLOCK = [21, 4, 37]


class WindowMatch:
    """A match in the window. `told` is its transcript, `lines` are the answers for tasca-trace.

    `watch` is called with every window that is seen.
    """

    def __init__(self, session, player, watch=lambda seen: None):
        self._hand = player.hand(session)
        self._player = player
        self._watch = watch
        self.process = session.start(session.bin / "tasca", extra=frozen_clock.environment(*CLOCK))
        self._window = Windows(Bus(session), self.process)
        self.told = []
        self.lines = []

    def play(self):
        """Plays from the start-up dialog to the end of the program."""
        seen = self._start()
        while seen:
            answer = self._player.answer(seen)
            if answer.line:
                self._tell(answer.line)
            self._hand(*answer.moves)
            seen = self._next(seen)
        self.told.append({"end": "quit", "status": self.process.wait()})

    def end(self):
        """Kills the program and cleans up."""
        self.process.kill()
        self.process.wait()
        frozen_clock.forget(self.process.pid)

    def _start(self):
        """Plays the start-up dialog: perhaps a choice that is refused, then a valid one."""
        seen = self._window.next()
        self._watch(seen)
        for choice, moves in self._player.choices(seen):
            self._hand(*moves)
            self._wait_for_choice(choice, seen)
            self._tell(choice.line(CLOCK))
            self._hand(*self._player.accept(seen))
            seen = self._next(seen)
            if seen and seen.kind != MAIN:
                self._hand(*self._player.accept(seen))
                seen = self._window.next(seen)
        return seen

    def _next(self, seen):
        seen = self._window.next(seen)
        if seen:
            self._watch(seen)
            self.told.append(seen.event())
        return seen

    def _wait_for_choice(self, choice, seen):
        wait_for(f"sight of {choice}", lambda: startup_player.chosen(seen.again()) == choice)

    def _tell(self, line):
        self.lines.append(line)
        self.told.append(line)
