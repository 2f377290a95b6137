"""A desktop without a session bus, and so also without an accessibility bus."""

import os
import unittest

from support.case import DesktopTestCase
from support.mail import CommandMessages
from support.panel import CHOOSER, MAIN_WINDOW
from support.suite import record
from support.waiting import eventually


class NoSessionBusTestCase(DesktopTestCase):
    def start(self, title, **variables):
        self.panel = self.start_panel(without=["DBUS_SESSION_BUS_ADDRESS"], **variables)
        self.wait_for_window(self.panel, title)

    def assertComplainsOnce(self):
        complaint, = self.panel.complaints()
        self.assertRegex(complaint, "^orvik-menu: no session bus")


class NoSessionBus(NoSessionBusTestCase):
    def test_rows_are_switched_and_stored(self):
        self.start(MAIN_WINDOW)
        self.hands.press("Tab", "Tab", "Down", "Down", "space")
        self.assertStored(menuArrayDic=record(2))
        self.hands.press("Down", "space", "Up", "space")
        self.assertStored(menuArrayDic=record(3))

        self.hands.press("ctrl+q")
        self.assertEqual(self.panel.wait_for_end(), 0)
        self.assertComplainsOnce()

    def test_a_bus_that_has_gone_is_no_bus(self):
        self.panel = self.start_panel(DBUS_SESSION_BUS_ADDRESS=f"unix:path={self.home.runtime}/gone")
        self.wait_for_window(self.panel, MAIN_WINDOW)
        self.hands.press("Tab", "Tab", "space")

        self.assertStored(menuArrayDic=record(0))
        self.assertComplainsOnce()

    def test_two_panels_run_side_by_side(self):
        self.start(MAIN_WINDOW)
        first = self.panel
        self.start(MAIN_WINDOW)

        self.assertTrue(first.is_running())
        first.complaints()
        self.assertComplainsOnce()

    def test_an_item_is_sent_by_the_mail_command(self):
        messages = CommandMessages(self.home.install_mail_command())
        self.suite.write_request(self.home.make_file("a", b"contents"))
        self.start(CHOOSER)

        def is_confirmed():
            # Not before the list has been read, which nothing tells of here.
            if self.windows.title(self.windows.active()).startswith(CHOOSER):
                self.hands.press("Return")
            return messages.all()

        eventually(is_confirmed, "the mail command")
        self.assertEqual(messages.only().attachments, [b"contents"])
        self.assertComplainsOnce()


class NoBusIsStarted(NoSessionBusTestCase):
    """On a display of its own: a bus that is started is shared by all the programs of a display."""

    def test_the_panel_makes_do_without(self):
        self.start(MAIN_WINDOW)
        self.hands.press("ctrl+q")
        self.assertEqual(self.panel.wait_for_end(), 0)

        self.assertComplainsOnce()
        # Where the program that starts buses for others writes down what it has started.
        self.assertFalse(os.path.exists(os.path.join(self.home.folder, ".dbus")))


if __name__ == "__main__":
    unittest.main()
