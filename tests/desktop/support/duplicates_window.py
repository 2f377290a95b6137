"""The window of the actions that find duplicates."""

import os

from .action_window import ActionDriver, run_action, start_companion
from .case import DesktopTestCase


class DuplicatesWindow(ActionDriver):
    """What is to be seen and done in it, and what becomes of the person's files."""

    def left(self):
        """The files that are there, by their ways from the person's folder."""
        root = os.fsencode(self.home.files)
        return sorted(os.path.relpath(os.path.join(folder, name), root)
                      for folder, _, names in os.walk(root) for name in names)

    def trashed(self):
        folder = os.path.join(self.home.data, "Trash", "files")
        return sorted(os.listdir(os.fsencode(folder))) if os.path.isdir(folder) else []

    def list_of(self, name):
        for each in self.window.descendants():
            if each.name == name and each.role in ("list", "tree"):
                return each
        raise LookupError(f"no list “{name}”")

    def groups(self):
        return [item.name for item in self.list_of("Groups").children if item.role == "list item"]

    def cells(self):
        """Of the items on view, row by row."""
        return [item for item in self.list_of("Items of the Group").children if item.role == "tree item"]

    def choose_by_rule(self, *keys):
        """The toolkit's menus are no part of a program's accessibility tree: what they do is what shows."""
        self.go_to("Choose by Rule")
        self.hands.press("space", *keys, "Return")


class DuplicatesWindowTestCase(DuplicatesWindow, DesktopTestCase):
    # Of the action, and of its window.
    action_name = None
    title = None

    def setUp(self):
        super().setUp()
        os.symlink("/usr/bin/gdk-pixbuf-thumbnailer", os.path.join(self.home.programs, "gdk-pixbuf-thumbnailer"))
        start_companion(self)

    def open(self, *paths):
        self.action = run_action(self, self.action_name, *(paths or [self.home.files]), background=not paths)
        self.window = self.action.active_window(self.title)
