"""What goes wrong around a file manager that has the menu does it no harm."""

import fcntl
import os
import signal
import sys
import unittest

from support import processes, restless_settings
from support.extension import processes_of
from support.file_manager_cases import OF_A_FILE, OF_SEVERAL, SUBMENU, FileManagerTestCase
from support.real_file_managers import Dolphin, Nautilus
from support.waiting import eventually


class Troubles:
    def hidden(self, folder):
        with open(os.path.join(folder, ".hidden"), "rb") as file:
            return file.read().splitlines()

    def stop_amid_hiding(self):
        """Chooses to hide the selected item, and stops the action and the companion that waits for it."""
        mark = "HOME=" + self.home.folder
        folder = os.open(self.work, os.O_RDONLY | os.O_DIRECTORY)
        try:
            # The action waits for its turn with the folder.
            fcntl.flock(folder, fcntl.LOCK_EX)
            self.running.menu().choose("Hide / Unhide item")
            action, = eventually(lambda: processes_of("hide-unhide-item", mark), "the action")
            os.kill(action, signal.SIGSTOP)
        finally:
            os.close(folder)
        companion, = self.companion.processes()
        os.kill(companion, signal.SIGSTOP)
        return action, companion

    def test_menus_open_while_the_companion_is_stopped_amid_a_call(self):
        self.start()
        self.running.select(self.letter())
        self.assertMenu(*OF_A_FILE)

        stopped = self.stop_amid_hiding()
        for _ in range(3):
            self.assertEqual(self.read_menu(), OF_A_FILE)
        self.running.menu().choose("Configure Orvik Menu Settings")
        self.assertEqual(self.read_menu(), OF_A_FILE)
        self.assertFalse(os.path.exists(os.path.join(self.work, ".hidden")))

        for process in stopped:
            os.kill(process, signal.SIGCONT)
        self.assertEventuallyEqual(lambda: self.hidden(self.work), [b"letter.txt"])
        # What was asked for meanwhile is done as well.
        eventually(lambda: processes_of("orvik-menu", "HOME=" + self.home.folder), "the panel")

    def test_menus_open_while_the_settings_change_a_thousand_times_a_second(self):
        self.start()
        self.running.select(self.letter())
        self.assertMenu(*OF_A_FILE)
        restless = processes.start([sys.executable, "-B", restless_settings.__file__, self.suite.path],
                                   env=self.environment)
        self.addCleanup(processes.end, restless)

        self.assertMenu(SUBMENU)
        for _ in range(5):
            self.assertIn(self.read_menu(), ([SUBMENU], OF_A_FILE))
        self.assertIsNone(restless.poll())
        processes.end(restless)
        self.settings(showinSubMenu=True)
        self.assertMenu(SUBMENU)
        self.settings()
        self.assertMenu(*OF_A_FILE)

    def test_ten_thousand_selected_items_are_a_selection_like_any_other(self):
        names = [f"{number}.txt" for number in range(10_000)]
        many = self.make_files("work/many", *names)
        self.start()

        self.running.select_all(many)
        self.assertMenu(*OF_SEVERAL)
        self.running.menu().choose("Hide / Unhide item")
        self.assertEventuallyEqual(lambda: sorted(self.hidden(many)), sorted(map(os.fsencode, names)))


class TroublesOfNautilus(Troubles, FileManagerTestCase):
    file_manager = Nautilus
    desktop = "GNOME"


class TroublesOfDolphin(Troubles, FileManagerTestCase):
    file_manager = Dolphin
    desktop = "KDE"


if __name__ == "__main__":
    unittest.main()
