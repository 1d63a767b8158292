"""What a program shows, read as a screen reader does: AT-SPI over its message bus."""
import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

PATIENCE = 20_000  # milliseconds that a program may take to answer

_ACCESSIBLE = "org.a11y.atspi.Accessible"
_TEXT = "org.a11y.atspi.Text"
_COMPONENT = "org.a11y.atspi.Component"
_STATES = {1: "active", 4: "checked", 8: "enabled", 11: "focusable", 12: "focused", 25: "showing",
           30: "visible", 39: "default"}


class Gone(Exception):
    """The thing is not on the screen any more."""


class Hung(Exception):
    """The program does not answer."""


class Bus:
    """The bus of the accessible programs of a session."""

    def __init__(self, session):
        connection = _connect(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        node = Node(connection, "org.a11y.Bus", "/org/a11y/bus")
        self._connection = _connect(node.call("org.a11y.Bus", "GetAddress"))

    def program(self, pid):
        """The program with that process id, or nothing yet."""
        desktop = Node(self._connection, "org.a11y.atspi.Registry",
                       "/org/a11y/atspi/accessible/root")
        for program in desktop.children():
            if self._pid(program) == pid:
                return program
        return None

    def listen(self, event):
        """Lets the programs that are started from now on tell of such events."""
        registry = Node(self._connection, "org.a11y.atspi.Registry", "/org/a11y/atspi/registry")
        registry.call("org.a11y.atspi.Registry", "RegisterEvent", GLib.Variant("(s)", (event,)))

    def subscribe(self, kind, name, heard):
        """Calls `heard` with the node, the detail and the value of every such event."""
        def pass_on(_connection, sender, path, _interface, _signal, values):
            detail, _, _, value, *_ = values.unpack()
            heard(Node(self._connection, sender, path), detail, value)
        self._connection.signal_subscribe(None, f"org.a11y.atspi.Event.{kind}", name, None, None,
                                          Gio.DBusSignalFlags.NONE, pass_on)

    def _pid(self, program):
        daemon = Node(self._connection, "org.freedesktop.DBus", "/org/freedesktop/DBus")
        try:
            return daemon.call("org.freedesktop.DBus", "GetConnectionUnixProcessID",
                               GLib.Variant("(s)", (program.owner,)))
        except Gone:
            return None


class Node:
    """A window, a control, or anything else on the screen."""

    def __init__(self, connection, owner, path):
        self._connection = connection
        self.owner = owner
        self.path = path

    def __eq__(self, other):
        return isinstance(other, Node) and (self.owner, self.path) == (other.owner, other.path)

    def __hash__(self):
        return hash((self.owner, self.path))

    def name(self):
        return self._property("Name")

    def role(self):
        return self.call(_ACCESSIBLE, "GetRoleName")

    def states(self):
        low, high = self.call(_ACCESSIBLE, "GetState")
        bits = low | high << 32
        return {name for bit, name in _STATES.items() if bits >> bit & 1}

    def text(self):
        return self.call(_TEXT, "GetText", GLib.Variant("(ii)", (0, -1)))

    def box(self):
        """Where it is on the screen: x, y, width, height."""
        return self.call(_COMPONENT, "GetExtents", GLib.Variant("(u)", (0,)))

    def children(self):
        return [Node(self._connection, *child) for child in self.call(_ACCESSIBLE, "GetChildren")]

    def labels(self):
        """The names of the labels that belong to it."""
        labelled_by = 2
        return [Node(self._connection, *target).name()
                for kind, targets in self.call(_ACCESSIBLE, "GetRelationSet")
                for target in targets if kind == labelled_by]

    def all(self):
        """It and everything in it."""
        yield self
        for child in self.children():
            yield from child.all()

    def call(self, interface, method, arguments=None):
        try:
            answer = self._connection.call_sync(self.owner, self.path, interface, method, arguments,
                                                None, Gio.DBusCallFlags.NONE, PATIENCE, None)
        except GLib.Error as error:
            if error.matches(Gio.io_error_quark(), Gio.IOErrorEnum.TIMED_OUT):
                raise Hung(f"{method} of {self.path}: no answer") from error
            raise Gone(error.message) from error
        return next(iter(answer.unpack()), None)

    def _property(self, name):
        return self.call("org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (_ACCESSIBLE, name)))


def _connect(address):
    flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
             | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
    return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
