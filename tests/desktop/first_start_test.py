"""The first start with the tabs: of a person who has changed nothing yet."""

import os
import re
import unittest

from support.case import DesktopTestCase
from support.deployment import APPLICATION, SUITE
from support.suite import TITLES, SettingsFile, record


class FirstStart(DesktopTestCase):
    def test_the_window_lists_every_action_in_order_and_each_is_on(self):
        window = self.start_panel().main_window()

        self.assertEqual(window.find("page tab").name, "Menu Items")
        self.assertEqual([row.name for row in window.all("list item")], TITLES)
        boxes = window.all("check box")
        self.assertEqual([box.name for box in boxes], TITLES)
        self.assertEqual([box.has("checked") for box in boxes], [True] * len(TITLES))
        self.save_picture("menu-items")

    def test_it_is_drawn_without_a_graphics_driver(self):
        panel = self.start_panel()
        panel.main_window()

        with open(f"/proc/{panel.process_id}/maps", encoding="utf-8") as maps:
            libraries = {os.path.basename(line.split()[-1]) for line in maps if "/" in line}
        self.assertIn("Qt6Widgets", "".join(libraries))
        self.assertEqual([name for name in libraries if re.search("EGL_|LLVM|_dri", name)], [])

    def test_the_record_is_made_with_every_action_on_and_nothing_else(self):
        self.start_panel().main_window()

        self.assertStored(menuArrayDic=record())

    def test_without_the_variable_the_settings_lie_in_the_usual_folder(self):
        usual = os.path.join(self.home.folder, ".config")
        SettingsFile(usual, APPLICATION).write(firstRun=True)
        self.start_panel(without=["XDG_CONFIG_HOME"]).main_window()

        self.assertEventuallyEqual(SettingsFile(usual, SUITE).exists, True)
        self.assertFalse(self.suite.exists())


if __name__ == "__main__":
    unittest.main()
