"""Plays with Enter alone through tasca-trace: gives the windows and the texts of the transcript."""
import json
import subprocess
from itertools import takewhile

TITLE = "La tasca del tío Zarandel"  # the default title of a window
LAST_TITLE = "Mus"  # the title of the two questions after a match
_OTHER_PLAYERS = "¿Desea cambiar de jugadores?"  # asked in the last step of a match


class Untitled:
    """Decides whether a window with the default title counts: between two matches it does not.

    The start-up dialog and the table may get a key before they are active, so their events come
    late or not at all. The first two boxes of a match have titles of their own.
    """

    def __init__(self):
        self._titled = self._last = 0

    def counts(self, title):
        """Must be called for every window. True for a window with another title."""
        if title == TITLE:
            return self._titled >= 2 and self._last < 2
        if self._last == 2:
            self._titled = self._last = 0
        self._titled += 1
        self._last += title == LAST_TITLE
        return True


def told(program, folder, clock):
    """Yields windows as ("window", title) and texts as ("said", text), match after match, for ever.

    Every question gets its default answer; the start-up dialog is accepted unchanged.
    """
    while True:
        yield from _match(program, folder, clock)


def _match(program, folder, clock):
    running = subprocess.Popen([program, folder], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, text=True, encoding="utf-8")
    with running:
        _say(running, {"start": {"clock": clock, "combos": [0, 0, 0]}})
        shown = ""
        leaving = False
        for line in running.stdout:
            event = json.loads(line)
            if event["event"] in ("sound", "soundstop"):
                continue
            if event["event"] == "end":
                break
            yield from _seen(event, shown)
            shown = _transcript(event)
            leaving = leaving or event.get("text") == _OTHER_PLAYERS
            if not (leaving and event["event"] == "state"):
                _say(running, _default(event))
    if event.get("reason") != "players":
        raise RuntimeError(f"Enter alone ends the trace with {event}")


def _say(running, answer):
    if answer:
        running.stdin.write(json.dumps(answer) + "\n")
        running.stdin.flush()


def _transcript(event):
    text = event["Text2"] if event["event"] == "state" else event["texts"][1]
    return text.replace("\r\n", "\n").replace("\r", "\n")


def _seen(event, shown):
    """The events of the window: it inserts the part of the text that differs from `shown`."""
    text = _transcript(event)
    same = len(list(takewhile(lambda pair: pair[0] == pair[1], zip(text, shown))))
    if text[same:]:
        yield "said", text[same:]
    if event["event"] != "state":
        yield "window", event["title"] or TITLE


def _default(event):
    kind = event["event"]
    if kind == "state":
        return {"key": 13}
    if kind == "dialog":
        return {"result": 0}
    if kind == "inputbox":
        return {"text": event["default"]}
    return {"button": event["default"]} if event["buttons"] == "yesno" else None
