"""What a person meets after a fatal error of the panel: a window that says what is wrong and offers what mends it."""

import glob
import os
import plistlib
import resource
import signal
import subprocess
import unittest

from gi.repository import GLib

from support import accessibility
from support.buses import call_bus
from support.case import DesktopTestCase
from support.deployment import APPLICATION
from support.panel import MAIN_WINDOW
from support.suite import as_text
from support.waiting import eventually, throughout

SWITCH = "ORVIK_MENU_NO_PROBLEM_WINDOW"
STOPPED = "Orvik Menu had to stop"
SETTINGS = "The settings of Orvik Menu"
WRONG = "The list that says which folders are active does not match the list of folders."
REMEDY = "A folder without an entry of its own becomes active. A copy of the settings as they are now is kept."
CURE = "Repair Settings mends this. " + REMEDY
FOLDERS = ["/srv", "/usr"]
# How long is looked at what must not happen.
A_MOMENT = 0.7


class Problem(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.addCleanup(self.end, APPLICATION)
        self.addCleanup(self.end, APPLICATION + ".problem")

    def process_of(self, name):
        """The process that owns a name on the bus; 0 for none."""
        try:
            return call_bus(self.bus.connection, "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))[0]
        except LookupError:
            return 0

    def end(self, name):
        process = self.process_of(name)
        if process:
            os.kill(process, signal.SIGKILL)
            eventually(lambda: not self.process_of(name), f"{name} to have gone")

    def problem_process(self):
        return self.process_of(APPLICATION + ".problem")

    def active_window(self, name, *titles):
        """The window of whoever owns a name on the bus, once it has the keyboard; one of several names."""
        def find():
            root = accessibility.application(self.bus.accessibility_address, self.process_of(name))
            return next((window for window in root.children if window.name in titles and window.has("active")), None)

        return eventually(find, f"the window “{titles}” of {name}")

    def problem_window(self):
        # An alert, which is called by what it tells.
        return self.active_window(APPLICATION + ".problem", STOPPED, SETTINGS)

    def texts(self, window):
        return window.texts()

    def store_what_does_not_match(self):
        self.suite.write(foldersArray=FOLDERS, foldersArraystate=[0])

    def start(self, **options):
        return self.start_panel(without=[SWITCH, *options.pop("without", ())], **options)

    def open_folders(self, panel):
        self.hands.click(panel.main_window().find("page tab", "Folders").extents)

    def stop_panel(self, **options):
        """Has the panel meet what it cannot work with."""
        self.store_what_does_not_match()
        panel = self.start(**options)
        self.open_folders(panel)
        self.assertAborted(panel, "")
        return panel

    def assertOpensOnFolders(self):
        window = self.active_window(APPLICATION, MAIN_WINDOW)
        eventually(lambda: window.find("push button", "Add Folder…"), "the folders' tab")
        rows = eventually(lambda: window.all("list item") if len(window.all("list item")) == 2 else None, "two rows")
        self.assertEqual([row.name for row in rows], FOLDERS)

    def assertMended(self, before):
        mended = {**plistlib.loads(before), "foldersArraystate": [0, 1]}
        self.assertEqual(self.suite.text(), as_text(mended))
        kept, = glob.glob(self.suite.path + ".corrupt-*")
        with open(kept, "rb") as file:
            self.assertEqual(file.read(), before)

    def test_it_says_what_is_wrong(self):
        self.stop_panel()

        window = self.problem_window()
        self.assertEqual(window.role, "alert message")
        texts = self.texts(window)
        self.assertIn(STOPPED, texts)
        self.assertIn("What it said: foldersArraystate has no row 1", texts)
        self.assertIn(WRONG, texts)
        self.assertIn(CURE, texts)
        self.assertEqual({button.name for button in window.all("push button")},
                         {"Close", "Open Again", "Repair Settings"})
        self.save_picture("problem")

    def test_it_is_told_which_process_has_stopped(self):
        panel = self.stop_panel()

        self.problem_window()
        with open(f"/proc/{self.problem_process()}/environ", "rb") as file:
            variables = file.read().split(b"\0")
        self.assertIn(b"ORVIK_MENU_FATAL_PROCESS=%d" % panel.process_id, variables)

    def test_repairing_mends_the_settings_and_opens_the_panel_on_them(self):
        self.stop_panel()
        before = self.suite.bytes()

        self.problem_window().find("push button", "Repair Settings").act("Press")

        self.assertOpensOnFolders()
        self.assertMended(before)
        eventually(lambda: not self.problem_process(), "the window to have gone")

    def test_the_keyboard_repairs_at_once(self):
        self.stop_panel()
        before = self.suite.bytes()

        self.assertEqual(self.problem_window().focused().name, "Repair Settings")
        self.hands.press("Return")

        self.assertOpensOnFolders()
        self.assertMended(before)

    def test_opening_again_changes_nothing(self):
        self.stop_panel()
        before = {"foldersArray": FOLDERS, "foldersArraystate": [0]}

        self.problem_window().find("push button", "Open Again").act("Press")

        window = self.active_window(APPLICATION, MAIN_WINDOW)
        eventually(lambda: window.find("check box", "Open Terminal"), "the menu items")
        eventually(lambda: not self.problem_process(), "the window to have gone")
        self.assertEqual({key: self.suite.read()[key] for key in before}, before)

    def test_closing_changes_nothing_and_starts_nothing(self):
        for close in (lambda window: self.hands.press("Escape"),
                      lambda window: window.find("push button", "Close").act("Press")):
            self.stop_panel()
            before = self.suite.bytes()

            close(self.problem_window())

            eventually(lambda: not self.problem_process(), "the window to have gone")
            throughout(lambda: not self.process_of(APPLICATION), "no panel runs", A_MOMENT)
            self.assertEqual(self.suite.bytes(), before)

    def test_settings_that_cannot_be_kept_are_told_of_and_stay(self):
        self.stop_panel()
        window = self.problem_window()
        before = self.suite.bytes()
        # Nobody can make a file of a name that a folder has.
        lock = self.suite.path + ".lock"
        os.remove(lock)
        os.mkdir(lock)
        self.addCleanup(os.rmdir, lock)

        window.find("push button", "Repair Settings").act("Press")

        eventually(lambda: any(text.startswith("The settings could not be repaired: ") for text in self.texts(window)),
                   "the failure to be told")
        self.save_picture("problem-not-repaired")
        self.assertEqual(self.suite.bytes(), before)

    def test_what_the_settings_do_not_explain_is_told_as_the_panel_said_it(self):
        self.start_panel(program=os.path.join(self.programs, "orvik-menu-problem"), without=[SWITCH],
                         ORVIK_MENU_FATAL_ERROR="there is no tab 99")

        window = self.problem_window()
        texts = self.texts(window)
        self.assertIn(STOPPED, texts)
        self.assertIn("What it said: there is no tab 99", texts)
        self.assertEqual({button.name for button in window.all("push button")}, {"Close", "Open Again"})
        self.save_picture("problem-unexplained")

    def test_a_second_error_is_told_of_beside_the_first(self):
        for words in ("there is no tab 98", "there is no tab 99"):
            program = self.start_panel(program=os.path.join(self.programs, "orvik-menu-problem"), without=[SWITCH],
                                       ORVIK_MENU_FATAL_ERROR=words)
            eventually(lambda: any("What it said: " + words in self.texts(window) for window in program.windows()),
                       words)

    def test_no_cure_is_promised_of_what_the_settings_do_not_explain(self):
        self.store_what_does_not_match()
        self.start_panel(program=os.path.join(self.programs, "orvik-menu-problem"), without=[SWITCH],
                         ORVIK_MENU_FATAL_ERROR="there is no tab 99")

        window = self.problem_window()
        texts = self.texts(window)
        self.assertIn("What it said: there is no tab 99", texts)
        self.assertIn(WRONG, texts)
        self.assertIn("That may not be why it stopped. Repair Settings mends the settings. " + REMEDY, texts)
        self.assertTrue(window.find("push button", "Repair Settings"))
        self.save_picture("problem-besides")

    def test_an_older_record_that_ends_the_panel_at_its_start_is_repaired_too(self):
        self.suite.write(save14="no list")
        panel = self.start()
        self.assertAborted(panel, "")

        self.problem_window().find("push button", "Repair Settings").act("Press")

        window = self.active_window(APPLICATION, MAIN_WINDOW)
        eventually(lambda: window.find("check box", "Open Terminal"), "the menu items")

    def test_the_window_is_told_not_to_come(self):
        self.store_what_does_not_match()
        panel = self.start_panel(ORVIK_MENU_NO_PROBLEM_WINDOW="1")
        self.open_folders(panel)
        self.assertAborted(panel, "")

        throughout(lambda: not self.problem_process(), "no window comes", A_MOMENT)

    def test_an_empty_variable_does_not_keep_the_window_away(self):
        self.stop_panel(ORVIK_MENU_NO_PROBLEM_WINDOW="")
        self.problem_window()

    def test_without_a_display_nothing_is_started(self):
        self.suite.write(save14="no list")
        process = subprocess.run(
            [os.path.join(self.programs, "orvik-menu"), "-platform", "offscreen"],
            env={name: value for name, value in self.environment.items() if name not in ("DISPLAY", SWITCH)},
            check=False, capture_output=True, text=True, timeout=60,
            preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CORE, (0, 0)))

        self.assertEqual(process.returncode, -signal.SIGABRT)
        self.assertRegex(process.stderr, "^orvik-menu: fatal error: [^\n]*\n$")
        throughout(lambda: not self.problem_process(), "no window comes", A_MOMENT)

    def test_the_panel_opens_on_the_tab_that_it_is_asked_for(self):
        self.suite.write(foldersArray=FOLDERS, foldersArraystate=[0, 1])
        panel = self.start_panel(wrapper=[os.path.join(self.programs, "orvik-menu"), "--tab"], program="Folders")
        self.assertOpensOnFolders()
        panel.close()

    def test_a_tab_that_is_not_there_is_ignored(self):
        panel = self.start_panel(wrapper=[os.path.join(self.programs, "orvik-menu"), "--tab"], program="Nowhere")
        window = panel.main_window()
        eventually(lambda: window.find("check box", "Open Terminal"), "the menu items")

    def test_a_tab_without_a_title_is_wrong_usage(self):
        answer = self.run_tool("orvik-menu", "--tab")
        self.assertEqual((answer.returncode, answer.stdout), (2, b""))
        self.assertTrue(answer.stderr.startswith(b"orvik-menu: --tab needs a title\n"), answer.stderr)


if __name__ == "__main__":
    unittest.main()
