"""The menu in Nemo."""

import os
import unittest

from support.file_manager_cases import FileManagerCases, FileManagerTestCase, IconCases
from support.real_file_managers import Nemo
from support.recorder import Call, install_recorder


class InNemo(FileManagerCases, IconCases, FileManagerTestCase):
    file_manager = Nemo
    desktop = "X-Cinnamon"

    def test_a_terminal_opens_in_the_folder_of_the_item(self):
        opened = install_recorder(self.home, "xdg-terminal-exec")
        self.start()

        self.running.select(self.letter())
        self.running.menu().choose("Open Terminal")
        self.assertEventuallyEqual(opened, [Call(os.fsencode(self.work), [])])

    def test_an_item_is_hidden(self):
        self.start()
        self.running.select(self.letter())

        self.running.menu().choose("Hide / Unhide item")
        self.assertEventuallyEqual(self.hidden, b"letter.txt\n")
        # The toolkit keeps the list for some seconds.
        self.running.wait_for_status(r"^0 items", "ctrl+r")

    def hidden(self):
        with open(os.path.join(self.work, ".hidden"), "rb") as file:
            return file.read()


if __name__ == "__main__":
    unittest.main()
