"""Starting the panel while it runs already."""

import signal
import unittest

from support.case import DesktopTestCase
from support.deployment import APPLICATION
from support.panel import CHOOSER, MAIN_WINDOW
from support.suite import record, seconds_ago
from support.waiting import eventually


class SecondStart(DesktopTestCase):
    def start_first(self):
        self.first = self.start_panel()
        self.first.main_window()
        self.first_window, = self.windows.of_process(self.first.process_id)

    def start_second(self):
        """A second start, to its end."""
        second = self.start_panel()
        self.assertEqual(second.wait_for_end(), 0)
        self.assertTrue(self.first.is_running())

    def assertInFront(self, window):
        eventually(lambda: self.windows.active() == window, "the window to be active")
        self.assertEqual(self.windows.stacking()[-1], window)
        self.assertFalse(self.windows.is_iconified(window))

    def test_it_ends_and_an_iconified_window_comes_back(self):
        self.start_first()
        self.hands.iconify(self.first_window)
        eventually(lambda: self.windows.is_iconified(self.first_window), "the window to be iconified")

        self.start_second()

        self.assertInFront(self.first_window)
        self.first.main_window()

    def test_it_ends_and_a_covered_window_comes_to_the_front(self):
        self.start_first()
        # A panel without a bus is any other program to the first one.
        cover = self.start_panel(without=["DBUS_SESSION_BUS_ADDRESS"])
        self.wait_for_window(cover, MAIN_WINDOW)
        cover.complaints()
        self.assertNotEqual(self.windows.active(), self.first_window)

        self.start_second()

        self.assertInFront(self.first_window)

    def test_it_leaves_the_settings_alone(self):
        self.start_first()
        self.suite.write(menuArrayDic="changed meanwhile")
        before = self.suite.bytes()

        self.start_second()

        self.assertEqual(self.suite.bytes(), before)

    def test_a_waiting_mail_request_is_handled_by_the_first(self):
        messages = self.start_portal()
        self.start_first()
        path = self.home.make_file("Letter.txt", b"Dear all")
        stored = self.suite.read()
        self.suite.write(**stored, mailAttachPath=path, AttachClickedDate=seconds_ago(0))

        self.start_second()

        self.assertTrue(self.first.chooser().find("tree item", "Letter.txt").has("selected"))
        self.hands.press("Return")
        self.assertEqual(messages.only().attachments, [b"Dear all"])
        self.first.main_window()
        self.assertStored(menuArrayDic=record())

    def test_a_chooser_that_is_open_stays_in_front_of_its_window(self):
        self.start_first()
        self.suite.write(menuArrayDic=record(), mailAttachPath=self.home.make_file("Letter.txt"),
                         AttachClickedDate=seconds_ago(0))
        self.start_second()
        self.first.chooser()

        self.start_second()

        self.first.chooser()
        self.assertEqual(len(self.first.windows()), 2)

    def open_folders(self):
        window = self.first.main_window()
        self.hands.click(window.find("page tab", "Folders").extents)
        return eventually(lambda: window.find("push button", "Add Folder…"), "the folders") and window

    def cover(self):
        """Another program's window takes the keyboard."""
        # A panel without a bus is any other program to the first one.
        cover = self.start_panel(without=["DBUS_SESSION_BUS_ADDRESS"])
        self.wait_for_window(cover, MAIN_WINDOW)
        cover.complaints()

    def assertSheetIsInFrontAndEndsByEscape(self, window, find):
        for hide in (self.cover, lambda: self.hands.iconify(self.first_window)):
            hide()
            self.start_second()
            eventually(lambda: find().has("active"), "the sheet to have the keyboard")
            self.assertFalse(self.windows.is_iconified(self.first_window))
            self.assertIn(self.windows.active(), self.windows.of_process(self.first.process_id))
            self.assertNotEqual(self.windows.active(), self.first_window)
        self.hands.press("Escape")
        eventually(lambda: len(self.first.windows()) == 1, "the sheet to go")
        eventually(lambda: window.has("active"), "the window to have the keyboard")
        self.hands.press("ctrl+q")
        self.assertEqual(self.first.wait_for_end(), 0)

    def test_a_chooser_that_blocks_its_window_is_brought_forward(self):
        self.start_first()
        window = self.open_folders()
        self.hands.click(window.find("push button", "Add Folder…").extents)
        self.first.active_window("Grant Access")

        self.assertSheetIsInFrontAndEndsByEscape(window, lambda: self.first.window("Grant Access"))

    def test_an_alert_is_brought_forward(self):
        self.suite.write(foldersArray=["/srv"], foldersArraystate=[1])
        self.start_first()
        window = self.open_folders()
        self.hands.click(eventually(lambda: window.find("list item", "/srv"), "the row").extents)
        self.hands.press("Delete")
        question = "Remove selected folder?"
        self.first.active_window(question)

        self.assertSheetIsInFrontAndEndsByEscape(window, lambda: self.first.window(question))

    def test_a_killed_panel_does_not_keep_the_next_from_starting(self):
        self.start_first()
        self.first.send(signal.SIGKILL)
        self.first.wait_for_end()

        self.start_first()

        self.assertTrue(self.bus.has_owner(APPLICATION))

    def test_two_that_start_at_once_end_up_as_one(self):
        for _ in range(5):
            both = [self.start_panel(), self.start_panel()]
            ended = eventually(lambda: [panel for panel in both if not panel.is_running()], "one of them to end")
            self.assertEqual([panel.wait_for_end() for panel in ended], [0])
            running, = [panel for panel in both if panel.is_running()]
            running.main_window()
            running.close()

    def test_a_process_that_only_hands_an_item_over_is_not_a_first_one(self):
        messages = self.start_portal()
        self.suite.write_request(self.home.make_file("Letter.txt", b"Dear all"))
        hand_off = self.start_panel()
        hand_off.chooser()
        self.assertFalse(self.bus.has_owner(APPLICATION))
        self.hands.press("Return")
        messages.only()
        eventually(lambda: not hand_off.shows(CHOOSER), "the chooser to go")
        self.assertTrue(hand_off.is_running())
        eventually(lambda: "mailAttachPath" not in self.suite.read(), "the request to be taken away")

        self.start_first()

        self.assertTrue(hand_off.is_running())
        self.assertEqual(hand_off.windows(), [])


if __name__ == "__main__":
    unittest.main()
