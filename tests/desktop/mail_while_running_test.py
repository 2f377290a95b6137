"""Mail requests that reach a panel that is running."""

import datetime
import unittest

from support.case import DesktopTestCase
from support.deployment import EXTENSION
from support.panel import CHOOSER
from support.suite import record
from support.waiting import eventually, throughout

# How long is looked at what must not happen.
A_MOMENT = 0.7


class MailWhileRunning(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.messages = self.start_portal()
        self.panel = self.start_panel()
        self.window = self.panel.main_window()

    def request(self, path):
        """Leaves a request, as the extension does."""
        now = datetime.datetime.now(datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
        for key, kind, value in (("mailAttachPath", "-string", path), ("AttachClickedDate", "-date", now)):
            self.assertEqual(self.run_tool("orvik-defaults", "write", "suite", key, kind, value).returncode, 0)

    def notify(self, *sender):
        self.assertEqual(self.run_tool("orvik-notify", "AttachFileToMail", *sender).returncode, 0)

    def close_chooser(self, *keys):
        self.hands.press(*keys)
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")

    def assertNoChooser(self):
        throughout(lambda: not self.panel.shows(CHOOSER), "no chooser is shown", A_MOMENT)

    def test_the_confirmed_item_is_delivered_and_the_panel_stays(self):
        self.request(self.home.make_file("Invoice.txt", b"owed: much"))
        self.notify()
        self.assertTrue(self.panel.chooser().find("tree item", "Invoice.txt").has("selected"))
        self.close_chooser("Return")

        self.assertEqual(self.messages.only().attachments, [b"owed: much"])
        self.panel.main_window()
        self.hands.click(self.window.find("check box", "Open Terminal").extents)
        self.assertStored(menuArrayDic=record(0))

    def test_a_cancelled_item_is_not_sent_and_the_panel_stays(self):
        self.request(self.home.make_file("Invoice.txt"))
        self.notify()
        self.panel.chooser()
        self.close_chooser("Escape")

        self.assertStored(menuArrayDic=record())
        self.panel.main_window()
        self.assertEqual(self.messages.all(), [])

    def test_closing_the_chooser_leaves_the_panel_running(self):
        self.request(self.home.make_file("Invoice.txt"))
        self.notify()
        self.panel.chooser()
        self.close_chooser("alt+F4")

        self.panel.main_window()

    def test_two_notifications_for_one_request_give_one_chooser(self):
        self.request(self.home.make_file("Invoice.txt"))
        self.notify()
        self.notify()
        self.panel.chooser()
        self.close_chooser("Escape")

        self.assertNoChooser()

    def test_a_notification_without_a_request_shows_nothing(self):
        self.notify()

        self.assertNoChooser()

    def test_only_the_extension_is_listened_to(self):
        self.request(self.home.make_file("Invoice.txt"))
        for sender in ("com.example.somebody", EXTENSION.upper(), EXTENSION + ".more"):
            self.notify(sender)
        self.assertNoChooser()
        self.assertIn("mailAttachPath", self.suite.read())

        self.notify(EXTENSION)
        self.panel.chooser()

    def test_a_request_that_comes_while_the_chooser_is_open_is_handled_after_it(self):
        # Made beforehand, since the chooser lists its folder anew when something is made there.
        paths = [self.home.make_file("First.txt", b"first"), self.home.make_file("Second.txt", b"second")]
        self.request(paths[0])
        self.notify()
        first = self.panel.chooser()
        eventually(lambda: "mailAttachPath" not in self.suite.read(), "the first to be taken away")
        self.request(paths[1])
        self.notify()
        throughout(lambda: first.find("tree item", "First.txt").has("selected"), "the first is asked about", A_MOMENT)
        self.assertEqual(len(self.panel.windows()), 2)

        self.hands.press("Return")
        eventually(lambda: self.panel.chooser().find("tree item", "Second.txt").has("selected"),
                   "the second to be asked about")
        self.close_chooser("Return")

        eventually(lambda: len(self.messages.all()) == 2, "both messages")
        self.assertEqual([message.attachments for message in self.messages.all()], [[b"first"], [b"second"]])

    def test_the_main_window_is_blocked_while_the_chooser_is_open(self):
        # At the window's lower edge, where the chooser does not cover it.
        row = self.window.find("check box", "Add Folders").extents
        self.request(self.home.make_file("Invoice.txt"))
        self.notify()
        chooser = self.panel.chooser().extents
        self.assertGreater(row.y, chooser.y + chooser.height)
        in_front = self.windows.active()

        self.hands.click(row)
        eventually(lambda: self.windows.active() == in_front, "the chooser to have the keyboard")
        self.close_chooser("Escape")
        self.panel.main_window()
        self.hands.click(row)

        # Switched off by the second click alone.
        self.assertStored(menuArrayDic=record(15))

    def test_the_chooser_comes_to_a_window_that_is_iconified(self):
        number, = self.windows.of_process(self.panel.process_id)
        self.hands.iconify(number)
        eventually(lambda: self.windows.is_iconified(number), "the window to be iconified")
        self.request(self.home.make_file("Invoice.txt", b"owed: much"))
        self.notify()

        self.panel.chooser()
        self.close_chooser("Return")
        self.assertEqual(self.messages.only().attachments, [b"owed: much"])


if __name__ == "__main__":
    unittest.main()
