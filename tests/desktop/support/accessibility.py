"""What a screen reader sees of a program, asked for over the accessibility bus.

Every question goes to the program itself: libraries keep answers in a cache, and then a test would see what was.
"""

import functools
from collections import namedtuple

from gi.repository import GLib

from .buses import Gone, call, call_bus, connect

_REGISTRY = "org.a11y.atspi.Registry"
_ROOT = "/org/a11y/atspi/accessible/root"
_ACCESSIBLE = "org.a11y.atspi.Accessible"
_ACTION = "org.a11y.atspi.Action"
_COMPONENT = "org.a11y.atspi.Component"
_TEXT = "org.a11y.atspi.Text"
_PROPERTIES = "org.freedesktop.DBus.Properties"

_SCREEN_COORDINATES = 0
# What is said in the place of an object that is not there.
_NULL = "/org/a11y/atspi/null"

# Bits of the state set, by the protocol's numbers.
_STATES = {"active": 1, "checked": 4, "enabled": 8, "focused": 12, "selectable": 22, "selected": 23,
           "showing": 25}

# Kinds of relation, by the protocol's numbers.
_RELATIONS = {"label for": 1, "labelled by": 2, "controller for": 3, "controlled by": 4}

# What lies in a control and is no control itself.
_ITEMS = {"list item", "page tab", "tree item"}

# What only tells.
_TEXTS = {"heading", "label", "paragraph"}

Extents = namedtuple("Extents", "x y width height")

# Where windows lie, on displays that do not tell the programs: of a process and a window's size.
place_of_window = None


# How often a tree may change while it is read.
_ROUNDS = 5


def _as_one(question):
    """Asks again where something went away between two calls of one question about a whole tree."""
    @functools.wraps(question)
    def asked(*arguments, **keywords):
        for _ in range(_ROUNDS):
            try:
                return question(*arguments, **keywords)
            except Gone as error:
                trouble = error
        raise trouble
    return asked


class Accessible:
    """An object of a program's accessibility tree. A question to one that has gone is a LookupError."""

    def __init__(self, connection, name, path):
        self._connection = connection
        self._name = name
        self._path = path

    @property
    def bus_name(self):
        return self._name

    def at(self, path):
        """Another object of the same program."""
        return Accessible(self._connection, self._name, path)

    def __repr__(self):
        return f"<{self._name}{self._path}>"

    def _call(self, interface, method, arguments=None):
        return call(self._connection, self._name, self._path, interface, method, arguments)

    def __eq__(self, other):
        return isinstance(other, Accessible) and (self._name, self._path) == (other._name, other._path)

    def __hash__(self):
        return hash((self._name, self._path))

    @property
    def name(self):
        return self._call(_PROPERTIES, "Get", GLib.Variant("(ss)", (_ACCESSIBLE, "Name")))[0]

    @property
    def path(self):
        """What it is called by events."""
        return self._path

    @property
    def description(self):
        return self._call(_PROPERTIES, "Get", GLib.Variant("(ss)", (_ACCESSIBLE, "Description")))[0]

    @property
    def parent(self):
        name, path = self._call(_PROPERTIES, "Get", GLib.Variant("(ss)", (_ACCESSIBLE, "Parent")))[0]
        return Accessible(self._connection, name, path)

    @property
    def index(self):
        """Its position in its parent, from 0."""
        return self._call(_ACCESSIBLE, "GetIndexInParent")[0]

    def related(self, *kinds):
        """The objects that it has one of the relations to, or any."""
        numbers = [_RELATIONS[kind] for kind in kinds]
        return [Accessible(self._connection, name, path)
                for number, targets in self._call(_ACCESSIBLE, "GetRelationSet")[0]
                if not kinds or number in numbers for name, path in targets]

    @property
    def role(self):
        return self._call(_ACCESSIBLE, "GetRoleName")[0]

    @property
    def children(self):
        return [Accessible(self._connection, name, path)
                for name, path in self._call(_ACCESSIBLE, "GetChildren")[0] if path != _NULL]

    @property
    def states(self):
        """The states that the object is in, of those that tests ask for; "checked" is one."""
        low, high = self._call(_ACCESSIBLE, "GetState")[0]
        bits = high << 32 | low
        return {name for name, bit in _STATES.items() if bits >> bit & 1}

    def has(self, state):
        return state in self.states

    @property
    def extents(self):
        """On the screen, in pixels."""
        told = self._told_extents
        if not place_of_window:
            return told
        x, y = self._offset
        return told._replace(x=told.x + x, y=told.y + y)

    @property
    def _told_extents(self):
        return Extents(*self._call(_COMPONENT, "GetExtents", GLib.Variant("(u)", (_SCREEN_COORDINATES,)))[0])

    @property
    def _offset(self):
        """From where the program thinks that its window is to where it is."""
        top = self
        while (parent := top.parent).role != "application":
            top = parent
        process_id = call_bus(self._connection, "GetConnectionUnixProcessID", GLib.Variant("(s)", (self._name,)))[0]
        # What pops up lies where the program thinks, beside the window that it belongs to.
        for window in [top] + [each for each in parent.children if each.has("active")]:
            told = window._told_extents
            if place := place_of_window(process_id, (told.width, told.height)):
                return place.x - told.x, place.y - told.y
        raise LookupError(f"{top} is in no window")

    @property
    def text(self):
        """What is written in it, to its end."""
        return self._call(_TEXT, "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    def act(self, action):
        """Performs an action as a screen reader does, by the action's name."""
        actions = [name for name, _, _ in self._call(_ACTION, "GetActions")[0]]
        self._call(_ACTION, "DoAction", GLib.Variant("(i)", (actions.index(action),)))

    def _walk(self, state="showing"):
        for child in self.children:
            states = child.states
            if "showing" in states:
                if state in states:
                    yield child
                yield from child._walk(state)

    @_as_one
    def shown_children(self):
        return [child for child in self.children if child.has("showing")]

    @_as_one
    def descendants(self, state="showing"):
        """Every object below this one that is on view and in a state, parents before their children."""
        return list(self._walk(state))

    @_as_one
    def all(self, role):
        return [found for found in self._walk() if found.role == role]

    @_as_one
    def texts(self):
        """What is written below it, in the order in which it is read."""
        return [found.name for found in self._walk() if found.role in _TEXTS and found.name]

    @_as_one
    def find(self, role, name=None):
        """The first object of the role, and of the name where one is given; LookupError where there is none."""
        for found in self._walk():
            if found.role == role and name in (None, found.name):
                return found
        raise LookupError(f"no {role} {name or ''} is on view")

    @_as_one
    def focused(self):
        """The control that has the keyboard; LookupError where none has."""
        # A current item says that it has the keyboard even while its list has not. Outer ones come first.
        said = [(each, each.role) for each in self._walk("focused")]
        found = ([each for each, role in said if role not in _ITEMS]
                 or [each for each, role in said if role == "list item"])
        if not found:
            raise LookupError("nothing has the keyboard")
        return found[-1]


def application(address, process_id):
    """The root of a process's tree. LookupError as long as the process has none."""
    return application_of(_connection_to(address), process_id)


def application_of(connection, process_id):
    """The same, over a connection of one's own."""
    for name, path in call(connection, _REGISTRY, _ROOT, _ACCESSIBLE, "GetChildren")[0]:
        owner = call_bus(connection, "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))[0]
        if owner == process_id:
            return Accessible(connection, name, path)
    raise LookupError(f"process {process_id} is not on the accessibility bus")


_connections = {}


def _connection_to(address):
    if address not in _connections:
        _connections[address] = connect(address)
    return _connections[address]
