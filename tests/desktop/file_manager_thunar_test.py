"""The menu in Thunar."""

import os
import unittest

from support import exif_window
from support.file_manager_cases import FileManagerCases, FileManagerTestCase, IconCases
from support.photos import paint
from support.real_file_managers import Thunar
from support.recorder import install_recorder
from support.waiting import eventually


class InThunar(FileManagerCases, IconCases, exif_window.ExifWindow, FileManagerTestCase):
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

    def test_a_photo_is_given_a_title(self):
        self.install_exiftool()
        path = self.photo("work/photo.jpg", Title="old")
        self.start()

        self.running.select(path)
        self.running.menu().choose("View or Edit Exif Data")
        self.wait_for_action_window(exif_window.ACTION, exif_window.TITLE)
        eventually(lambda: "old" in self.cells(), "the data")
        self.to_edit_page()
        self.go_to("Title")
        self.hands.press("ctrl+a")
        self.hands.type("A hill")
        self.save()
        self.assertTells("1 photo was saved.")
        self.assertEqual(self.tags(path)["Title"], "A hill")

    def test_selected_photos_are_resized_beside_themselves(self):
        folder = self.make_files("work/photos")
        names = ["one.jpg", "two.jpg"]
        for name in names:
            paint(os.path.join(folder, name), 1)
        self.start()

        self.running.select_all(folder)
        self.running.menu().choose("Resize Photos")
        self.wait_for_action_window("resize-photos", "Resize Photos")
        # To half of their size.
        self.choose("For a screen", "Down", "Down")
        self.press_button("Resize")
        self.assertEventuallyEqual(lambda: set(os.listdir(folder)), {*names, "one-240x180.jpg", "two-240x180.jpg"})


if __name__ == "__main__":
    unittest.main()
