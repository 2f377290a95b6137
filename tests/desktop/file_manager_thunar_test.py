"""The menu in Thunar."""

import os
import unittest

from support.file_manager_cases import FileManagerCases, FileManagerTestCase, IconCases
from support.real_file_managers import Thunar
from support.recorder import install_recorder
from support.waiting import eventually


class InThunar(FileManagerCases, IconCases, FileManagerTestCase):
    file_manager = Thunar
    desktop = "XFCE"

    def test_the_preferences_of_the_desktop_open(self):
        opened = install_recorder(self.home, "xfce4-settings-manager")
        self.start()

        self.running.select(self.letter())
        self.running.menu().choose("Open System Preferences")
        self.assertEventuallyEqual(lambda: [call.arguments for call in opened()], [[]])

    def test_another_window_of_the_folder_opens(self):
        self.start()
        self.running.select(self.letter())

        before = self.running.windows()
        self.running.menu().choose("Open New Finder Window")
        window, = eventually(lambda: set(self.running.windows()) - set(before), "another window")
        eventually(lambda: self.windows.title(window).startswith(os.path.basename(self.work)), "the folder")


if __name__ == "__main__":
    unittest.main()
