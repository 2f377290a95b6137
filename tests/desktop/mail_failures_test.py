"""What a person is told when an item cannot be sent, and what can be done about one that takes long."""

import os
import signal
import socket
import stat
import time
import unittest

from support.case import DesktopTestCase
from support.mail import CommandMessages
from support.mounts import small_disk
from support.panel import CHOOSER, MAIN_WINDOW
from support.reading import Reader
from support.waiting import eventually, throughout

GIBIBYTE = 1 << 30
# How long is looked at what must not happen.
A_MOMENT = 0.7

FAILING_COMMAND = "#!/bin/sh\nexit 4\n"


class MailFailures(Reader, DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.home.files, "Photos")
        os.mkdir(self.folder)

    def make(self, name, contents=b"picture"):
        return self.home.make_file(os.path.join("Photos", name), contents)

    def make_huge_file(self):
        """It takes no room, and hours to pack."""
        os.truncate(self.make("huge"), 400 * GIBIBYTE)

    def install_command(self, text):
        path = os.path.join(self.home.programs, "xdg-email")
        with open(path, "w", encoding="ascii") as file:
            file.write(text)
        os.chmod(path, stat.S_IRWXU)

    def send(self, path, **options):
        """Starts a panel only to send the item, and confirms it."""
        self.suite.write_request(path)
        self.panel = self.start_panel(**options)
        self.panel.complaints()
        self.panel.chooser()
        # The process would stay for a while.
        self.addCleanup(self.panel.kill)
        self.hands.press("Return")
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")

    def alert(self):
        """The texts of the window that tells that the item was not sent."""
        def find():
            for window in self.panel.windows():
                if "was not sent" in window.name and window.has("active"):
                    return window
            raise LookupError([window.name for window in self.panel.windows()])

        window = eventually(find, "the alert")
        return window, window.texts()

    def assertNothingIsLeft(self):
        eventually(lambda: os.listdir(self.home.runtime) == [], "the archive to go")

    def test_an_archive_that_would_lack_something_is_not_sent_and_what_it_lacks_is_told(self):
        messages = self.start_portal()
        self.make("good.jpg")
        os.mkfifo(os.path.join(self.folder, "pipe"))
        with socket.socket(socket.AF_UNIX) as listener:
            listener.bind(os.path.join(self.folder, "socket"))
        for number in range(8):
            os.symlink("/nonexistent", os.path.join(self.folder, f"link{number}"))
        self.send(self.folder)

        window, texts = self.alert()

        self.assertEqual(texts, ["“Photos” was not sent.", "2 items in it cannot be packed:\n"
                                 "“pipe”: it is not a file\n“socket”: it is not a file"])
        self.assertEqual(self.windows.title(self.windows.active()), "Orvik Menu")
        self.save_picture("not-sent")
        self.assertEqual(messages.all(), [])
        self.hands.click(window.find("push button", "OK").extents)
        eventually(lambda: not self.panel.windows(), "the alert to go")
        self.assertTrue(self.panel.is_running())

    def test_a_full_disk_is_called_that(self):
        messages = self.start_portal()
        self.make("large.jpg", os.urandom(3_000_000))
        self.send(self.folder, wrapper=small_disk(self.home.runtime, "2m"))

        _, texts = self.alert()

        self.assertEqual(texts[0], "“Photos” was not sent.")
        self.assertIn("The disk is full", texts[1])
        self.assertEqual(messages.all(), [])

    def test_an_item_that_cannot_be_read_is_told(self):
        messages = self.start_portal()
        os.mkfifo(os.path.join(self.home.files, "Pipe"))
        self.send(os.path.join(self.home.files, "Pipe"))

        self.assertEqual(self.alert()[1], ["“Pipe” was not sent.", "It cannot be read: it is not a file"])
        self.assertEqual(messages.all(), [])

    def test_what_the_portal_could_not_do_goes_to_the_mail_command(self):
        self.start_portal()
        self.answer_mail(2)
        messages = CommandMessages(self.home.install_mail_command())
        self.send(self.make("good.jpg"))

        self.assertEqual(messages.only().attachments, [b"picture"])

    def test_what_the_person_cancelled_at_the_portal_goes_nowhere(self):
        self.start_portal()
        self.answer_mail(1)
        messages = CommandMessages(self.home.install_mail_command())
        self.send(self.make("good.jpg"))

        throughout(lambda: not self.panel.windows() and not messages.all(), "nothing happens", A_MOMENT)

    def test_an_item_that_nothing_takes_is_told(self):
        self.start_portal()
        self.answer_mail(2)
        for command in (None, FAILING_COMMAND):
            with self.subTest(command=command):
                if command:
                    self.install_command(command)
                self.send(self.make("good.jpg"))

                window, texts = self.alert()

                self.assertEqual(texts[0], "“good.jpg” was not sent.")
                self.assertIn("No mail program", texts[1])
                self.hands.press("Return")
                eventually(lambda: not self.panel.windows(), "the alert to go")
                self.panel.kill()

    def test_a_running_panel_tells_it_and_can_be_used_meanwhile(self):
        self.start_portal()
        self.answer_mail(2)
        self.panel = self.start_panel()
        self.panel.complaints()
        window = self.panel.main_window()
        self.suite.write_request(self.make("good.jpg"))
        self.run_tool("orvik-notify", "AttachFileToMail")
        self.panel.chooser()
        self.hands.press("Return")
        _, texts = self.alert()
        self.assertEqual(texts[0], "“good.jpg” was not sent.")

        self.hands.click(window.find("page tab", "About").extents)
        eventually(lambda: window.find("push button", "Web Site"), "the About page")

    def progress(self):
        def find():
            for window in self.panel.windows():
                if window.name.startswith("Preparing"):
                    return window
            raise LookupError([window.name for window in self.panel.windows()])

        return eventually(find, "the window that shows the progress")

    def test_a_folder_that_takes_long_is_shown_to_be_packed_and_can_be_cancelled(self):
        messages = self.start_portal()
        self.make_huge_file()
        self.send(self.folder)
        window = self.progress()
        self.assertEqual(window.name, "Preparing “Photos” for sending…")
        self.assertTrue(window.find("progress bar"))
        self.save_picture("preparing")
        self.assertReadsWell(window)
        self.assertNotIn(window.name, [found.name for found in window.descendants()])

        self.hands.press("Return")

        eventually(lambda: not self.panel.windows(), "the window to go")
        self.assertNothingIsLeft()
        throughout(lambda: not self.panel.windows() and not messages.all(), "nothing happens", A_MOMENT)

    def test_a_running_panel_can_be_used_while_it_packs_and_closed(self):
        self.start_portal()
        self.panel = self.start_panel()
        window = self.panel.main_window()
        self.make_huge_file()
        self.suite.write_request(self.folder)
        self.run_tool("orvik-notify", "AttachFileToMail")
        self.panel.chooser()
        self.hands.press("Return")
        self.progress()

        window.find("page tab", "About").act("Press")
        eventually(lambda: window.find("push button", "Web Site"), "the About page")
        self.hands.activate(next(number for number in self.windows.of_process(self.panel.process_id)
                                 if self.windows.size(number)[1] > 300))
        self.panel.active_window(MAIN_WINDOW)
        self.hands.press("alt+F4")

        self.assertEqual(self.panel.wait_for_end(within=5), 0)
        self.assertNothingIsLeft()

    def test_a_termination_signal_ends_the_packing_and_the_process(self):
        messages = self.start_portal()
        self.make_huge_file()
        self.send(self.folder)
        eventually(lambda: os.listdir(self.home.runtime), "the packing to begin")
        asked = time.monotonic()

        self.panel.send(signal.SIGTERM)

        self.assertEqual(self.panel.wait_for_end(within=10), 0)
        self.assertLess(time.monotonic() - asked, 5)
        self.assertNothingIsLeft()
        self.assertEqual(messages.all(), [])


if __name__ == "__main__":
    unittest.main()
