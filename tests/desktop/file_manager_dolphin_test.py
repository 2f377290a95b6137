"""The menu in Dolphin."""

import os
import unittest

from support.action_window import ActionDriver
from support.file_manager_cases import FileManagerCases, FileManagerTestCase, IconCases
from support.mail import CommandMessages
from support.notifications import Notifications
from support.panel import MAIN_WINDOW
from support.real_file_managers import Dolphin
from support.transfers import MOVE
from support.waiting import eventually


class InDolphin(FileManagerCases, IconCases, ActionDriver, FileManagerTestCase):
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

    def test_an_item_is_moved_to_a_custom_folder(self):
        notifications = Notifications(self)
        target = self.make_files("here")
        self.start(arrCustomFoldersUrls=[target])

        self.running.select(self.letter())
        self.running.menu().choose("Move to a folder", "here")
        self.wait_for_action(MOVE)
        told = notifications.only()
        self.assertEqual((told["title"], told["words"]), ("Moved", "“letter.txt” was moved to “here”."))
        self.assertEqual((os.path.exists(self.letter()), os.listdir(target)), (False, ["letter.txt"]))


if __name__ == "__main__":
    unittest.main()
