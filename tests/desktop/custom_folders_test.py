"""The list of custom folders, which the extension fills and the panel shows and prunes."""

import os
import unittest

from support.case import DesktopTestCase
from support.deployment import APPLICATION
from support.suite import record
from support.waiting import eventually, throughout

A_MOMENT = 0.5


class CustomFolders(DesktopTestCase):
    def start(self):
        self.panel = self.start_panel()
        self.window = self.panel.main_window()
        self.open_tab("Custom Folders")

    def open_tab(self, name):
        self.hands.click(self.window.find("page tab", name).extents)
        shown = {"Custom folders", "No Custom Folders"} if name == "Custom Folders" else {"Menu items"}
        eventually(lambda: any(each.name in shown for each in self.window.descendants()), name)

    def rows(self):
        return [row.name for row in self.window.all("list item")]

    def store(self, folders):
        """As the extension does it, which keeps what else is stored."""
        self.suite.write(**{**self.suite.read(), "arrCustomFoldersUrls": folders})

    def tell(self, *sender):
        self.assertEqual(self.run_tool("orvik-notify", "ReloadCustomFolders", *sender).returncode, 0)

    def test_an_empty_list_says_so(self):
        self.start()

        self.assertEqual(self.rows(), [])
        self.assertTrue(self.window.find("heading", "No Custom Folders"))

    def test_rows_have_the_folders_own_names(self):
        self.suite.write(arrCustomFoldersUrls=["/Users/a/Projects", "/srv/gone/", "/"])
        self.start()

        self.assertEqual(self.rows(), ["Projects", "gone", "/"])
        self.save_picture("custom-folders")

    def test_folders_that_arrive_are_shown_at_once(self):
        self.start()
        self.store(["/one"])
        self.tell()
        self.assertEventuallyEqual(self.rows, ["one"])
        self.store(["/one", "/two"])
        self.tell()
        self.assertEventuallyEqual(self.rows, ["one", "two"])

    def test_a_posting_of_another_sender_is_ignored(self):
        self.start()
        self.store(["/one"])
        self.tell(APPLICATION)

        throughout(lambda: not self.rows(), "the list stays as it was", A_MOMENT)

    def test_a_list_of_another_kind_leaves_what_is_shown(self):
        self.suite.write(arrCustomFoldersUrls=["/one"])
        self.start()
        for value in (["/two", 2], "/two", 7):
            with self.subTest(value=value):
                self.store(value)
                self.tell()
                throughout(lambda: self.rows() == ["one"], "the list stays as it was", A_MOMENT)

    def test_deleting_takes_that_entry_alone_without_a_question(self):
        self.suite.write(arrCustomFoldersUrls=["/one", "/two", "/three"], theirs=True)
        self.start()
        self.hands.click(self.window.find("push button", "Delete one").extents)
        self.assertEventuallyEqual(self.rows, ["two", "three"])
        self.assertStored(arrCustomFoldersUrls=["/two", "/three"], theirs=True, menuArrayDic=record())
        self.hands.click(self.window.find("push button", "Delete three").extents)
        self.assertStored(arrCustomFoldersUrls=["/two"], theirs=True, menuArrayDic=record())

    def test_after_a_deletion_the_keyboard_is_on_the_row_that_follows_and_not_on_its_button(self):
        self.suite.write(arrCustomFoldersUrls=["/one", "/two", "/three"])
        self.start()
        self.hands.press("Tab", "Tab", "Tab")
        eventually(lambda: self.window.focused().name == "Delete one", "the button to have the keyboard")
        self.hands.press("Return")
        self.assertEventuallyEqual(self.rows, ["two", "three"])
        focused = eventually(self.window.focused, "something to have the keyboard")
        self.assertEqual((focused.role, focused.name), ("list item", "two"))
        self.save_picture("custom-folders-deleted")
        self.hands.press("Return", "space")

        throughout(lambda: self.rows() == ["two", "three"], "the others stay", A_MOMENT)

    def test_after_the_last_deletion_something_has_the_keyboard(self):
        self.suite.write(arrCustomFoldersUrls=["/one"])
        self.start()
        self.hands.press("Tab", "Tab", "Tab")
        eventually(lambda: self.window.focused().name == "Delete one", "the button to have the keyboard")
        self.hands.press("Return")

        self.assertEventuallyEqual(self.rows, [])
        self.assertEqual(eventually(self.window.focused, "something to have the keyboard").role, "page tab list")

    def test_a_double_click_deletes_one_entry(self):
        self.suite.write(arrCustomFoldersUrls=["/one", "/two", "/three"])
        self.start()
        self.hands.double_click(self.window.find("push button", "Delete one").extents)

        self.assertEventuallyEqual(self.rows, ["two", "three"])
        throughout(lambda: self.rows() == ["two", "three"], "the others stay", A_MOMENT)

    def test_the_list_is_read_anew_each_time_the_tab_is_shown(self):
        self.start()
        self.store(["/one"])
        self.hands.click(self.window.find("page tab", "Menu Items").extents)
        eventually(lambda: self.window.find("check box", "Open Terminal"), "the menu items")
        self.hands.click(self.window.find("page tab", "Custom Folders").extents)

        self.assertEventuallyEqual(self.rows, ["one"])

    def test_a_row_tells_its_whole_path_where_the_pointer_rests(self):
        self.suite.write(arrCustomFoldersUrls=[os.path.join(self.home.files, "Projects")])
        self.start()
        self.hands.move_to(self.window.find("list item", "Projects").extents)

        def tip():
            # It may be broken between any two characters.
            return any(self.home.files in found.name.replace("\u200b", "") for window in self.panel.windows()
                       for found in [window, *window.descendants()])

        eventually(tip, "the tool tip")


if __name__ == "__main__":
    unittest.main()
