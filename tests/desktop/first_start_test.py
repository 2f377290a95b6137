"""The first start of a person who has never had the panel."""

import os
import stat
import unittest

from support.case import DesktopTestCase
from support.suite import TITLES, record


class FirstStart(DesktopTestCase):
    def test_the_window_lists_every_action_in_order_and_each_is_on(self):
        window = self.start_panel().main_window()

        self.assertEqual(window.find("page tab").name, "Menu Items")
        self.assertEqual([row.name for row in window.all("list item")], TITLES)
        boxes = window.all("check box")
        self.assertEqual([box.name for box in boxes], TITLES)
        self.assertEqual([box.has("checked") for box in boxes], [True] * len(TITLES))
        self.save_picture("menu-items")

    def test_the_record_is_made_with_every_action_on_and_nothing_else(self):
        self.start_panel().main_window()

        self.assertStored(menuArrayDic=record())

    def test_the_settings_are_their_owners_alone(self):
        # The widest umask, so that nothing is narrowed by chance.
        old = os.umask(0)
        self.addCleanup(os.umask, old)
        self.start_panel().main_window()

        self.assertEqual(stat.S_IMODE(os.stat(self.suite.path).st_mode), 0o600)
        self.assertEqual(stat.S_IMODE(os.stat(self.suite.folder).st_mode), 0o700)

    def test_a_person_without_a_configuration_folder_gets_one(self):
        os.rmdir(self.home.configuration)
        self.start_panel().main_window()

        self.assertStored(menuArrayDic=record())

    def test_without_the_variable_the_settings_lie_in_the_usual_folder(self):
        self.start_panel(without=["XDG_CONFIG_HOME"]).main_window()

        self.assertTrue(os.path.exists(os.path.join(self.home.folder, ".config/orvik-menu",
                                                    os.path.basename(self.suite.path))))
        self.assertFalse(self.suite.exists())


if __name__ == "__main__":
    unittest.main()
