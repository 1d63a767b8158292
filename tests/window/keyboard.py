"""Sends keys through X, as from a Spanish keyboard."""

_SIGNS = {" ": "space", "ñ": "ntilde"}


class Keyboard:
    def __init__(self, session):
        self._session = session

    def press(self, *keys):
        """Presses keys in turn, given by their X names: "Return", "shift+Tab"."""
        self._session.run("xdotool", "key", "--delay", "0", *keys)

    def type(self, text):
        self.press(*[_SIGNS.get(sign, sign) for sign in text])
