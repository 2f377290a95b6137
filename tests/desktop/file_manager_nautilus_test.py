"""The menu in GNOME Files."""

import os
import unittest

from support.action_window import ActionDriver
from support.file_manager_cases import FileManagerCases, FileManagerTestCase
from support.notifications import Notifications
from support.real_file_managers import Nautilus
from support.transfers import COPY


class InNautilus(FileManagerCases, ActionDriver, FileManagerTestCase):
    file_manager = Nautilus
    desktop = "GNOME"

    def test_a_new_text_file_is_there_and_selected(self):
        self.start()

        self.running.background_menu(self.work).choose("Create New Text File")
        self.assertEventuallyEqual(lambda: sorted(os.listdir(self.work)), ["New Text File.txt", "letter.txt"])
        self.running.wait_for_status(r"New Text File\.txt.*selected")

    def test_an_item_is_copied_to_a_custom_folder(self):
        notifications = Notifications(self)
        target = self.make_files("here")
        self.start(arrCustomFoldersUrls=[target])

        self.running.select(self.letter())
        self.running.menu().choose("Copy to a folder", "here")
        self.wait_for_action(COPY)
        told = notifications.only()
        self.assertEqual((told["title"], told["words"]), ("Copied", "“letter.txt” was copied to “here”."))
        self.assertEqual((os.listdir(self.work), os.listdir(target)), (["letter.txt"], ["letter.txt"]))


if __name__ == "__main__":
    unittest.main()
