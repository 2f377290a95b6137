"""Finding duplicate files: the window, by accessibility and by keyboard, and what becomes of the files."""

import os
import unittest

from support.action_window import run_action, start_companion
from support.case import DesktopTestCase
from support.waiting import eventually, throughout

ACTION = "find-duplicate-files"
WINDOW = "Duplicate Files"


class FindDuplicateFiles(DesktopTestCase):
    def setUp(self):
        super().setUp()
        start_companion(self)

    def make(self, name, contents, modified=None):
        path = os.path.join(os.fsencode(self.home.files), os.fsencode(name))
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(contents)
        if modified:
            os.utime(path, (modified, modified))
        return path

    def left(self):
        """The files that are there, by their ways from the person's folder."""
        root = os.fsencode(self.home.files)
        return sorted(os.path.relpath(os.path.join(folder, name), root)
                      for folder, _, names in os.walk(root) for name in names)

    def trashed(self):
        folder = os.path.join(self.home.data, "Trash", "files")
        return sorted(os.listdir(os.fsencode(folder))) if os.path.isdir(folder) else []

    def open(self, *paths, **options):
        self.action = run_action(self, ACTION, *(paths or [self.home.files]), **({"background": not paths} | options))
        self.window = self.action.active_window(WINDOW)

    def assertTells(self, text):
        eventually(lambda: text in [label.name for label in self.window.all("label")],
                   f"“{text}” among {[label.name for label in self.window.all('label')]}")

    def groups(self):
        return [item.name for item in self.list_of("Groups").children if item.role == "list item"]

    def list_of(self, name):
        for each in self.window.descendants():
            if each.name == name and each.role in ("list", "tree", "tree table", "table"):
                return each
        raise LookupError(f"no list {name}")

    def dump(self):
        for each in self.window.descendants():
            print(each.role, repr(each.name), sorted(each.states))

    def test_groups_come_with_the_largest_saving_first(self):
        self.make("a", b"x" * 1000)
        self.make("b", b"x" * 1000)
        self.make("c", b"y" * 5000)
        self.make("d", b"y" * 5000)
        self.make("e", b"alone")
        self.open()
        self.assertTells("2 groups, 6.0 kB could be saved")
        self.save_picture("duplicate-files")
        self.dump()


if __name__ == "__main__":
    unittest.main()
