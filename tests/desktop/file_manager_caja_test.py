"""The menu in Caja."""

import os
import unittest

from support.file_manager_cases import FileManagerCases, FileManagerTestCase, IconCases
from support.real_file_managers import Caja
from support.recorder import install_recorder


class InCaja(FileManagerCases, IconCases, FileManagerTestCase):
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


if __name__ == "__main__":
    unittest.main()
