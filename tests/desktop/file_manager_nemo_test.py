"""The menu in Nemo."""

import os
import unittest

from support.duplicates_window import DuplicatesWindow
from support.file_manager_cases import FileManagerCases, FileManagerTestCase, IconCases
from support.photos import paint
from support.real_file_managers import Nemo
from support.recorder import Call, install_recorder
from support.waiting import eventually


class InNemo(FileManagerCases, IconCases, DuplicatesWindow, FileManagerTestCase):
    file_manager = Nemo
    desktop = "X-Cinnamon"

    def test_a_terminal_opens_in_the_folder_of_the_item(self):
        opened = install_recorder(self.home, "xdg-terminal-exec")
        self.start()

        self.running.select(self.letter())
        self.running.menu().choose("Open Terminal")
        self.assertEventuallyEqual(opened, [Call(os.fsencode(self.work), [])])

    def test_an_item_is_hidden(self):
        self.start()
        self.running.select(self.letter())

        self.running.menu().choose("Hide / Unhide item")
        self.assertEventuallyEqual(self.hidden, b"letter.txt\n")
        # The toolkit keeps the list for some seconds.
        self.running.wait_for_status(r"^0 items", "ctrl+r")

    def test_the_worse_of_two_selected_photos_goes_to_the_trash(self):
        folder = self.make_files("work/photos")
        paint(os.path.join(folder, "large.jpg"), 1)
        paint(os.path.join(folder, "small.jpg"), 1, 240, 180)
        self.start()

        self.running.select_all(folder)
        self.running.menu().choose("Find Duplicate Photos")
        self.wait_for_action_window("find-duplicate-photos", "Duplicate Photos")
        eventually(lambda: len(self.groups()) == 1, "the group")
        eventually(lambda: any(cell.name.startswith("480 × 360") for cell in self.cells()), "the size in pixels")
        self.choose_by_rule("Down")
        eventually(lambda: any(label.startswith("Chosen: 1 photo") for label in self.labels()), "the choice")
        self.press_button("Move 1 Item to Trash")
        self.assertEventuallyEqual(lambda: os.listdir(folder), ["large.jpg"])
        self.assertEqual(self.trashed(), [b"small.jpg"])

    def hidden(self):
        with open(os.path.join(self.work, ".hidden"), "rb") as file:
            return file.read()


if __name__ == "__main__":
    unittest.main()
