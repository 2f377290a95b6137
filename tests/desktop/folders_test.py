"""The folders in which the actions show: adding, removing, switching."""

import os
import signal
import subprocess
import sys
import urllib.parse
import unicodedata
import unittest

from gi.repository import GLib

from support import drag_source, processes
from support.broadcasts import Broadcasts
from support.buses import call
from support.case import DesktopTestCase
from support.deployment import APPLICATION
from support.folders import CHOOSER, choose, enter_location, go_to
from support.suite import record
from support.waiting import eventually, settled, throughout

DUPLICATE = "Some of the folders can not be added because they are already added to the Folders list."
QUESTION = "Remove selected folder?"
# As another run left them; what they hold means nothing to the screen.
BOOKMARKS = [b"\x00one\xff", b"", b"two"]
# The bytes of the longest path that anything can have: the system's bound counts the end's zero.
LONGEST_PATH = 4095
# How long is looked at what must not happen.
A_MOMENT = 0.5


def path_of(length):
    return ("/srv" + "/x" * length)[:length - 1] + "x"


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
        # The list makes its rows once it has its size.
        if self.suite.read().get("foldersArray"):
            settled(lambda: eventually(lambda: self.window.find("list item"), "the rows").extents)

    def go_to_another_tab(self):
        self.hands.click(self.window.find("page tab", "Menu Items").extents)
        eventually(lambda: self.window.find("check box", "Open Terminal"), "the menu items")

    def store(self, folders, flags, bookmarks):
        self.suite.write(foldersArray=folders, foldersArraystate=flags, allBookmark=bookmarks)

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
                if window.role == "alert message" and window.name == message:
                    return window
            raise LookupError(message)
        return eventually(find, f"the alert “{message}”")

    def noAlert(self):
        return all(window.role != "alert message" for window in self.panel.windows())

    def bookmarks(self, number):
        """The bookmarks in the file, once there are so many. They are all different."""
        def stored():
            bookmarks = self.suite.read().get("allBookmark", [])
            return bookmarks if len(bookmarks) == number else None

        bookmarks = eventually(stored, f"{number} bookmarks")
        self.assertEqual({type(blob) for blob in bookmarks}, {bytes})
        self.assertEqual(len(set(bookmarks)), number)
        return bookmarks

    def published(self):
        """The paths of the set that the panel lets others read."""
        addresses = call(self.bus.connection, APPLICATION, "/com/orvikstudio/FinderSync",
                         "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", ("com.orvikstudio.FinderSync", "directoryURLs")))[0]
        return [urllib.parse.unquote(address.removeprefix("file://")) for address in addresses]

    def assertFolders(self, folders, flags, bookmarks=None):
        """What the file holds, kind by kind. None stands for no bookmarks' key at all, which is not an empty list."""
        kept = {} if bookmarks is None else {"allBookmark": bookmarks}
        self.assertStored(foldersArray=folders, foldersArraystate=flags, menuArrayDic=record(), **kept)

    def assertStays(self, before):
        """Nothing is written: the file has the bytes of before, and keeps them for a moment."""
        self.assertEqual(self.suite.bytes(), before)
        throughout(lambda: self.suite.bytes() == before, "the file stays", A_MOMENT)

    def ask_to_remove(self):
        self.hands.click(self.window.find("push button", "Remove Folder…").extents)
        return self.alert(QUESTION)

    def remove(self, row):
        self.select(row)
        self.hands.click(self.ask_to_remove().find("push button", "OK").extents)
        eventually(self.noAlert, "the question to go")

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
    def test_an_empty_list_says_so_and_offers_what_fills_it(self):
        folder = self.make_folder_of("Projects")
        self.start()

        self.assertEqual(self.rows(), [])
        eventually(lambda: self.window.find("heading", "No Folders Yet"), "the words")
        self.assertEqual([button.name for button in self.window.all("push button")], ["Add Folder…"])
        self.save_picture("folders-empty")
        self.accept_console_lines()
        self.add(folder)
        self.assertEventuallyEqual(self.rows, [(folder, True)])
        eventually(lambda: self.window.find("push button", "Remove Folder…"), "the buttons below the list")
        self.assertNotIn("No Folders Yet", [heading.name for heading in self.window.all("heading")])

    def test_a_row_says_that_its_folder_is_not_there(self):
        folder = self.make_folder_of("Projects")
        gone = os.path.join(self.home.files, "Gone")
        self.store([folder, gone], [1, 1], BOOKMARKS)
        self.start()

        self.assertEqual(self.window.find("check box", folder).description, "")
        self.assertEqual(self.window.find("check box", gone).description, "Not found")
        self.save_picture("folders-gone")

    def test_an_added_folder_is_listed_stored_bookmarked_and_told(self):
        folders = [self.make_folder_of(name) for name in ("Projects", "Reports")]
        self.start()
        self.accept_console_lines()
        self.add(folders[0])

        self.assertEventuallyEqual(self.rows, [(folders[0], True)])
        first = self.bookmarks(1)
        self.assertFolders(folders[:1], [1], first)
        self.assertEventuallyEqual(self.panel.standard_output, f"[file://{folders[0]}]\n".encode())
        self.save_picture("folders")

        self.add(folders[1])
        both = self.bookmarks(2)
        self.assertEqual(both[:1], first)
        self.assertFolders(folders, [1, 1], both)

    def test_a_folder_that_vanishes_once_it_is_chosen_is_kept_without_a_bookmark(self):
        folder = self.make_folder_of("Projects")
        self.start()
        self.accept_console_lines()
        self.hands.click(self.window.find("push button", "Add Folder…").extents)
        chooser = self.panel.active_window(CHOOSER)
        go_to(self.hands, chooser, folder)
        told = f"[file://{folder}]\n"
        # It stores the path before it makes the bookmark, and waits there.
        with self.suite.locked():
            self.hands.click(chooser.find("push button", CHOOSER).extents)
            self.assertEventuallyEqual(self.panel.standard_output, told.encode())
            os.rmdir(folder)

        told += f"could not make a bookmark of {folder}: No such file or directory\nError storing bookmarks\n"
        self.assertEventuallyEqual(self.panel.standard_output, told.encode())
        self.assertEventuallyEqual(self.rows, [(folder, True)])
        self.assertEventuallyEqual(self.published, [folder])
        self.assertFolders([folder], [1])
        self.assertStays(self.suite.bytes())

    def test_a_cancelled_chooser_changes_nothing(self):
        folder = self.make_folder_of("a")
        for rows, values in (([], {}), ([(folder, False)], {"foldersArray": [folder], "foldersArraystate": [0],
                                                            "allBookmark": BOOKMARKS})):
            with self.subTest(**values):
                self.suite.write(**values)
                self.start()
                self.assertStored(**values, menuArrayDic=record())
                before = self.suite.bytes()
                self.hands.click(self.window.find("push button", "Add Folder…").extents)
                self.panel.active_window(CHOOSER)
                self.hands.press("Escape")
                eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")

                self.assertStays(before)
                self.assertEqual(self.rows(), rows)
                self.panel.close()

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

    def test_a_typed_path_of_a_file_is_not_chosen(self):
        file = self.home.make_file("Report.pdf")
        self.start()
        before = self.suite.bytes()
        self.hands.click(self.window.find("push button", "Add Folder…").extents)
        chooser = self.panel.active_window(CHOOSER)
        enter_location(self.hands, chooser, file)

        eventually(lambda: chooser.find("label", f"“{file}” cannot be chosen."), "the words")
        throughout(lambda: self.panel.shows(CHOOSER), "the chooser stays", A_MOMENT)
        self.hands.press("Escape")
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")
        self.assertEqual(self.rows(), [])
        self.assertStays(before)

    def test_a_folder_that_is_listed_gives_the_notice_alone(self):
        folder = self.make_folder_of("Projects")
        self.start()
        self.accept_console_lines()
        self.add(folder)
        self.assertFolders([folder], [1], self.bookmarks(1))
        before = self.suite.bytes()
        self.add(folder)

        notice = self.alert(DUPLICATE)
        self.save_picture("folders-duplicate")
        self.assertStays(before)
        self.hands.click(notice.find("push button", "OK").extents)
        eventually(self.noAlert, "the notice to go")
        self.assertEqual(self.rows(), [(folder, True)])
        self.assertStays(before)

    def test_removing_asks_and_ok_removes_that_row(self):
        folders = [self.make_folder_of(name) for name in ("a", "b", "c")]
        self.store(folders, [1, 0, 1], BOOKMARKS)
        self.start()
        self.assertFolders(folders, [1, 0, 1], BOOKMARKS)
        before = self.suite.bytes()
        self.select(folders[1])

        question = self.ask_to_remove()
        self.save_picture("folders-remove")
        self.assertStays(before)
        self.hands.click(question.find("push button", "OK").extents)
        self.assertEventuallyEqual(self.rows, [(folders[0], True), (folders[2], True)])
        self.assertFolders([folders[0], folders[2]], [1, 1], BOOKMARKS)
        self.assertStays(self.suite.bytes())
        self.assertTrue(self.noAlert())

    def test_when_the_last_folder_is_removed_empty_lists_and_the_bookmarks_are_left(self):
        folder = self.make_folder_of("a")
        self.store([folder], [1], BOOKMARKS)
        self.start()
        self.remove(folder)

        self.assertFolders([], [], BOOKMARKS)
        self.assertEqual(self.rows(), [])

    def test_removing_makes_no_bookmarks_where_there_were_none(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.suite.write(foldersArray=folders, foldersArraystate=[0, 1])
        self.start()
        self.remove(folders[1])

        self.assertFolders(folders[:1], [0])

    def test_cancel_removes_nothing(self):
        folder = self.make_folder_of("a")
        self.store([folder], [1], BOOKMARKS)
        for answer in ("Cancel", "Escape"):
            with self.subTest(answer=answer):
                self.start()
                self.assertFolders([folder], [1], BOOKMARKS)
                before = self.suite.bytes()
                self.select(folder)
                question = self.ask_to_remove()
                if answer == "Cancel":
                    self.hands.click(question.find("push button", "Cancel").extents)
                else:
                    self.hands.press("Escape")
                eventually(self.noAlert, "the question to go")
                self.assertStays(before)
                self.assertEqual(self.rows(), [(folder, True)])
                self.panel.close()

    def test_removing_is_off_without_a_selection(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.store(folders, [1, 1], BOOKMARKS)
        self.start()
        remove = self.window.find("push button", "Remove Folder…")
        self.assertFalse(remove.has("enabled"))
        self.select(folders[0])
        self.assertTrue(remove.has("enabled"))
        self.hands.click(self.ask_to_remove().find("push button", "OK").extents)
        self.assertEventuallyEqual(self.rows, [(folders[1], True)])
        eventually(lambda: self.window.focused().name == folders[1], "the row that follows to have the keyboard")
        self.assertTrue(remove.has("enabled"))
        self.hands.press("Delete")
        self.alert(QUESTION)
        self.hands.press("Return")
        self.assertEventuallyEqual(self.rows, [])
        eventually(lambda: not remove.has("enabled"), "the button to be off")

    def test_removing_with_nothing_selected_asks_nothing(self):
        folder = self.make_folder_of("a")
        self.store([folder], [1], BOOKMARKS)
        self.start()
        self.assertFolders([folder], [1], BOOKMARKS)
        before = self.suite.bytes()
        self.hands.click(self.window.find("push button", "Remove Folder…").extents)

        throughout(self.noAlert, "no question is asked", A_MOMENT)
        self.assertStays(before)
        self.assertEqual(self.rows(), [(folder, True)])

    def test_a_folder_is_removed_by_the_keyboard_alone(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.store(folders, [1, 1], BOOKMARKS)
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
        self.assertFolders(folders[:1], [1], BOOKMARKS)

    def selected(self):
        return [row.name for row in self.window.all("list item") if row.has("selected")]

    def test_in_a_long_list_the_row_that_is_clicked_is_removed_and_then_those_at_the_end(self):
        folders = [f"/srv/{number:03}" for number in range(300)]
        self.store(folders, [1] * 300, BOOKMARKS)
        self.start()
        self.hands.scroll_down(self.window.find("list item", folders[3]).extents, 10)
        eventually(lambda: self.rows()[0][0] > folders[3], "the list to scroll")
        row = settled(self.rows)[4][0]
        self.select(row)
        self.assertEqual(self.selected(), [row])
        folders.remove(row)
        self.hands.press("Delete")
        self.alert(QUESTION)
        self.hands.press("Return")
        self.assertFolders(folders, [1] * len(folders), BOOKMARKS)

        self.hands.press("End")
        for _ in range(3):
            last = folders.pop()
            self.assertEventuallyEqual(self.selected, [last])
            self.hands.press("Delete")
            self.alert(QUESTION)
            self.hands.press("Return")
            self.assertFolders(folders, [1] * len(folders), BOOKMARKS)

    def test_a_click_on_the_checkbox_switches_that_folder_alone(self):
        folders = [self.make_folder_of(name) for name in ("a", "b", "c")]
        self.store(folders, [1, 0, 7], BOOKMARKS)
        self.start()
        self.assertEqual(self.rows(), [(folders[0], True), (folders[1], False), (folders[2], False)])

        for folder, flags in ((folders[0], [0, 0, 7]), (folders[1], [0, 1, 7]), (folders[2], [0, 1, 1])):
            self.hands.click(self.window.find("check box", folder).extents)
            self.assertFolders(folders, flags, BOOKMARKS)
        self.assertEventuallyEqual(lambda: [on for _, on in self.rows()], [False, True, True])
        self.assertStays(self.suite.bytes())

    def test_a_click_on_the_checkbox_makes_no_bookmarks_where_there_were_none(self):
        folder = self.make_folder_of("a")
        self.suite.write(foldersArray=[folder], foldersArraystate=[1])
        self.start()
        self.hands.click(self.window.find("check box", folder).extents)

        self.assertFolders([folder], [0])

    def test_delete_is_for_the_row_that_was_come_to_last(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.store(folders, [1, 1], BOOKMARKS)
        self.start()
        self.select(folders[1])
        self.hands.click(self.window.find("check box", folders[0]).extents)
        self.assertFolders(folders, [0, 1], BOOKMARKS)
        self.hands.press("Delete")
        self.alert(QUESTION)
        self.hands.press("Return")

        self.assertEventuallyEqual(self.rows, [(folders[1], True)])
        self.assertFolders(folders[1:], [1], BOOKMARKS)

    def test_behind_a_sheet_a_screen_reader_operates_nothing(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.store(folders, [1, 1], BOOKMARKS)
        self.start()
        self.assertFolders(folders, [1, 1], BOOKMARKS)
        before = self.suite.bytes()
        self.select(folders[0])
        remove = self.window.find("push button", "Remove Folder…")
        add = self.window.find("push button", "Add Folder…")
        box = self.window.find("check box", folders[1])
        remove.act("Press")
        self.alert(QUESTION)
        for control, action in ((remove, "Press"), (add, "Press"), (box, "Toggle")):
            control.act(action)

        throughout(lambda: len(self.panel.windows()) == 2, "there is one sheet", A_MOMENT)
        self.assertStays(before)
        self.hands.press("Escape")
        eventually(self.noAlert, "the question to go")
        self.assertEqual(self.rows(), [(folder, True) for folder in folders])
        self.assertStays(before)

    def test_what_another_program_stores_is_not_shown_on_coming_back_but_by_the_next_start(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.store(folders[:1], [1], BOOKMARKS)
        self.start()
        self.go_to_another_tab()
        self.suite.write(**{**self.suite.read(), "foldersArray": folders, "foldersArraystate": [0, 1]})
        theirs = self.suite.bytes()
        self.open_tab()

        throughout(lambda: self.rows() == [(folders[0], True)], "the list stays as it was", A_MOMENT)
        self.assertStays(theirs)
        self.panel.close()
        self.start()
        self.assertEqual(self.rows(), [(folders[0], False), (folders[1], True)])

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
        former = self.bookmarks(2)
        self.assertFolders(folders[:2], [1, 1], former)
        self.panel.close()

        self.start()
        self.assertFolders(folders[:2], [1, 1], former)
        self.accept_console_lines()
        self.add(folders[2])
        latter = self.bookmarks(1)
        self.assertNotIn(latter[0], former)
        self.assertFolders(folders, [1, 1, 1], latter)

    def test_a_stored_list_of_another_kind_stops_the_panel(self):
        for values in ({"foldersArray": ["/a", 1]}, {"foldersArray": "/a"}, {"foldersArraystate": ["1"]}):
            with self.subTest(**values):
                self.suite.write(**values)
                panel = self.start_panel()
                window = panel.main_window()
                self.hands.click(window.find("page tab", "Folders").extents)
                self.assertAborted(panel, next(iter(values)))


class Publishing(FoldersTestCase):
    """The set of folders on the bus, for the companion and whoever else wants to know."""

    def watch(self):
        self.broadcasts = Broadcasts(self.bus.address)
        self.addCleanup(self.broadcasts.close)

    def address(self, name):
        return f"file://{self.home.files}/{name}"

    def assertNothingIsBroadcast(self):
        throughout(lambda: self.broadcasts.signals() == 0, "nothing is broadcast", A_MOMENT)

    def test_the_set_of_folders_is_broadcast_and_stays_readable(self):
        folders = [self.make_folder_of(name) for name in ("ä b", "plain")]
        self.watch()
        self.suite.write(foldersArray=folders[:1], foldersArraystate=[0])
        self.start()
        self.accept_console_lines()
        self.add(folders[1])
        # In the order of the paths' bytes.
        addresses = [self.address("plain"), self.address("%C3%A4%20b")]
        self.assertEventuallyEqual(self.broadcasts.sets, [addresses])

        read = subprocess.run(
            ["gdbus", "call", "--session", "--dest", APPLICATION, "--object-path",
             "/com/orvikstudio/FinderSync", "--method", "org.freedesktop.DBus.Properties.Get",
             "com.orvikstudio.FinderSync", "directoryURLs"],
            env={**self.environment, "PATH": "/usr/bin:/bin"}, capture_output=True, text=True, check=True, timeout=20)
        listed = ", ".join(f"'{address}'" for address in addresses)
        self.assertEqual(read.stdout, f"(<[{listed}]>,)\n")

    def test_every_removal_broadcasts_the_smaller_set(self):
        folders = [self.make_folder_of(name) for name in ("a", "b", "c")]
        self.store(folders, [1, 0, 1], BOOKMARKS)
        self.watch()
        self.start()

        sets = []
        for gone, left in (("b", "ac"), ("a", "c"), ("c", "")):
            self.remove(os.path.join(self.home.files, gone))
            sets.append([self.address(name) for name in left])
            self.assertEventuallyEqual(self.broadcasts.sets, sets)
            self.assertEqual(self.published(), [os.path.join(self.home.files, name) for name in left])

    def test_neither_the_start_nor_a_switch_nor_a_cancelled_removal_broadcasts_anything(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.store(folders, [1, 1], BOOKMARKS)
        self.watch()
        self.start()
        self.assertNothingIsBroadcast()
        self.hands.click(self.window.find("check box", folders[0]).extents)
        self.assertFolders(folders, [0, 1], BOOKMARKS)
        self.assertNothingIsBroadcast()
        self.select(folders[0])
        self.ask_to_remove()
        self.hands.press("Escape")
        eventually(self.noAlert, "the question to go")
        self.assertNothingIsBroadcast()

        # It would have been seen.
        self.remove(folders[0])
        self.assertEventuallyEqual(self.broadcasts.sets, [[self.address("b")]])


class Drops(FoldersTestCase):
    """Folders that are dragged from another program."""

    def page(self):
        """Where the page is, from its upper edge to its button for adding."""
        window, button = self.window.extents, self.window.find("push button", "Add Folder…").extents
        tab = self.window.find("page tab", "Folders").extents
        top = tab.y + tab.height + 2
        return window._replace(y=top, height=button.y - top)

    def drag_here(self, *addresses):
        """Drags what has these addresses over the page, lets it go there, and closes the other program."""
        source = processes.start([sys.executable, "-B", drag_source.__file__, *addresses], env=self.environment)
        self.addCleanup(processes.end, source)
        window = eventually(lambda: self.windows.of_process(source.pid), "the window to drag from")[0]
        own, = self.windows.of_process(self.panel.process_id)
        self.hands.place(own, 0, 0)
        self.hands.place(window, 900, 700)
        start = settled(lambda: self.windows.place(window))
        target = settled(self.page)

        # Nothing of what is dragged is to be seen there.
        def edge():
            return self.display.picture_of(target._replace(height=12))

        without = settled(edge)
        self.hands.press_button(start)
        # Between them there is a way, as a person's hand makes it.
        for step in range(10):
            self.hands.move_to(start._replace(x=start.x - 20 * step))

        def is_shown_to_be_taken():
            for way in (6, 0):
                self.hands.move_to(target._replace(x=target.x + way))
            return edge() != without

        eventually(is_shown_to_be_taken, "the list to show that it takes it")
        self.save_picture("folders-drag")
        self.hands.let_button_go()
        eventually(lambda: edge() == without, "the list to show that it was let go")
        processes.end(source)

    @staticmethod
    def address(path):
        return "file://" + urllib.parse.quote(path)

    def test_dropped_folders_take_the_way_of_chosen_ones(self):
        folders = [self.make_folder_of(name) for name in ("Projects", "Reports ä")]
        self.start()
        self.accept_console_lines()
        self.drag_here(*map(self.address, folders))

        self.assertEventuallyEqual(self.rows, [(folder, True) for folder in folders])
        self.assertFolders(folders, [1, 1], self.bookmarks(2))
        told = "[" + ", ".join(map(self.address, folders)) + "]\n"
        self.assertEventuallyEqual(self.panel.standard_output, told.encode())
        self.assertTrue(self.noAlert())

    def test_a_folder_that_is_listed_gives_the_notice_and_the_others_are_added(self):
        folders = [self.make_folder_of(name) for name in ("a", "b")]
        self.store(folders[:1], [0], BOOKMARKS)
        self.start()
        self.accept_console_lines()
        self.drag_here(*map(self.address, folders))

        self.alert(DUPLICATE)
        self.hands.press("Return")
        eventually(self.noAlert, "the notice to go")
        self.assertEqual(self.rows(), [(folders[0], False), (folders[1], True)])

    def test_what_is_no_folder_here_is_refused_in_words(self):
        file = self.home.make_file("Report.pdf")
        odd = self.home.folder.encode() + b"/caf\xe9"
        os.mkdir(odd)
        self.start()
        before = self.suite.bytes()
        refusals = {
            self.address(file): f"“{file}” cannot be added: it is not a folder.",
            "sftp://elsewhere/home": "“sftp://elsewhere/home” cannot be added: it is not a folder of this computer.",
            "file://" + urllib.parse.quote(odd): "cannot be stored as text",
        }
        for address, words in refusals.items():
            with self.subTest(address=address):
                self.drag_here(address)

                alert = eventually(lambda: next((window for window in self.panel.windows() if words in window.name), None),
                                   "the words")
                self.save_picture("folders-drop-refused")
                self.hands.click(alert.find("push button", "OK").extents)
                eventually(self.noAlert, "the alert to go")
                self.assertEqual(self.rows(), [])
                self.assertStays(before)


class Names(FoldersTestCase):
    """Folders whose names are hard to show, store or tell."""

    def test_names_are_shown_stored_and_told_without_loss(self):
        names = ["sp ace", "quo'te\"", "new\nline", unicodedata.normalize("NFD", "é"), "日本", "a" * 255]
        folders = [self.make_folder_of(name) for name in names]
        folders.append(path_of(LONGEST_PATH))
        self.suite.write(foldersArray=folders, foldersArraystate=[1] * len(folders))
        self.start()

        self.assertEqual([name for name, _ in self.rows()], folders)
        self.hands.click(self.window.find("check box", folders[2]).extents)
        self.assertFolders(folders, [1, 1, 0, 1, 1, 1, 1])

        added = self.make_folder_of("added last")
        self.accept_console_lines()
        self.add(added)
        self.assertFolders([*folders, added], [1, 1, 0, 1, 1, 1, 1, 1], self.bookmarks(1))
        self.assertCountEqual(self.published(), [*folders, added])

    def test_a_path_that_is_longer_than_any_can_be_loses_nothing(self):
        folder = self.make_folder_of("a")
        longer = path_of(LONGEST_PATH + 1)
        self.store([longer, folder], [1, 1], BOOKMARKS)
        self.start()
        self.assertEqual(self.rows(), [(longer, True), (folder, True)])
        self.hands.move_to(self.window.find("list item", longer).extents)

        def tip():
            # It may be broken between any two characters.
            return any(found.role == "tool tip" and found.name.replace("\u200b", "") == longer
                       for window in self.panel.windows() for found in [window, *window.descendants()])

        eventually(tip, "the tool tip")
        self.hands.click(self.window.find("check box", longer).extents)
        self.assertFolders([longer, folder], [0, 1], BOOKMARKS)
        self.remove(folder)
        self.assertFolders([longer], [0], BOOKMARKS)
        self.assertEventuallyEqual(self.published, [longer])

    def test_both_forms_of_a_letter_are_the_same_folder(self):
        self.suite.write(foldersArray=[os.path.join(self.home.files, unicodedata.normalize("NFD", "Café"))],
                         foldersArraystate=[1])
        folder = self.make_folder_of("Café")
        self.start()
        before = self.suite.bytes()
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
        self.assertStays(before)
        self.assertTrue(os.path.isdir(folder))

    def test_a_name_that_is_no_text_is_refused_before_anything_is_written(self):
        os.mkdir(os.path.join(os.fsencode(self.home.files), b"caf\xe9"))
        self.start()
        before = self.suite.bytes()
        self.hands.click(self.window.find("push button", "Add Folder…").extents)
        chooser = self.panel.active_window(CHOOSER)
        go_to(self.hands, chooser, self.home.files)
        self.hands.press("Down")
        self.hands.click(chooser.find("push button", CHOOSER).extents)

        words = eventually(
            lambda: next(label.name for label in chooser.all("label") if "cannot be stored" in label.name), "the words")
        self.assertIn("caf", words)
        self.save_picture("folders-refused")
        self.assertStays(before)
        self.hands.press("Escape")
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")
        self.assertEqual(self.rows(), [])


if __name__ == "__main__":
    unittest.main()
