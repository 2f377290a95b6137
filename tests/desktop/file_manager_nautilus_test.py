"""The menu in GNOME Files."""

import os
import unittest

from support.file_manager_cases import FileManagerCases, FileManagerTestCase
from support.real_file_managers import Nautilus


class InNautilus(FileManagerCases, FileManagerTestCase):
    file_manager = Nautilus
    desktop = "GNOME"

    def test_a_new_text_file_is_there_and_selected(self):
        self.start()

        self.running.background_menu(self.work).choose("Create New Text File")
        self.assertEventuallyEqual(lambda: sorted(os.listdir(self.work)), ["New Text File.txt", "letter.txt"])
        self.running.wait_for_status(r"New Text File\.txt.*selected")


if __name__ == "__main__":
    unittest.main()
