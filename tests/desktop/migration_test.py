"""The records of older versions, and the version that still keeps one."""

import os
import plistlib
import shutil
import unittest

from support.case import DesktopTestCase
from support.suite import TITLES, record

COUNT = len(TITLES)
ALL_ON = [1] * COUNT


class Migration(DesktopTestCase):
    def test_an_older_record_is_taken_over_once(self):
        # What was stored, what is stored of it, and the rows that come out off.
        cases = [
            ([1, 0, 1], [1, 0] + [1] * 14, [1]),
            ([0] * 15, [0] * 15 + [1], range(15)),
            ([0] * COUNT, ALL_ON, []),
            ([1, 0] * 8, ALL_ON, []),
            ([0] * (COUNT + 1), ALL_ON, []),
            ([0] * 100, ALL_ON, []),
            ([2, 1, -1], [2, 1, -1] + [1] * 13, [0, 2]),
            ([1.0, 0.0], [1, 0] + [1] * 14, [1]),
            ([], ALL_ON, []),
        ]
        for stored, kept, off in cases:
            with self.subTest(stored=stored):
                self.become_someone_new()
                self.suite.write(save14=stored, showmenuicon=True)
                panel = self.start_panel()
                window = panel.main_window()

                self.assertStored(save14=kept, menuArrayDic=record(*off), showmenuicon=True)
                self.assertEqual([box.has("checked") for box in window.all("check box")],
                                 [row not in off for row in range(COUNT)])
                panel.close()

    def test_an_older_record_beside_the_current_one_is_left_alone(self):
        for menu_items, expected in ((record(4), record(4)), ("not a list", record())):
            with self.subTest(menu_items=menu_items):
                self.suite.write(save14="whatever this is", menuArrayDic=menu_items)
                panel = self.start_panel()
                panel.main_window()

                self.assertStored(save14="whatever this is", menuArrayDic=expected)
                panel.close()

    def test_an_older_record_that_makes_no_sense_stops_the_panel_and_stays(self):
        for stored in ("1,0,1", 5, {"0": 1}, [1, "0"], [[1]], [1, b"1"]):
            with self.subTest(stored=stored):
                self.become_someone_new()
                self.suite.write(save14=stored, showmenuicon=True)
                before = self.suite.bytes()
                panel = self.start_panel()

                self.assertAborted(panel, "stored save14")
                self.assertEqual(self.suite.bytes(), before)


class Version(DesktopTestCase):
    """The panel's version, which is told by a file beside it."""

    def install(self, **information):
        """Another installation of the panel with this information; without any there is no such file."""
        root = self.make_folder()
        shutil.copytree(os.path.join(self.programs, "../share"), root + "/share")
        os.mkdir(root + "/bin")
        self.program = shutil.copy(os.path.join(self.programs, "orvik-menu"), root + "/bin")
        path = root + "/share/orvik-menu/Info.plist"
        with open(path, "rb") as file:
            original = plistlib.load(file)
        os.remove(path)
        if information:
            with open(path, "wb") as file:
                plistlib.dump({**original, **information}, file)

    def test_version_1_8_lists_nothing_and_keeps_the_older_record_alone(self):
        self.install(CFBundleShortVersionString="1.8")
        for stored, kept in (({}, ALL_ON),
                             ({"save14": [0, 1]}, ALL_ON),
                             ({"save14": [0, 1] * 8}, [0, 1] * 8),
                             ({"save14": [0] * 17}, ALL_ON),
                             ({"save14": "not a list"}, ALL_ON)):
            with self.subTest(stored=stored):
                self.become_someone_new()
                if stored:
                    self.suite.write(**stored)
                panel = self.start_panel(self.program)
                window = panel.main_window()

                self.assertStored(save14=kept)
                self.assertEqual(window.all("list item"), [])
                panel.close()

    def test_version_1_8_leaves_the_current_record_alone(self):
        self.install(CFBundleShortVersionString="1.8")
        self.suite.write(menuArrayDic=record(3), save14=ALL_ON)
        window = self.start_panel(self.program).main_window()

        self.assertStored(menuArrayDic=record(3), save14=ALL_ON)
        self.assertEqual(window.all("list item"), [])

    def test_no_other_version_is_taken_for_1_8(self):
        for version in ("1.80", "1.8.0", " 1.8", "1.7"):
            with self.subTest(version=version):
                self.become_someone_new()
                self.install(CFBundleShortVersionString=version)
                panel = self.start_panel(self.program)
                panel.main_window()

                self.assertStored(menuArrayDic=record())
                panel.close()

    def test_version_1_8_stops_at_a_flag_that_is_no_number(self):
        self.install(CFBundleShortVersionString="1.8")
        self.suite.write(save14=[1, "0"])
        before = self.suite.bytes()
        panel = self.start_panel(self.program)

        self.assertAborted(panel, "stored save14")
        self.assertEqual(self.suite.bytes(), before)

    def test_without_a_version_the_panel_stops(self):
        for information in ({}, {"CFBundleShortVersionString": 2}):
            with self.subTest(information=information):
                self.install(**information)
                panel = self.start_panel(self.program)

                self.assertAborted(panel, "version|information")
                self.assertFalse(self.suite.exists())


if __name__ == "__main__":
    unittest.main()
