"""The panel that is started only to send an item by mail."""

import signal
import unittest

from support.case import DesktopTestCase
from support.panel import CHOOSER, MAIN_WINDOW
from support.suite import record, seconds_ago
from support.waiting import eventually

MESSAGE = "Please select the file that you want to send via email to allow sending"


class MailAtLaunch(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.messages = self.start_portal()
        self.path = self.home.make_file("Report.pdf", b"%PDF\0\xff")
        self.home.make_file("Another.pdf")

    def start_with_request(self, **values):
        self.suite.write_request(self.path, **values)
        self.panel = self.start_panel()
        return self.panel.chooser()

    def pending_keys(self):
        """The request's keys that other programs still see."""
        answer = self.run_tool("orvik-defaults", "read", "suite").stdout
        return [key for key in (b"mailAttachPath", b"AttachClickedDate") if key in answer]

    def test_the_item_is_proposed_in_a_chooser_and_there_is_no_other_window(self):
        chooser = self.start_with_request()

        self.assertEqual([window.name for window in self.panel.windows()], [CHOOSER])
        self.assertEqual(chooser.find("label", MESSAGE).name, MESSAGE)
        self.assertTrue(chooser.find("tree item", "Report.pdf").has("selected"))
        self.assertFalse(chooser.find("tree item", "Another.pdf").has("selected"))
        self.assertTrue(chooser.find("push button", CHOOSER).has("enabled"))
        self.save_picture("attach-to-mail")

    def test_the_request_is_taken_away_before_the_person_is_asked(self):
        chooser = self.start_with_request(theirs="stays", menuArrayDic=record(1))

        eventually(lambda: not self.pending_keys(), "the request to be taken away", within=1.5)
        self.assertStored(theirs="stays", menuArrayDic=record(1))
        self.assertTrue(chooser.has("showing"))
        self.assertEqual(self.messages.all(), [])

    def test_the_confirmed_item_reaches_the_mail_program_and_the_process_waits_for_it(self):
        chooser = self.start_with_request()

        self.hands.click(chooser.find("push button", CHOOSER).extents)

        message = self.messages.only()
        self.assertEqual(message.attachments, [b"%PDF\0\xff"])
        self.assertEqual(message.names, [self.path.encode()])
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")
        self.assertTrue(self.panel.is_running())
        self.assertEqual(self.panel.windows(), [])

    def test_another_item_than_the_proposed_one_can_be_sent(self):
        self.home.make_file("Zebra.png", b"stripes")
        self.start_with_request()

        self.hands.press("Down", "Return")

        self.assertEqual(self.messages.only().attachments, [b"stripes"])

    def test_escape_ends_the_process_at_once(self):
        self.start_with_request()

        self.hands.press("Escape")

        self.assertEqual(self.panel.wait_for_end(within=5), 0)
        self.assertEqual(self.messages.all(), [])

    def test_the_cancel_button_ends_the_process_at_once(self):
        chooser = self.start_with_request()

        self.hands.click(chooser.find("push button", "Cancel").extents)

        self.assertEqual(self.panel.wait_for_end(within=5), 0)
        self.assertEqual(self.messages.all(), [])

    def test_closing_the_chooser_is_cancelling(self):
        self.start_with_request()

        self.hands.press("alt+F4")

        self.assertEqual(self.panel.wait_for_end(within=5), 0)
        self.assertEqual(self.messages.all(), [])

    def test_the_signals_that_ask_to_end_do_so_without_the_panel_coming_up(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number):
                self.become_someone_new()
                self.suite.write_request(self.path, theirs="stays")
                self.panel = self.start_panel()
                self.panel.chooser()

                self.panel.send(number)

                self.assertEqual(self.panel.wait_for_end(), 0)
                # The panel's window would have stored its record of the actions.
                self.assertStored(0, theirs="stays")
                self.assertEqual(self.messages.all(), [])

    def test_a_date_in_the_future_is_fresh(self):
        self.assertTrue(self.start_with_request(seconds_old=-60))

    def test_a_request_of_nearly_twenty_seconds_is_fresh(self):
        # The file holds whole seconds, and the panel has to start.
        self.assertTrue(self.start_with_request(seconds_old=16))

    def test_a_request_that_is_stale_or_malformed_is_taken_away_and_the_panel_starts(self):
        requests = [
            {"mailAttachPath": self.path, "AttachClickedDate": seconds_ago(25)},
            {"mailAttachPath": self.path, "AttachClickedDate": seconds_ago(20)},
            {"mailAttachPath": 5, "AttachClickedDate": seconds_ago(0)},
            {"mailAttachPath": [self.path], "AttachClickedDate": seconds_ago(0)},
            {"mailAttachPath": self.path, "AttachClickedDate": seconds_ago(0).isoformat()},
            {"mailAttachPath": self.path, "AttachClickedDate": True},
            {"mailAttachPath": self.path},
            {"AttachClickedDate": seconds_ago(0)},
        ]
        for request in requests:
            with self.subTest(request=request):
                self.become_someone_new()
                self.suite.write(theirs=True, **request)
                panel = self.start_panel()
                panel.main_window()

                self.assertStored(theirs=True, menuArrayDic=record())
                self.assertEqual([window.name for window in panel.windows()], [MAIN_WINDOW])
                panel.close()


if __name__ == "__main__":
    unittest.main()
