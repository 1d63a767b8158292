"""Records everything that a program shows, in order, from AT-SPI events."""
import signal

from accessible import GLib, Gone

_ENDING = (signal.SIGINT, signal.SIGTERM)
_BEGINNING = "Partida de\n"  # only a transcript begins like this
_TABLE = "frame"  # the role of the main window


class Overheard:
    """The events so far are in `log`: ("window", title) and ("said", text).

    A box is recorded when it is first activated, a text when it is inserted into the transcript.
    The log begins with the first transcript. The main window is not recorded, because it may be
    activated after its first boxes. Must be created before the program starts.
    """

    def __init__(self, bus):
        self.log = []
        self._known = set()
        self._transcript = None
        bus.listen("window:activate", self._window)
        bus.listen("object:text-changed", self._text)

    def take(self):
        """Handles the pending events. True if something was recorded."""
        before = len(self.log)
        # An exception raised by a signal handler inside a callback would end Python without
        # clean-up.
        signal.pthread_sigmask(signal.SIG_BLOCK, _ENDING)
        while GLib.MainContext.default().iteration(False):
            pass
        signal.pthread_sigmask(signal.SIG_UNBLOCK, _ENDING)
        return len(self.log) > before

    def _window(self, window, _, title):
        if window in self._known:
            return
        self._known.add(window)
        if self._transcript and not _is_table(window):
            self.log.append(("window", title))

    def _text(self, transcript, kind, text):
        text = text.replace("\u2029", "\n")
        if text.startswith(_BEGINNING):
            self._transcript = transcript
        if kind == "insert" and transcript == self._transcript:
            self.log.append(("said", text))


def _is_table(window):
    """Whether this is the main window. A box may have been closed by the time its event is read."""
    try:
        return window.role() == _TABLE
    except Gone:
        return False
