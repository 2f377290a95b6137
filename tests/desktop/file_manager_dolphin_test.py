"""The menu in Dolphin."""

import unittest

from support.file_manager_cases import FileManagerCases, FileManagerTestCase, IconCases
from support.real_file_managers import Dolphin
from support.mail import CommandMessages
from support.panel import MAIN_WINDOW
from support.waiting import eventually


class InDolphin(FileManagerCases, IconCases, FileManagerTestCase):
    file_manager = Dolphin
    desktop = "KDE"

    def test_the_settings_open(self):
        self.start()

        self.running.select(self.letter())
        self.running.menu().choose("Configure Orvik Menu Settings")
        eventually(lambda: self.windows.title(self.windows.active()) == MAIN_WINDOW, "the panel")

    def test_an_item_goes_to_the_mail_program(self):
        messages = CommandMessages(self.home.install_mail_command())
        self.start()
        with open(self.letter(), "wb") as file:
            file.write(b"Dear all")

        self.running.select(self.letter())
        self.running.menu().choose("Send via Mail")
        eventually(lambda: self.windows.title(self.windows.active()) == "Attach to Mail", "the chooser")
        self.hands.press("Return")
        self.assertEqual(messages.only().attachments, [b"Dear all"])


if __name__ == "__main__":
    unittest.main()
