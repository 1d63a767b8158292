"""Reads the windows of a program as a screen reader does, through pyatspi."""
import os

import gi

gi.require_version("Atspi", "2.0")
import pyatspi  # noqa: E402
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 20_000  # the time limit of a call, in milliseconds

_STATES = {pyatspi.STATE_ACTIVE: "active", pyatspi.STATE_CHECKED: "checked",
           pyatspi.STATE_ENABLED: "enabled", pyatspi.STATE_FOCUSABLE: "focusable",
           pyatspi.STATE_FOCUSED: "focused", pyatspi.STATE_SHOWING: "showing",
           pyatspi.STATE_VISIBLE: "visible", pyatspi.STATE_IS_DEFAULT: "default"}


class Gone(Exception):
    """The object no longer exists."""


class Hung(Exception):
    """The program does not answer."""


class Bus:
    """The accessibility bus of a session."""

    def __init__(self, session):
        # pyatspi connects with its first call, once in a process.
        os.environ.update({name: session.environment[name]
                           for name in ("DBUS_SESSION_BUS_ADDRESS", "DISPLAY")})
        Atspi.set_timeout(PATIENCE, PATIENCE)
        self._desktop = Node(pyatspi.Registry.getDesktop(0))

    def program(self, pid):
        """The program with that process id, or None if it is not on the bus yet."""
        for program in self._desktop.without_cache().children():
            try:
                if program.process_id() == pid:
                    return program.without_cache()
            except Gone:
                continue
        return None

    def listen(self, event, heard):
        """Calls `heard` with the node, the detail and the value of each such event."""
        def pass_on(told):
            heard(Node(told.source), told.type.minor, told.any_data)
        pyatspi.Registry.registerEventListener(pass_on, event)


def _asked(question):
    """The result of a call, with its errors as Gone or Hung."""
    try:
        return question()
    except GLib.Error as error:
        # pyatspi has no error code for a timeout.
        if "hung" in error.message or "reply" in error.message:
            raise Hung(error.message) from error
        raise Gone(error.message) from error


class Node:
    """An accessible object: a window, a control or a part of one."""

    def __init__(self, accessible):
        self._accessible = accessible

    def __eq__(self, other):
        return isinstance(other, Node) and self._accessible == other._accessible

    def __hash__(self):
        return hash(self._accessible)

    def without_cache(self):
        """Switches the cache of the desktop or of a program off."""
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
        """Its rectangle on the screen: x, y, width, height."""
        place = _asked(lambda: self._accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS))
        return place.x, place.y, place.width, place.height

    def children(self):
        found = (self._child(place) for place in range(_asked(self._accessible.get_child_count)))
        return [child for child in found if child]

    def labels(self):
        """The names of its labels."""
        return [Node(relation.getTarget(place)).name()
                for relation in _asked(self._accessible.getRelationSet)
                if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY
                for place in range(relation.getNTargets())]

    def all(self):
        """Yields this node and all its descendants."""
        yield self
        for child in self.children():
            yield from child.all()

    def _child(self, place):
        """None if the child has gone since the children were counted."""
        accessible = _asked(lambda: self._accessible.getChildAtIndex(place))
        return Node(accessible) if accessible else None
