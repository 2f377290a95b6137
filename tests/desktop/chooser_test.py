"""The file chooser by keys alone, as people have them in their fingers from other programs."""

import os
import unittest

from support import mounts
from support.case import DesktopTestCase
from support.folders import CHOOSER
from support.panel import MAIN_WINDOW
from support.waiting import eventually


class Chooser(DesktopTestCase):
    def open(self, **start):
        """A chooser of folders, by keys, in the folder that it always opens in."""
        self.panel = self.start_panel(**start)
        window = self.panel.main_window()
        self.hands.click(window.find("page tab", "Folders").extents)
        eventually(lambda: window.find("push button", "Add Folder…"), "the folders' tab")
        while window.focused().name != "Add Folder…":
            last = window.focused()
            self.hands.press("Tab")
            eventually(lambda: window.focused() != last, "Tab to lead on")
        self.hands.press("space")
        self.chooser = self.panel.active_window(CHOOSER)
        self.assertHasKeyboard("Files")

    def assertHasKeyboard(self, name):
        eventually(lambda: self.chooser.focused().name == name, f"“{name}” to have the keyboard")

    def assertLocation(self, text):
        self.assertEventuallyEqual(lambda: self.chooser.find("text", "Location").text, text)

    def go_to(self, typed):
        """Types a path that starts in the list."""
        self.hands.type(typed[0])
        self.assertHasKeyboard("Location")
        self.hands.type(typed[1:])
        self.hands.press("Return")
        self.assertHasKeyboard("Files")

    def assertRead(self, name, description):
        """The row that a screen reader reads."""
        def read():
            return [(item.name, item.description.split(", ")[0]) for item in self.chooser.descendants("focused")
                    if item.role == "tree item"]

        self.assertEventuallyEqual(read, [(name, description)])

    def assertChosen(self, folder):
        self.panel.output_expected = True
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")
        self.assertEventuallyEqual(lambda: self.suite.read().get("foldersArray"), [folder])

    def places(self):
        return [(item.name, item.description) for item in self.chooser.find("list", "Places").all("list item")]

    def test_a_path_is_started_in_the_list_completed_and_a_new_folder_made_in_it_and_chosen(self):
        projects = os.path.join(self.home.files, "Projects of mine")
        os.mkdir(projects)
        self.open()
        self.hands.type("~")
        self.assertHasKeyboard("Location")
        self.hands.type("/files/Pro")
        self.hands.press("Tab")
        self.assertLocation("~/files/Projects of mine/")
        self.hands.press("Return")
        self.assertLocation(projects)
        self.assertHasKeyboard("Files")
        self.save_picture("chooser-empty")

        self.hands.press("ctrl+shift+n")
        self.panel.active_window("New Folder")
        self.hands.type("Reports")
        self.save_picture("chooser-new-folder")
        self.hands.press("Return")
        eventually(lambda: self.chooser.find("tree item", "Reports").has("selected"), "the new folder")
        self.assertHasKeyboard("Files")
        self.hands.press("Return")

        self.assertChosen(os.path.join(projects, "Reports"))

    def test_every_file_that_is_to_be_seen_is_read(self):
        for name in ("Report.pdf", ".hidden"):
            self.home.make_file(name)
        os.mkdir(os.path.join(self.home.files, "sub"))
        self.open()
        self.go_to(self.home.files)

        self.hands.press("Home")
        self.assertRead("sub", "Folder")
        self.hands.press("Down")
        self.assertRead("Report.pdf", "PDF document")
        self.hands.press("Return")
        eventually(lambda: self.chooser.find("label", "“Report.pdf” is a file. Only folders can be chosen here."),
                   "the words")
        self.hands.press("ctrl+h")
        eventually(lambda: self.chooser.find("tree item", ".hidden"), "the hidden file")
        self.hands.press("Up")
        self.assertRead(".hidden", "File")
        self.hands.press("alt+period")
        eventually(lambda: not any(item.name == ".hidden" for item in self.chooser.all("tree item")),
                   "the hidden file to go")

    def test_keys_lead_back_forward_and_up(self):
        inner = os.path.join(self.home.files, "outer", "inner")
        os.makedirs(inner)
        self.open()
        self.go_to(inner)
        self.hands.press("alt+Up")
        self.assertLocation(os.path.dirname(inner))
        self.hands.press("alt+Left")
        self.assertLocation(inner)
        self.hands.press("alt+Left")
        self.assertLocation("/")
        self.hands.press("alt+Right")
        self.assertLocation(inner)

    def test_bookmarks_and_what_is_mounted_are_among_the_places(self):
        stick = os.path.join(self.home.files, "My Stick")
        os.mkdir(stick)
        os.mkdir(os.path.join(self.home.configuration, "gtk-3.0"))
        with open(os.path.join(self.home.configuration, "gtk-3.0", "bookmarks"), "wb") as file:
            file.write(b"file:///usr/share/%61pplications Programs\nfile:///no/such/thing\nsftp://host/x\n\xff\xfe\0\n")
        self.open(wrapper=mounts.small_disk(stick, "1m"))

        places = self.places()
        self.assertIn(("Programs", "/usr/share/applications"), places)
        self.assertIn(("My Stick", stick), places)
        self.assertEqual(places[-1], ("File System", "/"))
        self.assertNotIn("/no/such/thing", [path for _, path in places])

        camera = os.path.join(self.home.files, "Camera")
        os.mkdir(camera)
        mounts.mount_for(self.panel.process_id, camera)
        eventually(lambda: ("Camera", camera) in self.places(), "the camera among the places")

    def test_the_last_folder_is_a_place_and_the_size_stays(self):
        projects = os.path.join(self.home.files, "Projects")
        os.makedirs(os.path.join(projects, "a"))
        self.open()
        self.hands.resize(self.windows.active(), 640, 480)
        eventually(lambda: self.windows.size(self.windows.active()) == (640, 480), "the new size")
        self.go_to(projects)
        self.hands.press("Home", "Return")
        self.assertChosen(os.path.join(projects, "a"))
        self.panel.close()

        self.open()
        self.assertLocation("/")
        self.assertIn(("Projects (last used)", projects), self.places())
        self.assertEventuallyEqual(lambda: self.windows.size(self.windows.active()), (640, 480))

    def test_the_window_behind_it_does_not_take_the_keyboard(self):
        self.open()
        in_front = self.windows.active()
        self.hands.click(self.panel.window(MAIN_WINDOW).find("page tab", "Menu Items").extents)
        eventually(lambda: self.windows.active() == in_front, "the chooser to have the keyboard")
        self.hands.press("Escape")
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")

        self.panel.main_window()

    def test_the_menu_key_opens_a_menu_that_opens_a_folder(self):
        os.makedirs(os.path.join(self.home.files, "outer", "inner"))
        self.open()
        self.go_to(self.home.files)
        self.hands.press("Home")
        eventually(lambda: self.chooser.find("tree item", "outer").has("selected"), "the folder to be selected")
        # Without a menu Enter would choose the folder.
        self.hands.press("Menu", "Down", "Return")

        self.assertLocation(os.path.join(self.home.files, "outer"))


if __name__ == "__main__":
    unittest.main()
