"""What a program shows, read as a screen reader does: AT-SPI by pyatspi."""
import os

import gi

gi.require_version("Atspi", "2.0")
import pyatspi  # noqa: E402
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 20_000  # milliseconds that a program may take to answer

_STATES = {pyatspi.STATE_ACTIVE: "active", pyatspi.STATE_CHECKED: "checked",
           pyatspi.STATE_ENABLED: "enabled", pyatspi.STATE_FOCUSABLE: "focusable",
           pyatspi.STATE_FOCUSED: "focused", pyatspi.STATE_SHOWING: "showing",
           pyatspi.STATE_VISIBLE: "visible", pyatspi.STATE_IS_DEFAULT: "default"}


class Gone(Exception):
    """The thing is not on the screen any more."""


class Hung(Exception):
    """The program does not answer."""


class Bus:
    """The bus of the accessible programs of a session."""

    def __init__(self, session):
        # The library connects with its first call, and once in the life of this process.
        os.environ.update({name: session.environment[name]
                           for name in ("DBUS_SESSION_BUS_ADDRESS", "DISPLAY")})
        Atspi.set_timeout(PATIENCE, PATIENCE)
        self._desktop = Node(pyatspi.Registry.getDesktop(0))

    def program(self, pid):
        """The program with that process id, or nothing yet."""
        for program in self._desktop.asked_anew().children():
            try:
                if program.process_id() == pid:
                    return program.asked_anew()
            except Gone:
                continue
        return None

    def listen(self, event, heard):
        """Calls `heard` with the node, the kind and the value of every such event."""
        def pass_on(told):
            heard(Node(told.source), told.type.minor, told.any_data)
        pyatspi.Registry.registerEventListener(pass_on, event)


def _asked(question):
    """The answer of a program."""
    try:
        return question()
    except GLib.Error as error:
        # The library has no error of its own for a reply that does not come in time.
        if "hung" in error.message or "reply" in error.message:
            raise Hung(error.message) from error
        raise Gone(error.message) from error


class Node:
    """A window, a control, or anything else on the screen."""

    def __init__(self, accessible):
        self._accessible = accessible

    def __eq__(self, other):
        return isinstance(other, Node) and self._accessible == other._accessible

    def __hash__(self):
        return hash(self._accessible)

    def asked_anew(self):
        """The desktop or a program, from now on without the library's cache of earlier answers."""
        self._accessible.set_cache_mask(Atspi.Cache.NONE)
        return self

    def process_id(self):
        return _asked(self._accessible.get_process_id)

    def name(self):
        return _asked(self._accessible.get_name)

    def role(self):
        return _asked(self._accessible.getRoleName)

    def states(self):
        states = _asked(self._accessible.getState)
        return {name for state, name in _STATES.items() if states.contains(state)}

    def text(self):
        return _asked(lambda: self._accessible.queryText().getText(0, -1))

    def box(self):
        """Where it is on the screen: x, y, width, height."""
        place = _asked(lambda: self._accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS))
        return place.x, place.y, place.width, place.height

    def children(self):
        found = (self._child(place) for place in range(_asked(self._accessible.get_child_count)))
        return [child for child in found if child]

    def labels(self):
        """The names of the labels that belong to it."""
        return [Node(relation.getTarget(place)).name()
                for relation in _asked(self._accessible.getRelationSet)
                if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY
                for place in range(relation.getNTargets())]

    def all(self):
        """It and everything in it."""
        yield self
        for child in self.children():
            yield from child.all()

    def _child(self, place):
        """Nothing if it has gone since the children were counted."""
        accessible = _asked(lambda: self._accessible.getChildAtIndex(place))
        return Node(accessible) if accessible else None
