"""The ways in which the panel ends."""

import random
import signal
import time
import unittest

from support.case import DesktopTestCase
from support.deployment import APPLICATION
from support.suite import TITLES, record
from support.waiting import eventually


class Closing(DesktopTestCase):
    def start(self):
        self.panel = self.start_panel()
        self.window = self.panel.main_window()

    def test_each_way_of_closing_ends_the_process_well(self):
        for keys in ("ctrl+w", "ctrl+q", "alt+F4"):
            with self.subTest(keys=keys):
                self.start()
                self.hands.press(keys)

                self.assertEqual(self.panel.wait_for_end(within=5), 0)

    def test_the_menu_ends_the_process_well(self):
        for title in ("Close Window", "Quit Orvik Menu"):
            with self.subTest(title=title):
                self.start()
                self.hands.press("alt+o")
                item = eventually(lambda: self.menu_item(title), "the menu")
                self.hands.click(item.extents)

                self.assertEqual(self.panel.wait_for_end(within=5), 0)

    def menu_item(self, title):
        menus = [found for window in self.panel.windows() for found in window.descendants()]
        return next((found for found in menus if found.role == "menu item" and found.name == title), None)

    def test_the_signals_that_ask_to_end_do_so_well(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number):
                self.start()
                self.panel.send(number)

                self.assertEqual(self.panel.wait_for_end(within=5), 0)

    def test_what_was_switched_just_before_the_end_is_stored(self):
        self.start()
        box = self.window.find("check box", "Send via Mail")

        self.hands.click(box.extents)
        eventually(lambda: not box.has("checked"), "the row to be off")
        self.panel.send(signal.SIGTERM)
        self.panel.wait_for_end()

        self.assertStored(0, menuArrayDic=record(5))

    def test_the_end_gives_the_name_on_the_bus_back(self):
        self.start()
        self.assertTrue(self.bus.has_owner(APPLICATION))
        self.hands.press("ctrl+q")
        self.panel.wait_for_end()

        self.assertFalse(self.bus.has_owner(APPLICATION))

    def test_a_killed_panel_leaves_a_whole_file(self):
        others = {"theirs": "x" * 100_000}
        self.suite.write(**others)
        chance = random.Random(7)
        for _ in range(6):
            self.start()
            boxes = self.window.all("check box")
            deadline = time.monotonic() + chance.uniform(0.05, 0.3)
            while time.monotonic() < deadline:
                chance.choice(boxes).act("Toggle")
            self.panel.send(signal.SIGKILL)
            self.panel.wait_for_end()

            stored = self.suite.read()
            self.assertEqual([row["title"] for row in stored.pop("menuArrayDic")], TITLES)
            self.assertEqual(stored, others)


if __name__ == "__main__":
    unittest.main()
