"""The panel on a console whose other end has gone, as with a terminal that was closed."""

import os
import sys
import unittest

from support.case import DesktopTestCase
from support.folders import choose
from support.waiting import eventually

# Runs a program with both outputs closed at the other end.
CLOSED_CONSOLE = (sys.executable, "-c", """
import os, signal, sys
reading, writing = os.pipe()
os.close(reading)
os.dup2(writing, 1)
os.dup2(writing, 2)
signal.signal(signal.SIGPIPE, signal.SIG_DFL)
os.execv(sys.argv[1], sys.argv[1:])
""")


class ClosedConsole(DesktopTestCase):
    def test_a_folder_that_is_told_there_is_added_all_the_same(self):
        folder = os.path.join(self.home.files, "Projects")
        os.mkdir(folder)
        panel = self.start_panel(wrapper=CLOSED_CONSOLE)
        window = panel.main_window()
        self.hands.click(window.find("page tab", "Folders").extents)
        self.hands.click(eventually(lambda: window.find("push button", "Add Folder…"), "the folders' tab").extents)
        choose(self.hands, panel, folder)

        eventually(lambda: window.find("list item", folder), "the folder's row")
        self.assertEventuallyEqual(lambda: self.suite.read().get("foldersArray"), [folder])
        self.assertEventuallyEqual(lambda: len(self.suite.read().get("allBookmark", [])), 1)
        self.assertTrue(panel.is_running())


if __name__ == "__main__":
    unittest.main()
