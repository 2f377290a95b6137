"""What a person hears who reads a window with a screen reader, and what is wrong with it."""

from gi.repository import Gio, GLib

from .accessibility import application_of
from .buses import call, connect
from .waiting import eventually, settled

# Who operates or finds something by them needs their names.
_NAMED = {"alert message", "check box", "combo box", "dialog", "frame", "heading", "label", "link", "list", "list item",
          "menu item", "notification", "page tab", "page tab list", "paragraph", "progress bar", "push button",
          "radio button", "scroll bar", "slider", "spin box", "table", "text", "tree", "tree item"}

_REGISTRY = "org.a11y.atspi.Registry"
_OBJECT_EVENTS = "org.a11y.atspi.Event.Object"


def faults(window):
    """What is wrong with how a window reads, in sentences."""
    return _Walk(window).faults


def outline(window, depth=0):
    """The window as it reads, a line an object, for those who look at a failure."""
    lines = ["  " * depth + " · ".join(filter(None, (window.role, window.name, window.description)))]
    for child in window.children:
        if child.has("showing"):
            lines += outline(child, depth + 1)
    return lines


class Reader:
    """A test case's part that reads windows as a screen reader does, and hears what is told of them."""

    def assertReadsWell(self, window):
        # What goes while it is read is read anew.
        found, = settled(lambda: eventually(lambda: (faults(window),), "the window to be read"))
        self.assertEqual(found, [], "\n".join(["", *outline(window)]))

    def listen(self, program):
        listener = Listener(self.bus.accessibility_address, program.process_id)
        self.addCleanup(listener.close)
        return listener


class _Walk:
    def __init__(self, window):
        self.faults = []
        self._last = None
        self._read(window, None)

    def _read(self, found, parent):
        name, role = found.name, found.role
        children = found.shown_children()
        if role in _NAMED and not name.strip():
            self.faults.append(f"a {role} in “{parent.name if parent else ''}” has no name")
        if role == "label" and not found.related():
            self.faults.append(f"the label “{name}” is tied to nothing")
        if role == "filler" and (children or name):
            self.faults.append(f"a filler “{name}” holds {[child.role for child in children]}")
        # What a window is called is read when it comes, and stands in its title bar. An announcement repeats what is new.
        if name and role != "notification" and (parent or role == "alert message"):
            if self._last and self._last.name == name and not self._is_one(self._last, found):
                self.faults.append(f"“{name}” is said twice, as {self._last.role} and as {role}")
            self._last = found
        for child in children:
            if child.parent != found:
                self.faults.append(f"the {child.role} “{child.name}” is not where it says that it is")
            self._read(child, found)

    @staticmethod
    def _is_one(outer, inner):
        """Whether readers know that two names are one: a title and what it names, or a row and its only control."""
        return (inner in outer.related() or outer in inner.related()
                or outer.shown_children() == [inner])


class Listener:
    """A screen reader that hears what one process tells of its windows, from its making to close()."""

    def __init__(self, address, process_id):
        self._connection = connect(address)
        self._root = application_of(self._connection, process_id)
        self._events = []
        self._announced = []
        self._subscription = self._connection.signal_subscribe(
            self._root.bus_name, _OBJECT_EVENTS, None, None, None, Gio.DBusSignalFlags.NONE, self._hear)
        for event in ("object:property-change", "object:state-changed"):
            call(self._connection, _REGISTRY, "/org/a11y/atspi/registry", _REGISTRY, "RegisterEvent",
                 GLib.Variant("(sass)", (event, [], "")))
        self._wait_until_heard()
        self._names = {}

    def _wait_until_heard(self):
        """The program learns who listens some time after the registry does."""
        # It asks the registry what is wanted when it is told that something is, in this order.
        eventually(lambda: self._root.children, "the program to answer")

    def _hear(self, _connection, _sender, path, _interface, member, arguments):
        detail, on = arguments.unpack()[:2]
        self._events.append((path, member, detail, on, self._name_of(path)))
        # Which has gone by the time that it is asked for.
        if (member, detail) == ("StateChanged", "showing") and on and self._role_of(path) == "notification":
            self._announced.append(self._name_of(path))

    def _name_of(self, path):
        try:
            return self._root.at(path).name
        except LookupError:
            return None

    def note_names(self):
        """What everything is called from here on, so that changes without a change are told."""
        self._take_in()
        self._names = {found.path: found.name for window in self._root.children for found in window.descendants()}
        self._events.clear()
        self._announced.clear()

    def _take_in(self):
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass

    def heard(self, member, detail):
        """(name, on) of each such event so far."""
        self._take_in()
        return [(name, bool(on)) for _, heard, said, on, name in self._events if (heard, said) == (member, detail)]

    def empty_name_changes(self):
        """The names that were said to have changed, and have not."""
        self._take_in()
        return [name for path, member, detail, _, name in self._events
                if (member, detail) == ("PropertyChange", "accessible-name") and self._names.get(path) == name]

    def announced(self):
        """The words of each notification that came into sight."""
        self._take_in()
        return list(self._announced)

    def _role_of(self, path):
        try:
            return self._root.at(path).role
        except LookupError:
            return None

    def close(self):
        self._connection.signal_unsubscribe(self._subscription)
        self._connection.close_sync(None)
