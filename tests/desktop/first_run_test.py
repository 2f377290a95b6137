"""The first run: two steps in either order, a word of success, and the tabs at the next start."""

import os
import shutil
import signal
import stat
import unittest

from support import accessibility
from support.case import DesktopTestCase
from support.deployment import EXTENSION
from support.extension import AUTOSTART, EXTENSIONS, EXTENSIONS_NAME, Companion, processes_of
from support.folders import CHOOSER, choose, go_to
from support.panel import MAIN_WINDOW
from support.waiting import eventually, settled, throughout

SUCCESS = ("You have succeessfully enabled Orvik Menu and can see the Orvik Menu items in the Context Menu on right "
           "click for selected folders. You can change these settings in the app anytime.")
FIRST = "Open Extensions…"
SECOND = "Choose Folders…"
# The panel looks every 5 seconds.
NEXT_LOOK = 9.0
A_MOMENT = 0.5

WITHOUT_PRIVILEGES = ([shutil.which("setpriv"), "--bounding-set=-dac_override,-dac_read_search"]
                      if os.geteuid() == 0 else [])


class FirstRun(DesktopTestCase):
    knows_the_panel = False

    def setUp(self):
        super().setUp()
        self.companion = Companion(self)
        self.addCleanup(self.end_other_programs)

    def end_other_programs(self):
        for process in self.companion.processes() + self.extensions_processes():
            os.kill(process, signal.SIGTERM)
        for name in (EXTENSION, EXTENSIONS_NAME):
            eventually(lambda name=name: not self.bus.has_owner(name), f"{name} to go")

    def extensions_processes(self):
        return processes_of("orvik-menu-extensions", "HOME=" + self.home.folder)

    def start(self, **options):
        self.panel = self.start_panel(**options)
        self.window = self.panel.main_window()

    def make_folder_of(self, name):
        path = os.path.join(self.home.files, name)
        os.mkdir(path)
        return path

    def is_done(self, button):
        return not self.window.find("push button", button).has("enabled")

    def press_step(self, button):
        self.hands.click(self.window.find("push button", button).extents)

    def extensions_window(self):
        """The window of extensions, by the accessibility bus."""
        def find():
            for process in self.extensions_processes():
                application = accessibility.application(self.bus.accessibility_address, process)
                for window in application.children:
                    if window.name == EXTENSIONS and window.has("active"):
                        return window
            return None

        return eventually(find, "the window of extensions")

    def switch_extension(self):
        self.press_step(FIRST)
        window = self.extensions_window()
        self.hands.click(window.find("check box").extents)
        return window

    def success(self):
        def find():
            return next((window for window in self.panel.windows() if window.name == SUCCESS), None)

        return eventually(find, "the word of success", NEXT_LOOK)

    def assertEndsWithTheFirstRunOver(self):
        # A new window may still be on its way to its place.
        self.hands.click(settled(lambda: self.success().find("push button", "OK").extents))
        self.assertEqual(self.panel.wait_for_end(), 0)
        self.assertEqual(self.own_settings.read(), {"firstRun": True})

    def test_the_steps_show_and_none_is_done(self):
        self.start()

        self.assertFalse(self.is_done(FIRST))
        self.assertFalse(self.is_done(SECOND))
        self.assertEqual(self.window.all("page tab"), [])
        self.save_picture("first-run")

    def test_extension_first_then_folders_and_the_next_start_shows_the_tabs(self):
        folder = self.make_folder_of("Projects")
        self.start()
        self.switch_extension()
        eventually(lambda: self.is_done(FIRST), "the first step", NEXT_LOOK)
        self.assertTrue(os.path.exists(os.path.join(self.home.configuration, AUTOSTART)))
        self.hands.press("Escape")
        self.panel.main_window()
        self.save_picture("first-run-half")
        self.press_step(SECOND)
        choose(self.hands, self.panel, folder)

        self.success()
        self.save_picture("first-run-done")
        self.assertEndsWithTheFirstRunOver()
        self.assertEqual(self.suite.read(), {"foldersArray": [folder], "foldersArraystate": [1]})
        self.start()
        self.assertEqual([tab.name for tab in self.window.all("page tab")],
                         ["Menu Items", "Folders", "General", "About", "Custom Folders"])

    def test_folders_first_then_extension(self):
        folder = self.make_folder_of("Projects")
        self.start()
        self.press_step(SECOND)
        choose(self.hands, self.panel, folder)
        eventually(lambda: self.is_done(SECOND), "the second step")
        self.assertEqual(self.suite.read(), {"foldersArray": [folder], "foldersArraystate": [1]})
        throughout(lambda: not self.own_settings.exists(), "the first run is not over", A_MOMENT)
        self.switch_extension()

        self.success()
        self.assertEndsWithTheFirstRunOver()

    def test_the_word_of_success_is_given_once_however_long_it_stays(self):
        self.companion.start()
        folder = self.make_folder_of("a")
        self.start()
        eventually(lambda: self.is_done(FIRST), "the first step", 2.0)
        self.press_step(SECOND)
        choose(self.hands, self.panel, folder)
        self.success()

        # Longer than it takes the panel to look twice.
        throughout(lambda: [window.name for window in self.panel.windows()].count(SUCCESS) == 1,
                   "one word of success", 11.0)
        self.assertEndsWithTheFirstRunOver()

    def test_an_extension_that_runs_already_is_seen_without_a_press(self):
        self.companion.start()
        self.start()

        eventually(lambda: self.is_done(FIRST), "the first step", 2.0)
        self.assertFalse(self.is_done(SECOND))

    def test_switching_the_extension_off_again_gives_its_button_back(self):
        self.start()
        window = self.switch_extension()
        eventually(lambda: self.is_done(FIRST), "the first step", NEXT_LOOK)
        self.hands.click(window.find("check box").extents)

        eventually(lambda: not self.is_done(FIRST), "the button to come back", NEXT_LOOK)
        self.assertFalse(os.path.exists(os.path.join(self.home.configuration, AUTOSTART)))
        self.hands.press("Escape")

    def test_several_folders_are_stored_in_the_choosers_order(self):
        folders = [self.make_folder_of(name) for name in ("a", "b", "c")]
        self.start()
        self.press_step(SECOND)
        chooser = self.panel.active_window(CHOOSER)
        go_to(self.hands, chooser, self.home.files)
        self.hands.press("Home", "ctrl+a", "Return")
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")

        self.assertStored(foldersArray=folders, foldersArraystate=[1, 1, 1])

    def test_a_cancelled_chooser_changes_nothing(self):
        self.start()
        self.press_step(SECOND)
        self.panel.active_window(CHOOSER)
        self.hands.press("Escape")
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")

        self.assertFalse(self.is_done(SECOND))
        self.assertFalse(self.suite.exists())

    def test_a_first_run_that_is_left_begins_anew(self):
        folder = self.make_folder_of("a")
        self.start()
        self.press_step(SECOND)
        choose(self.hands, self.panel, folder)
        eventually(lambda: self.is_done(SECOND), "the second step")
        self.hands.press("ctrl+w")
        self.assertEqual(self.panel.wait_for_end(), 0)

        self.start()
        self.assertFalse(self.is_done(SECOND))
        self.assertFalse(self.own_settings.exists())

    def test_the_about_entry_changes_nothing_on_the_screen(self):
        self.start()
        self.hands.press("alt+o")
        eventually(lambda: self.window.find("menu item", "About Orvik Menu"), "the menu")
        self.hands.press("a")

        throughout(lambda: self.window.find("push button", SECOND) and not self.window.all("page tab"),
                   "the first run stays", A_MOMENT)

    def test_the_settings_are_their_owners_alone(self):
        os.rmdir(self.home.configuration)
        folder = self.make_folder_of("a")
        # The widest umask, so that nothing is narrowed by chance.
        old = os.umask(0)
        self.addCleanup(os.umask, old)
        self.start()
        self.press_step(SECOND)
        choose(self.hands, self.panel, folder)

        self.assertStored(foldersArray=[folder], foldersArraystate=[1])
        self.assertEqual(stat.S_IMODE(os.stat(self.suite.path).st_mode), 0o600)
        self.assertEqual(stat.S_IMODE(os.stat(self.suite.folder).st_mode), 0o700)

    def test_where_nothing_can_be_written_the_step_still_counts(self):
        folder = self.make_folder_of("a")
        os.chmod(self.home.configuration, 0o500)
        self.addCleanup(os.chmod, self.home.configuration, 0o700)
        self.start(wrapper=WITHOUT_PRIVILEGES)
        self.press_step(SECOND)
        choose(self.hands, self.panel, folder)

        eventually(lambda: self.is_done(SECOND), "the second step")
        self.assertEqual(os.listdir(self.home.configuration), [])
        self.assertNotEqual(self.panel.complaints(), [])
        self.assertTrue(all(line.startswith("orvik-menu: ") for line in self.panel.complaints()))

    def test_settings_that_cannot_be_entered_count_as_none(self):
        self.own_settings.write(firstRun=True)
        os.chmod(self.own_settings.folder, 0)
        self.addCleanup(os.chmod, self.own_settings.folder, 0o700)
        self.start(wrapper=WITHOUT_PRIVILEGES)

        self.panel.complaints()
        self.assertFalse(self.is_done(SECOND))

    def test_closing_the_window_ends_the_panel(self):
        self.start()
        self.assertEqual(self.window.name, MAIN_WINDOW)
        self.hands.press("alt+F4")

        self.assertEqual(self.panel.wait_for_end(), 0)


if __name__ == "__main__":
    unittest.main()
