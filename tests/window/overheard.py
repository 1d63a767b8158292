"""Everything that a program shows, in order and without a gap: AT-SPI's events, as they come."""
import signal

from accessible import GLib, Gone

_ENDING = (signal.SIGINT, signal.SIGTERM)
_BEGINNING = "Partida de\n"  # of the transcript, and of nothing else
_TABLE = "filler"  # the role of a window that is no dialog


class Overheard:
    """What has been shown so far, in `log`: ("window", title) and ("said", text).

    A box counts when it first has the keyboard, a text when the transcript gets it; the log begins
    with the first transcript. The table may get the keyboard after its first boxes, and does not
    count. To be made before the program starts.
    """

    def __init__(self, bus):
        self.log = []
        self._known = set()
        self._transcript = None
        bus.listen("window:activate", self._window)
        bus.listen("object:text-changed", self._text)

    def take(self):
        """Takes what has come in since; true if there was anything."""
        before = len(self.log)
        # An exception that a signal raises within a callback would end Python without any clean-up.
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
    """A box may be gone by the time its event is read; the table stays for a whole match."""
    try:
        return window.role() == _TABLE
    except Gone:
        return False
