"""The window of the actions that find duplicates."""

import os

from .action_window import run_action, start_companion
from .case import DesktopTestCase
from .waiting import eventually


class DuplicatesWindowTestCase(DesktopTestCase):
    # Of the action, and of its window.
    action_name = None
    title = None

    def setUp(self):
        super().setUp()
        start_companion(self)

    def left(self):
        """The files that are there, by their ways from the person's folder."""
        root = os.fsencode(self.home.files)
        return sorted(os.path.relpath(os.path.join(folder, name), root)
                      for folder, _, names in os.walk(root) for name in names)

    def trashed(self):
        folder = os.path.join(self.home.data, "Trash", "files")
        return sorted(os.listdir(os.fsencode(folder))) if os.path.isdir(folder) else []

    def open(self, *paths):
        self.action = run_action(self, self.action_name, *(paths or [self.home.files]), background=not paths)
        self.window = self.action.active_window(self.title)

    def labels(self):
        return [label.name for label in self.window.all("label")]

    def assertTells(self, text):
        eventually(lambda: text in self.labels(), f"the words “{text}”")

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

    def go_to(self, name):
        """Presses Tab until the control of that name has the keyboard."""
        for _ in range(20):
            focused = eventually(self.window.focused, "a control to have the keyboard")
            if focused.name == name:
                return
            self.hands.press("Tab")
            # pylint: disable-next=cell-var-from-loop
            eventually(lambda: self.window.focused() != focused, "the next control to have the keyboard")
        self.fail(f"“{name}” is not reached")

    def choose_by_rule(self, *keys):
        """The toolkit's menus are no part of a program's accessibility tree: what they do is what shows."""
        self.go_to("Choose by Rule")
        self.hands.press("space", *keys, "Return")

    def press_button(self, name):
        self.go_to(name)
        self.hands.press("space")
