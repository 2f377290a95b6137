"""Settings that cannot be read or written."""

import os
import shutil
import unittest

from support.case import DesktopTestCase
from support.suite import TITLES, record
from support.waiting import throughout

# Takes from root what lets it read and write everything, so that it meets what anybody else meets.
WITHOUT_PRIVILEGES = ([shutil.which("setpriv"), "--bounding-set=-dac_override,-dac_read_search"]
                      if os.geteuid() == 0 else [])


class UnwritableSettings(DesktopTestCase):
    def forbid(self, path, mode):
        old = os.stat(path).st_mode
        os.chmod(path, mode)
        self.addCleanup(os.chmod, path, old)

    def start(self):
        self.panel = self.start_panel(wrapper=WITHOUT_PRIVILEGES)
        # That the panel says something is its own affair; what it says is told apart below.
        self.panel.complaints()
        self.window = self.panel.main_window()

    def states(self):
        return [box.has("checked") for box in self.window.all("check box")]

    def assertWorksInMemory(self, states):
        """The rows are in these states and can be switched; the panel goes on, and ends well."""
        self.assertEqual(self.states(), states)
        box = self.window.find("check box", TITLES[4])
        self.hands.click(box.extents)
        expected = [*states[:4], not states[4], *states[5:]]
        self.assertEventuallyEqual(self.states, expected)
        self.hands.click(self.window.find("check box", TITLES[6]).extents)
        expected[6] = not expected[6]
        self.assertEventuallyEqual(self.states, expected)

        throughout(self.panel.is_running, "the panel runs", 0.3)
        self.hands.press("ctrl+q")
        self.assertEqual(self.panel.wait_for_end(), 0)
        self.assertTrue(all(line.startswith("orvik-menu: ") for line in self.panel.complaints()),
                        self.panel.complaints())

    def test_a_settings_folder_that_cannot_be_written(self):
        self.suite.write(menuArrayDic=record(2), theirs=True)
        before = self.suite.bytes()
        self.forbid(self.suite.folder, 0o500)
        self.start()

        self.assertWorksInMemory([row != 2 for row in range(len(TITLES))])
        self.assertEqual(self.suite.bytes(), before)
        self.assertNotEqual(self.panel.complaints(), [])

    def test_a_suite_that_cannot_be_read(self):
        self.suite.write(menuArrayDic=record(2), theirs=True)
        before = self.suite.bytes()
        self.forbid(self.suite.path, 0)
        self.start()

        self.assertWorksInMemory([True] * len(TITLES))
        os.chmod(self.suite.path, 0o600)
        self.assertEqual(self.suite.bytes(), before)


if __name__ == "__main__":
    unittest.main()
