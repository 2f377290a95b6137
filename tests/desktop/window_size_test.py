"""The size that a person gives the window, and screens that are smaller than it."""

import os
import unittest

from support.case import DesktopTestCase
from support.catalogues import LANGUAGES
from support.waiting import eventually


class WindowSizeTestCase(DesktopTestCase):
    panel = None

    @property
    def file(self):
        return os.path.join(self.home.folder, ".local/state/orvik-menu/window-sizes")

    def write(self, contents):
        os.makedirs(os.path.dirname(self.file), exist_ok=True)
        with open(self.file, "wb") as file:
            file.write(contents)

    def read(self):
        with open(self.file, encoding="utf-8") as file:
            return file.read()

    def start(self):
        self.panel = self.start_panel()
        self.panel.main_window()
        self.window, = self.windows.of_process(self.panel.process_id)
        return self.windows.size(self.window)

    def resize(self, width, height):
        self.hands.resize(self.window, width, height)
        eventually(lambda: self.windows.size(self.window) == (width, height), "the window's new size")

    def assertOnTheScreen(self):
        for window in self.windows.of_process(self.panel.process_id):
            place = self.windows.place(window)
            self.assertGreaterEqual(min(place.x, place.y), 0)
            self.assertLessEqual(place.x + place.width, self.screen_size[0])
            self.assertLessEqual(place.y + place.height, self.screen_size[1])

    def quit(self):
        self.hands.press("ctrl+q")
        self.assertEqual(self.panel.wait_for_end(), 0)


class WindowSize(WindowSizeTestCase):
    def test_the_window_opens_as_it_was_left(self):
        designed = self.start()
        self.quit()
        self.assertFalse(os.path.exists(self.file))
        self.start()
        self.resize(designed[0] + 90, designed[1] - 60)
        self.quit()

        self.assertEqual(self.start(), (designed[0] + 90, designed[1] - 60))
        self.assertRegex(self.read(), r"\AmainStartWindow \d+x\d+ 1280x1024 .+\n\Z")

    def test_the_size_is_kept_however_the_panel_ends(self):
        self.start()
        self.resize(700, 500)
        self.panel.close()
        self.assertEqual(self.start(), (700, 500))

        self.resize(640, 480)
        self.windows_close()
        self.assertEqual(self.start(), (640, 480))

    def windows_close(self):
        """As the window's own button does."""
        self.hands.press("alt+F4")
        self.assertEqual(self.panel.wait_for_end(), 0)

    def test_a_maximized_window_is_remembered_as_it_was_before(self):
        self.start()
        self.resize(700, 500)
        place = self.windows.place(self.window)
        # The frame's title lies above it.
        self.hands.double_click(place._replace(y=place.y - 20, height=20))
        eventually(lambda: self.windows.size(self.window)[0] > 1200, "the window to be maximized")
        self.quit()

        self.assertEqual(self.start(), (700, 500))

    def test_a_file_that_holds_anything_else_is_done_without(self):
        designed = self.start()
        self.quit()
        for contents in (b"", b"\0\xff" * 100, b"mainStartWindow 0x0 1280x1024 screen\n", b"x" * 1_000_000):
            with self.subTest(contents=contents[:40]):
                self.write(contents)
                self.assertEqual(self.start(), designed)
                self.quit()

    def test_a_file_that_cannot_be_written_is_done_without(self):
        designed = self.start()
        self.quit()
        # Not even root makes a folder in a file.
        with open(os.path.join(self.home.folder, ".local"), "wb"):
            pass
        self.start()
        self.resize(700, 500)
        self.quit()

        self.assertEqual(self.start(), designed)


class NarrowScreen(WindowSizeTestCase):
    screen_size = (440, 640)

    def test_questions_fit_and_every_tab_is_in_sight(self):
        self.suite.write(foldersArray=["/srv"], foldersArraystate=[1])
        for language in ["en", *LANGUAGES]:
            with self.subTest(language=language):
                if self.panel:
                    self.panel.close()
                self.panel = self.start_panel(wrapper=[os.path.join(self.programs, "orvik-menu"), "--tab"],
                                              program="Folders", LANGUAGE=language, LANG="C.UTF-8")
                window = self.panel.main_window()
                tabs = window.find("page tab list").extents
                for tab in window.all("page tab"):
                    self.assertLessEqual(tabs.x, tab.extents.x)
                    self.assertLessEqual(tab.extents.x + tab.extents.width, tabs.x + tabs.width)
                self.hands.click(window.find("list item").extents)
                self.hands.press("Delete")
                eventually(lambda: any(each.role == "alert message" for each in self.panel.windows()), "the question")
                self.assertOnTheScreen()


class SmallScreen(WindowSizeTestCase):
    screen_size = (640, 480)

    def test_nothing_opens_outside_it_whatever_was_remembered(self):
        self.start()
        self.quit()
        self.write(b"mainStartWindow 5000x5000 640x480 screen\nUtilityKitWindow 5000x5000 640x480 screen\n")
        self.start()
        self.assertOnTheScreen()
        self.assertEqual(self.run_tool("orvik-notify", "ShowUtilityKit").returncode, 0)
        self.panel.active_window("More from Orvik Studio")
        self.assertOnTheScreen()

    def test_the_other_windows_fit_too(self):
        self.panel = self.start_panel(program=os.path.join(self.programs, "orvik-menu-extensions"))
        self.panel.active_window("Extensions")

        self.assertOnTheScreen()
        self.save_picture("extensions-small-screen")


if __name__ == "__main__":
    unittest.main()
