"""The windows of a program that wait for input: a question or the main window."""
import re

from accessible import Gone
from session import wait_for

STARTUP, MAIN = "startup", "main"
MESSAGE, YES_NO, OK_CANCEL, INPUT, BETS = "message", "yes-no", "ok-cancel", "input", "bets"
KINDS = (STARTUP, MAIN, MESSAGE, YES_NO, OK_CANCEL, INPUT, BETS)

_BOXES = {("Aceptar",): MESSAGE, ("Sí", "No"): YES_NO, ("Aceptar", "Cancelar"): OK_CANCEL}
_BUTTONS = "Sí, s; No, n"  # after the text of a Yes/No box
_TABLE = "frame"  # the role of the main window
_SHEETS = ("Sus cartas", "Lo que pasa en la mesa", "Tanteo, primero su pareja")


def plain(text):
    """The text without padding, as the window gives it to screen readers.

    Of a run of blanks one is kept, none at the ends of a line nor before a comma or a full stop.
    """
    text = re.sub(r" +(?=[\n,.]|\Z)", "", text)
    return re.sub(r"(?m)^ +", "", re.sub(r" +", " ", text))


class Windows:
    """The windows of a running program."""

    def __init__(self, bus, process):
        self._process = process
        self._program = wait_for("program", lambda: bus.program(process.pid))
        self._showing = []  # in the order in which they were shown
        self._sheets = {}

    def next(self, previous=None):
        """Waits for a window or texts other than `previous`. None once the program has ended."""
        (seen,) = wait_for("change in the window", lambda: self._change(previous))
        return seen

    def now(self):
        """The newest window, if it is active; otherwise None."""
        sight = self._look()
        return Seen(sight) if sight else None

    def _change(self, previous):
        if self._process.poll() is not None:
            return (None,)
        try:
            sight = self._look()
            if sight is None or (previous and sight == previous.sight) or sight != self._look():
                return None
            return (Seen(sight),)
        except Gone:
            return None

    def _look(self):
        """The active window and the texts of the table; None if no window is active."""
        windows = self._program.children()
        front = self._front(windows)
        return (front, self._texts(windows)) if front else None

    def _front(self, windows):
        """The newest window, which is modal to the others, if it is active."""
        states = {window: window.states() for window in windows}
        self._showing = [window for window in self._showing if window in states]
        self._showing += [window for window in windows if window not in self._showing]
        self._showing = [window for window in self._showing if "showing" in states[window]]
        if self._showing and "active" in states[self._showing[-1]]:
            return self._showing[-1]
        return None

    def _texts(self, windows):
        for window in windows:
            if window.role() == _TABLE:
                return [plain(sheet.text()) for sheet in self._sheets_of(window)]
        return ["", "", ""]

    def _sheets_of(self, window):
        if window not in self._sheets:
            named = {node.name(): node for node in window.children()}
            self._sheets = {window: [named[name] for name in _SHEETS if name in named]}
        return self._sheets[window]


class Part:
    """A control of a window."""

    def __init__(self, node):
        self.node = node
        self.role = node.role()
        self.name = node.name()
        self.states = node.states()


class Seen:
    """The active window with its visible controls, and the texts of the table."""

    def __init__(self, sight):
        self.sight = sight
        self.window, self.texts = sight
        self.title = self.window.name()
        parts = [Part(node) for node in self.window.all() if node != self.window]
        self.parts = [part for part in parts if "showing" in part.states]
        self.kind = self._kind()

    def again(self):
        """Reads the same window again."""
        return Seen(self.sight)

    def having(self, role, state="showing"):
        """The controls with this role and this state."""
        return [part for part in self.parts if part.role == role and state in part.states]

    def names(self, role, state="showing"):
        return [part.name for part in self.having(role, state)]

    def text(self):
        """The text of a box, without what only screen readers get."""
        return re.sub(rf"\n?{_BUTTONS}\Z", "", "".join(self.names("label")))

    def event(self):
        """The window as an event of the transcript."""
        if self.kind == MAIN:
            return {"table": self.texts}
        asked = {"question": self.kind, "title": self.title}
        return {**asked, **self._details(), "texts": self.texts}

    def _kind(self):
        if self.window.role() == _TABLE:
            return MAIN
        if self.window.role() == "alert":
            return _BOXES.get(tuple(self.names("push button")), "other")
        if self.names("combo box"):
            return STARTUP
        return INPUT if self.names("text") else BETS

    def _details(self):
        if self.kind == BETS:
            return {"buttons": self.names("push button", "enabled"),
                    "focus": self.names("push button", "focused")}
        if self.kind == INPUT:
            (field,) = self.having("text")
            return {"text": plain(self.text()), "default": field.node.text()}
        icon = "question" if self.names("image") else "none"
        return {"text": plain(self.text()), "icon": icon,
                "default": self.names("push button", "default")}
