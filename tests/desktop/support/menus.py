"""A context menu that is open in another program, read and used as its toolkit lets assistive programs see it."""

from collections import namedtuple

from gi.repository import GLib

from .accessibility import Accessible
from .buses import call, connect
from .waiting import eventually

# `entries` are those of a submenu.
Entry = namedtuple("Entry", "title control entries")

_ITEMS = {"menu item", "menu", "check menu item", "radio menu item"}


def below(control, skipped=()):
    """Every object below one, parents first, whether it says that it is on view or not; not inside roles `skipped`."""
    for child in control.children:
        role = child.role
        yield child, role
        if role not in skipped:
            yield from below(child, skipped)


class OpenMenu:
    """What a person sees from the menu's coming to its going."""

    def __init__(self, toolkit, hands, shown):
        self._toolkit = toolkit
        self._hands = hands
        self._shown = shown
        self.entries = toolkit.entries(shown)

    def titles(self):
        return [entry.title for entry in self.entries]

    def entry(self, title):
        for entry in self.entries:
            if entry.title == title:
                return entry
        raise LookupError(f"no “{title}” among {self.titles()}")

    def choose(self, *titles):
        """Goes through the submenus to an entry and chooses it."""
        entries = self.entries
        for title in titles:
            entry, = (each for each in entries if each.title == title)
            self._toolkit.press(self._hands, entry.control)
            entries = entry.entries
        self._wait_for_end()

    def close(self):
        # Another one would take the selection away.
        self._hands.press("Escape")
        self._wait_for_end()

    def _wait_for_end(self):
        eventually(lambda: not self._toolkit.find(), "the menu to go")


class _Menus:
    """How a toolkit shows menus: find() answers the open one, entries() what is in it."""

    def __init__(self, file_manager, hands):
        self.file_manager = file_manager
        self._hands = hands

    def opened(self):
        """Waits for a menu to be open."""
        return OpenMenu(self, self._hands, eventually(self.find, "a menu"))

    @staticmethod
    def press(hands, control):
        # What is in a submenu comes on view by and by.
        eventually(lambda: control.has("showing"), "the entry to be on view")
        hands.click(control.extents)

    def close(self):
        pass


class Gtk3Menus(_Menus):
    """A menu is a window of its own."""

    def find(self):
        for window in self.file_manager.application().children:
            if window.role == "window" and window.has("showing"):
                for child in window.children:
                    if child.role == "menu" and child.has("showing"):
                        return child
        return None

    def entries(self, menu):
        # Those of a submenu say that they are on view only while it is open.
        return [Entry(item.name, item, self._submenu(item)) for item in menu.children
                if item.role in _ITEMS and item.has("showing")]

    def _submenu(self, item):
        if item.role != "menu":
            return []
        return [Entry(child.name, child, self._submenu(child)) for child in item.children
                if child.role in _ITEMS and child.has("enabled")]


class Gtk4Menus(_Menus):
    """A menu lies in the window, submenus are pages beside its first, and nothing in it says where it is on view."""

    def find(self):
        for control, role in below(self.file_manager.application(), self.file_manager.item_views):
            if role == "menu":
                return control
        return None

    def entries(self, menu):
        pages = {None: []}
        page = None
        for item, role in below(menu):
            if role not in _ITEMS:
                continue
            # The page of a submenu begins with the title that opens it, which leads back and has an arrow before it.
            parts = item.children
            if any(control.role == "widget" for control in parts[0].children):
                page = item.name
                pages[page] = []
            else:
                # What opens one has an arrow behind it. Others may have the same title.
                pages[page].append((item.name, item, parts[-1].role == "widget"))

        def entries_of(page):
            return [Entry(title, item, entries_of(title) if opens_page else [])
                    for title, item, opens_page in pages[page]]

        return entries_of(None)

    @staticmethod
    def press(hands, control):
        control.act("Click")


class Qt5Menus(_Menus):
    """A menu is no child of its program, but tells everybody that it has come on view.

    What entries of several menus share is missing from all but the first; ours are made anew for each.
    """

    _EVENTS = "org.a11y.atspi.Event.Object"
    _REGISTRY = "org.a11y.atspi.Registry"

    def __init__(self, file_manager, hands):
        super().__init__(file_manager, hands)
        self._popups = []
        self._connection = connect(file_manager.accessibility_address)
        self._connection.signal_subscribe(None, self._EVENTS, "StateChanged", None, None, 0, self._take)
        call(self._connection, self._REGISTRY, "/org/a11y/atspi/registry", self._REGISTRY, "RegisterEvent",
             GLib.Variant("(sass)", ("object:state-changed", [], "")))

    def _take(self, connection, sender, path, interface, signal, arguments):
        state, is_so, *_ = arguments.unpack()
        if state == "showing" and is_so:
            self._popups.append(Accessible(connection, sender, path))

    def find(self):
        while GLib.MainContext.default().iteration(False):
            pass
        for popup in reversed(self._popups):
            try:
                if popup.role == "popup menu" and popup.has("showing"):
                    return popup
            except LookupError:
                continue
        return None

    def entries(self, menu):
        return [Entry(item.name, item, self._submenu(item)) for item in menu.children
                if item.role in _ITEMS and item.has("showing")]

    def _submenu(self, item):
        return [Entry(entry.name, entry, self._submenu(entry)) for menu in item.children for entry in menu.children
                if entry.role in _ITEMS and entry.name]

    def close(self):
        if not self._connection.is_closed():
            self._connection.close_sync(None)
