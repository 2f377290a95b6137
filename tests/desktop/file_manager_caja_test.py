"""The menu in Caja."""

import os
import unittest

from support.duplicates_window import DuplicatesWindow
from support.file_manager_cases import FileManagerCases, FileManagerTestCase, IconCases
from support.real_file_managers import Caja
from support.recorder import install_recorder


class InCaja(FileManagerCases, IconCases, DuplicatesWindow, FileManagerTestCase):
    file_manager = Caja
    desktop = "MATE"

    def test_a_folder_is_added_to_the_custom_folders(self):
        inner = self.make_files("work/inner")
        self.start(arrCustomFoldersUrls=["/srv"])

        self.running.select(inner)
        self.running.menu().choose("Add Folders")
        self.assertEventuallyEqual(lambda: self.suite.read()["arrCustomFoldersUrls"], ["/srv", inner])

    def test_a_picture_becomes_the_wallpaper(self):
        settings = install_recorder(self.home, "gsettings")
        picture = os.path.join(self.work, "sky.png")
        with open(picture, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
        self.start()

        self.running.select(picture)
        self.running.menu().choose("Set as Wallpaper")
        self.assertEventuallyEqual(
            lambda: [call.arguments for call in settings()],
            [[b"set", b"org.mate.background", b"picture-filename", os.fsencode(f"'{picture}'")]])

    def test_a_duplicate_in_a_folder_goes_to_the_trash(self):
        folder = self.make_files("work/songs", "one", "two", "other")
        for name in "one", "two":
            with open(os.path.join(folder, name), "wb") as file:
                file.write(b"x" * 1000)
        self.start()

        self.running.select(folder)
        self.running.menu().choose("Find Duplicate Files")
        self.wait_for_action_window("find-duplicate-files", "Duplicate Files")
        self.assertTells("1 group, 1.0 kB could be saved")
        self.go_to("Items of the Group")
        self.hands.press("Down", "space")
        self.assertTells("Chosen: 1 file, 1.0 kB")
        self.press_button("Move 1 Item to Trash")
        self.assertTells("Moved to the trash: 1 file, 1.0 kB")
        self.assertEqual((sorted(os.listdir(folder)), self.trashed()), (["one", "other"], [b"two"]))


if __name__ == "__main__":
    unittest.main()
