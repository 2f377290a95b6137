"""The folders in which the actions show: adding, removing, switching."""

import os
import signal
import subprocess
import urllib.parse
import unicodedata
import unittest

from gi.repository import GLib

from support.buses import call
from support.case import APPLICATION, DesktopTestCase
from support.folders import CHOOSER, choose, go_to
from support.waiting import eventually, throughout

DUPLICATE = "Some of the folders can not be added because they are already added to the Folders list."
QUESTION = "Remove selected folder?"
# How long is looked at what must not happen.
A_MOMENT = 0.5


class FoldersTestCase(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.panel = None

    def start(self):
        self.panel = self.start_panel()
        self.window = self.panel.main_window()
        self.open_tab()

    def open_tab(self):
        self.hands.click(self.window.find("page tab", "Folders").extents)
        eventually(lambda: self.window.find("push button", "Add Folder…"), "the folders' tab")

    def make_folder_of(self, name):
        path = os.path.join(self.home.files, name)
        os.mkdir(path)
        return path

    def rows(self):
        return [(row.name, row.find("check box").has("checked")) for row in self.window.all("list item")]

    def add(self, folder):
        self.hands.click(self.window.find("push button", "Add Folder…").extents)
        choose(self.hands, self.panel, folder)

    def alert(self, message):
        """The alert's window, which has the main window's title."""
        def find():
            for window in self.panel.windows():
                if window.role in ("dialog", "alert") and window.name == message:
                    return window
            raise LookupError(message)
        return eventually(find, f"the alert “{message}”")

    def noAlert(self):
        return all(window.role not in ("dialog", "alert") for window in self.panel.windows())

    def assertFolders(self, folders, flags, bookmarks):
        """Both lists, and the number of bookmarks, in the file."""
        def stored():
            values = self.suite.read()
            return (values.get("foldersArray", []), values.get("foldersArraystate", []),
                    len(values.get("allBookmark", [])))

        self.assertEventuallyEqual(stored, (folders, flags, bookmarks))
        self.assertTrue(all(isinstance(blob, bytes) for blob in self.suite.read().get("allBookmark", [])))

    def select(self, row):
        """Clicks beside the row's controls."""
        item = self.window.find("list item", row)
        at = item.extents
        self.hands.click(at._replace(width=at.width // 2))
        eventually(lambda: self.window.find("list item", row).has("selected"), "the row to be selected")

    def accept_console_lines(self):
        """What was chosen is told on standard output."""
        self.panel.output_expected = True


class Folders(FoldersTestCase):
    def test_an_empty_list_says_so(self):
        self.start()

        self.assertEqual(self.rows(), [])
        self.assertTrue(self.window.find("label", "No folders yet. Add the first one below."))

    def test_an_added_folder_is_listed_stored_bookmarked_and_told(self):
        folder = self.make_folder_of("Projects")
        self.start()
        self.accept_console_lines()
        self.add(folder)

        self.assertEventuallyEqual(self.rows, [(folder, True)])
        self.assertFolders([folder], [1], 1)
        self.assertEventuallyEqual(self.panel.standard_output, f"[file://{folder}]\n".encode())
        self.save_picture("folders")

    def test_a_cancelled_chooser_changes_nothing(self):
        self.start()
        before = self.suite.text()
        self.hands.click(self.window.find("push button", "Add Folder…").extents)
        self.panel.active_window(CHOOSER)
        self.hands.press("Escape")
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")

        self.assertEqual(self.rows(), [])
        self.assertEqual(self.suite.text(), before)

    def test_the_chooser_blocks_the_window_that_it_belongs_to(self):
        self.start()
        box = self.window.find("page tab", "Menu Items").extents
        self.hands.click(self.window.find("push button", "Add Folder…").extents)
        self.panel.active_window(CHOOSER)
        self.hands.click(box._replace(width=4, height=4))

        throughout(lambda: self.window.find("push button", "Add Folder…"), "the folders stay", A_MOMENT)
        self.hands.press("Escape")

    def test_files_are_listed_but_not_chosen(self):
        self.home.make_file("Report.pdf")
        self.start()
        self.hands.click(self.window.find("push button", "Add Folder…").extents)
        chooser = self.panel.active_window(CHOOSER)
        go_to(self.hands, chooser, self.home.files)

        self.hands.click(chooser.find("tree item", "Report.pdf").extents)
        throughout(lambda: not chooser.find("tree item", "Report.pdf").has("selected"), "nothing is selected",
                   A_MOMENT)
        self.hands.press("Escape")

    def test_a_folder_that_is_listed_gives_the_notice_alone(self):
        folder = self.make_folder_of("Projects")
        self.start()
        self.accept_console_lines()
        self.add(folder)
        self.assertFolders([folder], [1], 1)
        before = self.suite.text()
        self.add(folder)

        notice = self.alert(DUPLICATE)
        self.save_picture("folders-duplicate")
        self.hands.click(notice.find("push button", "OK").extents)
        eventually(self.noAlert, "the notice to go")
        self.assertEqual(self.rows(), [(folder, True)])
        self.assertEqual(self.suite.text(), before)

    def test_removing_asks_and_ok_removes_that_row(self):
        folders = [self.make_folder_of(name) for name in ("a", "b", "c")]
        self.suite.write(foldersArray=folders, foldersArraystate=[1, 0, 1])
        self.start()
        self.select(folders[1])
        self.hands.click(self.window.find("push button", "Remove Folder…").extents)

        question = self.alert(QUESTION)
        self.save_picture("folders-remove")
        self.hands.click(question.find("push button", "OK").extents)
        self.assertEventuallyEqual(self.rows, [(folders[0], True), (folders[2], True)])
        self.assertFolders([folders[0], folders[2]], [1, 1], 0)
        self.assertTrue(self.noAlert())

    def test_cancel_removes_nothing(self):
        folder = self.make_folder_of("a")
        self.suite.write(foldersArray=[folder], foldersArraystate=[1])
        for answer in ("Cancel", "Escape"):
            with self.subTest(answer=answer):
                self.start()
                self.select(folder)
                self.hands.click(self.window.find("push button", "Remove Folder…").extents)
                question = self.alert(QUESTION)
                if answer == "Cancel":
                    self.hands.click(question.find("push button", "Cancel").extents)
                else:
                    self.hands.press("Escape")
                eventually(self.noAlert, "the question to go")
                self.assertEqual(self.rows(), [(folder, True)])
                self.assertFolders([folder], [1], 0)
                self.panel.close()

    def test_removing_with_nothing_selected_asks_nothing(self):
        folder = self.make_folder_of("a")
        self.suite.write(foldersArray=[folder], foldersArraystate=[1])
        self.start()
        self.hands.click(self.window.find("push button", "Remove Folder…").extents)

        throughout(self.noAlert, "no question is asked", A_MOMENT)
        self.assertEqual(self.rows(), [(folder, True)])

    def test_a_folder_is_removed_by_the_keyboard_alone(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.suite.write(foldersArray=folders, foldersArraystate=[1, 1])
        self.start()
        for _ in range(6):
            if self.window.focused().role == "check box":
                break
            before = self.window.focused()
            self.hands.press("Tab")
            eventually(lambda: self.window.focused() != before, "Tab to lead on")
        self.hands.press("Down")
        eventually(lambda: self.window.find("list item", folders[1]).has("selected"), "the second row's selection")
        self.hands.press("Delete")
        self.alert(QUESTION)
        self.hands.press("Return")

        self.assertEventuallyEqual(self.rows, [(folders[0], True)])
        self.assertFolders(folders[:1], [1], 0)

    def test_a_click_on_the_checkbox_switches_that_folder_alone(self):
        folders = [self.make_folder_of(name) for name in ("a", "b", "c")]
        self.suite.write(foldersArray=folders, foldersArraystate=[1, 0, 7])
        self.start()
        self.assertEqual(self.rows(), [(folders[0], True), (folders[1], False), (folders[2], False)])

        for folder, flags in ((folders[0], [0, 0, 7]), (folders[1], [0, 1, 7]), (folders[2], [0, 1, 1])):
            self.hands.click(self.window.find("check box", folder).extents)
            self.assertFolders(folders, flags, 0)
        self.assertEqual([on for _, on in self.rows()], [False, True, True])

    def test_delete_is_for_the_row_that_was_come_to_last(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.suite.write(foldersArray=folders, foldersArraystate=[1, 1])
        self.start()
        self.select(folders[1])
        self.hands.click(self.window.find("check box", folders[0]).extents)
        self.assertFolders(folders, [0, 1], 0)
        self.hands.press("Delete")
        self.alert(QUESTION)
        self.hands.press("Return")

        self.assertEventuallyEqual(self.rows, [(folders[1], True)])

    def test_behind_a_sheet_a_screen_reader_operates_nothing(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.suite.write(foldersArray=folders, foldersArraystate=[1, 1])
        self.start()
        self.select(folders[0])
        remove = self.window.find("push button", "Remove Folder…")
        add = self.window.find("push button", "Add Folder…")
        box = self.window.find("check box", folders[1])
        remove.act("Press")
        self.alert(QUESTION)
        for control, action in ((remove, "Press"), (add, "Press"), (box, "Toggle")):
            control.act(action)

        throughout(lambda: len(self.panel.windows()) == 2, "there is one sheet", A_MOMENT)
        self.hands.press("Escape")
        eventually(self.noAlert, "the question to go")
        self.assertEqual(self.rows(), [(folder, True) for folder in folders])
        self.assertFolders(folders, [1, 1], 0)

    def test_a_signal_while_the_chooser_is_up_ends_the_panel_well(self):
        for number in range(4):
            self.start()
            self.hands.click(self.window.find("push button", "Add Folder…").extents)
            chooser = self.panel.active_window(CHOOSER)
            if number % 2:
                self.hands.press("ctrl+l")
                self.hands.type("/u")
            self.assertTrue(chooser.has("active"))
            self.panel.send(signal.SIGTERM)

            self.assertEqual(self.panel.wait_for_end(), 0)

    def test_one_add_after_a_new_start_leaves_one_bookmark(self):
        folders = [self.make_folder_of(name) for name in ("a", "b", "c")]
        self.start()
        self.accept_console_lines()
        self.add(folders[0])
        self.add(folders[1])
        self.assertFolders(folders[:2], [1, 1], 2)
        self.panel.close()

        self.start()
        self.accept_console_lines()
        self.add(folders[2])
        self.assertFolders(folders, [1, 1, 1], 1)

    def test_the_set_of_folders_is_broadcast_and_stays_readable(self):
        folders = [self.make_folder_of(name) for name in ("ä b", "plain")]
        monitor = subprocess.Popen(
            ["gdbus", "monitor", "--session", "--dest", "com.orvikstudio.orvikmenu"], stdout=subprocess.PIPE,
            text=True, env={**self.environment, "PATH": "/usr/bin:/bin"})
        self.addCleanup(monitor.stdout.close)
        self.addCleanup(monitor.wait)
        self.addCleanup(monitor.kill)
        self.suite.write(foldersArray=folders[:1], foldersArraystate=[0])
        self.start()
        self.accept_console_lines()
        self.add(folders[1])
        files = "file://" + self.home.files
        # In the order of the paths' bytes.
        addresses = [files + "/plain", files + "/%C3%A4%20b"]
        expected = "DirectoryURLs ([" + ", ".join(f"'{address}'" for address in addresses) + "],)"
        os.set_blocking(monitor.stdout.fileno(), False)
        seen = []

        def broadcast():
            seen.append(monitor.stdout.read() or "")
            return expected in "".join(seen)

        eventually(broadcast, expected)

        read = subprocess.run(
            ["gdbus", "call", "--session", "--dest", "com.orvikstudio.orvikmenu", "--object-path",
             "/com/orvikstudio/FinderSync", "--method", "org.freedesktop.DBus.Properties.Get",
             "com.orvikstudio.FinderSync", "directoryURLs"],
            env={**self.environment, "PATH": "/usr/bin:/bin"}, capture_output=True, text=True, check=True, timeout=20)
        for address in addresses:
            self.assertIn(address, read.stdout)

    def test_a_stored_list_of_another_kind_stops_the_panel(self):
        for values in ({"foldersArray": ["/a", 1]}, {"foldersArray": "/a"}, {"foldersArraystate": ["1"]}):
            with self.subTest(**values):
                self.suite.write(**values)
                panel = self.start_panel()
                window = panel.main_window()
                self.hands.click(window.find("page tab", "Folders").extents)
                self.assertAborted(panel, next(iter(values)))


class Names(FoldersTestCase):
    """Folders whose names are hard to show, store or tell."""

    def test_names_are_shown_stored_and_told_without_loss(self):
        names = ["sp ace", "quo'te\"", "new\nline", unicodedata.normalize("NFD", "é"), "日本", "a" * 255]
        folders = [self.make_folder_of(name) for name in names]
        # As long as a path can be.
        folders.append("/srv" + "/x" * 2045)
        self.suite.write(foldersArray=folders, foldersArraystate=[1] * len(folders))
        self.start()

        self.assertEqual([name for name, _ in self.rows()], folders)
        self.hands.click(self.window.find("check box", folders[2]).extents)
        self.assertFolders(folders, [1, 1, 0, 1, 1, 1, 1], 0)

        added = self.make_folder_of("added last")
        self.accept_console_lines()
        self.add(added)
        self.assertFolders([*folders, added], [1, 1, 0, 1, 1, 1, 1, 1], 1)
        addresses = call(self.bus.connection, APPLICATION, "/com/orvikstudio/FinderSync",
                         "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", ("com.orvikstudio.FinderSync", "directoryURLs")))[0]
        self.assertCountEqual([urllib.parse.unquote(address.removeprefix("file://")) for address in addresses],
                              [*folders, added])

    def test_both_forms_of_a_letter_are_the_same_folder(self):
        self.suite.write(foldersArray=[os.path.join(self.home.files, unicodedata.normalize("NFD", "Café"))],
                         foldersArraystate=[1])
        folder = self.make_folder_of("Café")
        self.start()
        self.accept_console_lines()
        self.hands.click(self.window.find("push button", "Add Folder…").extents)
        chooser = self.panel.active_window(CHOOSER)
        go_to(self.hands, chooser, self.home.files)
        self.hands.click(chooser.find("tree item", "Café").extents)
        self.hands.click(chooser.find("push button", CHOOSER).extents)

        self.alert(DUPLICATE)
        self.hands.press("Return")
        eventually(self.noAlert, "the notice to go")
        self.assertEqual(len(self.rows()), 1)
        self.assertTrue(os.path.isdir(folder))

    def test_a_name_that_is_no_text_is_refused_before_anything_is_written(self):
        os.mkdir(os.path.join(os.fsencode(self.home.files), b"caf\xe9"))
        self.start()
        before = self.suite.text()
        self.hands.click(self.window.find("push button", "Add Folder…").extents)
        chooser = self.panel.active_window(CHOOSER)
        go_to(self.hands, chooser, self.home.files)
        self.hands.press("Down")
        self.hands.click(chooser.find("push button", CHOOSER).extents)

        words = eventually(
            lambda: next(label.name for label in chooser.all("label") if "cannot be stored" in label.name), "the words")
        self.assertIn("caf", words)
        self.save_picture("folders-refused")
        self.assertEqual(self.suite.text(), before)
        self.hands.press("Escape")
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")
        self.assertEqual(self.rows(), [])


if __name__ == "__main__":
    unittest.main()
