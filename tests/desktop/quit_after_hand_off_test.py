"""The end of a process that was started only to send an item by mail."""

import os
import signal
import time
import unittest

from support import portal
from support.case import DesktopTestCase
from support.mail import CommandMessages
from support.panel import CHOOSER
from support.waiting import eventually, throughout


class QuitAfterHandOff(DesktopTestCase):
    def archives(self):
        return [os.path.join(folder, name) for folder, _, names in os.walk(self.home.runtime)
                for name in names if name.endswith(".zip")]

    def test_the_process_ends_twenty_seconds_after_the_hand_over_and_takes_the_archive_along(self):
        messages = self.start_portal()
        folder = os.path.join(self.home.files, "Photos")
        os.mkdir(folder)
        self.suite.write_request(folder)
        panel = self.start_panel()
        chooser = panel.chooser()
        # The time that the person takes does not count.
        time.sleep(2)
        self.assertTrue(chooser.has("showing"))
        self.hands.press("Return")
        eventually(lambda: not panel.shows(CHOOSER), "the chooser to go")
        handed_over = time.monotonic()
        messages.only()
        self.assertEqual(len(self.archives()), 1)

        self.assertEqual(panel.wait_for_end(within=25), 0)

        waited = time.monotonic() - handed_over
        self.assertGreater(waited, 19)
        self.assertLess(waited, 23)
        self.assertEqual(len(messages.all()), 1)
        self.assertEqual(self.archives(), [])

    def test_a_process_that_keeps_an_archive_for_the_mail_program_ends_when_it_is_asked_twice(self):
        messages = self.start_portal()
        folder = os.path.join(self.home.files, "Photos")
        os.mkdir(folder)
        self.suite.write_request(folder)
        panel = self.start_panel()
        panel.chooser()
        self.hands.press("Return")
        messages.only()
        panel.send(signal.SIGTERM)
        throughout(lambda: panel.is_running() and self.archives(), "the archive is kept", 1.0)

        panel.send(signal.SIGTERM)

        self.assertEqual(panel.wait_for_end(within=5), 0)
        self.assertEqual(self.archives(), [])

    def test_the_process_ends_after_twenty_seconds_whether_or_not_the_portal_answers(self):
        self.start_portal()
        self.answer_mail(portal.SILENCE)
        commands = CommandMessages(self.home.install_mail_command())
        self.suite.write_request(self.home.make_file("Report.pdf", b"report"))
        panel = self.start_panel()
        panel.chooser()
        self.hands.press("Return")
        eventually(lambda: not panel.shows(CHOOSER), "the chooser to go")
        handed_over = time.monotonic()

        self.assertEqual(panel.wait_for_end(within=25), 0)

        waited = time.monotonic() - handed_over
        self.assertGreater(waited, 19)
        self.assertLess(waited, 22)
        # Long before the end the portal was given up.
        self.assertEqual(commands.only().attachments, [b"report"])


if __name__ == "__main__":
    unittest.main()
