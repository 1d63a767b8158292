"""Clicks through X."""

LEFT, WHEEL_DOWN = 1, 5


class Mouse:
    def __init__(self, session):
        self._session = session

    def click(self, *clicks):
        """Clicks in turn, each a place on the screen and a button: (x, y, LEFT)."""
        for x, y, button in clicks:
            self._session.run("xdotool", "mousemove", str(x), str(y), "click", str(button))
